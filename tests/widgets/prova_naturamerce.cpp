#include "base/cartellaprova.h"
#include "base/errorenumerato.h"
#include "base/limitefile.h"
#include "base/listbox.h"
#include "widgets/naturamerce.h"

#include <QComboBox>
#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using giacenza::AggiungiNaturaMerce;
using giacenza::CaricaNaturaMerce;
using giacenza::impostazioni;
using giacenza::Messaggio;
using giacenza::percorsoNaturaMerce;
using giacenza::Stile;

namespace {

const QString lista = u"listbox.dat"_s;

class NaturaMerce : public giacenza::prove::CartellaProva
{
protected:
    NaturaMerce()
    {
        mElenco.setEditable(true);
        mRegistro.mentreAperto([this](QWidget* padre, const Messaggio&) { EXPECT_EQ(padre, &mElenco); });
    }

    QStringList voci() const
    {
        QStringList tutte;
        for (int i = 0; i < mElenco.count(); ++i)
            tutte.append(mElenco.itemText(i));
        return tutte;
    }

    void aggiungi(const QString& testo)
    {
        mElenco.setEditText(testo);
        AggiungiNaturaMerce(&mElenco);
        EXPECT_EQ(mElenco.currentText(), testo);
    }

    void nessunMessaggio() { EXPECT_EQ(mRegistro.testi(), QStringList()); }

    void unSoloMessaggio(const QString& testo, Stile stile)
    {
        const std::vector<Messaggio> mostrati = mRegistro.prendi();
        EXPECT_THAT(mostrati, ::testing::ElementsAre(Messaggio{testo, stile, u"Gestione Trasporti"_s}));
    }

    void aggiuntaRifiutata()
    {
        unSoloMessaggio(u"Impossibile aggiungere il valore nella lista del controllo Natura merce"_s,
                        Stile::informazione);
    }

    void caricamentoRifiutato()
    {
        unSoloMessaggio(u"Impossibile caricare i dati nel controllo Natura merce"_s, Stile::critico);
    }

    QComboBox mElenco;
};

} // namespace

TEST_F(NaturaMerce, laListaStaNellaCartellaDelleImpostazioni)
{
    const auto percorsoDi = [](const QString& impostazioniFile) {
        impostazioni().percorsoFileIni = impostazioniFile;
        return percorsoNaturaMerce();
    };
    EXPECT_EQ(percorsoDi(u"/dati/gest.ini"_s), u"/dati/listbox.dat"_s);
    EXPECT_EQ(percorsoDi(u"C:\\dati\\gest.ini"_s), u"C:\\dati\\listbox.dat"_s);
    EXPECT_EQ(percorsoDi(u"/dati\\sub/gest.ini"_s), u"/dati\\sub/listbox.dat"_s);
    EXPECT_EQ(percorsoDi(u"/dati/sub\\gest.ini"_s), u"/dati/sub\\listbox.dat"_s);
    EXPECT_EQ(percorsoDi(u"gest.ini"_s), u"listbox.dat"_s);
    EXPECT_EQ(percorsoDi(u"\\gest.ini"_s), u"\\listbox.dat"_s);
    EXPECT_EQ(percorsoDi(QString()), u"listbox.dat"_s);
}

TEST_F(NaturaMerce, senzaFileNonAccadeNulla)
{
    mElenco.addItem(u"PRIMA"_s);
    mElenco.setEditText(u"scritto"_s);
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), QStringList{u"PRIMA"_s});
    EXPECT_EQ(mElenco.currentText(), u"scritto"_s);
    nessunMessaggio();
}

TEST_F(NaturaMerce, ogniRigaNellOrdineDelFileEIlTestoDiPrima)
{
    scrivi(lista, "VEDI DDT\nSCATOLE\n\nCOLLI\n");
    mElenco.addItem(u"PRIMA"_s);
    mElenco.setEditText(u"scritto a mano"_s);
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"SCATOLE"_s, QString(), u"COLLI"_s}));
    EXPECT_EQ(mElenco.currentText(), u"scritto a mano"_s);
    EXPECT_EQ(mElenco.currentIndex(), -1);
    nessunMessaggio();
}

TEST_F(NaturaMerce, ilTestoDiPrimaSceglieLaSuaRiga)
{
    scrivi(lista, "VEDI DDT\nSCATOLE\n");
    mElenco.setEditText(u"SCATOLE"_s);
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(mElenco.currentIndex(), 1);

    QComboBox nonScrivibile;
    nonScrivibile.addItems({u"COLLI"_s, u"SCATOLE"_s});
    nonScrivibile.setCurrentIndex(1);
    CaricaNaturaMerce(&nonScrivibile);
    EXPECT_EQ(nonScrivibile.currentText(), u"SCATOLE"_s);
}

TEST_F(NaturaMerce, chiAscoltaLElencoNonSenteUnTestoCheVaEViene)
{
    scrivi(lista, "VEDI DDT\nSCATOLE\n");
    mElenco.setEditText(u"scritto"_s);
    const QSignalSpy testo(&mElenco, &QComboBox::editTextChanged);
    const QSignalSpy indice(&mElenco, &QComboBox::currentIndexChanged);
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(testo.size(), 0);
    EXPECT_EQ(indice.size(), 0);
}

TEST_F(NaturaMerce, ambedueIFineRiga)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\nCOLLI");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"SCATOLE"_s, u"COLLI"_s}));
}

TEST_F(NaturaMerce, leDueCodifiche)
{
    scrivi(lista, "\xEF\xBB\xBFVEDI DDT\nCAFF\xC3\x88\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"CAFFÈ"_s}));
    scrivi(lista, "VEDI DDT\nCAFF\xC8 \x80\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"CAFFÈ €"_s}));
}

TEST_F(NaturaMerce, fileVuoto)
{
    scrivi(lista, "");
    mElenco.addItem(u"PRIMA"_s);
    mElenco.setEditText(u"scritto"_s);
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), QStringList());
    EXPECT_EQ(mElenco.currentText(), u"scritto"_s);
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "COLLI\n");
}

TEST_F(NaturaMerce, dieciMegabyte)
{
    QByteArray molte;
    for (int i = 0; molte.size() < 10'000'000; ++i)
        molte += "MERCE NUMERO " + QByteArray::number(i) + "\n";
    scrivi(lista, molte);
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(mElenco.count(), molte.count('\n'));
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), molte + "COLLI\n");
    nessunMessaggio();
}

TEST_F(NaturaMerce, unaCartellaAlPostoDellaLista)
{
    ASSERT_TRUE(QDir().mkpath(percorso(lista)));
    mElenco.addItem(u"PRIMA"_s);
    mElenco.setEditText(u"scritto"_s);
    CaricaNaturaMerce(&mElenco);
    caricamentoRifiutato();
    EXPECT_EQ(voci(), QStringList{u"PRIMA"_s});
    EXPECT_EQ(mElenco.currentText(), u"scritto"_s);
    aggiungi(u"colli"_s);
    aggiuntaRifiutata();
}

TEST_F(NaturaMerce, unDispositivoAlPostoDellaLista)
{
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, percorso(lista)));
    CaricaNaturaMerce(&mElenco);
    caricamentoRifiutato();
    aggiungi(u"colli"_s);
    aggiuntaRifiutata();
}

TEST_F(NaturaMerce, siAggiungeInMaiuscolo)
{
    scrivi(lista, "VEDI DDT\n");
    aggiungi(u"caffè in grani"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFFÈ IN GRANI\n");
    nessunMessaggio();
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"CAFFÈ IN GRANI"_s}));
    EXPECT_EQ(mElenco.currentText(), u"caffè in grani"_s);
}

TEST_F(NaturaMerce, ilFileNuovoCominciaConVediDdt)
{
    aggiungi(u"Scatole"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE\n");
    nessunMessaggio();
}

TEST_F(NaturaMerce, unaVoceCheCEGiaSiRifiuta)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r\nCOLLI");
    for (const QString& doppia : {u"scatole"_s, u"Colli"_s, u"vedi ddt"_s}) {
        aggiungi(doppia);
        aggiuntaRifiutata();
    }
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI");
}

TEST_F(NaturaMerce, ilRifiutoHaIlSuoNumero)
{
    scrivi(lista, "VEDI DDT\n");
    try {
        giacenza::aggiungiAllElenco(percorsoNaturaMerce(), u"VEDI DDT"_s);
        FAIL() << "accettata";
    } catch (const giacenza::ErroreNumerato& errore) {
        EXPECT_EQ(errore.numero(), 512);
    }
}

TEST_F(NaturaMerce, siConfrontaLaRigaIntera)
{
    scrivi(lista, "VEDI DDT\nSCATOLE GRANDI\nscatole\n");
    aggiungi(u"scatole"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE GRANDI\nscatole\nSCATOLE\n");
}

TEST_F(NaturaMerce, unTestoBiancoSiRifiuta)
{
    for (const QString& bianco : {QString(), u"  "_s}) {
        aggiungi(bianco);
        aggiuntaRifiutata();
    }
    EXPECT_FALSE(QFile::exists(percorso(lista)));
}

TEST_F(NaturaMerce, ilFineRigaEQuelloDelFile)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r\n");
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI\r\n");
}

TEST_F(NaturaMerce, unUltimaRigaApertaNonSiAttaccaAllaNuova)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE");
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI\r\n");
    scrivi(lista, "VEDI DDT");
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCOLLI\n");
}

TEST_F(NaturaMerce, laCodificaEQuellaDelFile)
{
    scrivi(lista, "VEDI DDT\nCAFF\xC8\n");
    aggiungi(u"tè"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFF\xC8\nT\xC8\n");
    aggiungi(u"caffè"_s);
    aggiuntaRifiutata();
    aggiungi(u"茶"_s);
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFF\xC8\nT\xC8\n");
}

TEST_F(NaturaMerce, cartellaCheMancaECartellaCheNonLoE)
{
    impostazioni().percorsoFileIni = percorso(u"manca/gest.ini"_s);
    CaricaNaturaMerce(&mElenco);
    nessunMessaggio();
    aggiungi(u"colli"_s);
    aggiuntaRifiutata();

    scrivi(u"file"_s, "x");
    impostazioni().percorsoFileIni = percorso(u"file\\gest.ini"_s);
    aggiungi(u"colli"_s);
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(u"file"_s), "x");
}

TEST_F(NaturaMerce, laBarraRovesciaSeparaLeCartelle)
{
    ASSERT_TRUE(QDir().mkpath(percorso(u"dati"_s)));
    impostazioni().percorsoFileIni = percorso(u"dati\\gest.ini"_s);
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(u"dati/listbox.dat"_s), "VEDI DDT\nCOLLI\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"COLLI"_s}));
}

TEST_F(NaturaMerce, unDiscoPienoLasciaLaListaComEra)
{
    scrivi(lista, "VEDI DDT\n");
    {
        const LimiteFile limite(12);
        aggiungi(u"scatole"_s);
    }
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(lista), "VEDI DDT\n");
    aggiungi(u"scatole"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE\n");
}

TEST_F(NaturaMerce, unDiscoPienoNonLasciaUnaListaAMeta)
{
    {
        const LimiteFile limite(4);
        aggiungi(u"scatole"_s);
    }
    aggiuntaRifiutata();
    EXPECT_FALSE(QFile::exists(percorso(lista)));
}
