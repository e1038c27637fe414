#include "cartebanco.h"

#include "aspetto.h"
#include "avvisibanco.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileInfo>
#include <QModelIndex>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

enum Colonna
{
    colonnaStato = 0,
    colonnaGiacenza = 1,
    colonnaFranchi = 8
};

/// Presses the keys of a window's button that saves a document, and gives the document's name.
QString salva(Regista& regista, QWidget* dialogo, Qt::Key lettera, const QString& cartella)
{
    const QString salvato = u"Salvato: "_s;
    const QString prima = Regista::testo(dialogo, u"lblStato"_s);
    regista.preme(dialogo, lettera, Qt::AltModifier);
    Regista::attende(
        [&] {
            const QString detto = Regista::testo(dialogo, u"lblStato"_s);
            return detto != prima && detto.startsWith(salvato);
        },
        u"%1 non ha salvato"_s.arg(dialogo->windowTitle()));
    const QFileInfo file(Regista::testo(dialogo, u"lblStato"_s).mid(salvato.size()));
    Regista::verifica(file.isFile() && file.dir() == QDir(cartella),
                      u"il documento %1 non è nella cartella"_s.arg(file.filePath()));
    return file.fileName();
}

/// Puts the mark into a box by its letter.
void segna(Regista& regista, QWidget* dialogo, Qt::Key lettera, const QString& casella)
{
    const auto* quale = qobject_cast<QAbstractButton*>(Regista::controllo(dialogo, casella));
    regista.preme(dialogo, lettera, Qt::AltModifier);
    Regista::attende([&] { return quale->isChecked() && !quale->isDown(); },
                     u"la casella %1 non si segna"_s.arg(casella));
}

} // namespace

void fascicolo(Regista& regista, QWidget* finestra, const QString& caso, const QString& cartella)
{
    regista.passo(u"Diario e fascicolo della giacenza %1"_s.arg(caso));
    regista.rispondendo(
        [&] { regista.preme(finestra, Qt::Key_D, Qt::ControlModifier); }, {[&](QWidget* dialogo) {
            regista.scrive(dialogo, u"txtAutore"_s, u"Ufficio giacenze"_s);
            regista.scrive(dialogo, u"txtNota"_s, u"Il mittente conferma l'indirizzo per telefono"_s);
            regista.preme(Regista::controllo(dialogo, u"txtNota"_s), Qt::Key_Return, Qt::ControlModifier);
            Regista::verifica(
                Regista::testo(dialogo, u"lblStato"_s) == u"Nota aggiunta."_s,
                u"la nota non è stata aggiunta: %1"_s.arg(Regista::testo(dialogo, u"lblStato"_s)));
            fotografaNeiDueColori(regista, dialogo, u"diario"_s);
            regista.passo(u"    fascicolo %1"_s.arg(salva(regista, dialogo, Qt::Key_F, cartella)));
            fotografaNeiDueColori(regista, dialogo, u"fascicolo"_s);
            regista.preme(dialogo, Qt::Key_Escape);
        }});
}

void conto(Regista& regista, QWidget* finestra, const QString& cartella)
{
    auto* elenco = qobject_cast<QTableView*>(Regista::controllo(finestra, u"tabCasi"_s));
    elenco->setFocus();
    regista.preme(elenco, Qt::Key_Home, Qt::ControlModifier);
    // Some days charged, and not so many that the sheet is nothing but days.
    constexpr int addebitati = 30;
    regista.scorre(elenco, [&](const QModelIndex& riga) {
        return riga.siblingAtColumn(colonnaStato).data() == u"in addebito"_s &&
               riga.siblingAtColumn(colonnaFranchi).data().toInt() >= -addebitati;
    });
    const QString caso = testoCella(elenco, elenco->currentIndex().row(), colonnaGiacenza);
    regista.passo(u"Conto della sosta della giacenza %1"_s.arg(caso));
    regista.rispondendo(
        [&] { regista.preme(elenco, Qt::Key_K, Qt::ControlModifier); }, {[&](QWidget* dialogo) {
            Regista::verifica(dialogo->windowTitle().endsWith(caso),
                              u"al posto del conto si è aperta %1"_s.arg(dialogo->windowTitle()));
            regista.passo(u"  Totale a oggi: %1"_s.arg(Regista::testo(dialogo, u"lblTotaleCalcolato"_s)));
            fotografaNeiDueColori(regista, dialogo, u"conto"_s);
            regista.passo(u"    conto %1"_s.arg(salva(regista, dialogo, Qt::Key_S, cartella)));
            regista.passo(
                u"    conto giorno per giorno %1"_s.arg(salva(regista, dialogo, Qt::Key_G, cartella)));
            fotografaNeiDueColori(regista, dialogo, u"conto-salvato"_s);
            regista.preme(dialogo, Qt::Key_Escape);
        }});
}

void estratto(Regista& regista, QWidget* finestra, const QString& cartella)
{
    QWidget* elenco = Regista::controllo(finestra, u"tabCasi"_s);
    regista.rispondendo(
        [&] { regista.preme(elenco, Qt::Key_E, Qt::ControlModifier); }, {[&](QWidget* dialogo) {
            regista.passo(u"Estratto del cliente %1"_s.arg(Regista::testo(dialogo, u"cmbCliente"_s)));
            segna(regista, dialogo, Qt::Key_S, u"chkCsv"_s);
            segna(regista, dialogo, Qt::Key_X, u"chkXlsx"_s);
            fotografaNeiDueColori(regista, dialogo, u"estratto"_s);
            regista.preme(dialogo, Qt::Key_E, Qt::AltModifier);
            Regista::attende(
                [&] { return Regista::testo(dialogo, u"lblStato"_s) == u"Estratti salvati: 1 di 1."_s; },
                u"l'estratto non è stato salvato: %1"_s.arg(Regista::testo(dialogo, u"lblStato"_s)));
            fotografaNeiDueColori(regista, dialogo, u"estratto-salvato"_s);
            const QStringList file =
                Regista::testo(dialogo, u"txtEsiti"_s).section(u"salvati "_s, 1).split(u", "_s);
            for (const QString& salvato : file) {
                const QFileInfo dove(salvato);
                Regista::verifica(dove.isFile() && dove.dir() == QDir(cartella),
                                  u"l'estratto %1 non è nella cartella"_s.arg(salvato));
                regista.passo(u"    estratto %1"_s.arg(dove.fileName()));
            }
            regista.preme(dialogo, Qt::Key_Escape);
        }});
}
