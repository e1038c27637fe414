#pragma once

#include <giacenza/Documento.h>

#include <QDir>
#include <QPainter>
#include <QPdfWriter>

/// A print module that keeps the component's own documents as PDF, one file for each key, the last one
/// printed.
class ModuloEsempio : public giacenza::ModuloStampaConFonte
{
public:
    void setFonte(giacenza::FonteDocumenti* fonte, QWidget*) override { mFonte = fonte; }
    void setPercorsoDatabase(const QString& percorso) override { mRichiesta.percorsoDatabase = percorso; }
    void setPercorsoLogo(const QString& percorso) override { mRichiesta.percorsoLogo = percorso; }
    void setDidascalie(const std::array<QString, 4>& righe) override { mRichiesta.didascalie = righe; }
    void setStampa(bool) override {}
    void setTipoDocumento(giacenza::TipoDocumento tipo) override { mRichiesta.tipo = tipo; }

    void stampaDocumento(const QString& chiave, bool& nonProdotto) override
    {
        mRichiesta.chiave = chiave;
        const auto documento = mFonte->documento(mRichiesta);
        if (!documento) { // the operator gave it up, or was told why there is none
            nonProdotto = true;
            return;
        }
        const QDir cartella(mFonte->cartellaDocumenti());
        cartella.mkpath(QStringLiteral("."));
        const QString file = cartella.filePath(chiave + QStringLiteral(".pdf"));
        QPdfWriter carta(file);
        carta.setPageLayout(documento->impaginazione());
        carta.setTitle(documento->titolo());
        QPainter pittore;
        if (!pittore.begin(&carta))
            throw giacenza::Errore(QStringLiteral("Impossibile scrivere \"%1\".").arg(file));
        for (int pagina = 0; pagina < documento->pagine(); ++pagina) {
            if (pagina > 0)
                carta.newPage();
            documento->dipingi(pagina, pittore);
        }
        mFonte->archiviato(file);
    }

private:
    giacenza::FonteDocumenti* mFonte = nullptr;
    giacenza::RichiestaDocumento mRichiesta;
};
