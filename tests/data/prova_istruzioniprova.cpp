#include "data/istruzioniprova.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

TEST(IstruzioniProva, ChiedonoIDirittiSenzaCambiareRighe)
{
    QStringList domande;
    for (const auto& diritto : istruzioni::diritti())
        domande << diritto.cosa + u": "_s + diritto.domanda;
    EXPECT_EQ(
        domande,
        (QStringList{
            u"leggere le spedizioni: explain select * from letve00f where lenrlv=''"_s,
            u"leggere le giacenze: explain select * from giace00f where GINRGI=''"_s,
            u"leggere i clienti: explain select RagioneSociale from clien where Codice=0"_s,
            u"leggere le filiali: explain select codice, descrizione from filiali"_s,
            u"leggere le condizioni dei clienti: explain select * from tabfatturazione where FACODI=0"_s,
            u"registrare giacenze: explain insert into giace00f (GIFILI) values ('')"_s,
            u"aggiornare le giacenze: explain update giace00f set GINRAV='1' where GINRGI=''"_s,
            u"collegare le spedizioni: explain update letve00f set LERFGI='' where lenrlv=''"_s,
            u"prendere il numero di una giacenza: explain update ekelvorqzt_tabge00f set "
            "UltimoNumGiacenza=UltimoNumGiacenza where 1=0"_s,
            u"emettere lettere di vettura: explain insert into letve00f (lefili) values ('')"_s,
        }));
    EXPECT_EQ(istruzioni::annoDiProva(), u"select year('2026-01-01')"_s);
    EXPECT_EQ(istruzioni::comeSiChiamanoLeTabelle(), u"select @@lower_case_table_names"_s);
}
