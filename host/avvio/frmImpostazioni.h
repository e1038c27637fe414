#pragma once

#include <QDialog>

#include <vector>

class QLabel;

namespace deposito {

/// The settings file as a form: each entry with what it means. What the form does not know stays in the file.
class frmImpostazioni : public QDialog
{
    Q_OBJECT

public:
    /// file: the settings file; it need not exist.
    explicit frmImpostazioni(const QString& file, QWidget* padre = nullptr);

public Q_SLOTS:
    /// Writes the file; stays open, and says why, when it cannot.
    void accept() override;

private:
    void componi();
    void leggi();
    QWidget* campo(std::size_t indice);
    QString valore(std::size_t indice) const;
    void dici(const QString& testo);

    QString mFile;
    std::vector<QWidget*> mCampi;
    QLabel* mEsito = nullptr;
};

} // namespace deposito
