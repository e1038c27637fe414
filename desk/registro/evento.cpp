#include "desk/registro/evento.h"

#include "database/valori.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza::registro {

namespace {

struct Parti
{
    QString prima;
    QString testo;
    QString ldv; ///< "4711/2026 MI"
};

QString giorno(const QString& testo)
{
    const auto letto = leggiGiorno(testo);
    return letto ? dataBreve(*letto) : testo;
}

/// "sosta=7.50 fisso=5.00" as euro; what is missing is said so.
QString importi(const QString& testo)
{
    static const QRegularExpression modello(u"^sosta=(\\S*) fisso=(\\S*)$"_s);
    const auto trovato = modello.match(testo);
    if (!trovato.hasMatch())
        return testo;
    const auto euro = [](const QString& valore) { return eNumero(valore) ? valuta(valore) : u"niente"_s; };
    return u"sosta %1, fisso %2"_s.arg(euro(trovato.captured(1)), euro(trovato.captured(2)));
}

/// What a new description says that the old one did not, where it only grew.
QString cambiamento(const QString& prima, const QString& dopo)
{
    if (!prima.isEmpty() && dopo.startsWith(prima))
        return u"Aggiunto: "_s + dopo.mid(prima.size()).trimmed();
    return u"Prima: %1\nOra: %2"_s.arg(prima.isEmpty() ? u"(vuota)"_s : prima,
                                       dopo.isEmpty() ? u"(vuota)"_s : dopo);
}

void racconta(Evento& evento, const Parti& parti)
{
    const QString& fatto = evento.fatto;
    evento.valore = parti.testo;
    if (fatto == u"registrata"_s) {
        evento.che = u"Messa in giacenza"_s;
        evento.testo = parti.testo;
    } else if (fatto == u"avvisata"_s) {
        evento.che = parti.testo.isEmpty() ? u"Avvisi tolti (erano %1)"_s.arg(parti.prima)
                                           : u"Avviso n. "_s + parti.testo;
    } else if (fatto == u"descrizione"_s) {
        evento.che = u"Descrizione cambiata"_s;
        evento.testo = cambiamento(parti.prima, parti.testo);
    } else if (fatto == u"chiusa"_s) {
        evento.che = u"Buon fine del "_s + giorno(parti.testo);
    } else if (fatto == u"riaperta"_s) {
        evento.che = u"Riaperta (era chiusa il %1)"_s.arg(giorno(parti.prima));
    } else if (fatto == u"addebitata"_s) {
        evento.che = u"Importi scritti: "_s + importi(parti.testo);
        evento.testo = parti.prima.isEmpty() || parti.prima == u"sosta= fisso="_s
                           ? QString()
                           : u"Prima: "_s + importi(parti.prima);
    } else if (fatto == u"fatturata"_s) {
        evento.che = parti.testo.isEmpty() ? u"Fattura tolta (era la n. %1)"_s.arg(parti.prima)
                                           : u"Fattura n. "_s + parti.testo;
    } else if (fatto == u"rinumerata"_s) {
        evento.che = u"Numero cambiato da %1 a %2"_s.arg(parti.prima, parti.testo);
    } else if (fatto == u"cancellata"_s) {
        evento.che = u"Cancellata dall'archivio"_s;
        evento.testo = parti.prima;
    } else if (fatto == u"collegata"_s) {
        evento.che = u"Collegata la lettera di vettura "_s + parti.ldv;
    } else if (fatto == u"scollegata"_s) {
        evento.che = u"Scollegata la lettera di vettura "_s + parti.ldv;
    } else if (fatto == u"riconsegnata"_s) {
        evento.che = u"Emessa la lettera di vettura "_s + parti.ldv;
        evento.testo = parti.testo;
    } else if (fatto == u"consegnata"_s) {
        evento.che = u"Consegnata il %1 con la lettera di vettura %2"_s.arg(giorno(parti.testo), parti.ldv);
    } else { // of a later version of the register
        evento.che = fatto;
        evento.testo = parti.testo;
    }
}

QString testoDi(const Recordset& riga, const QString& colonna)
{
    return riga.valore(colonna).value_or(QString());
}

} // namespace

Evento eventoDelRegistro(const Recordset& riga)
{
    Evento evento;
    evento.fonte = Fonte::registro;
    evento.quando = istanteLocale(testoDi(riga, u"istante"_s));
    evento.chi = testoDi(riga, u"utente"_s);
    evento.fatto = testoDi(riga, u"fatto"_s);
    evento.ldv = testoDi(riga, u"ldv"_s);
    racconta(evento,
             {testoDi(riga, u"prima"_s), testoDi(riga, u"testo"_s),
              u"%1/%2 %3"_s.arg(evento.ldv, testoDi(riga, u"annoldv"_s), testoDi(riga, u"filiale"_s))});
    return evento;
}

Evento eventoDiNota(const Recordset& riga)
{
    Evento evento;
    evento.fonte = Fonte::nota;
    evento.quando = istanteLocale(testoDi(riga, u"istante"_s));
    const QString autore = testoDi(riga, u"autore"_s);
    const QString utente = testoDi(riga, u"utente"_s);
    evento.chi = autore == utente ? autore : u"%1 (%2)"_s.arg(autore, utente);
    evento.fatto = u"nota"_s;
    evento.che = u"Nota"_s;
    evento.testo = testoDi(riga, u"testo"_s);
    return evento;
}

QDateTime istanteLocale(const QString& istante)
{
    constexpr int finoAiSecondi = 19;
    QDateTime quando = QDateTime::fromString(istante.left(finoAiSecondi), u"yyyy-MM-dd HH:mm:ss"_s);
    quando.setTimeSpec(Qt::UTC);
    return quando.toLocalTime();
}

QString quandoEsteso(const Evento& evento)
{
    const QString data = dataBreve(evento.quando.date());
    return evento.fonte == Fonte::dedotto ? data : data + evento.quando.time().toString(u" HH:mm"_s);
}

} // namespace giacenza::registro
