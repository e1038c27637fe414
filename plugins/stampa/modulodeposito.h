#pragma once

#include <giacenza/Documento.h>

namespace giacenza::stampa {

/// The print module of the depot: keeps each document as a PDF in the documents' folder.
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
    /// "-2", "-3". Throws Errore without a source, when printing was switched off, and when the document
    /// cannot be read or the file cannot be written.
    void stampaDocumento(const QString& chiave, bool& nonProdotto) override;

private:
    FonteDocumenti* mFonte = nullptr;
    RichiestaDocumento mRichiesta;
    bool mStampa = false;
};

} // namespace giacenza::stampa
