#include "search/bancoricerca.h"

#include "base/impostazioni.h"
#include "base/orologio.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSettings>

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

QString lettera(const QString& valori)
{
    return u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest, lerife, lerifd, leflbc, "
           "lerico, LERFGI, LEANGI) values (%1);\n"_s.arg(valori);
}

QString giacenza(const QString& valori)
{
    return u"insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GINRGI, GIANGI, GIDTGI, GIDTBF) "
           "values (%1);\n"_s.arg(valori);
}

/// quante waybills of a customer, numbered from da on, one for each day of a month over and over.
QString molte(int cliente, int da, int quante)
{
    return u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest, lerife) "
           "with recursive n(i) as (select %2 union all select i+1 from n where i<%2+%3-1) "
           "select 'MI', i, 2026, '2026-02-03', %1, 'DESTINATARIO', 'RIF' from n;\n"_s.arg(cliente)
               .arg(da)
               .arg(quante);
}

} // namespace

BancoRicerca::BancoRicerca()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mImpostazioni.path());
    impostaOggi(QDate(2026, 3, 1));
    base();
    impostazioni().percorsoDatabase = base().stringa();
    mTracciaPrima = impostaTraccia([this](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::apertura)
            ++mAperte;
        if (evento == EventoDati::chiusura)
            --mAperte;
        if (evento != EventoDati::istruzione)
            return;
        mIstruzioni += testo;
        if (const auto azione = mPrima) // a copy: it may take itself away
            azione();
    });
}

BancoRicerca::~BancoRicerca()
{
    impostaTraccia(std::move(mTracciaPrima));
    impostazioni() = {};
    impostaOggi(std::nullopt);
}

void BancoRicerca::TearDownTestSuite()
{
    basi().clear();
}

std::map<std::string, std::unique_ptr<BancaDati>>& BancoRicerca::basi()
{
    static std::map<std::string, std::unique_ptr<BancaDati>> tutte;
    return tutte;
}

const BancaDati& BancoRicerca::base() const
{
    auto& base = basi()[GetParam()];
    if (!base) {
        auto nuova = std::make_unique<BancaDati>(GetParam());
        riempi(*nuova);
        base = std::move(nuova);
    }
    return *base;
}

void BancoRicerca::riempi(const BancaDati& base)
{
    base.esegui(
        lettera(u"'MI','9',2026,'2026-01-15',1001,'ROSSI MARIO','RIF-A','2026-01-10','1',null,null,null"_s) +
        lettera(
            u"'MI','10',2026,'2026-01-16',1001,'BIANCHI & C.','RIF-B','2025-12-30','0',null,null,null"_s) +
        lettera(u"'MI','100',2025,'2025-03-04',1001,'VERDI','RIF-C','2025-03-01',null,'R',null,null"_s) +
        lettera(u"'MI','900',2025,'2025-05-06',1001,null,null,null,null,null,null,null"_s) +
        lettera(u"'MI','950',2026,'2026-02-10',1001,'D''AMICO 🚚','RIF-D','2026-02-09','S','R','42',2026"_s) +
        lettera(u"'RM','9',2026,'2026-01-17',1001,'DI ROMA','RIF-A','2026-01-10','1',null,null,null"_s) +
        lettera(u"'MI','12',2026,'2026-01-18',1002,'DI ALTRI','RIF-A','2026-01-10','1',null,null,null"_s) +
        giacenza(u"'MI','10',2026,1001,'42',2026,'2026-02-01',null"_s) +
        giacenza(u"'MI','100',2025,1001,'7',2025,'2025-04-01','2025-04-20'"_s) + molte(2000, 1001, 600) +
        molte(3000, 5001, 602) + molte(3000, 5603, 602));
}

void BancoRicerca::prepara(frmRicercaGia& dialogo, ModoRicerca modo) const
{
    const bool riferimento = modo == ModoRicerca::riferimento;
    dialogo.setTipoRicerca(modo);
    dialogo.setTitolo(u"Ricerca di prova"_s);
    dialogo.setCaptionLabel(riferimento ? u"Riferimento"_s : u"Num. LDV"_s);
    dialogo.setRagioneSocialeCliente(u"ALFA & BETA S.R.L."_s);
    dialogo.setCodiceCliente(u"1001"_s);
    dialogo.setFiliale(u"MI"_s);
    dialogo.setGiacenza(u"42"_s);
    dialogo.setAnnoGiacenza(u"2026"_s);
}

void BancoRicerca::mostra(frmRicercaGia& dialogo) const
{
    dialogo.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo));
    QCoreApplication::processEvents();
}

QStringList BancoRicerca::colonna(const frmRicercaGia& dialogo, const QString& didascalia)
{
    const auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    QStringList valori;
    for (int c = 0; c < griglia->model()->columnCount(); ++c) {
        if (griglia->model()->headerData(c, Qt::Horizontal) != didascalia)
            continue;
        for (int riga = 0; riga < griglia->model()->rowCount(); ++riga)
            valori += griglia->model()->index(riga, c).data().toString();
        return valori;
    }
    ADD_FAILURE() << "Nessuna colonna " << didascalia.toStdString();
    return valori;
}

QStringList BancoRicerca::didascalieVisibili(const frmRicercaGia& dialogo)
{
    const auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    QStringList visibili;
    for (int c = 0; c < griglia->model()->columnCount(); ++c)
        if (!griglia->isColumnHidden(c))
            visibili += griglia->model()->headerData(c, Qt::Horizontal).toString();
    return visibili;
}

QString BancoRicerca::righe(const frmRicercaGia& dialogo)
{
    return trova<QLabel>(dialogo, u"lblRighe"_s)->text();
}

void BancoRicerca::scrivi(frmRicercaGia& dialogo, const QString& campo, const QString& testo)
{
    auto* linea = trova<QLineEdit>(dialogo, campo);
    linea->setFocus(Qt::TabFocusReason);
    QTest::keyClick(linea, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(linea, Qt::Key_Delete);
    QTest::keyClicks(linea, testo);
}

void BancoRicerca::premi(frmRicercaGia& dialogo, const QString& bottone)
{
    QTest::mouseClick(trova<QPushButton>(dialogo, bottone), Qt::LeftButton);
}

void BancoRicerca::tasto(frmRicercaGia& dialogo, Qt::Key tasto, Qt::KeyboardModifiers con)
{
    QWidget* conFuoco = dialogo.focusWidget();
    QTest::keyClick(conFuoco ? conFuoco : &dialogo, tasto, con);
}

QString BancoRicerca::fuoco(const frmRicercaGia& dialogo)
{
    return dialogo.focusWidget() ? dialogo.focusWidget()->objectName() : QString();
}

QStringList BancoRicerca::istruzioni()
{
    return std::exchange(mIstruzioni, {});
}

} // namespace giacenza::prove
