#include "desk/deskdiprova.h"
#include "support/albero.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ProvaDesk : public DeskDiProva
{};

constexpr int colonnaGiacenza = 1;

/// What is opened while it lives.
class Aperti : public QObject
{
    Q_OBJECT

public:
    Aperti() { QDesktopServices::setUrlHandler(u"file"_s, this, "apri"); }
    Aperti(const Aperti&) = delete;
    Aperti& operator=(const Aperti&) = delete;
    ~Aperti() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QStringList file;

public Q_SLOTS:
    void apri(const QUrl& url) { file << url.toLocalFile(); }
};

} // namespace

TEST_P(ProvaDesk, mostraICasiApertiPerScadenzaConITotali)
{
    EXPECT_EQ(pagina(), u"pagElenco"_s);
    EXPECT_THAT(colonna(elenco(), colonnaGiacenza),
                ElementsAre(u"42/2026"_s, u"43/2026"_s, u"41/2026"_s, u"44/2026"_s, u"45/2026"_s));
    EXPECT_EQ(figlio<QLabel>(u"lblTotali")->text(),
              u"5 casi · 20 colli · 444,75 kg · 15,00 € a oggi, più 2 senza importo"_s);
    EXPECT_EQ(detto(), QString());
}

TEST_P(ProvaDesk, siFiltraScrivendo)
{
    premi(Qt::Key_F, Qt::ControlModifier);
    digita(u"rotonda"_s);
    EXPECT_THAT(colonna(elenco(), colonnaGiacenza), ElementsAre(u"44/2026"_s));
    EXPECT_TRUE(figlio<QLabel>(u"lblTotali")->text().startsWith(u"1 di 5 casi"_s));
    premi(Qt::Key_Escape);
    EXPECT_EQ(elenco()->model()->rowCount(), 5);
    digita(u"FT 17"_s);
    premi(Qt::Key_Return);
    EXPECT_TRUE(elenco()->hasFocus());
    premi(Qt::Key_Return);
    EXPECT_THAT(chiamate(), testing::Contains(u"caso 0 44|01/11/2026|4724|28/10/2026|1002|MI"_s));
}

TEST_P(ProvaDesk, siScegliELaFiliale)
{
    auto* filiali = figlio<QComboBox>(u"cmbFiliale");
    attendi([&] { return filiali->count() == 3; });
    filiali->setFocus();
    premi(Qt::Key_Down);
    EXPECT_EQ(filiali->currentText(), u"BO · Bologna"_s);
    attendiElenco();
    EXPECT_THAT(colonna(elenco(), colonnaGiacenza), ElementsAre(u"45/2026"_s));
}

TEST_P(ProvaDesk, unNumeroDovunqueSiScrivaPortaAlCaso)
{
    for (QWidget* dove :
         {static_cast<QWidget*>(elenco()), figlio<QWidget>(u"cmbFiliale"), figlio<QWidget>(u"cmdCerca")}) {
        dove->setFocus();
        scansiona(u"MI-4730-2026"_s);
        attendi([this] { return pagina() == u"pagCaso"_s; });
        EXPECT_EQ(figlio<QLabel>(u"lblCaso")->text(), u"Giacenza 42/2026 · LDV 4722/2026 MI"_s);
        EXPECT_EQ(figlio<QLineEdit>(u"txtCerca")->text(), u"MI-4730-2026"_s) << "nothing of before";
        EXPECT_THAT(
            colonna(figlio<QTableView>(u"tabPassi"), 0),
            ElementsAre(u"LDV"_s, u"Giacenza"_s, u"Avviso"_s, u"Riconsegna"_s, u"Reso"_s, u"Buon fine"_s));
        premi(Qt::Key_Escape);
        EXPECT_EQ(pagina(), u"pagElenco"_s);
    }
    EXPECT_THAT(chiamate(), testing::Not(testing::Contains(testing::Truly(
                                [](const QString& chiamata) { return chiamata.startsWith(u"caso"_s); }))));
    EXPECT_THAT(mStampate, IsEmpty()) << "the N of a number sends no notice";
}

TEST_P(ProvaDesk, iDocumentiSiAproncoConInvio)
{
    const QString cartella = mCartella.filePath(u"documenti"_s);
    ASSERT_TRUE(QDir().mkpath(cartella));
    QFile pdf(cartella + u"/42_2026.pdf"_s);
    ASSERT_TRUE(pdf.open(QIODevice::WriteOnly));
    pdf.close();
    Aperti aperti;
    scansiona(u"42/2026"_s);
    attendi([this] { return pagina() == u"pagCaso"_s; });
    for (int passo = 0; passo < 3; ++passo)
        premi(Qt::Key_Down);
    premi(Qt::Key_Return);
    EXPECT_THAT(aperti.file, ElementsAre(pdf.fileName()));
    premi(Qt::Key_Up);
    premi(Qt::Key_Return);
    EXPECT_THAT(chiamate(), testing::Contains(u"caso 0 42|10/11/2026|4722|05/11/2026|1001|MI"_s));
}

TEST_P(ProvaDesk, unaLetteraLiberaSiRegistraConInvio)
{
    scansiona(u"4711"_s);
    attendi([this] { return pagina() == u"pagRisultati"_s; });
    EXPECT_EQ(figlio<QLabel>(u"lblRisultati")->text(),
              u"4711: una lettera di vettura che non è in giacenza"_s);
    EXPECT_EQ(figlio<QLabel>(u"lblSuggerimento")->text(),
              u"Invio registra la giacenza di questa lettera di vettura. Esc torna all'elenco."_s);
    premi(Qt::Key_Return);
    EXPECT_THAT(chiamate(), testing::Contains(u"nuova 4711|12/11/2026|MI|1001"_s));
}

TEST_P(ProvaDesk, piuDiUnaSiSceglie)
{
    mBase.esegui(
        u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values ('BO','4722',2025,'2025-03-01',1002)"_s);
    scansiona(u"4722"_s);
    attendi([this] { return pagina() == u"pagRisultati"_s; });
    EXPECT_THAT(colonna(figlio<QTableView>(u"tabRisultati"), 0),
                ElementsAre(u"giacenza 42/2026, aperta"_s, u"LDV non in giacenza"_s));
    premi(Qt::Key_Return);
    attendi([this] { return pagina() == u"pagCaso"_s; });
    EXPECT_EQ(figlio<QLabel>(u"lblStatoCaso")->text(), u"IN ADDEBITO"_s);
}

TEST_P(ProvaDesk, nienteDiceCheCosaHaProvato)
{
    scansiona(u"zz9"_s);
    EXPECT_EQ(detto(),
              u"Nessuna corrispondenza per zz9. Cercato come: LDV zz9, giacenza zz9, riferimento zz9."_s);
    EXPECT_EQ(pagina(), u"pagElenco"_s);
    scansiona(u"42"_s);
    attendi([this] { return pagina() == u"pagCaso"_s; });
    EXPECT_EQ(figlio<QLineEdit>(u"txtCerca")->text(), u"42"_s) << "a new scan begins anew";
    EXPECT_EQ(detto(), QString());
}

TEST_P(ProvaDesk, iTastiApronoLeSchermateSulCaso)
{
    vai(u"43/2026"_s);
    premi(Qt::Key_Return);
    premi(Qt::Key_R, Qt::ControlModifier);
    premi(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    const QString caso = u"43|16/11/2026|4723|13/11/2026|1001|MI"_s;
    EXPECT_THAT(chiamate(),
                testing::IsSupersetOf({u"caso 0 "_s + caso, u"caso 1 "_s + caso, u"caso 2 "_s + caso}));
    premi(Qt::Key_F8);
    attendi([this] { return pagina() == u"pagCaso"_s; });
    EXPECT_EQ(figlio<QLabel>(u"lblCaso")->text(), u"Giacenza 43/2026 · LDV 4723/2026 MI"_s);
}

TEST_P(ProvaDesk, dopoUnaSchermataRilegge)
{
    vai(u"43/2026"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='42'"_s);
    Q_EMIT mComponente->fine();
    attendi([this] { return elenco()->model()->rowCount() == 4; });
    EXPECT_EQ(elenco()->currentIndex().siblingAtColumn(colonnaGiacenza).data(), u"43/2026"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='41'"_s);
    premi(Qt::Key_F5);
    attendi([this] { return elenco()->model()->rowCount() == 3; });
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='44'"_s);
    mDesk->setIntervallo(1);
    attendi([this] { return elenco()->model()->rowCount() == 2; });
}

TEST_P(ProvaDesk, unGuastoSiDiceELElencoResta)
{
    mBase.esegui(u"alter table giace00f rename to altrove"_s);
    premi(Qt::Key_F5);
    attendi([this] { return detto().startsWith(u"L'elenco non si legge."_s); });
    EXPECT_EQ(elenco()->model()->rowCount(), 5);
    const auto* lettura = figlio<QLabel>(u"lblLettura");
    const QString ora = u"\\d\\d:\\d\\d:\\d\\d"_s;
    EXPECT_TRUE(QRegularExpression(u"^letto alle %1; alle %1 non riuscita$"_s.arg(ora))
                    .match(lettura->text())
                    .hasMatch())
        << lettura->text().toStdString();
    mBase.esegui(u"alter table altrove rename to giace00f"_s);
    premi(Qt::Key_F5);
    attendi(
        [&] { return QRegularExpression(u"^letto alle %1$"_s.arg(ora)).match(lettura->text()).hasMatch(); });
    EXPECT_EQ(detto(), QString());
}

TEST_P(ProvaDesk, leFilialiCheNonSiLeggonoSiDiconoFinoAllaLetturaCheRiesce)
{
    const auto* filiali = figlio<QComboBox>(u"cmbFiliale");
    attendi([&] { return filiali->count() == 3; });
    mBase.esegui(u"alter table filiali rename to filiali_via"_s);
    premi(Qt::Key_F5);
    attendi([&] { return !filiali->accessibleDescription().isEmpty(); });
    attendiElenco();
    EXPECT_EQ(filiali->accessibleDescription(),
              u"Le filiali non si leggono. Nell'archivio manca una tabella."_s);
    EXPECT_EQ(detto(), filiali->accessibleDescription());
    EXPECT_TRUE(filiali->toolTip().startsWith(detto() + u'\n'))
        << "with the driver's words: " << filiali->toolTip().toStdString();
    EXPECT_EQ(elenco()->model()->rowCount(), 5) << "the list does not need them";
    EXPECT_GT(filiali->findData(u"MI"_s), 0) << "those read before stay";
    mBase.esegui(u"alter table filiali_via rename to filiali"_s);
    premi(Qt::Key_F5);
    attendi([&] { return filiali->accessibleDescription().isEmpty(); });
    EXPECT_EQ(detto(), QString());
    EXPECT_EQ(filiali->toolTip(), QString());
}

TEST_P(ProvaDesk, leFilialiCheTaccionoDietroLElencoSiDiconoConLeParoleDelDriver)
{
    const auto* filiali = figlio<QComboBox>(u"cmbFiliale");
    mBase.esegui(u"alter table filiali rename to filiali_via;\nalter table giace00f rename to altrove"_s);
    premi(Qt::Key_F5);
    attendi([&] {
        return detto().startsWith(u"L'elenco non si legge."_s) && !filiali->accessibleDescription().isEmpty();
    });
    mBase.esegui(u"alter table altrove rename to giace00f"_s);
    premi(Qt::Key_F5);
    attendi([&] { return detto() == filiali->accessibleDescription(); });
    EXPECT_EQ(u"%1\n%2"_s.arg(detto(), figlio<QLabel>(u"lblEsito")->toolTip()), filiali->toolTip());
}

TEST_P(ProvaDesk, ogniControlloHaUnNomeSuo)
{
    const AlberoAccessibile albero = alberoAccessibile(mFinestra.get());
    EXPECT_GE(albero.ingressi, 5);
    EXPECT_THAT(albero.senzaNome, IsEmpty());
    EXPECT_THAT(albero.doppi, IsEmpty());
}

TEST_P(ProvaDesk, ognTastoDellaGuidaENeiMenu)
{
    QStringList tasti;
    QMenu menu;
    mDesk->azioni().riempiCaso(&menu);
    mDesk->azioni().riempiElenco(&menu);
    for (const QAction* azione : menu.actions())
        if (!azione->isSeparator())
            tasti << (azione->shortcut().isEmpty() ? azione->text().section(u'\t', 1)
                                                   : azione->shortcut().toString(QKeySequence::PortableText));
    EXPECT_THAT(tasti, ElementsAre(u"Invio"_s, u"F8"_s, u"Ctrl+R"_s, u"Ctrl+Shift+R"_s, u"Ctrl+N"_s,
                                   u"Ctrl+P"_s, u"Ctrl+L"_s, u"Ctrl+F"_s, u"F5"_s, QString(), u"Esc"_s))
        << "the columns are a menu of their own";
}

TEST_P(ProvaDesk, iColoriDelDesktopValgonoAncheQuandoCambiano)
{
    const QPalette prima = QApplication::palette();
    const auto sfondo = [this](const char16_t* nome) {
        return figlio<QWidget>(nome)->palette().color(QPalette::Base).name();
    };
    QPalette scura(QColor(53, 53, 53), QColor(42, 42, 46));
    scura.setColor(QPalette::Base, QColor(30, 30, 33));
    QApplication::setPalette(scura);
    attendi([&] { return sfondo(u"txtFiltro") == u"#1e1e21"_s; });
    EXPECT_EQ(sfondo(u"tabCasi"), u"#1e1e21"_s);
    EXPECT_EQ(figlio<QLabel>(u"lblTotali")->palette().color(QPalette::WindowText).name(), u"#ffffff"_s);
    QApplication::setPalette(prima);
    attendi([&] { return sfondo(u"txtFiltro") == prima.color(QPalette::Base).name(); });
    EXPECT_EQ(sfondo(u"tabCasi"), prima.color(QPalette::Base).name());
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaDesk, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

#include "prova_finestradesk.moc"
