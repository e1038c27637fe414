#include "salvata.h"

#include "data/valori.h"
#include "documenti.h"

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

/// The row, its link and its notice are in the database; the counter has moved by one.
void verificaCaso(Archivio& archivio, const Numerata& caso, qint64 contatorePrima)
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
}

} // namespace

void salvaEVerifica(Regista& regista, Archivio& archivio, QWidget* schermata, const Spedizione& spedizione,
                    const QString& cartella)
{
    const qint64 prima = contatore(archivio);
    const QStringList documentiPrima = documenti(cartella);
    regista.passo(QStringLiteral("  Alt+S: salva"));
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {regista.messaggio(aggiunta)});
    const Numerata caso = {
        spedizione, Regista::testo(schermata, QStringLiteral("lblNrGia")),
        giacenza::leggiData(Regista::testo(schermata, QStringLiteral("txtDataGia")))->year()};
    regista.fotografa(schermata, QStringLiteral("salvata"));
    verificaCaso(archivio, caso, prima);
    const QString documento =
        documentoNuovo(QStringLiteral("%1_%2").arg(caso.numero).arg(caso.anno), cartella, documentiPrima);
    regista.passo(QStringLiteral("  Giacenza %1 del %2 in archivio, LDV legata, avviso %3")
                      .arg(caso.numero)
                      .arg(caso.anno)
                      .arg(documento));
}
