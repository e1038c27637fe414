#pragma once

#include <QCloseEvent>
#include <QStringList>
#include <QWidget>

/// What happened to the fake forms, in order.
inline QStringList& accaduto()
{
    static QStringList eventi;
    return eventi;
}

/// A form that behaves as the screens do: it raises Uscita() when it closes and then deletes itself. Its name
/// is what its events are told under.
class FormaFinta : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString NLettVett READ valore WRITE setNLettVett)
    Q_PROPERTY(QString DataLdv READ valore WRITE setDataLdv)
    Q_PROPERTY(QString Filiale READ valore WRITE setFiliale)
    Q_PROPERTY(QString CodiceCliente READ valore WRITE setCodiceCliente)

public:
    explicit FormaFinta(const QString& nome)
    {
        setObjectName(nome);
        accaduto().append(nome + QStringLiteral(" creata"));
    }
    ~FormaFinta() override { accaduto().append(objectName() + QStringLiteral(" distrutta")); }

    QString valore() const { return {}; }
    void setNLettVett(const QString& valore) { annota(QStringLiteral("NLettVett"), valore); }
    void setDataLdv(const QString& valore) { annota(QStringLiteral("DataLdv"), valore); }
    void setFiliale(const QString& valore) { annota(QStringLiteral("Filiale"), valore); }
    void setCodiceCliente(const QString& valore) { annota(QStringLiteral("CodiceCliente"), valore); }

Q_SIGNALS:
    void Uscita();

protected:
    void showEvent(QShowEvent*) override { accaduto().append(objectName() + QStringLiteral(" mostrata")); }

    void closeEvent(QCloseEvent* evento) override
    {
        evento->accept();
        accaduto().append(objectName() + QStringLiteral(" chiusa"));
        Q_EMIT Uscita();
        deleteLater();
    }

private:
    void annota(const QString& proprieta, const QString& valore)
    {
        accaduto().append(QStringLiteral("%1.%2=%3").arg(objectName(), proprieta, valore));
    }
};

/// The same under the names of the three screens.
template<const char* nome>
class SchermataFinta : public FormaFinta
{
public:
    SchermataFinta() : FormaFinta(QString::fromLatin1(nome)) {}
};
