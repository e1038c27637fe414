#include "reports/casodiprova.h"

using namespace Qt::StringLiterals;

namespace giacenza::prove {

void aggiungiCaso(const BancaDati& base)
{
    base.esegui(uR"(insert into filiali values ('MI', 'Milano', 'Via Roma 1', 'Milano', 'MI');
insert into filiali values ('TO', 'Torino', 'Corso Francia 20', 'Torino', 'TO');
insert into clien values (4711, 'Ceramiche dell''Arno S.p.A.', 'Via degli Orti 12', 'Montelupo Fiorentino', 'FI',
    '50056', null);
insert into ekelvorqzt_tabge00f (UltimoNumGiacenza, IstrSuAvvGiac) values (1234,
    'Vi preghiamo di comunicarci entro 5 giorni se riconsegnare o rendere la merce.');
insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lecmpe, ledest, leindd, lecapd, lelocd, leprod, lenatu,
    lerife, lerifd, lecoll, lepeso, levolu, lecnss, levame, lenote)
    values ('MI', '0098765', 2015, '2015-03-02', 4711, 'A', 'Bottega del Gusto di Rossi Maria', 'Piazza Garibaldi 7/b',
    '10123', 'Torino', 'TO', 'Piastrelle', 'DDT 812', '2015-03-01', 4, 1234.50, 0.750, 250.00, 12345.60, null);
insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GINRGI, GIANGI, GIDTGI, GIGGSO, GINRAV, GIDTAV, GIDES1,
    GIDTBF, GIIMGI, FissoGiacenza)
    values ('MI', '0098765', 2015, 4711, 'TO', '1234', 2015, '2015-03-05', 7, '1', '2015-03-12',
    'Destinatario assente al secondo passaggio', '2015-03-20', 15.00, 8.50);
)"_s);
}

RichiestaDocumento richiestaDelCaso(const BancaDati& base, TipoDocumento tipo)
{
    return {tipo,
            u"1234_2015"_s,
            base.stringa(),
            {},
            {u"Trasporti del Ponte S.r.l."_s, u"Via dell'Industria 14 - 10148 Torino (TO)"_s,
             u"Tel. 011 000000 - Fax 011 000001"_s, u"giacenze@trasportidelponte.example"_s}};
}

} // namespace giacenza::prove
