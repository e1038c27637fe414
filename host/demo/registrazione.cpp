#include "registrazione.h"

#include <QDir>

#include <algorithm>

using namespace giacenza;

namespace {

const QString aggiunta = QStringLiteral("Giacenza aggiunta in database.");

struct Numerata
{
    Spedizione spedizione;
    QString numero;
    int anno = 0;
};

qint64 contatore(Archivio& archivio)
{
    return archivio.valore(QStringLiteral("select UltimoNumGiacenza from ekelvorqzt_tabge00f")).toLongLong();
}

/// The row, its link and its notice are in the database; the counter has moved by one; the letter is there.
void verificaCaso(Archivio& archivio, const Numerata& caso, qint64 contatorePrima, const QString& cartella)
{
    const Spedizione& s = caso.spedizione;
    const auto riga =
        archivio.riga(QStringLiteral("select GINRGI, GIANGI, GINRAV, GIDTAV, GICODI, GIDTBF from giace00f "
                                     "where GIFILI='%1' and GINRLV='%2' and GIANLV=%3")
                          .arg(s.filiale, s.numero, s.anno));
    Regista::verifica(riga.size() == 6, QStringLiteral("la giacenza %1 non è in archivio").arg(caso.numero));
    Regista::verifica(riga[0] == caso.numero && riga[1] == QString::number(caso.anno),
                      QStringLiteral("la giacenza %1 è in archivio con un altro numero").arg(caso.numero));
    Regista::verifica(riga[2] == QStringLiteral("1") && riga[3],
                      QStringLiteral("l'avviso della giacenza %1 non è contato").arg(caso.numero));
    Regista::verifica(riga[4] == s.cliente && !riga[5],
                      QStringLiteral("la giacenza %1 ha un altro cliente, o è chiusa").arg(caso.numero));
    const auto legame = archivio.riga(QStringLiteral("select LERFGI, LEANGI, LEDTCO from letve00f "
                                                     "where lefili='%1' and lenrlv='%2' and leanlv=%3")
                                          .arg(s.filiale, s.numero, s.anno));
    Regista::verifica(legame.size() == 3 && legame[0] == caso.numero &&
                          legame[1] == QString::number(caso.anno) && !legame[2],
                      QStringLiteral("la LDV %1 non è legata alla giacenza %2").arg(s.numero, caso.numero));
    Regista::verifica(contatore(archivio) == contatorePrima + 1,
                      QStringLiteral("il contatore non è avanzato di uno"));
    const QString file = QStringLiteral("%1_%2.pdf").arg(caso.numero).arg(caso.anno);
    Regista::verifica(QFileInfo(QDir(cartella).filePath(file)).size() > 0,
                      QStringLiteral("manca il documento %1").arg(file));
}

/// Presses save, takes the messages, and gives back what the screen shows as the new number.
Numerata salva(Regista& regista, Archivio& archivio, QWidget* schermata, const Spedizione& spedizione,
               const QString& cartella)
{
    const qint64 prima = contatore(archivio);
    regista.passo(QStringLiteral("  Alt+S: salva"));
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {regista.messaggio(aggiunta)});
    const Numerata caso = {
        spedizione, Regista::testo(schermata, QStringLiteral("lblNrGia")),
        giacenza::leggiData(Regista::testo(schermata, QStringLiteral("txtDataGia")))->year()};
    regista.fotografa(schermata, QStringLiteral("salvata"));
    verificaCaso(archivio, caso, prima, cartella);
    regista.passo(QStringLiteral("  Giacenza %1 del %2 in archivio, LDV legata, avviso %1_%2.pdf")
                      .arg(caso.numero)
                      .arg(caso.anno));
    return caso;
}

void digitata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
              const QString& cartella)
{
    regista.passo(QStringLiteral("Registrazione di una giacenza dalla LDV %1 del %2").arg(s.numero, s.data));
    componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(QStringLiteral("frmGiacenza"));
    regista.fotografa(schermata, QStringLiteral("registrazione-vuota"));

    regista.scrive(schermata, QStringLiteral("txtCodiceCli"), s.cliente);
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtCodiceCli")), Qt::Key_Tab);
    regista.passo(QStringLiteral("  Cliente %1: %2")
                      .arg(s.cliente, Regista::testo(schermata, QStringLiteral("barCliente"))));
    regista.scrive(schermata, QStringLiteral("txtFiliale"), s.filiale);
    regista.scrive(schermata, QStringLiteral("txtLDV"), s.numero);
    regista.scrive(schermata, QStringLiteral("txtDataLdv"), QString(s.data).remove(QLatin1Char('/')));
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtDataLdv")), Qt::Key_Tab);
    Regista::verifica(Regista::testo(schermata, QStringLiteral("txtDestinatario")) == s.destinatario,
                      QStringLiteral("la LDV %1 non è stata trovata").arg(s.numero));
    regista.fotografa(schermata, QStringLiteral("ldv-trovata"));
    regista.passo(QStringLiteral("  Trovata: destinatario %1").arg(s.destinatario));

    regista.scrive(schermata, QStringLiteral("txtFilialeGia"), s.filiale);
    regista.scrive(schermata, QStringLiteral("txtDescGia"),
                   QStringLiteral("Destinatario assente, negozio chiuso"));
    regista.fotografa(schermata, QStringLiteral("compilata"));
    salva(regista, archivio, schermata, s, cartella);

    regista.passo(QStringLiteral("  Ancora Alt+S: la spedizione è già in giacenza"));
    regista.rispondendo(
        [&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
        {regista.messaggio(QStringLiteral("Giacenza esistente impossibile inserirla in database."))});
    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
}

void consegnata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
                const QString& cartella)
{
    regista.passo(
        QStringLiteral("Registrazione dalla LDV %1 consegnata dal programma del deposito").arg(s.numero));
    componente.NuovaGiacenzaEXT(s.numero, s.data, s.filiale, s.cliente);
    QWidget* schermata = regista.finestra(QStringLiteral("frmGiacenza"));
    Regista::attende(
        [&] { return Regista::testo(schermata, QStringLiteral("txtDestinatario")) == s.destinatario; },
        QStringLiteral("la LDV %1 non è stata trovata").arg(s.numero));
    regista.scrive(schermata, QStringLiteral("txtDescGia"), QStringLiteral("Indirizzo sconosciuto"));
    regista.fotografa(schermata, QStringLiteral("consegnata"));
    salva(regista, archivio, schermata, s, cartella);
    regista.clicca(schermata, QStringLiteral("cmdEsci"));
}

} // namespace

void raccontaRegistrazione(Regista& regista, cGiacenza& componente, Archivio& archivio,
                           const QString& cartella)
{
    int chiusure = 0;
    QObject::connect(&componente, &cGiacenza::fine, &regista, [&chiusure] { ++chiusure; });
    const auto libere = spedizioniLibere(archivio);
    digitata(regista, componente, archivio, libere[0], cartella);
    Regista::attende([&] { return chiusure == 1; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    consegnata(regista, componente, archivio, libere[1], cartella);
    Regista::attende([&] { return chiusure == 2; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    QObject::disconnect(&componente, &cGiacenza::fine, &regista, nullptr);
}
