#include "host/immagini/capitoli.h"

#include "database/connessione.h"
#include "database/valori.h"
#include "host/avvio/frmArchivio.h"
#include "host/finestra.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QSettings>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

/// An open case with some notices and a waybill that delivers it again, of this year.
struct Caso
{
    QString numero;
    QString anno;
    QDate dal;
    QDate avvisata;
    QString motivo;
    QString filiale; ///< with the two that follow: of the waybill that delivers it again
    QString ldv;
    QDate partita;
};

Caso casoConStoria(Archivio& archivio)
{
    const auto riga = archivio.riga(
        u"select GINRGI, GIANGI, GIDTGI, GIDTAV, GIDES1, lefili, lenrlv, ledtlv from giace00f "
        "inner join letve00f on LERFGI=GINRGI and LEANGI=GIANGI where GIDTBF is null and lerico='R' and "
        "lenote like 'Riconsegna%' and "
        "GIANGI=leanlv and cast(GINRAV as decimal)>1 order by GIDTGI desc limit 1"_s);
    Regista::verifica(riga.size() == 8, u"manca una giacenza con la sua storia"_s);
    return {*riga[0], *riga[1], *leggiData(*riga[2]), *leggiData(*riga[3]), riga[4]->section(u"\r\n"_s, 0, 0),
            *riga[5], *riga[6], *leggiData(*riga[7])};
}

/// What a register that was there from the beginning would have written of the case, with a clerk's note.
void scriviStoria(const QString& database, const Caso& c)
{
    Connessione connessione;
    connessione.apri(database);
    const auto fatto = [&](QDate giorno, const QString& ora, const QString& utente, const QString& che,
                           const QString& testo, const QString& filiale, const QString& ldv) {
        connessione.esegui(
            u"insert into registro (istante, utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, "
            "testo) values ('%1 %2', '%3', '%4', %5, '%6', '%7', %5, '%8', '%9')"_s
                .arg(dataSql(giorno), ora, utente, c.numero, c.anno, filiale, ldv, che)
                .arg(QString(testo).replace(u"'"_s, u"''"_s)));
    };
    fatto(c.dal, u"08:41:10"_s, u"sportello"_s, u"registrata"_s, c.motivo, {}, {});
    fatto(c.dal, u"08:41:11"_s, u"sportello"_s, u"avvisata"_s, u"1"_s, {}, {});
    fatto(c.avvisata, u"09:05:37"_s, u"ufficio"_s, u"avvisata"_s, u"2"_s, {}, {});
    fatto(c.partita, u"10:22:04"_s, u"ufficio"_s, u"riconsegnata"_s, u"Riconsegna a Destinatario"_s,
          c.filiale, c.ldv);
    connessione.esegui(u"insert into registro_note (istante, utente, GINRGI, GIANGI, autore, testo) values "
                       "('%1 08:12:30', 'ufficio', '%2', %3, 'Ufficio giacenze', "
                       "'Il mittente conferma l''indirizzo per telefono: si riprova venerdì')"_s.arg(
                           qEnvironmentVariable("GIACENZA_OGGI"), c.numero, c.anno));
}

void scattaElenco(Album& album, QWidget* finestra, const QString& nome)
{
    auto* lettura = finestra->findChild<QLabel*>(u"lblLettura"_s);
    Regista::attende([&] { return lettura->text().startsWith(u"letto alle"_s); },
                     u"l'elenco delle giacenze non è stato letto"_s);
    // The clock would make another picture each time.
    lettura->setText(u"letto alle 08:30:00"_s);
    album.scatta(finestra, nome);
}

QTableView* elenco(QWidget* finestra)
{
    return qobject_cast<QTableView*>(Regista::controllo(finestra, u"tabCasi"_s));
}

/// Types a number where the list has the focus; its case comes.
void cerca(Album& album, QWidget* finestra, const QString& numero)
{
    elenco(finestra)->setFocus();
    finestra->activateWindow();
    Regista::attende([&] { return finestra->isActiveWindow(); }, u"il banco non è attivo"_s);
    QTest::keyClicks(elenco(finestra), numero);
    album.regista.preme(Regista::controllo(finestra, u"txtCerca"_s), Qt::Key_Return);
    auto* pagine = finestra->findChild<QStackedWidget*>();
    Regista::attende([&] { return pagine->currentWidget()->objectName() == u"pagCaso"_s; },
                     u"%1 non ha portato a un caso"_s.arg(numero));
}

/// Opens a dialog by its keys, pictures it as soon as it is ready, and leaves it.
void apre(Album& album, QWidget* finestra, Qt::Key tasto, const QString& nome,
          const std::function<void(QWidget*)>& prepara = {})
{
    album.regista.rispondendo([&] { album.regista.preme(finestra, tasto, Qt::ControlModifier); },
                              {[&](QWidget* dialogo) {
                                  if (prepara)
                                      prepara(dialogo);
                                  album.scatta(dialogo, nome);
                                  album.regista.preme(dialogo, Qt::Key_Escape);
                              }});
}

void salva(Album& album, QWidget* dialogo, Qt::Key lettera)
{
    album.regista.preme(dialogo, lettera, Qt::AltModifier);
    Regista::attende([&] { return Regista::testo(dialogo, u"lblStato"_s).startsWith(u"Salvato: "_s); },
                     u"%1 non ha salvato"_s.arg(dialogo->windowTitle()));
}

void unCaso(Album& album, QWidget* finestra)
{
    const Caso caso = casoConStoria(album.archivio);
    scriviStoria(album.database, caso);
    cerca(album, finestra, u"%1-%2-%3"_s.arg(caso.filiale, caso.ldv, caso.anno));
    album.scatta(finestra, u"banco-caso"_s);
    apre(album, finestra, Qt::Key_K, u"conto"_s, [&](QWidget* dialogo) { salva(album, dialogo, Qt::Key_S); });
    apre(album, finestra, Qt::Key_D, u"diario"_s);
    album.regista.preme(finestra, Qt::Key_Escape);
}

/// Three cases that nobody was told of.
void treAvvisi(Album& album, QWidget* finestra)
{
    Regista& regista = album.regista;
    regista.preme(finestra, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(Regista::controllo(finestra, u"txtFiltro"_s), u"ferramenta"_s);
    scattaElenco(album, finestra, u"banco-filtro"_s);
    regista.preme(Regista::controllo(finestra, u"txtFiltro"_s), Qt::Key_Escape);
    QTableView* casi = elenco(finestra);
    casi->sortByColumn(0, Qt::AscendingOrder);
    casi->setFocus();
    regista.preme(casi, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 1; i < 3; ++i)
        regista.preme(casi, Qt::Key_Down, Qt::ShiftModifier);
    scattaElenco(album, finestra, u"banco-segnate"_s);
    regista.rispondendo([&] { regista.preme(casi, Qt::Key_N, Qt::ControlModifier); }, {[&](QWidget* dialogo) {
                            album.scatta(dialogo, u"avvisi-anteprima"_s);
                            regista.preme(dialogo, Qt::Key_Return, Qt::ControlModifier);
                            Regista::attende(
                                [&] { return Regista::testo(dialogo, u"cmdChiudi"_s) == u"&Chiudi"_s; },
                                u"gli avvisi non sono finiti"_s);
                            album.scatta(dialogo, u"avvisi-esito"_s);
                            regista.preme(dialogo, Qt::Key_Escape);
                        }});
}

void estratti(Album& album, QWidget* finestra)
{
    // One row marked: its customer's.
    elenco(finestra)->setFocus();
    album.regista.preme(elenco(finestra), Qt::Key_PageDown);
    apre(album, finestra, Qt::Key_E, u"estratti"_s, [&](QWidget* dialogo) {
        for (const QString& casella : {u"chkCsv"_s, u"chkXlsx"_s})
            qobject_cast<QAbstractButton*>(Regista::controllo(dialogo, casella))->setChecked(true);
        album.regista.preme(dialogo, Qt::Key_E, Qt::AltModifier);
        Regista::attende(
            [&] { return Regista::testo(dialogo, u"lblStato"_s) == u"Estratti salvati: 1 di 1."_s; },
            u"l'estratto non è stato salvato"_s);
    });
}

/// The settings of the open program, and what the first start asks.
void impostazioni(Album& album, QWidget* finestra)
{
    Regista& regista = album.regista;
    regista.rispondendo(
        [&] { finestra->findChild<QAction*>(u"azImpostazioni"_s)->trigger(); },
        {album.dialogo(u"impostazioni"_s, [&](QWidget* aperto) { regista.preme(aperto, Qt::Key_Escape); })});
    deposito::SceltaArchivio scelta;
    scelta.tipo = deposito::TipoArchivio::server;
    scelta.server = u"deposito.invalid"_s;
    scelta.base = u"giacenza"_s;
    scelta.utente = u"sportello"_s;
    scelta.custodia = deposito::CustodiaParola::portachiavi;
    deposito::frmArchivio dialogo(scelta, true);
    dialogo.show();
    regista.scrive(&dialogo, u"txtParola"_s, u"parola"_s);
    album.scatta(&dialogo, u"archivio"_s);
    regista.preme(&dialogo, Qt::Key_P, Qt::AltModifier);
    Regista::attende([&] { return Regista::testo(&dialogo, u"lblEsito"_s).startsWith(u'⚠'); },
                     u"la prova dell'archivio non dice niente"_s);
    album.scatta(&dialogo, u"archivio-errore"_s);
}

} // namespace

void fotografaBanco(Album& album)
{
    deposito::Finestra finestra({album.database, QDir(album.cartella).filePath(u"giacenza.ini"_s),
                                 QCoreApplication::applicationDirPath() + u"/logo.gif"_s});
    finestra.show();
    album.regista.preme(&finestra, Qt::Key_F5);
    unCaso(album, &finestra);
    treAvvisi(album, &finestra);
    estratti(album, &finestra);
    impostazioni(album, &finestra);
    album.imposta();
}
