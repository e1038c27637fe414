#include "data/istruzioniprova.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

std::vector<Diritto> diritti()
{
    return {
        {u"leggere le spedizioni"_s, u"explain select * from letve00f where lenrlv=''"_s},
        {u"leggere le giacenze"_s, u"explain select * from giace00f where GINRGI=''"_s},
        {u"leggere i clienti"_s, u"explain select RagioneSociale from clien where Codice=0"_s},
        {u"leggere le filiali"_s, u"explain select codice, descrizione from filiali"_s},
        {u"leggere le condizioni dei clienti"_s, u"explain select * from tabfatturazione where FACODI=0"_s},
        {u"registrare giacenze"_s, u"explain insert into giace00f (GIFILI) values ('')"_s},
        {u"aggiornare le giacenze"_s, u"explain update giace00f set GINRAV='1' where GINRGI=''"_s},
        {u"collegare le spedizioni"_s, u"explain update letve00f set LERFGI='' where lenrlv=''"_s},
        {u"prendere il numero di una giacenza"_s,
         u"explain update ekelvorqzt_tabge00f set UltimoNumGiacenza=UltimoNumGiacenza where 1=0"_s},
        {u"emettere lettere di vettura"_s, u"explain insert into letve00f (lefili) values ('')"_s},
    };
}

QString annoDiProva()
{
    return u"select year('2026-01-01')"_s;
}

QString comeSiChiamanoLeTabelle()
{
    return u"select @@lower_case_table_names"_s;
}

} // namespace giacenza::istruzioni
