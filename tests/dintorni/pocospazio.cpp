#include "dintorni/pocospazio.h"

#include "support/stampa.h"

#include <gtest/gtest.h>

#include <iostream>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

/// More than any operation needs.
constexpr int moltePagine = 200;

Esito guarda(RegistroMessaggi& messaggi, const Impresa& impresa)
{
    Esito esito;
    for (const Messaggio& messaggio : messaggi.prendi())
        esito.scatole << messaggio.testo;
    esito.stato = impresa.stato();
    const QString righe = impresa.righe();
    esito.passo = impresa.stati.indexOf(righe);
    esito.completo = righe == impresa.stati.last();
    EXPECT_GE(esito.passo, 0) << "half written: " << righe.toStdString();
    return esito;
}

std::string raccontato(const Esito& esito)
{
    return "state " + std::to_string(esito.passo) +
           "\nboxes: " + esito.scatole.join(u" // "_s).toStdString() +
           "\nstatus: " + esito.stato.toStdString();
}

void ripeti(RegistroMessaggi& messaggi, const Impresa& impresa, const Esito& esito)
{
    if (impresa.riprova)
        impresa.riprova(esito);
    else
        impresa.compi();
    const Esito poi = guarda(messaggi, impresa);
    EXPECT_TRUE(poi.completo) << "after the next press: " << raccontato(poi);
}

} // namespace

void scegliGiornale(const BancaDati& base, const QString& giornale)
{
    ASSERT_EQ(base.leggi(u"pragma journal_mode="_s + giornale), giornale);
}

void provaOgniPagina(DiscoPiccolo& disco, RegistroMessaggi& messaggi, const BancaDati& base,
                     const Impresa& impresa)
{
    int libere = 0;
    for (bool completo = false; !completo; ++libere) {
        SCOPED_TRACE("pages left: " + std::to_string(libere));
        ASSERT_LT(libere, moltePagine) << "the disk was never large enough";
        impresa.prepara();
        // A journal that has grown has room of its own.
        base.righe(u"pragma wal_checkpoint(truncate)"_s);
        messaggi.prendi();
        disco.riempi(libere);
        impresa.compi();
        const Esito esito = guarda(messaggi, impresa);
        disco.libera();
        EXPECT_TRUE(impresa.vero(esito, u"Il disco dell'archivio è pieno."_s)) << raccontato(esito);
        completo = esito.completo;
        if (!completo)
            ripeti(messaggi, impresa, esito);
        if (testing::Test::HasFatalFailure())
            return;
    }
    EXPECT_GT(libere, 1) << "a full disk was in nobody's way";
    std::cout << libere - 1 << " failures\n";
}

void provaSolaLettura(DiscoPiccolo& disco, RegistroMessaggi& messaggi, const Impresa& impresa,
                      const std::function<void()>& fermo)
{
    impresa.prepara();
    messaggi.prendi();
    fermo();
    disco.setSolaLettura(true);
    impresa.compi();
    Esito esito;
    for (const Messaggio& messaggio : messaggi.prendi())
        esito.scatole << messaggio.testo;
    esito.stato = impresa.stato();
    EXPECT_TRUE(impresa.vero(esito, u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s))
        << raccontato(esito);
    disco.setSolaLettura(false);
    EXPECT_EQ(impresa.righe(), impresa.stati.first());
    ripeti(messaggi, impresa, esito);
}

} // namespace giacenza::prove
