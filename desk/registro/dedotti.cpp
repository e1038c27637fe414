#include "desk/registro/dedotti.h"

#include "data/istruzioniestratto.h"
#include "data/istruzionireport.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;

namespace giacenza::registro {

namespace {

class Raccolta
{
public:
    /// A null or empty day leaves the event out.
    Evento* aggiungi(const Valore& giorno, const QString& fatto, const QString& che)
    {
        const auto data = leggiGiorno(giorno.value_or(QString()));
        if (!data)
            return nullptr;
        Evento evento;
        evento.quando = data->startOfDay();
        evento.fatto = fatto;
        evento.che = che;
        return &mEventi.emplace_back(std::move(evento));
    }
    std::vector<Evento> eventi() { return std::move(mEventi); }

private:
    std::vector<Evento> mEventi;
};

void delCaso(Raccolta& raccolta, const Recordset& caso)
{
    const auto testo = [&](const QString& colonna) { return caso.valore(colonna).value_or(QString()); };
    raccolta.aggiungi(caso.valore(u"GIVDTG"_s), u"precedente"_s,
                      u"Giacenza precedente n. "_s + testo(u"GIVNRG"_s));
    if (Evento* evento = raccolta.aggiungi(caso.valore(u"GIDTGI"_s), u"registrata"_s, u"Messa in giacenza"_s))
        evento->testo = testo(u"GIDES1"_s);
    if (!testo(u"GINRAV"_s).isEmpty())
        if (Evento* evento = raccolta.aggiungi(caso.valore(u"GIDTAV"_s), u"avvisata"_s,
                                               u"Avviso n. "_s + testo(u"GINRAV"_s)))
            evento->valore = testo(u"GINRAV"_s);
    if (Evento* evento = raccolta.aggiungi(caso.valore(u"GIDTBF"_s), u"chiusa"_s, u"Buon fine"_s))
        evento->valore = testo(u"GIDTBF"_s);
    if (!testo(u"GINRFA"_s).isEmpty())
        if (Evento* evento = raccolta.aggiungi(caso.valore(u"GIDTFA"_s), u"fatturata"_s,
                                               u"Fattura n. "_s + testo(u"GINRFA"_s)))
            evento->valore = testo(u"GINRFA"_s);
}

void delleLdv(Raccolta& raccolta, Connessione& connessione, const ChiaveGiacenza& chiave,
              const QString& trattenuta)
{
    const Valore valori[] = {chiave.numero, QString::number(chiave.anno)};
    Recordset ldv;
    for (ldv.apri(connessione, istruzioni::ldvCollegate(), Recordset::Cursore::chiave, valori); !ldv.eof();
         ldv.successivo()) {
        const QString numero = ldv.valore(u"lenrlv"_s).value_or(QString());
        const QString nome = u"%1/%2 %3"_s.arg(numero, ldv.valore(u"leanlv"_s).value_or(QString()),
                                               ldv.valore(u"lefili"_s).value_or(QString()));
        if (numero != trattenuta)
            if (Evento* evento = raccolta.aggiungi(ldv.valore(u"ledtlv"_s), u"riconsegnata"_s,
                                                   u"Emessa la lettera di vettura "_s + nome)) {
                evento->ldv = numero;
                evento->testo = ldv.valore(u"lenote"_s).value_or(QString());
            }
        if (Evento* evento = raccolta.aggiungi(ldv.valore(u"LEDTCO"_s), u"consegnata"_s,
                                               u"Consegnata con la lettera di vettura "_s + nome)) {
            evento->ldv = numero;
            evento->valore = ldv.valore(u"LEDTCO"_s).value_or(QString());
        }
    }
}

} // namespace

std::vector<Evento> eventiDedotti(Connessione& connessione, const ChiaveGiacenza& chiave)
{
    Recordset caso;
    caso.apri(connessione, istruzioni::giacenzaReport(chiave.numero, QString::number(chiave.anno)));
    if (caso.eof())
        throw Errore(u"La giacenza %1 del %2 non c'è."_s.arg(chiave.numero, QString::number(chiave.anno)));
    Raccolta raccolta;
    delCaso(raccolta, caso);
    delleLdv(raccolta, connessione, chiave, caso.valore(u"GINRLV"_s).value_or(QString()));
    return raccolta.eventi();
}

bool loStesso(const Evento& delRegistro, const Evento& dedotto)
{
    if (delRegistro.fatto != dedotto.fatto)
        return false;
    if (dedotto.fatto == u"registrata"_s)
        return true;
    if (dedotto.fatto == u"riconsegnata"_s)
        return delRegistro.ldv == dedotto.ldv;
    return delRegistro.valore == dedotto.valore && (dedotto.ldv.isEmpty() || delRegistro.ldv == dedotto.ldv);
}

} // namespace giacenza::registro
