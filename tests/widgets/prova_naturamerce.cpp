#include "widgets/naturamercediprova.h"

#include <QSignalSpy>

using giacenza::CaricaNaturaMerce;
using giacenza::impostazioni;
using giacenza::percorsoNaturaMerce;
using giacenza::prove::lista;

class NaturaMerce : public giacenza::prove::NaturaMerceDiProva
{};

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
