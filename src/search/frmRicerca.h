#pragma once

#include "data/cercasoggetti.h"

#include <QDialog>

#include <functional>
#include <memory>

class QListWidgetItem;

namespace Ui {
class frmRicerca;
}

namespace giacenza {

class Errore;

/// The party search: finds a customer, a supplier or a recipient by code, VAT number, name, town or province,
/// and gives back the one that the operator takes from the list.
///
/// The caller sets the first three properties, shows the dialog modally and reads the others when it has
/// closed. The rows are read as the list is scrolled; the connection closes with the dialog.
class frmRicerca : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(qint16 Clienti_Fornitori READ Clienti_Fornitori WRITE setClienti_Fornitori)
    Q_PROPERTY(QString NomeTabella READ NomeTabella WRITE setNomeTabella)
    Q_PROPERTY(QString StringaConnessione READ StringaConnessione WRITE setStringaConnessione)
    Q_PROPERTY(qint32 IdRecord READ IdRecord)
    Q_PROPERTY(bool NonTrovataOccorrenza READ NonTrovataOccorrenza)

public:
    explicit frmRicerca(QWidget* parent = nullptr);
    ~frmRicerca() override;

    /// 1 customer, 2 supplier, 3 recipient; any other value is a test mode.
    qint16 Clienti_Fornitori() const { return mClientiFornitori; }
    void setClienti_Fornitori(qint16 tipo);

    /// The table to search.
    QString NomeTabella() const { return mNomeTabella; }
    void setNomeTabella(const QString& nome) { mNomeTabella = nome; }

    QString StringaConnessione() const { return mStringaConnessione; }
    void setStringaConnessione(const QString& stringa) { mStringaConnessione = stringa; }

    /// A row was taken.
    bool trovato() const { return mTrovato; }
    /// The code of the row taken, 0 without one.
    qint32 IdRecord() const { return mIdRecord; }
    /// Its company name, empty without one.
    QString ragioneSociale() const { return mRagioneSociale; }
    /// The last search found nothing.
    bool NonTrovataOccorrenza() const { return mNonTrovata; }

    void done(int esito) override;

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void collega();
    void opzioneScelta();
    void abilitaElenco(bool abilita);
    /// Runs what a control starts; its failure becomes a message.
    void prova(const std::function<void()>& azione);
    void cerca();
    /// Adds the next page of rows.
    void CaricaLista();
    void scegli(const QListWidgetItem* voce);
    void chiudi();
    void azzera();
    void mostraErrore(const Errore& errore);
    CampoSoggetto campo() const;
    QString voce(const Soggetto& soggetto) const;

    std::unique_ptr<Ui::frmRicerca> mUi;
    CercaSoggetti mRicerca;
    CampoSoggetto mCampoCercato = CampoSoggetto::ragioneSociale;
    QString mNomeTabella;
    QString mStringaConnessione;
    QString mRagioneSociale;
    qint32 mIdRecord = 0;
    qint16 mClientiFornitori = 0;
    bool mTrovato = false;
    bool mNonTrovata = false;
    bool mInChiusura = false;
    bool mCaricamento = false;
};

} // namespace giacenza
