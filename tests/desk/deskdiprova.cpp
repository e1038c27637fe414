#include "desk/deskdiprova.h"

#include <QFile>

namespace giacenza::prove {

namespace {

constexpr int pazienza = 20'000;

} // namespace

DeskDiProva::DeskDiProva()
{
    riempiCasi(mBase);
    impostaOggi(oggiCasi());
    giacenzaFinta() = {};
    registraParte(u"ReportDocMuto.cModuliStampa"_s,
                  [this] { return std::make_unique<ModuloMuto>(mStampate, mRifiutata); });
    QFile ini(mCartella.filePath(u"g.ini"_s));
    if (!ini.open(QIODevice::WriteOnly) || ini.write("[DLLStampe]\nIdentificativoDll=Muto\n") < 0)
        throw std::runtime_error("le impostazioni di prova non si scrivono");
    ini.close();
    mComponente = std::make_unique<cGiacenza>();
    apriDesk();
    attendiElenco();
}

void DeskDiProva::apriDesk(const std::function<void(desk::FinestraDesk& desk)>& prima)
{
    mFinestra = std::make_unique<QMainWindow>();
    mDesk = new desk::FinestraDesk(
        *mComponente, {mStringa, mCartella.filePath(u"g.ini"_s), {}},
        [](const QString&, const std::function<void()>& apri) { apri(); }, mFinestra.get());
    if (prima)
        prima(*mDesk);
    mFinestra->setCentralWidget(mDesk);
    mFinestra->resize(1366, 700);
    mFinestra->show();
    mDesk->setFocus();
    mFinestra->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
}

DeskDiProva::~DeskDiProva()
{
    mFinestra.reset();
    mComponente.reset();
    registraParte(u"ReportDocMuto.cModuliStampa"_s, {});
    impostazioni() = {};
    impostaOggi({});
}

void DeskDiProva::attendi(const std::function<bool()>& fatto)
{
    ASSERT_TRUE(QTest::qWaitFor(fatto, pazienza)) << detto().toStdString();
}

void DeskDiProva::attendiElenco()
{
    const auto* lettura = figlio<QLabel>(u"lblLettura");
    attendi([&] { return lettura->text().startsWith(u"letto alle"_s); });
}

void DeskDiProva::digita(const QString& testo)
{
    for (const QChar carattere : testo)
        QTest::keyClick(QApplication::focusWidget(), carattere.toLatin1());
}

void DeskDiProva::premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori)
{
    QTest::keyClick(QApplication::focusWidget(), tasto, modificatori);
}

void DeskDiProva::scansiona(const QString& numero)
{
    digita(numero);
    premi(Qt::Key_Return);
    attendi([this] { return !detto().startsWith(u"Cerco"_s); });
}

QString DeskDiProva::pagina() const
{
    return mFinestra->findChild<QStackedWidget*>()->currentWidget()->objectName();
}

QStringList DeskDiProva::colonna(const QTableView* tabella, int quale)
{
    QStringList testi;
    for (int riga = 0; riga < tabella->model()->rowCount(); ++riga)
        testi << tabella->model()->index(riga, quale).data().toString().trimmed();
    return testi;
}

void DeskDiProva::vai(const QString& giacenza)
{
    const auto riga = colonna(elenco(), 1).indexOf(giacenza);
    ASSERT_GE(riga, 0) << giacenza.toStdString();
    elenco()->setCurrentIndex(elenco()->model()->index(static_cast<int>(riga), 0));
    elenco()->setFocus();
}

} // namespace giacenza::prove
