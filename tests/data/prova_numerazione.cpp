#include "data/numerazione.h"

#include "data/archivio.h"
#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QScopeGuard>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

/// The SQLSTATE with which taking a number fails.
QString fallimento(Connessione& connessione)
{
    try {
        const QString numero = ProssimoNumGiacenza(connessione);
        ADD_FAILURE() << "a number was given: " << numero.toStdString();
    } catch (const ErroreDatabase& errore) {
        EXPECT_EQ(errore.codiceNativo(), 0) << "no database gave it";
        return errore.sqlstate();
    }
    return {};
}

class Numerazione : public testing::TestWithParam<std::string>
{
protected:
    void metti(const QString& ultimo) const
    {
        mBase.esegui(u"delete from ekelvorqzt_tabge00f"_s);
        mBase.esegui(u"insert into ekelvorqzt_tabge00f (UltimoNumGiacenza) values (%1)"_s.arg(ultimo));
    }

    Valore contatore() const { return mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s); }

    BancaDati mBase{GetParam()};
    Connessione mConnessione = mBase.connessione();
};

TEST_P(Numerazione, ilNumeroDopoLUltimo)
{
    metti(u"41"_s);
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"42"_s);
    EXPECT_EQ(contatore(), u"42"_s);
}

TEST_P(Numerazione, ilPrimoEUno)
{
    metti(u"0"_s);
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"1"_s);
    EXPECT_EQ(contatore(), u"1"_s);
}

TEST_P(Numerazione, unNumeroPresoNonTorna)
{
    metti(u"41"_s);
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"42"_s);
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"43"_s);
    EXPECT_EQ(contatore(), u"43"_s);
}

TEST_P(Numerazione, leDueIstruzioniInQuestOrdine)
{
    metti(u"41"_s);
    QStringList istruzioni;
    QList<EventoDati> altri;
    const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione) {
            istruzioni << testo;
        } else {
            altri << evento;
        }
    });
    const auto ripristina = qScopeGuard([&] { impostaTraccia(prima); });
    ProssimoNumGiacenza(mConnessione);
    EXPECT_EQ(istruzioni, QStringList({u"select UltimoNumGiacenza from ekelvorqzt_tabge00f;"_s,
                                       u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=42;"_s}));
    EXPECT_TRUE(altri.isEmpty());
}

TEST_P(Numerazione, finoASessantaquattroBit)
{
    metti(u"9223372036854775806"_s);
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"9223372036854775807"_s);
    EXPECT_EQ(fallimento(mConnessione), u"22003"_s);
    EXPECT_EQ(contatore(), u"9223372036854775807"_s);
}

TEST_P(Numerazione, unContatoreNulloEErrore)
{
    metti(u"null"_s);
    EXPECT_EQ(fallimento(mConnessione), u"22002"_s);
    EXPECT_EQ(contatore(), std::nullopt);
}

TEST_P(Numerazione, senzaRigaEErrore)
{
    mBase.esegui(u"delete from ekelvorqzt_tabge00f"_s);
    EXPECT_EQ(fallimento(mConnessione), u"02000"_s);
}

TEST_P(Numerazione, unaConnessioneChiusaEErrore)
{
    Connessione chiusa;
    EXPECT_EQ(fallimento(chiusa), u"08003"_s);
}

TEST_P(Numerazione, seLAggiornamentoFallisceIlContatoreResta)
{
    metti(u"41"_s);
    const Traccia prima = impostaTraccia([](EventoDati, const QString& testo) {
        if (testo.startsWith(u"update")) {
            throw ErroreDatabase(u"HYT00"_s, 0, u"fuori tempo"_s, testo);
        }
    });
    EXPECT_EQ(fallimento(mConnessione), u"HYT00"_s);
    impostaTraccia(prima);
    EXPECT_EQ(contatore(), u"41"_s);
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"42"_s);
}

INSTANTIATE_TEST_SUITE_P(Basi, Numerazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// A counter that the host keeps in another kind of column.
class ContatoreDiAltroTipo : public testing::TestWithParam<std::string>
{
protected:
    void metti(const QString& tipo, const QString& ultimo) const
    {
        mBase.esegui(u"create table ekelvorqzt_tabge00f (UltimoNumGiacenza %1)"_s.arg(tipo));
        mBase.esegui(u"insert into ekelvorqzt_tabge00f values (%1)"_s.arg(ultimo));
    }

    Valore contatore() const { return mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s); }

    BancaDati mBase{GetParam(), Contenuto::vuoto};
};

TEST_P(ContatoreDiAltroTipo, decimaliTuttiZero)
{
    metti(u"varchar(20)"_s, u"'41.0'"_s);
    Connessione connessione = mBase.connessione();
    EXPECT_EQ(ProssimoNumGiacenza(connessione), u"42"_s);
    EXPECT_EQ(contatore(), u"42"_s);
}

TEST_P(ContatoreDiAltroTipo, decimale)
{
    metti(u"decimal(12,1)"_s, u"41"_s);
    Connessione connessione = mBase.connessione();
    EXPECT_EQ(ProssimoNumGiacenza(connessione), u"42"_s);
}

TEST_P(ContatoreDiAltroTipo, conDecimaliEErrore)
{
    metti(u"decimal(12,1)"_s, u"41.5"_s);
    Connessione connessione = mBase.connessione();
    EXPECT_EQ(fallimento(connessione), u"22018"_s);
    EXPECT_EQ(contatore(), u"41.5"_s);
}

TEST_P(ContatoreDiAltroTipo, quelCheNonENumeroEErrore)
{
    metti(u"varchar(20)"_s, u"'quaranta'"_s);
    Connessione connessione = mBase.connessione();
    EXPECT_EQ(fallimento(connessione), u"22018"_s);
    EXPECT_EQ(contatore(), u"quaranta"_s);
}

INSTANTIATE_TEST_SUITE_P(Basi, ContatoreDiAltroTipo, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

} // namespace
