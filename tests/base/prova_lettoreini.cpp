#include "base/cartellaprova.h"
#include "base/lettoreini.h"
#include "base/servizi.h"

#include <giacenza/Errore.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

using giacenza::impostazioni;
using giacenza::LeggiIni;
using giacenza::LettoreIniProprio;

namespace {

class LettoreProprio : public giacenza::prove::CartellaProva
{
protected:
    QString valore(const char16_t* sezione, const char16_t* chiave)
    {
        return LettoreIniProprio().leggi(impostazioni().percorsoFileIni, QString::fromUtf16(sezione),
                                         QString::fromUtf16(chiave));
    }

    void scriviIni(const QByteArray& byte) { scrivi(u"gest.ini"_s, byte); }
};

class LettoreDellOspite : public giacenza::LettoreIni
{
public:
    QString leggi(const QString& percorsoFile, const QString& sezione, const QString& chiave) override
    {
        return percorsoFile + u'|' + sezione + u'|' + chiave;
    }
};

} // namespace

TEST_F(LettoreProprio, ilValoreTieneOgniCarattere)
{
    scriviIni("[Bord]\nCaptionLbl1 = Ore 8;12, \"via\" C:\\dati\\x ; # fine = 1  \n");
    EXPECT_EQ(valore(u"Bord", u"CaptionLbl1"), u"Ore 8;12, \"via\" C:\\dati\\x ; # fine = 1"_s);
}

TEST_F(LettoreProprio, unValoreLungoNonSiTaglia)
{
    const QByteArray lungo(5000, 'x');
    scriviIni("[Bord]\nCaptionLbl1=" + lungo + "\n");
    EXPECT_EQ(valore(u"Bord", u"CaptionLbl1"), QString::fromLatin1(lungo));
}

TEST_F(LettoreProprio, sezioneEChiaveSenzaMaiuscole)
{
    scriviIni("[dllSTAMPE]\r\n  identificativodll=Prova\r\n");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), u"Prova"_s);
}

TEST_F(LettoreProprio, utf8EUtf8ConSegno)
{
    scriviIni("[Bord]\nCaptionLbl1=Città – è già lì €\n");
    EXPECT_EQ(valore(u"Bord", u"CaptionLbl1"), u"Città – è già lì €"_s);
    scriviIni("\xEF\xBB\xBF[Bord]\nCaptionLbl1=Città\n");
    EXPECT_EQ(valore(u"Bord", u"CaptionLbl1"), u"Città"_s);
}

TEST_F(LettoreProprio, windows1252)
{
    scriviIni("[Bord]\r\nCaptionLbl1=Citt\xE0 \x80 12\r\n");
    EXPECT_EQ(valore(u"Bord", u"CaptionLbl1"), u"Città € 12"_s);
}

TEST_F(LettoreProprio, siRileggeAOgniChiamata)
{
    scriviIni("[DLLStampe]\nIdentificativoDll=Uno\n");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), u"Uno"_s);
    scriviIni("[DLLStampe]\nIdentificativoDll=Due\n");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), u"Due"_s);
}

TEST_F(LettoreProprio, ciòCheMancaEVuoto)
{
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), QString());
    scriviIni("IdentificativoDll=Prova\n; nessuna sezione\nCaptionLbl1\n");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), QString());
    scriviIni("[DLLStampe]\n;IdentificativoDll=Prova\n[Altra]\nIdentificativoDll=Altra\n");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), QString());
    scriviIni("");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), QString());
}

TEST_F(LettoreProprio, delleChiaviDoppieContaLaPrima)
{
    scriviIni("[DLLStampe]\nIdentificativoDll=Prima\nIdentificativoDll=Seconda\n"
              "[DLLStampe]\nIdentificativoDll=Terza\n");
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), u"Prima"_s);
}

TEST_F(LettoreProprio, laBarraRovesciaSeparaLeCartelle)
{
    ASSERT_TRUE(QDir().mkpath(percorso(u"dati"_s)));
    scrivi(u"dati/gest.ini"_s, "[DLLStampe]\nIdentificativoDll=Prova\n");
    impostazioni().percorsoFileIni = percorso(u"dati\\gest.ini"_s);
    EXPECT_EQ(valore(u"DLLStampe", u"IdentificativoDll"), u"Prova"_s);
}

TEST_F(LettoreProprio, unFileRifiutatoNonPassaPerUnoSenzaVoci)
{
    const QString file = impostazioni().percorsoFileIni;
    const auto motivo = [&](const QString& perche) {
        return u"Il file \"%1\" non è stato letto: %2."_s.arg(file, perche);
    };
    const auto rifiuto = [] {
        try {
            return LeggiIni(u"DLLStampe"_s, u"IdentificativoDll"_s);
        } catch (const giacenza::Errore& errore) {
            return errore.testo();
        }
    };
    ASSERT_TRUE(QDir().mkpath(file));
    EXPECT_EQ(rifiuto(), motivo(u"non è un file normale"_s));
    ASSERT_TRUE(QDir().rmdir(file));
    ASSERT_EQ(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    EXPECT_EQ(rifiuto(), motivo(u"non è un file normale"_s));
    EXPECT_EQ(giacenza::CaricaModuloStampa().motivo, motivo(u"non è un file normale"_s));
    EXPECT_THROW(giacenza::LeggiPiede(), giacenza::Errore);
    ASSERT_TRUE(QFile::remove(file));
    scriviIni("[DLLStampe]\nIdentificativoDll=Prova\n;" + QByteArray(1'000'000, 'x'));
    EXPECT_EQ(rifiuto(), motivo(u"supera 1000000 byte"_s));
}

TEST_F(LettoreProprio, ilPiedeHaSoloLeRigheScritte)
{
    EXPECT_EQ(giacenza::LeggiPiede(), QStringList());
    scriviIni("[Lettere]\nPiede1=\nPiede2=Due\nPiede3=Tre\nPiede4=Quattro\n");
    EXPECT_EQ(giacenza::LeggiPiede(), (QStringList{u"Due"_s, u"Tre"_s}));
}

TEST_F(LettoreProprio, serveDoveNessunoNeRegistraUnAltro)
{
    scriviIni("[DLLStampe]\nIdentificativoDll=Prova\n");
    const QString sezione = u"DLLStampe"_s;
    const QString chiave = u"IdentificativoDll"_s;
    EXPECT_EQ(LeggiIni(sezione, chiave), u"Prova"_s);

    const QString classe = QStringView(giacenza::classeLettoreIni).toString();
    giacenza::registraParte(classe.toUpper(), [] { return std::make_unique<LettoreDellOspite>(); });
    EXPECT_EQ(LeggiIni(sezione, chiave), impostazioni().percorsoFileIni + u"|DLLStampe|IdentificativoDll"_s);

    giacenza::registraParte(classe, {});
    EXPECT_EQ(LeggiIni(sezione, chiave), u"Prova"_s);
}
