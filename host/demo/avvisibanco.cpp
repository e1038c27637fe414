#include "avvisibanco.h"

#include "aspetto.h"
#include "documenti.h"

#include <QHeaderView>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

constexpr int quanti = 3;
constexpr int colonnaStato = 0;
constexpr int colonnaGiacenza = 1;
constexpr int colonnaEsito = 3;

QTableView* tabella(QWidget* finestra, const QString& nome)
{
    auto* trovata = qobject_cast<QTableView*>(Regista::controllo(finestra, nome));
    Regista::verifica(trovata, u"%1 non è un elenco"_s.arg(nome));
    return trovata;
}

/// Clicks the title of a column.
void ordina(QTableView* elenco, int colonna)
{
    QHeaderView* titoli = elenco->horizontalHeader();
    QTest::mouseClick(
        titoli->viewport(), Qt::LeftButton, {},
        {titoli->sectionViewportPosition(colonna) + titoli->sectionSize(colonna) / 2, titoli->height() / 2});
}

/// The first rows of the list by state, marked by keys.
QStringList segna(Regista& regista, QTableView* elenco)
{
    ordina(elenco, colonnaStato);
    elenco->setFocus();
    regista.preme(elenco, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 1; i < quanti; ++i)
        regista.preme(elenco, Qt::Key_Down, Qt::ShiftModifier);
    QStringList numeri;
    const auto segnate = elenco->selectionModel()->selectedRows(colonnaGiacenza);
    for (const QModelIndex& riga : segnate) {
        Regista::verifica(testoCella(elenco, riga.row(), colonnaStato) == u"da avvisare"_s,
                          u"la giacenza %1 non è da avvisare"_s.arg(riga.data().toString()));
        numeri << riga.data().toString().trimmed();
    }
    Regista::verifica(numeri.size() == quanti, u"non sono segnate %1 righe"_s.arg(quanti));
    return numeri;
}

/// Sends, pictures the work half done, and waits for its end.
void emetti(Regista& regista, QWidget* dialogo)
{
    QTableView* esiti = tabella(dialogo, u"tabInvio"_s);
    fotografaNeiDueColori(regista, dialogo, u"avvisi-anteprima"_s);
    regista.passo(u"  %1"_s.arg(Regista::testo(dialogo, u"lblInvio"_s)));
    int fatti = 0;
    const auto ascolto = QObject::connect(
        esiti->model(), &QAbstractItemModel::dataChanged, &regista, [&](const QModelIndex& cella) {
            if (cella.column() == colonnaEsito && cella.data().toString().startsWith(u'✓') &&
                cella.row() == fatti && ++fatti == quanti - 1)
                fotografaNeiDueColori(regista, dialogo, u"avvisi-avanzamento"_s);
        });
    regista.preme(dialogo, Qt::Key_Return, Qt::ControlModifier);
    Regista::attende([&] { return Regista::testo(dialogo, u"cmdChiudi"_s) == u"&Chiudi"_s; },
                     u"gli avvisi non sono finiti"_s);
    QObject::disconnect(ascolto);
    regista.passo(u"  %1"_s.arg(Regista::testo(dialogo, u"lblInvio"_s)));
    for (int riga = 0; riga < quanti; ++riga)
        Regista::verifica(testoCella(esiti, riga, colonnaEsito) == u"✓ avviso n. 1"_s,
                          u"un avviso non è partito: %1"_s.arg(testoCella(esiti, riga, colonnaEsito)));
    fotografaNeiDueColori(regista, dialogo, u"avvisi-esito"_s);
    regista.preme(dialogo, Qt::Key_Escape);
}

void verificaAvvisate(Regista& regista, Archivio& archivio, const QStringList& numeri,
                      const QString& cartella, const QStringList& prima)
{
    for (const QString& nome : numeri) {
        const auto riga =
            archivio.riga(u"select GINRAV, GIDTAV from giace00f where GINRGI='%1' and GIANGI=%2"_s.arg(
                nome.section(u'/', 0, 0), nome.section(u'/', 1)));
        Regista::verifica(riga.size() == 2 && riga[0] == u"1"_s && riga[1] == dataSql(QDate::currentDate()),
                          u"l'avviso della giacenza %1 non è contato una volta"_s.arg(nome));
        regista.passo(u"  Avvisata la giacenza %1: documento %2"_s.arg(
            nome, documentoNuovo(QString(nome).replace(u'/', u'_'), cartella, prima)));
    }
}

} // namespace

QString testoCella(const QTableView* elenco, int riga, int colonna)
{
    return elenco->model()->index(riga, colonna).data().toString().trimmed();
}

void attendeLettura(QWidget* finestra)
{
    Regista::attende([&] { return Regista::testo(finestra, u"lblLettura"_s).startsWith(u"letto alle"_s); },
                     u"l'elenco delle giacenze non è stato letto"_s);
}

void avvisaTre(Regista& regista, Archivio& archivio, QWidget* finestra, const QString& cartella)
{
    QTableView* elenco = tabella(finestra, u"tabCasi"_s);
    const QStringList documentiPrima = documenti(cartella);
    const QStringList numeri = segna(regista, elenco);
    regista.passo(u"Tre avvisi insieme: %1"_s.arg(numeri.join(u", "_s)));
    fotografaNeiDueColori(regista, finestra, u"tre-segnate"_s);
    regista.rispondendo([&] { regista.preme(elenco, Qt::Key_N, Qt::ControlModifier); },
                        {[&](QWidget* dialogo) { emetti(regista, dialogo); }});
    verificaAvvisate(regista, archivio, numeri, cartella, documentiPrima);
    attendeLettura(finestra);

    regista.passo(u"  Ancora Ctrl+N: oggi sono già avvisate"_s);
    const QStringList dopo = documenti(cartella);
    regista.rispondendo([&] { regista.preme(elenco, Qt::Key_N, Qt::ControlModifier); },
                        {[&](QWidget* dialogo) {
                            regista.passo(u"  %1"_s.arg(Regista::testo(dialogo, u"lblInvio"_s)));
                            fotografaNeiDueColori(regista, dialogo, u"avvisi-ripetuti"_s);
                            regista.preme(dialogo, Qt::Key_Escape);
                        }});
    Regista::verifica(documenti(cartella) == dopo, u"una ripetizione ha fatto altri avvisi"_s);
}
