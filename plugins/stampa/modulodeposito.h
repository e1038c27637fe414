#pragma once

#include <giacenza/Documento.h>

#include <QPointer>
#include <QWidget>

namespace giacenza::stampa {

/// The print module of the depot: keeps each document as a PDF in the documents' folder, and then shows or
/// prints it if the key "Modalita" of the settings file says so: "pdf", "anteprima" or "stampante".
class ModuloDeposito : public ModuloStampaConFonte
{
public:
    void setFonte(FonteDocumenti* fonte, QWidget* padre) override;
    void setPercorsoDatabase(const QString& percorso) override { mRichiesta.percorsoDatabase = percorso; }
    void setPercorsoLogo(const QString& percorso) override { mRichiesta.percorsoLogo = percorso; }
    void setDidascalie(const std::array<QString, 4>& didascalie) override;
    void setStampa(bool stampa) override { mStampa = stampa; }
    void setTipoDocumento(TipoDocumento tipo) override { mRichiesta.tipo = tipo; }

    /// Writes "<key>.pdf", for the closure "<key>_buonfine.pdf"; a document printed again gets the next free
    /// "-2", "-3". Throws Errore without a source, when printing was switched off, when the document cannot
    /// be read or the file cannot be written; and, with the file written and named in the text, when the
    /// document did not come out of the printer or the mode is unknown.
    void stampaDocumento(const QString& chiave, bool& nonProdotto) override;

private:
    FonteDocumenti* mFonte = nullptr;
    QPointer<QWidget> mPadre;
    RichiestaDocumento mRichiesta;
    bool mStampa = false;
};

} // namespace giacenza::stampa
