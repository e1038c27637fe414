#include <QProcess>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

struct Esito
{
    int codice;
    std::string uscita;
    std::string errori;
};

Esito esegui(const QStringList& argomenti)
{
    QProcess processo;
    processo.start(QStringLiteral(DEPOSITO), argomenti);
    if (!processo.waitForFinished(20000)) {
        processo.kill();
        processo.waitForFinished();
        throw std::runtime_error("il programma non finisce");
    }
    return {processo.exitCode(), processo.readAllStandardOutput().toStdString(),
            processo.readAllStandardError().toStdString()};
}

} // namespace

TEST(Deposito, spiega_le_opzioni_in_italiano)
{
    const Esito esito = esegui({u"--help"_s});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_THAT(esito.uscita, HasSubstr("Il programma del deposito: apre le schermate delle giacenze."));
    EXPECT_THAT(esito.uscita, HasSubstr("--database <stringa>  Stringa di connessione ODBC dell'archivio."));
    EXPECT_THAT(esito.uscita, HasSubstr("--ini <file>          File delle impostazioni."));
    EXPECT_THAT(esito.uscita,
                HasSubstr("--logo <file>         Logo stampato in testa all'avviso di giacenza."));
}

TEST(Deposito, rifiuta_un_opzione_sconosciuta)
{
    const Esito esito = esegui({u"--sbagliata"_s});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_THAT(esito.errori, HasSubstr("Opzione sconosciuta 'sbagliata'."));
}
