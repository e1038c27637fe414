#include "salvata.h"

#include "database/valori.h"
#include "documenti.h"

using namespace Qt::StringLiterals;

namespace {

const QString aggiunta = u"Giacenza aggiunta in database."_s;

struct Numerata
{
    Spedizione spedizione;
    QString numero;
    int anno = 0;
};

qint64 contatore(Archivio& archivio)
{
    return archivio.valore(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s).toLongLong();
}

/// The row, its link and its notice are in the database; the counter has moved by one.
void verificaCaso(Archivio& archivio, const Numerata& caso, qint64 contatorePrima)
{
    const Spedizione& s = caso.spedizione;
    const auto riga =
        archivio.riga(u"select GINRGI, GIANGI, GINRAV, GIDTAV, GICODI, GIDTBF from giace00f "
                      "where GIFILI='%1' and GINRLV='%2' and GIANLV=%3"_s.arg(s.filiale, s.numero, s.anno));
    Regista::verifica(riga.size() == 6, u"la giacenza %1 non è in archivio"_s.arg(caso.numero));
    Regista::verifica(riga[0] == caso.numero && riga[1] == QString::number(caso.anno),
                      u"la giacenza %1 è in archivio con un altro numero"_s.arg(caso.numero));
    Regista::verifica(riga[2] == u"1"_s && riga[3],
                      u"l'avviso della giacenza %1 non è contato"_s.arg(caso.numero));
    Regista::verifica(riga[4] == s.cliente && !riga[5],
                      u"la giacenza %1 ha un altro cliente, o è chiusa"_s.arg(caso.numero));
    const auto legame =
        archivio.riga(u"select LERFGI, LEANGI, LEDTCO from letve00f "
                      "where lefili='%1' and lenrlv='%2' and leanlv=%3"_s.arg(s.filiale, s.numero, s.anno));
    Regista::verifica(legame.size() == 3 && legame[0] == caso.numero &&
                          legame[1] == QString::number(caso.anno) && !legame[2],
                      u"la LDV %1 non è legata alla giacenza %2"_s.arg(s.numero, caso.numero));
    Regista::verifica(contatore(archivio) == contatorePrima + 1, u"il contatore non è avanzato di uno"_s);
}

} // namespace

void salvaEVerifica(Regista& regista, Archivio& archivio, QWidget* schermata, const Spedizione& spedizione,
                    const QString& cartella)
{
    const qint64 prima = contatore(archivio);
    const QStringList documentiPrima = documenti(cartella);
    regista.passo(u"  Alt+S: salva"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {regista.messaggio(aggiunta)});
    const Numerata caso = {spedizione, Regista::testo(schermata, u"lblNrGia"_s),
                           giacenza::leggiData(Regista::testo(schermata, u"txtDataGia"_s))->year()};
    regista.fotografa(schermata, u"salvata"_s);
    verificaCaso(archivio, caso, prima);
    const QString documento =
        documentoNuovo(u"%1_%2"_s.arg(caso.numero).arg(caso.anno), cartella, documentiPrima);
    regista.passo(u"  Giacenza %1 del %2 in archivio, LDV legata, avviso %3"_s.arg(caso.numero)
                      .arg(caso.anno)
                      .arg(documento));
}
