#include "operazioni.h"

#include <QProcess>

using namespace giacenza;
using namespace giacenza::prove;
using testing::HasSubstr;

namespace {

struct Esito
{
    int codice;
    std::string uscita;
    std::string errori;
};

/// The program without a display; the string comes as a line of its input, as from an administrator.
Esito esegui(const QString& stringa,
             const QStringList& argomenti = {u"--prepara-registro"_s, u"--database"_s, u"-"_s})
{
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const QString& nome : {u"DISPLAY"_s, u"QT_QPA_PLATFORM"_s, u"GIACENZA_DATABASE"_s})
        ambiente.remove(nome);
    processo.setProcessEnvironment(ambiente);
    processo.start(QStringLiteral(DEPOSITO), argomenti);
    processo.write(stringa.toUtf8() + '\n');
    processo.closeWriteChannel();
    EXPECT_TRUE(processo.waitForFinished());
    return {processo.exitCode(), processo.readAllStandardOutput().toStdString(),
            processo.readAllStandardError().toStdString()};
}

class Programma : public testing::TestWithParam<std::string>
{
protected:
    const BancaDati mBase{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Basi, Programma, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Programma, preparaIlRegistroUnaVolta)
{
    const QString stringa = mBase.accessoAmministratore().stringa;
    const Esito prima = esegui(stringa);
    EXPECT_EQ(prima.codice, 0) << prima.errori;
    const std::string ultima = GetParam() == "mariadb" ? "2" : "3";
    EXPECT_THAT(prima.uscita, HasSubstr("Il registro è preparato: dalla versione 0 alla " + ultima + ".\n"));
    if (GetParam() == "mariadb") {
        EXPECT_THAT(prima.uscita, HasSubstr("Lo leggono, e aggiungono note: 'prova_"));
    }
    const Esito dopo = esegui(stringa);
    EXPECT_EQ(dopo.codice, 0);
    EXPECT_THAT(dopo.uscita, HasSubstr("Il registro era già preparato, versione " + ultima + ".\n"));
    riempiDeposito(mBase);
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"1"_s);
}

TEST_P(Programma, diceChiLoPuoCambiare)
{
    if (GetParam() == "sqlite") { // there are no accounts there
        EXPECT_THAT(esegui(mBase.accessoAmministratore().stringa).uscita,
                    testing::Not(HasSubstr("può cambiare")));
        return;
    }
    const QString nome = *mBase.leggi(u"select database()"_s);
    const QString intera = u"'%1_i'@'127.0.0.1'"_s.arg(nome);
    mBase.esegui(u"create user %1"_s.arg(intera));
    const auto via = qScopeGuard([&] { mBase.esegui(u"drop user %1"_s.arg(intera)); });
    mBase.esegui(u"grant all on `%1`.* to %2"_s.arg(nome, intera));
    EXPECT_THAT(esegui(mBase.accessoAmministratore().stringa).uscita,
                HasSubstr(intera.toStdString() +
                          " può cambiare il registro: togliergli i diritti sull'intera base.\n"));
}

TEST_P(Programma, senzaLeTabelleDiceCheCosaManca)
{
    const BancaDati vuota{GetParam(), Contenuto::vuoto};
    const Esito esito = esegui(vuota.accessoAmministratore().stringa);
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_THAT(esito.errori, HasSubstr("Il registro non si è potuto preparare."));
    EXPECT_THAT(esito.errori, HasSubstr("giace00f"));
}

TEST(ProgrammaSenzaBase, senzaStringaLaChiede)
{
    const Esito esito = esegui({}, {u"--prepara-registro"_s});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_THAT(esito.errori, HasSubstr("Manca la stringa di connessione dell'archivio"));
}

} // namespace
