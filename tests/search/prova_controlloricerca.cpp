#include "search/controlloricerca.h"

#include "base/errorenumerato.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

constexpr CampoSoggetto tutti[] = {CampoSoggetto::codice, CampoSoggetto::partitaIva,
                                   CampoSoggetto::ragioneSociale, CampoSoggetto::localita,
                                   CampoSoggetto::provincia};

/// The number of the error that a check raises, 0 for none.
int errore(const QString& testo, CampoSoggetto campo)
{
    try {
        ControllaCampoRicerca(testo, campo);
        return 0;
    } catch (const ErroreNumerato& sollevato) {
        EXPECT_EQ(sollevato.testo(), messaggioSoggetti(sollevato.numero())->testo);
        return sollevato.numero();
    }
}

} // namespace

TEST(ControlloRicerca, unTestoVuotoESempre513)
{
    for (const CampoSoggetto campo : tutti)
        EXPECT_EQ(errore(QString(), campo), 513);
}

TEST(ControlloRicerca, perCodiceEPartitaIvaServeUnNumero)
{
    for (const QString& testo : {u"rossi"_s, u"12a"_s, u" "_s, u"1e3"_s, u"0x10"_s, u"1.000,5"_s}) {
        EXPECT_EQ(errore(testo, CampoSoggetto::codice), 514) << testo.toStdString();
        EXPECT_EQ(errore(testo, CampoSoggetto::partitaIva), 514) << testo.toStdString();
    }
}

TEST(ControlloRicerca, perITestiUnNumeroNonVa)
{
    for (const CampoSoggetto campo :
         {CampoSoggetto::ragioneSociale, CampoSoggetto::localita, CampoSoggetto::provincia}) {
        EXPECT_EQ(errore(u"123"_s, campo), 515);
        EXPECT_EQ(errore(u"-1,5"_s, campo), 515);
        EXPECT_EQ(errore(u"3M"_s, campo), 0);
        EXPECT_EQ(errore(u"%"_s, campo), 0);
    }
}

TEST(ControlloRicerca, laPartitaIvaHaUndiciCifre)
{
    EXPECT_EQ(errore(u"0123456789"_s, CampoSoggetto::partitaIva), 516);
    EXPECT_EQ(errore(u"012345678901"_s, CampoSoggetto::partitaIva), 516);
    EXPECT_EQ(errore(u"01234567890"_s, CampoSoggetto::partitaIva), 0);
}

TEST(ControlloRicerca, ilCodiceEDiQualunqueLunghezza)
{
    EXPECT_EQ(errore(u"1"_s, CampoSoggetto::codice), 0);
    EXPECT_EQ(errore(QString(400, u'1'), CampoSoggetto::codice), 0);
}

TEST(ControlloRicerca, ogniNumeroHaIlSuoMessaggio)
{
    EXPECT_EQ(*messaggioSoggetti(513),
              (Messaggio{u"Campo Ricerca vuoto! Bisogna inserire una stringa da ricercare"_s, Stile::avviso,
                         u"Gestione trasorti"_s}));
    EXPECT_EQ(*messaggioSoggetti(514),
              (Messaggio{u"Bisogna inserire un valore numerico nella casella Ricerca, se si seleziona la "
                         "ricerca per 'CODICE' o per 'P.IVA'"_s,
                         Stile::avviso, u"Gestione Trasporti"_s}));
    EXPECT_EQ(*messaggioSoggetti(515),
              (Messaggio{u"Selezionando la ricerca per 'Ragione Sociale','Località','Provincia'; bisogna "
                         "inserire nella casella ricerca un valore non numerico"_s,
                         Stile::avviso, u"Gestione Trasporti"_s}));
    EXPECT_EQ(*messaggioSoggetti(516),
              (Messaggio{u"Selezionando la ricerca per 'partita iva'; bisogna inserire nella casella ricerca "
                         "un valore numerico di 11 caratteri"_s,
                         Stile::avviso, u"Gestione Trasporti"_s}));
    EXPECT_EQ(*messaggioSoggetti(3021),
              (Messaggio{u"Occorrenza non trovata nel database."_s, Stile::avviso, u"Gestione Trasporti"_s}));
    for (const int altro : {0, 512, 517, -1, 3020})
        EXPECT_FALSE(messaggioSoggetti(altro)) << altro;
}
