// Stays, one run for each request: what an operator does on a screen, from the press of a key or button. The
// argument says what: "lookup_screen", "notice", "closure" or "issue".

#include "base/impostazioni.h"
#include "base/messaggi.h"
#include "base/orologio.h"
#include "benchmarks/chiave/giorno.h"
#include "benchmarks/chiave/schermata.h"

#include <giacenza/Errore.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace banco;

namespace {

const QByteArray file =
    "[DLLStampe]\nIdentificativoDll=Banco\n[Bord]\nCaptionLbl1=Trasporti del Ponte S.r.l.\n"
    "CaptionLbl2=Via dell'Industria 14 - 10148 Torino (TO)\nCaptionLbl3=Tel. 011 000000\n"
    "CaptionLbl4=giacenze@trasportidelponte.example\n";

std::unique_ptr<Operazione> operazione(const QString& nome)
{
    if (nome == u"lookup_screen"_s)
        return ricercaSuSchermata();
    if (nome == u"notice"_s)
        return avviso();
    if (nome == u"closure"_s)
        return chiusura();
    if (nome == u"issue"_s)
        return emissione();
    throw Errore(u"There is no operation \"%1\"."_s.arg(nome));
}

void scriviImpostazioni(const QString& percorso)
{
    QFile ini(percorso);
    if (!ini.open(QIODevice::WriteOnly) || ini.write(file) != file.size())
        throw Errore(u"%1: %2"_s.arg(percorso, ini.errorString()));
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("GIACENZA_PARTI", BANCO_PARTI);
    const QApplication applicazione(argc, argv);
    const QTemporaryDir cartella;
    impostaOggi(QDate::fromString(QString::fromLatin1(giornoMisure), Qt::ISODate));
    // No box may wait for somebody who is not there: one that comes is a failure, which is told.
    impostaPortaMessaggi([](QWidget*, const Messaggio& messaggio) {
        std::fprintf(stderr, "%s\n", qPrintable(messaggio.testo));
        return Risposta::ok;
    });
    try {
        scriviImpostazioni(cartella.filePath(u"giacenza.ini"_s));
        impostazioni().percorsoDatabase = qEnvironmentVariable(variabileConnessione);
        impostazioni().percorsoFileIni = cartella.filePath(u"giacenza.ini"_s);
        return servi(*operazione(QCoreApplication::arguments().value(1)));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
