#pragma once

#include <QCloseEvent>
#include <QStringList>
#include <QWidget>

using namespace Qt::StringLiterals;

/// What happened to the fake forms, in order.
inline QStringList& accaduto()
{
    static QStringList eventi;
    return eventi;
}

/// A form that behaves as the screens do: when it closes it asks to be deleted, and last raises Uscita(). Its
/// name is what its events are told under.
class FormaFinta : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString NLettVett READ valore WRITE setNLettVett)
    Q_PROPERTY(QString DataLdv READ valore WRITE setDataLdv)
    Q_PROPERTY(QString Filiale READ valore WRITE setFiliale)
    Q_PROPERTY(QString CodiceCliente READ valore WRITE setCodiceCliente)
    Q_PROPERTY(QString DataGiacenza READ valore WRITE setDataGiacenza)
    Q_PROPERTY(QString NumeroGiacenza READ valore WRITE setNumeroGiacenza)

public:
    explicit FormaFinta(const QString& nome)
    {
        setObjectName(nome);
        accaduto().append(nome + u" creata"_s);
    }
    ~FormaFinta() override { accaduto().append(objectName() + u" distrutta"_s); }

    QString valore() const { return {}; }
    void setNLettVett(const QString& valore) { annota(u"NLettVett"_s, valore); }
    void setDataLdv(const QString& valore) { annota(u"DataLdv"_s, valore); }
    void setFiliale(const QString& valore) { annota(u"Filiale"_s, valore); }
    void setCodiceCliente(const QString& valore) { annota(u"CodiceCliente"_s, valore); }
    void setDataGiacenza(const QString& valore) { annota(u"DataGiacenza"_s, valore); }
    void setNumeroGiacenza(const QString& valore) { annota(u"NumeroGiacenza"_s, valore); }

Q_SIGNALS:
    void Uscita();

protected:
    void showEvent(QShowEvent*) override { accaduto().append(objectName() + u" mostrata"_s); }

    void closeEvent(QCloseEvent* evento) override
    {
        evento->accept();
        accaduto().append(objectName() + u" chiusa"_s);
        deleteLater();
        Q_EMIT Uscita();
    }

private:
    void annota(const QString& proprieta, const QString& valore)
    {
        accaduto().append(u"%1.%2=%3"_s.arg(objectName(), proprieta, valore));
    }
};

/// The same under the names of the three screens.
template<const char* nome>
class SchermataFinta : public FormaFinta
{
public:
    SchermataFinta() : FormaFinta(QString::fromLatin1(nome)) {}
};
