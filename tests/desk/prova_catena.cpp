#include "desk/dati/catena.h"

#include "desk/casi.h"
#include "schema/registro.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

constexpr int setteGiorni = 7;

class ProvaCatena : public testing::TestWithParam<std::string>
{
protected:
    ProvaCatena() { riempiCasi(mBase); }

    void documento(const QString& nome) const
    {
        QFile file(mCartella.filePath(nome));
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("il documento di prova non si scrive");
    }
    std::optional<Catena> catena(const QString& numero)
    {
        return leggiCatena(mConnessione, {numero, 2026}, {mCartella.path(), mCartella.path()}, oggiCasi(),
                           setteGiorni);
    }
    static QStringList passi(const Catena& catena)
    {
        QStringList tutti;
        for (const Passo& passo : catena.passi)
            tutti << parole(passo.tipo) + u" | "_s +
                         (passo.tipo == TipoPasso::documento ? QString() : dataBreve(passo.giorno)) +
                         u" | "_s + passo.testo;
        return tutti;
    }

    BancaDati mBase{GetParam()};
    Connessione mConnessione = mBase.connessione();
    QTemporaryDir mCartella;
};

} // namespace

TEST_P(ProvaCatena, dallaLetteraAlBuonFine)
{
    for (const QString& nome : {u"42_2026.pdf"_s, u"42_2026-2.pdf"_s, u"42_2026-4.pdf"_s, u"420_2026.pdf"_s,
                                u"42_2026_buonfine.pdf"_s, u"LDV_MI_4730_2026.pdf"_s})
        documento(nome);
    const auto letta = catena(u"42"_s);
    ASSERT_TRUE(letta);
    EXPECT_THAT(
        passi(*letta),
        ElementsAre(u"LDV | 05/11/2026 | 4722/2026 MI, cliente Ferramenta Lombarda S.r.l."_s,
                    u"Giacenza | 10/11/2026 | 42/2026"_s,
                    u"Avviso | 12/11/2026 | 2 avvisi; questo è l'ultimo"_s, u"Documento |  | 42_2026.pdf"_s,
                    u"Documento |  | 42_2026-2.pdf"_s, u"Documento |  | 42_2026-4.pdf"_s,
                    u"Riconsegna | 13/11/2026 | LDV 4730/2026 MI, in viaggio: Bar Centrale Lecco"_s,
                    u"Documento |  | LDV_MI_4730_2026.pdf"_s,
                    u"Reso | 14/11/2026 | LDV 4731/2026 MI, non ancora in bordereau: Ferramenta Lombarda "
                    "S.r.l. Monza"_s,
                    u"Buon fine |  | non ancora"_s, u"Documento |  | 42_2026_buonfine.pdf"_s));
    EXPECT_EQ(letta->passi.at(3).file, mCartella.filePath(u"42_2026.pdf"_s));
    EXPECT_EQ(letta->riga.valutazione.centesimi, 1000);
    EXPECT_FALSE(letta->buonFine.isValid());
}

TEST_P(ProvaCatena, colRegistroUnPassoPerOgniAvviso)
{
    preparaRegistro(mBase.accessoAmministratore());
    mBase.esegui(u"update giace00f set GINRAV='3', GIDTAV='2026-11-18' where GINRGI='42'"_s);
    mBase.esegui(u"update giace00f set GINRAV='4', GIDTAV='2026-11-20' where GINRGI='42'"_s);
    const QDate oggi = QDateTime::currentDateTime().date();
    const auto stampato = [this](const QString& nome, QDate giorno) {
        documento(nome);
        QFile file(mCartella.filePath(nome));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(giorno.startOfDay().addSecs(3600), QFileDevice::FileModificationTime));
    };
    stampato(u"42_2026-2.pdf"_s, oggi.addDays(-9));
    stampato(u"42_2026-3.pdf"_s, oggi);
    const auto letta = catena(u"42"_s);
    ASSERT_TRUE(letta);
    const QString giorno = dataBreve(oggi);
    EXPECT_THAT(passi(*letta).mid(2, 5),
                ElementsAre(u"Avviso |  | 2 avvisi di prima del registro"_s,
                            u"Documento |  | 42_2026-2.pdf"_s, u"Avviso | %1 | n. 3"_s.arg(giorno),
                            u"Avviso | %1 | n. 4"_s.arg(giorno), u"Documento |  | 42_2026-3.pdf"_s));
    EXPECT_THAT(passi(*catena(u"43"_s)), testing::Contains(u"Avviso | 16/11/2026 | 1 avviso"_s))
        << "the register saw none of this case";
}

TEST_P(ProvaCatena, unCasoChiuso)
{
    const auto letta = catena(u"40"_s);
    ASSERT_TRUE(letta);
    EXPECT_THAT(
        passi(*letta),
        ElementsAre(u"LDV | 12/11/2026 | 4714/2026 MI, cliente Ferramenta Lombarda S.r.l."_s,
                    u"Giacenza | 13/11/2026 | 40/2026, segue la giacenza 39"_s,
                    u"Avviso | 15/11/2026 | 2 avvisi; questo è l'ultimo"_s,
                    u"Buon fine | 18/11/2026 | chiusa, 5 giorni di sosta, fattura 77 del 20/11/2026"_s));
    EXPECT_EQ(letta->buonFine, QDate(2026, 11, 18));
    EXPECT_EQ(inCentesimi(letta->importo), 1500);
    EXPECT_EQ(letta->fisso, QString());
}

TEST_P(ProvaCatena, maiAvvisata)
{
    const auto letta = catena(u"41"_s);
    ASSERT_TRUE(letta);
    EXPECT_THAT(passi(*letta), testing::Contains(u"Avviso |  | nessun avviso"_s));
}

TEST_P(ProvaCatena, unCasoCheNonCe)
{
    EXPECT_FALSE(catena(u"99"_s));
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaCatena, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
