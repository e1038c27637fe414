#pragma once

#include "data/istruzioniricerca.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class frmRicercaGia;
}

namespace giacenza {

class ColonneGriglia;
class ModelloRicerca;

/// The shipment search: lists waybills or held shipments, and gives back the number and the date of the
/// waybill whose row the operator takes.
///
/// The caller sets the properties and shows the dialog, modal; the list of the mode is read when it is shown,
/// on a connection of its own over the component's connection string. After the dialog has closed the caller
/// reads accettato(), NumLetVett() and DataLetVett(): without a choice both are as the caller left them. It
/// can be shown again, with the same or other properties.
class frmRicercaGia : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(int TipoRicerca READ TipoRicerca WRITE setTipoRicerca)
    Q_PROPERTY(QString Titolo READ Titolo WRITE setTitolo)
    Q_PROPERTY(QString CaptionLabel READ CaptionLabel WRITE setCaptionLabel)
    Q_PROPERTY(QString RagioneSocialeCliente READ RagioneSocialeCliente WRITE setRagioneSocialeCliente)
    Q_PROPERTY(QString CodiceCliente READ CodiceCliente WRITE setCodiceCliente)
    Q_PROPERTY(QString Filiale READ Filiale WRITE setFiliale)
    Q_PROPERTY(QString RiferimentoCliente READ RiferimentoCliente WRITE setRiferimentoCliente)
    Q_PROPERTY(QString NumLetVett READ NumLetVett WRITE setNumLetVett)
    Q_PROPERTY(QString DataLetVett READ DataLetVett WRITE setDataLetVett)
    Q_PROPERTY(QString AnnoOdata READ AnnoOdata WRITE setAnnoOdata)
    Q_PROPERTY(QString Giacenza READ Giacenza WRITE setGiacenza)
    Q_PROPERTY(QString AnnoGiacenza READ AnnoGiacenza WRITE setAnnoGiacenza)
    Q_PROPERTY(bool accettato READ accettato)

public:
    explicit frmRicercaGia(QWidget* padre = nullptr);
    ~frmRicercaGia() override;

    /// The mode: 1, 7, 10 or 11. Any other number lists nothing.
    int TipoRicerca() const { return static_cast<int>(mModo); }
    void setTipoRicerca(int tipo) { mModo = static_cast<ModoRicerca>(tipo); }
    void setTipoRicerca(ModoRicerca modo) { mModo = modo; }

    /// Caption of the dialog.
    QString Titolo() const { return mTitolo; }
    void setTitolo(const QString& titolo) { mTitolo = titolo; }

    /// Caption over the search value.
    QString CaptionLabel() const { return mCaptionLabel; }
    void setCaptionLabel(const QString& testo) { mCaptionLabel = testo; }

    /// The customer: name, as shown, and code.
    QString RagioneSocialeCliente() const { return mRagioneSociale; }
    void setRagioneSocialeCliente(const QString& nome) { mRagioneSociale = nome; }
    QString CodiceCliente() const { return mDati.cliente; }
    void setCodiceCliente(const QString& codice) { mDati.cliente = codice; }

    /// Code of the waybills' branch.
    QString Filiale() const { return mDati.filiale; }
    void setFiliale(const QString& codice) { mDati.filiale = codice; }

    /// The sender reference to start from, in mode 1.
    QString RiferimentoCliente() const { return mDati.riferimento; }
    void setRiferimentoCliente(const QString& riferimento) { mDati.riferimento = riferimento; }

    /// The waybill number to start from, in mode 7; then the number of the waybill taken.
    QString NumLetVett() const { return mDati.numero; }
    void setNumLetVett(const QString& numero) { mDati.numero = numero; }

    /// The date of the waybill taken, as shown: "dd/mm/yyyy".
    QString DataLetVett() const { return mDataLetVett; }
    void setDataLetVett(const QString& giorno) { mDataLetVett = giorno; }

    /// A year narrows the lists of modes 1 and 7 at opening; a date does not.
    QString AnnoOdata() const { return mDati.annoOData; }
    void setAnnoOdata(const QString& testo) { mDati.annoOData = testo.trimmed(); }

    /// Number and year of the held shipment whose waybills mode 10 lists.
    QString Giacenza() const { return mDati.giacenza; }
    void setGiacenza(const QString& numero) { mDati.giacenza = numero; }
    QString AnnoGiacenza() const { return mDati.annoGiacenza; }
    void setAnnoGiacenza(const QString& anno) { mDati.annoGiacenza = anno; }

    /// A row was taken since the dialog was last shown.
    bool accettato() const { return mAccettato; }

protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void collega();
    void prepara();
    void preparaCampi();
    void visualizza();
    void elenca(const std::function<QString()>& istruzione);
    void avvisaSeVuoto();
    void interrotta(const QString& motivo, const QString& parole);
    void contaRighe();
    void seleziona();
    QString cella(int colonna) const;

    std::unique_ptr<Ui::frmRicercaGia> mUi;
    ModelloRicerca* mModello;
    std::unique_ptr<ColonneGriglia> mColonne;
    ModoRicerca mModo = ModoRicerca::letteraVettura;
    DatiRicerca mDati;
    QString mTitolo;
    QString mCaptionLabel;
    QString mRagioneSociale;
    QString mDataLetVett;
    QString mGuasto; // in Italian, why the list could not be read, or not to its end
    QString mParole; // the same in the driver's words
    bool mAccettato = false;
};

} // namespace giacenza
