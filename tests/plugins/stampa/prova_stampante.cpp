#include "plugins/stampa/documentofinto.h"
#include "stampa/stampante.h"

#include "base/cartellaprova.h"

#include <QPrinter>

#include <gtest/gtest.h>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

/// A printer that prints into a file.
class Carta : public CartellaProva
{
protected:
    Carta()
    {
        mStampante.setOutputFormat(QPrinter::PdfFormat);
        mStampante.setOutputFileName(percorso(u"carta.pdf"_s));
    }

    QPrinter mStampante{QPrinter::HighResolution};
};

TEST_F(Carta, ogniPaginaSulSuoFoglio)
{
    DocumentoFinto documento(3);
    EXPECT_TRUE(stampa::stampaSu(mStampante, documento, nullptr));
    EXPECT_EQ(documento.ricominciato, 1);
    EXPECT_TRUE(leggi(u"carta.pdf"_s).contains("/Count 3"));
}

TEST_F(Carta, chiAnnullaFermaLaStampante)
{
    int dipinte = 0;
    DocumentoFinto documento(3, [&](int) { return ++dipinte < 2; });
    EXPECT_FALSE(stampa::stampaSu(mStampante, documento, nullptr));
    EXPECT_EQ(dipinte, 2);
}

TEST_F(Carta, unaStampanteCheNonPrendeFogli)
{
    mStampante.setOutputFileName(percorso(u"nessuna/carta.pdf"_s));
    DocumentoFinto documento(1);
    try {
        stampa::stampaSu(mStampante, documento, nullptr);
        FAIL() << "non ha lanciato";
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.testo(), u"Impossibile stampare la pagina 1 di \"Elenco di prova\"."_s);
    }
}

} // namespace
