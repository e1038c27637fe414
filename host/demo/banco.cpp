#include "banco.h"

#include "aspetto.h"
#include "avvisibanco.h"
#include "cartebanco.h"
#include "finestra.h"

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

constexpr int colonnaStato = 0;
constexpr int colonnaEuro = 9;

void verificaStati(Regista& regista, const QTableView* elenco)
{
    QMap<QString, int> quanti;
    for (int riga = 0; riga < elenco->model()->rowCount(); ++riga) {
        ++quanti[testoCella(elenco, riga, colonnaStato)];
        ++quanti[testoCella(elenco, riga, colonnaEuro)];
    }
    QStringList detti;
    for (const QString& stato : {u"da avvisare"_s, u"in addebito"_s, u"in scadenza"_s, u"ferma"_s,
                                 u"in attesa"_s, u"senza condizioni"_s}) {
        Regista::verifica(quanti[stato] > 0, u"sul banco non c'è nessun caso \"%1\""_s.arg(stato));
        detti << u"%1 %2"_s.arg(stato).arg(quanti[stato]);
    }
    regista.passo(u"  Casi aperti: %1"_s.arg(detti.join(u", "_s)));
}

void guarda(Regista& regista, QWidget* finestra)
{
    regista.passo(u"Il banco: le giacenze aperte"_s);
    auto* elenco = qobject_cast<QTableView*>(Regista::controllo(finestra, u"tabCasi"_s));
    verificaStati(regista, elenco);
    fotografaNeiDueColori(regista, finestra, u"banco"_s);
    elenco->setFocus();
    for (int righe = elenco->model()->rowCount(); elenco->currentIndex().row() < righe - 1;)
        regista.preme(elenco, Qt::Key_PageDown);
    fotografaNeiDueColori(regista, finestra, u"banco-in-fondo"_s);
    regista.preme(elenco, Qt::Key_Home, Qt::ControlModifier);
}

/// A waybill that goes out again today, of the case that has most of them.
struct Nuova
{
    QString codice; ///< as its barcode says it
    QString giacenza;
    QString originale;
};

Nuova nuovaLdv(Archivio& archivio)
{
    const auto riga = archivio.riga(
        u"select lefili, lenrlv, leanlv, LERFGI, LEANGI, GINRLV, GIANLV from letve00f nuova "
        "inner join giace00f on GINRGI=LERFGI and GIANGI=LEANGI where lerico='R' and ledtlv='%1' "
        "order by (select count(*) from letve00f legata where legata.LERFGI=nuova.LERFGI and "
        "legata.LEANGI=nuova.LEANGI) desc, cast(lenrlv as unsigned) desc limit 1"_s.arg(
            dataSql(QDate::currentDate())));
    Regista::verifica(riga.size() == 7, u"oggi non è partita nessuna riconsegna"_s);
    return {u"%1-%2-%3"_s.arg(*riga[0], *riga[1], *riga[2]), u"%1/%2"_s.arg(*riga[3], *riga[4]),
            u"%1/%2"_s.arg(*riga[5], *riga[6])};
}

/// The number lands in the one field, though the list has the focus.
void scansiona(Regista& regista, Archivio& archivio, QWidget* finestra, const Deposito& deposito)
{
    const Nuova nuova = nuovaLdv(archivio);
    regista.passo(u"Scansione della LDV nuova %1"_s.arg(nuova.codice));
    QWidget* elenco = Regista::controllo(finestra, u"tabCasi"_s);
    elenco->setFocus();
    finestra->activateWindow();
    Regista::attende([&] { return finestra->isActiveWindow(); }, u"il banco non è attivo"_s);
    QTest::keyClicks(elenco, nuova.codice);
    QWidget* campo = Regista::controllo(finestra, u"txtCerca"_s);
    Regista::verifica(Regista::testo(finestra, u"txtCerca"_s) == nuova.codice,
                      u"la scansione non è arrivata nel suo campo"_s);
    regista.preme(campo, Qt::Key_Return);
    auto* pagine = finestra->findChild<QStackedWidget*>();
    Regista::attende([&] { return pagine->currentWidget()->objectName() == u"pagCaso"_s; },
                     u"la LDV %1 non ha portato a un caso"_s.arg(nuova.codice));
    const QString titolo = Regista::testo(finestra, u"lblCaso"_s);
    Regista::verifica(titolo.startsWith(u"Giacenza %1 · LDV %2"_s.arg(nuova.giacenza, nuova.originale)),
                      u"la LDV %1 ha portato a: %2"_s.arg(nuova.codice, titolo));
    regista.passo(u"  %1"_s.arg(titolo));
    QStringList passi;
    auto* tabella = qobject_cast<QTableView*>(Regista::controllo(finestra, u"tabPassi"_s));
    for (int riga = 0; riga < tabella->model()->rowCount(); ++riga)
        passi << testoCella(tabella, riga, 0);
    Regista::verifica(passi.first() == u"LDV"_s && passi.contains(u"Giacenza"_s) &&
                          passi.count(u"Riconsegna"_s) == 2,
                      u"la storia non è intera: %1"_s.arg(passi.join(u", "_s)));
    regista.passo(u"  La sua storia: %1"_s.arg(passi.join(u", "_s)));
    fotografaNeiDueColori(regista, finestra, u"scansione"_s);
    fascicolo(regista, finestra, nuova.giacenza, deposito.cartella);
    regista.preme(finestra, Qt::Key_Escape);
    Regista::verifica(pagine->currentWidget()->objectName() == u"pagElenco"_s,
                      u"Esc non ha riportato all'elenco"_s);
}

void filtra(Regista& regista, Archivio& archivio, QWidget* finestra)
{
    const QString cliente =
        archivio.valore(u"select min(RagioneSociale) from giace00f inner join letve00f on lefili=gifili and "
                        u"lenrlv=ginrlv and "
                        "leanlv=gianlv inner join clien on Codice=lecodi where GIDTBF is null "
                        "group by lecodi order by count(*) desc, lecodi limit 1"_s);
    const QString parola = cliente.section(u' ', 0, 0).toLower();
    regista.preme(finestra, Qt::Key_F, Qt::ControlModifier);
    QWidget* filtro = Regista::controllo(finestra, u"txtFiltro"_s);
    Regista::verifica(filtro->hasFocus(), u"Ctrl+F non è andato al filtro"_s);
    QTest::keyClicks(filtro, parola);
    QCoreApplication::processEvents();
    const QString totali = Regista::testo(finestra, u"lblTotali"_s);
    Regista::verifica(totali.contains(u" di "_s),
                      u"il filtro \"%1\" non ha tolto nulla: %2"_s.arg(parola, totali));
    regista.passo(u"Filtro \"%1\": %2"_s.arg(parola, totali));
    fotografaNeiDueColori(regista, finestra, u"filtro"_s);
    regista.preme(filtro, Qt::Key_Escape);
    Regista::verifica(!Regista::testo(finestra, u"lblTotali"_s).contains(u" di "_s),
                      u"Esc non ha tolto il filtro"_s);
}

} // namespace

void raccontaBanco(Regista& regista, Archivio& archivio, const Deposito& deposito)
{
    constexpr QSize schermo(1366, 740);
    deposito::Finestra finestra({deposito.database, QDir(deposito.cartella).filePath(u"giacenza.ini"_s),
                                 QCoreApplication::applicationDirPath() + u"/logo.gif"_s});
    finestra.resize(schermo);
    finestra.show();
    attendeLettura(&finestra);
    guarda(regista, &finestra);
    scansiona(regista, archivio, &finestra, deposito);
    filtra(regista, archivio, &finestra);
    avvisaTre(regista, archivio, &finestra, deposito.cartella);
    conto(regista, &finestra, deposito.cartella);
    estratto(regista, &finestra, deposito.cartella);
}
