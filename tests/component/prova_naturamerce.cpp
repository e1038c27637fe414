#include "component/cartellaprova.h"
#include "component/errorenumerato.h"
#include "component/limitefile.h"
#include "component/listbox.h"
#include "component/servizi.h"

#include <QComboBox>
#include <QSignalSpy>

#include <gmock/gmock.h>

using giacenza::AggiungiNaturaMerce;
using giacenza::CaricaNaturaMerce;
using giacenza::impostazioni;
using giacenza::Messaggio;
using giacenza::percorsoNaturaMerce;
using giacenza::Stile;

namespace {

const QString lista = QStringLiteral("listbox.dat");

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
        EXPECT_THAT(mostrati,
                    ::testing::ElementsAre(Messaggio{testo, stile, QStringLiteral("Gestione Trasporti")}));
    }

    void aggiuntaRifiutata()
    {
        unSoloMessaggio(
            QStringLiteral("Impossibile aggiungere il valore nella lista del controllo Natura merce"),
            Stile::informazione);
    }

    void caricamentoRifiutato()
    {
        unSoloMessaggio(QStringLiteral("Impossibile caricare i dati nel controllo Natura merce"),
                        Stile::critico);
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
    EXPECT_EQ(percorsoDi(QStringLiteral("/dati/gest.ini")), QStringLiteral("/dati/listbox.dat"));
    EXPECT_EQ(percorsoDi(QStringLiteral("C:\\dati\\gest.ini")), QStringLiteral("C:\\dati\\listbox.dat"));
    EXPECT_EQ(percorsoDi(QStringLiteral("/dati\\sub/gest.ini")), QStringLiteral("/dati\\sub/listbox.dat"));
    EXPECT_EQ(percorsoDi(QStringLiteral("/dati/sub\\gest.ini")), QStringLiteral("/dati/sub\\listbox.dat"));
    EXPECT_EQ(percorsoDi(QStringLiteral("gest.ini")), QStringLiteral("listbox.dat"));
    EXPECT_EQ(percorsoDi(QStringLiteral("\\gest.ini")), QStringLiteral("\\listbox.dat"));
    EXPECT_EQ(percorsoDi(QString()), QStringLiteral("listbox.dat"));
}

TEST_F(NaturaMerce, senzaFileNonAccadeNulla)
{
    mElenco.addItem(QStringLiteral("PRIMA"));
    mElenco.setEditText(QStringLiteral("scritto"));
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), QStringList{QStringLiteral("PRIMA")});
    EXPECT_EQ(mElenco.currentText(), QStringLiteral("scritto"));
    nessunMessaggio();
}

TEST_F(NaturaMerce, ogniRigaNellOrdineDelFileEIlTestoDiPrima)
{
    scrivi(lista, "VEDI DDT\nSCATOLE\n\nCOLLI\n");
    mElenco.addItem(QStringLiteral("PRIMA"));
    mElenco.setEditText(QStringLiteral("scritto a mano"));
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{QStringLiteral("VEDI DDT"), QStringLiteral("SCATOLE"), QString(),
                                   QStringLiteral("COLLI")}));
    EXPECT_EQ(mElenco.currentText(), QStringLiteral("scritto a mano"));
    EXPECT_EQ(mElenco.currentIndex(), -1);
    nessunMessaggio();
}

TEST_F(NaturaMerce, ilTestoDiPrimaSceglieLaSuaRiga)
{
    scrivi(lista, "VEDI DDT\nSCATOLE\n");
    mElenco.setEditText(QStringLiteral("SCATOLE"));
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(mElenco.currentIndex(), 1);

    QComboBox nonScrivibile;
    nonScrivibile.addItems({QStringLiteral("COLLI"), QStringLiteral("SCATOLE")});
    nonScrivibile.setCurrentIndex(1);
    CaricaNaturaMerce(&nonScrivibile);
    EXPECT_EQ(nonScrivibile.currentText(), QStringLiteral("SCATOLE"));
}

TEST_F(NaturaMerce, chiAscoltaLElencoNonSenteUnTestoCheVaEViene)
{
    scrivi(lista, "VEDI DDT\nSCATOLE\n");
    mElenco.setEditText(QStringLiteral("scritto"));
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
    EXPECT_EQ(voci(),
              (QStringList{QStringLiteral("VEDI DDT"), QStringLiteral("SCATOLE"), QStringLiteral("COLLI")}));
}

TEST_F(NaturaMerce, leDueCodifiche)
{
    scrivi(lista, "\xEF\xBB\xBFVEDI DDT\nCAFF\xC3\x88\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{QStringLiteral("VEDI DDT"), QStringLiteral("CAFFÈ")}));
    scrivi(lista, "VEDI DDT\nCAFF\xC8 \x80\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{QStringLiteral("VEDI DDT"), QStringLiteral("CAFFÈ €")}));
}

TEST_F(NaturaMerce, fileVuoto)
{
    scrivi(lista, "");
    mElenco.addItem(QStringLiteral("PRIMA"));
    mElenco.setEditText(QStringLiteral("scritto"));
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), QStringList());
    EXPECT_EQ(mElenco.currentText(), QStringLiteral("scritto"));
    aggiungi(QStringLiteral("colli"));
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
    aggiungi(QStringLiteral("colli"));
    EXPECT_EQ(leggi(lista), molte + "COLLI\n");
    nessunMessaggio();
}

TEST_F(NaturaMerce, unaCartellaAlPostoDellaLista)
{
    ASSERT_TRUE(QDir().mkpath(percorso(lista)));
    mElenco.addItem(QStringLiteral("PRIMA"));
    mElenco.setEditText(QStringLiteral("scritto"));
    CaricaNaturaMerce(&mElenco);
    caricamentoRifiutato();
    EXPECT_EQ(voci(), QStringList{QStringLiteral("PRIMA")});
    EXPECT_EQ(mElenco.currentText(), QStringLiteral("scritto"));
    aggiungi(QStringLiteral("colli"));
    aggiuntaRifiutata();
}

TEST_F(NaturaMerce, unDispositivoAlPostoDellaLista)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), percorso(lista)));
    CaricaNaturaMerce(&mElenco);
    caricamentoRifiutato();
    aggiungi(QStringLiteral("colli"));
    aggiuntaRifiutata();
}

TEST_F(NaturaMerce, siAggiungeInMaiuscolo)
{
    scrivi(lista, "VEDI DDT\n");
    aggiungi(QStringLiteral("caffè in grani"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFFÈ IN GRANI\n");
    nessunMessaggio();
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{QStringLiteral("VEDI DDT"), QStringLiteral("CAFFÈ IN GRANI")}));
    EXPECT_EQ(mElenco.currentText(), QStringLiteral("caffè in grani"));
}

TEST_F(NaturaMerce, ilFileNuovoCominciaConVediDdt)
{
    aggiungi(QStringLiteral("Scatole"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE\n");
    nessunMessaggio();
}

TEST_F(NaturaMerce, unaVoceCheCEGiaSiRifiuta)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r\nCOLLI");
    for (const QString& doppia :
         {QStringLiteral("scatole"), QStringLiteral("Colli"), QStringLiteral("vedi ddt")}) {
        aggiungi(doppia);
        aggiuntaRifiutata();
    }
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI");
}

TEST_F(NaturaMerce, ilRifiutoHaIlSuoNumero)
{
    scrivi(lista, "VEDI DDT\n");
    try {
        giacenza::aggiungiAllElenco(percorsoNaturaMerce(), QStringLiteral("VEDI DDT"));
        FAIL() << "accettata";
    } catch (const giacenza::ErroreNumerato& errore) {
        EXPECT_EQ(errore.numero(), 512);
    }
}

TEST_F(NaturaMerce, siConfrontaLaRigaIntera)
{
    scrivi(lista, "VEDI DDT\nSCATOLE GRANDI\nscatole\n");
    aggiungi(QStringLiteral("scatole"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE GRANDI\nscatole\nSCATOLE\n");
}

TEST_F(NaturaMerce, unTestoBiancoSiRifiuta)
{
    for (const QString& bianco : {QString(), QStringLiteral("  ")}) {
        aggiungi(bianco);
        aggiuntaRifiutata();
    }
    EXPECT_FALSE(QFile::exists(percorso(lista)));
}

TEST_F(NaturaMerce, ilFineRigaEQuelloDelFile)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r\n");
    aggiungi(QStringLiteral("colli"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI\r\n");
}

TEST_F(NaturaMerce, unUltimaRigaApertaNonSiAttaccaAllaNuova)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE");
    aggiungi(QStringLiteral("colli"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI\r\n");
    scrivi(lista, "VEDI DDT");
    aggiungi(QStringLiteral("colli"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCOLLI\n");
}

TEST_F(NaturaMerce, laCodificaEQuellaDelFile)
{
    scrivi(lista, "VEDI DDT\nCAFF\xC8\n");
    aggiungi(QStringLiteral("tè"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFF\xC8\nT\xC8\n");
    aggiungi(QStringLiteral("caffè"));
    aggiuntaRifiutata();
    aggiungi(QStringLiteral("茶"));
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFF\xC8\nT\xC8\n");
}

TEST_F(NaturaMerce, cartellaCheMancaECartellaCheNonLoE)
{
    impostazioni().percorsoFileIni = percorso(QStringLiteral("manca/gest.ini"));
    CaricaNaturaMerce(&mElenco);
    nessunMessaggio();
    aggiungi(QStringLiteral("colli"));
    aggiuntaRifiutata();

    scrivi(QStringLiteral("file"), "x");
    impostazioni().percorsoFileIni = percorso(QStringLiteral("file\\gest.ini"));
    aggiungi(QStringLiteral("colli"));
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(QStringLiteral("file")), "x");
}

TEST_F(NaturaMerce, laBarraRovesciaSeparaLeCartelle)
{
    ASSERT_TRUE(QDir().mkpath(percorso(QStringLiteral("dati"))));
    impostazioni().percorsoFileIni = percorso(QStringLiteral("dati\\gest.ini"));
    aggiungi(QStringLiteral("colli"));
    EXPECT_EQ(leggi(QStringLiteral("dati/listbox.dat")), "VEDI DDT\nCOLLI\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{QStringLiteral("VEDI DDT"), QStringLiteral("COLLI")}));
}

TEST_F(NaturaMerce, unDiscoPienoLasciaLaListaComEra)
{
    scrivi(lista, "VEDI DDT\n");
    {
        const LimiteFile limite(12);
        aggiungi(QStringLiteral("scatole"));
    }
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(lista), "VEDI DDT\n");
    aggiungi(QStringLiteral("scatole"));
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE\n");
}

TEST_F(NaturaMerce, unDiscoPienoNonLasciaUnaListaAMeta)
{
    {
        const LimiteFile limite(4);
        aggiungi(QStringLiteral("scatole"));
    }
    aggiuntaRifiutata();
    EXPECT_FALSE(QFile::exists(percorso(lista)));
}
