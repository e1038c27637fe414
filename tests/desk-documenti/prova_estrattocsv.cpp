#include "contodiprova.h"

#include "desk/documenti/estrattocsv.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;

namespace {

TEST(Csv, QuelloCheSembraUnaFormulaNonLoE)
{
    EXPECT_EQ(cellaCsv(u"=1+1"_s), u"'=1+1"_s);
    EXPECT_EQ(cellaCsv(u"+39 02 1234"_s), u"'+39 02 1234"_s);
    EXPECT_EQ(cellaCsv(u"-1"_s), u"'-1"_s);
    EXPECT_EQ(cellaCsv(u"@SUM(A1)"_s), u"'@SUM(A1)"_s);
    EXPECT_EQ(cellaCsv(u"  =1"_s), u"'  =1"_s);
    EXPECT_EQ(cellaCsv(u"\t=1"_s), u"'\t=1"_s);
    EXPECT_EQ(cellaCsv(u"\uFF1D1"_s), u"'\uFF1D1"_s);
    EXPECT_EQ(cellaCsv(u"=HYPERLINK(\"x\";\"y\")"_s), u"\"'=HYPERLINK(\"\"x\"\";\"\"y\"\")\""_s);
    EXPECT_EQ(cellaCsv(u"Rossi & C."_s), u"Rossi & C."_s);
    EXPECT_EQ(cellaCsv(u"a=b"_s), u"a=b"_s);
    EXPECT_EQ(cellaCsv({}), QString());
}

TEST(Csv, VirgoletteDoveServono)
{
    EXPECT_EQ(cellaCsv(u"a;b"_s), u"\"a;b\""_s);
    EXPECT_EQ(cellaCsv(u"detto \"il Lago\""_s), u"\"detto \"\"il Lago\"\"\""_s);
    EXPECT_EQ(cellaCsv(u"due\r\nrighe"_s), u"\"due\r\nrighe\""_s);
}

TEST(Csv, UnEstrattoIntero)
{
    Estratto estratto{{u"1001"_s, QDate(2026, 11, 1), QDate(2026, 11, 30), QDate(2026, 11, 22)},
                      u"=Ferramenta; Lombarda"_s,
                      QDate(2026, 11, 22),
                      {}};
    CasoEstratto caso;
    caso.conto = calcolaConto(datiDiProva(), QDate(2026, 11, 17));
    caso.dataLdv = QDate(2026, 10, 30);
    caso.riferimento = u"-881"_s;
    caso.localita = u"Como"_s;
    caso.provincia = u"CO"_s;
    caso.colli = u"3"_s;
    caso.peso = u"45.5"_s;
    caso.avvisi = u"2"_s;
    caso.ultimoAvviso = QDate(2026, 11, 9);
    caso.origine = Origine::calcolati;
    caso.fisso = u"5.00"_s;
    caso.sosta = u"1016.50"_s;
    caso.totale = u"1021.50"_s;
    registro::Evento evento;
    evento.quando = QDate(2026, 11, 9).startOfDay();
    evento.che = u"Avviso n. 2"_s;
    caso.fatti = {evento};
    estratto.casi.push_back(caso);
    EXPECT_EQ(QString::fromUtf8(estrattoCsv(estratto)),
              u"Cliente;Ragione sociale;Giacenza;Anno;Dal;LDV;Anno LDV;Filiale;Data "
              u"LDV;Riferimento;Destinatario;"
              "Località;Provincia;Colli;Peso kg;Avvisi;Ultimo avviso;Stato;Buon "
              "fine;Giorni;Fisso;Sosta;Totale;Importi;"
              "Fattura;Data fattura;Che cosa è successo\r\n"
              "1001;\"'=Ferramenta; Lombarda\";40;2026;01/11/2026;4711;2026;MI;30/10/2026;'-881;Utensileria "
              "del Lago;"
              "Como;CO;3;45,50;2;09/11/2026;aperta;;16;5,00;1016,50;1021,50;calcolati al 17/11/2026;;;"
              "09/11/2026 Avviso n. 2\r\n"_s);
}

} // namespace
