#include "host/avvio/vociimpostazioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

using namespace deposito;
using namespace Qt::StringLiterals;

namespace {

class VociImpostazioni : public testing::Test
{
protected:
    void scrivi(const QByteArray& testo)
    {
        QFile file(mFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(testo);
    }
    QByteArray scritto() const
    {
        QFile file(mFile);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static std::size_t posto(const QString& chiave)
    {
        const auto& voci = vociImpostazioni();
        for (std::size_t i = 0; i < voci.size(); ++i)
            if (QString::fromUtf16(voci[i].chiave) == chiave)
                return i;
        throw std::runtime_error(chiave.toStdString());
    }

    QTemporaryDir mCartella;
    QString mFile = mCartella.filePath(u"sotto/giacenza.ini"_s);
};

TEST_F(VociImpostazioni, UnFileCheNonCEsiFa)
{
    std::vector<QString> valori(vociImpostazioni().size());
    valori[posto(u"IdentificativoDll"_s)] = u"Deposito"_s;
    valori[posto(u"Piede1"_s)] = u"Trasporti del Ponte S.r.l.; P. IVA 0123"_s;
    ASSERT_EQ(scriviImpostazioni(mFile, valori), QString());
    EXPECT_EQ(scritto(),
              QByteArray("[DLLStampe]\nIdentificativoDll=Deposito\n\n[Lettere]\nPiede1=Trasporti del Ponte "
                         "S.r.l.; P. IVA 0123\n"));
    EXPECT_EQ(leggiImpostazioni(mFile), valori);
}

TEST_F(VociImpostazioni, IlRestoDelFileRestaComE)
{
    mFile = mCartella.filePath(u"giacenza.ini"_s);
    scrivi("; Le nostre impostazioni.\r\n\r\n[dllstampe]\r\nidentificativodll = Vecchio\r\n; sul PDF\r\n\r\n"
           "[Altro]\r\nX=1\r\n");
    std::vector<QString> valori = leggiImpostazioni(mFile);
    EXPECT_EQ(valori[posto(u"IdentificativoDll"_s)], u"Vecchio"_s);
    valori[posto(u"IdentificativoDll"_s)] = u"Deposito"_s;
    valori[posto(u"Modalita"_s)] = u"anteprima"_s;
    ASSERT_EQ(scriviImpostazioni(mFile, valori), QString());
    EXPECT_EQ(scritto(),
              QByteArray("; Le nostre impostazioni.\n\n[dllstampe]\nIdentificativoDll=Deposito\n; sul PDF\n"
                         "Modalita=anteprima\n\n[Altro]\nX=1\n"));
    valori[posto(u"Modalita"_s)].clear();
    ASSERT_EQ(scriviImpostazioni(mFile, valori), QString());
    EXPECT_FALSE(scritto().contains("Modalita"));
}

TEST_F(VociImpostazioni, CioCheNonCambiaRestaAllaLettera)
{
    mFile = mCartella.filePath(u"giacenza.ini"_s);
    scrivi("[Lettere]\nPiede1 = Tel. 011 000000   Fax 011 000001\nPiede2=Vecchio\n");
    std::vector<QString> valori = leggiImpostazioni(mFile);
    valori[posto(u"Piede2"_s)] = u" Nuovo   piede "_s;
    ASSERT_EQ(scriviImpostazioni(mFile, valori), QString());
    EXPECT_EQ(scritto(),
              QByteArray("[Lettere]\nPiede1 = Tel. 011 000000   Fax 011 000001\nPiede2=Nuovo piede\n"));
}

TEST_F(VociImpostazioni, CioCheNonSiPuoScrivereSiDice)
{
    QFile occupata(mCartella.filePath(u"sotto"_s));
    ASSERT_TRUE(occupata.open(QIODevice::WriteOnly));
    EXPECT_EQ(scriviImpostazioni(mFile, std::vector<QString>(vociImpostazioni().size())),
              u"La cartella delle impostazioni non si può creare."_s);
}

TEST_F(VociImpostazioni, UnaRigaCheNasconderebbeIlValoreFermaLaScrittura)
{
    mFile = mCartella.filePath(u"giacenza.ini"_s);
    scrivi("[Altro]\nX=1\n[\n");
    std::vector<QString> valori = leggiImpostazioni(mFile);
    valori[posto(u"IdentificativoDll"_s)] = u"Deposito"_s;
    EXPECT_EQ(
        scriviImpostazioni(mFile, valori),
        u"Le impostazioni non si possono scrivere in \"%1\": il file ha una riga che nasconde le altre, o un "
        "valore ha caratteri che il file non tiene. Correggerlo a mano."_s.arg(mFile));
    EXPECT_EQ(scritto(), QByteArray("[Altro]\nX=1\n[\n"));
}

} // namespace
