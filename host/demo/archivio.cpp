#include "archivio.h"

#include "database/recordset.h"
#include "regista.h"

using namespace Qt::StringLiterals;

using namespace giacenza;

Archivio::Archivio(const QString& stringa) : mStringa(stringa) {}

std::vector<Valore> Archivio::riga(const QString& istruzione)
{
    Connessione connessione;
    connessione.apri(mStringa);
    Recordset righe;
    righe.apri(connessione, istruzione);
    std::vector<Valore> valori;
    for (int i = 0; !righe.eof() && i < righe.colonne(); ++i)
        valori.push_back(righe.valore(i));
    return valori;
}

QString Archivio::valore(const QString& istruzione)
{
    const auto valori = riga(istruzione);
    Regista::verifica(!valori.empty() && valori.front(), u"nessun valore da: %1"_s.arg(istruzione));
    return *valori.front();
}

std::vector<Spedizione> spedizioniLibere(Archivio& archivio)
{
    std::vector<Spedizione> libere;
    QString ultima = u"9999-12-31"_s;
    // Of different days, so that each is told from the other by its date too.
    for (int i = 0; i < 4; ++i) {
        const auto riga = archivio.riga(
            u"select lefili, lenrlv, ledtlv, leanlv, lecodi, ledest from letve00f "
            "left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
            "where ledtlv<'%1' and lerico is null and LERFGI is null and ginrlv is null "
            "and lerife is not null and ledest is not null order by ledtlv desc, lenrlv limit 1"_s.arg(
                ultima));
        Regista::verifica(riga.size() == 6, u"nell'archivio manca una spedizione da mettere in giacenza"_s);
        ultima = *riga[2];
        libere.push_back({*riga[0], *riga[1], dataBreve(*leggiData(*riga[2])), *riga[3], *riga[4], *riga[5]});
    }
    return libere;
}
