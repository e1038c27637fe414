#include "schema/dati/opzioni.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::dimostrazione;
using namespace Qt::StringLiterals;

namespace {

const QDate oggi(2026, 3, 2);

QString rifiuto(const QStringList& argomenti)
{
    try {
        leggiOpzioni(argomenti, oggi);
    } catch (const Errore& errore) {
        return errore.testo();
    }
    return u"accettate"_s;
}

TEST(Opzioni, senzaAltroSonoDuemilaSpedizioniFinoAOggi)
{
    const Opzioni opzioni = leggiOpzioni({u"DRIVER={SQLite3};Database=a b.db"_s}, oggi);
    EXPECT_EQ(opzioni.stringa, u"DRIVER={SQLite3};Database=a b.db"_s);
    EXPECT_EQ(opzioni.richiesta.spedizioni, 2000);
    EXPECT_EQ(opzioni.richiesta.oggi, oggi);
    EXPECT_FALSE(opzioni.richiesta.crea);
    EXPECT_FALSE(opzioni.aiuto);
}

TEST(Opzioni, vannoInQualunqueOrdine)
{
    const Opzioni opzioni = leggiOpzioni(
        {u"--crea"_s, u"--oggi"_s, u"2025-12-31"_s, u"DSN=x"_s, u"--spedizioni"_s, u"0"_s}, oggi);
    EXPECT_EQ(opzioni.stringa, u"DSN=x"_s);
    EXPECT_EQ(opzioni.richiesta.spedizioni, 0);
    EXPECT_EQ(opzioni.richiesta.oggi, QDate(2025, 12, 31));
    EXPECT_TRUE(opzioni.richiesta.crea);
}

TEST(Opzioni, lAiutoNonVuoleAltro)
{
    EXPECT_TRUE(leggiOpzioni({u"--aiuto"_s}, oggi).aiuto);
    EXPECT_TRUE(leggiOpzioni({u"-h"_s}, oggi).aiuto);
    EXPECT_THAT(testoAiuto().toStdString(), testing::HasSubstr("genera-dati \"DRIVER=…\""));
}

TEST(Opzioni, quelleSbagliateSiSpiegano)
{
    EXPECT_EQ(rifiuto({}), u"Manca la stringa di connessione al database."_s);
    EXPECT_EQ(rifiuto({u"a"_s, u"b"_s}), u"La stringa di connessione è una sola: va tra virgolette."_s);
    EXPECT_EQ(rifiuto({u"a"_s, u"--tutto"_s}), u"Opzione sconosciuta: --tutto."_s);
    EXPECT_EQ(rifiuto({u"a"_s, u"--oggi"_s}), u"Dopo --oggi manca il suo valore."_s);
    EXPECT_EQ(rifiuto({u"a"_s, u"--oggi"_s, u"2026-02-29"_s}),
              u"Dopo --oggi va una data aaaa-mm-gg, non \"2026-02-29\"."_s);
    const QStringList numeri{u""_s, u"-1"_s, u"+5"_s, u"1e3"_s, u"10000001"_s, u"99999999999"_s, u"mille"_s};
    for (const QString& numero : numeri) {
        EXPECT_EQ(rifiuto({u"a"_s, u"--spedizioni"_s, numero}),
                  u"Dopo --spedizioni va un numero intero da 0 a 10.000.000, non \"%1\"."_s.arg(numero));
    }
}

} // namespace
