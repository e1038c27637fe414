#include "schema/dati/righe.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

template<class Elenco>
const auto& in(const Elenco& elenco, int posizione)
{
    return elenco[static_cast<std::size_t>(posizione)];
}

Valore data(QDate giorno)
{
    return giorno.isValid() ? Valore(dataSql(giorno)) : Valore();
}

QString anno(QDate giorno)
{
    return QString::number(giorno.year());
}

/// A cash amount in cents, or null for none.
Valore importo(qint64 centesimi)
{
    return centesimi == 0 ? Valore() : Valore(testoDecimale(centesimi, 2));
}

/// Few customers send much, many send little. The first that is drawn for a waybill.
const Cliente& mittente(const std::vector<Cliente>& clienti, Caso& caso)
{
    const qint64 u = caso.tra(0, 9999);
    return in(clienti, static_cast<int>(static_cast<qint64>(clienti.size()) * u * u / 100'000'000));
}

/// The sender's own number for the shipment, in the ways in which companies write it; a few write none.
Valore riferimento(Caso& caso)
{
    const int numero = caso.tra(1, 9999);
    switch (caso.tra(1, 40)) {
    case 1:
        return {};
    case 2:
    case 3:
    case 4:
        return u"%1/A"_s.arg(numero);
    case 5:
    case 6:
    case 7:
    case 8:
        return u"ORD-%1"_s.arg(numero, 6, 10, QChar(u'0'));
    default:
        return u"DDT %1"_s.arg(numero);
    }
}

/// What was written on the case: at the save, then at each later notice.
QString descrizione(const Sosta& sosta, Caso& caso)
{
    QString testo = dataBreve(sosta.data) + u" - "_s + motivoGiacenza(caso);
    for (int n = 1; n < sosta.avvisi; ++n) {
        testo += u"\r\n"_s + dataBreve(sosta.data.addDays(7 * n)) + u" - "_s + motivoGiacenza(caso);
    }
    return testo;
}

} // namespace

const Cliente& mittenteDi(const std::vector<Cliente>& clienti, int posizione)
{
    Caso caso(Caso::spedizione, posizione);
    return mittente(clienti, caso);
}

/// The values of a waybill that are not those of its place in time.
struct Righe::Spedizione
{
    const Cliente* cliente = nullptr;
    int filiale = 0;
    const Comune* comune = nullptr;
    QString destinatario;
    QString indirizzo;
    Valore linea;
    Valore vettore;
    QString merce;
    Valore riferimento;
    Valore dataRiferimento;
    int porto = 1;
    int colli = 1;
    qint64 peso = 0; ///< in hundredths of a kilogram
    qint64 contrassegno = 0;
    qint64 anticipo = 0;
    qint64 valoreMerce = 0;
    Valore nota;
    int giorniConsegna = 0; ///< 0: not delivered yet
};

Righe::Spedizione Righe::nuova(int posizione) const
{
    Caso caso(Caso::spedizione, posizione);
    Spedizione s;
    s.cliente = &mittente(mClienti, caso);
    s.filiale = caso.percento(88) ? s.cliente->filiale : caso.tra(0, numeroFiliali - 1);
    s.comune = &caso.uno(comuni());
    s.destinatario = nomeDestinatario(caso);
    s.indirizzo = giacenza::dimostrazione::indirizzo(caso);
    const bool citta = s.comune == &comuneFiliale(s.comune->filiale);
    // A line that has no row yet, a carrier of one journey, no carrier: the waybill is there all the same.
    s.linea = caso.tra(1, 200) == 1 ? u"NUOVA"_s : codiceZona(s.comune->filiale, citta);
    const int tipoVettore = caso.tra(1, 200);
    if (tipoVettore > 2)
        s.vettore = codiceVettore(s.comune->filiale, caso.percento(40));
    else if (tipoVettore == 2)
        s.vettore = u"999"_s;
    s.merce = naturaMerce(caso);
    s.riferimento = giacenza::dimostrazione::riferimento(caso);
    if (s.riferimento)
        s.dataRiferimento = data(in(mCronologia.spedizioni, posizione).data.addDays(-caso.tra(0, 3)));
    s.porto = caso.percento(70) ? 1 : caso.percento(80) ? 2 : 4;
    s.colli = caso.percento(60) ? caso.tra(1, 3) : caso.tra(4, 30);
    s.peso = static_cast<qint64>(s.colli) * caso.tra(80, 2500);
    s.contrassegno = caso.percento(15) ? caso.tra(2000, 150'000) : 0;
    s.anticipo = caso.percento(4) ? caso.tra(500, 8000) : 0;
    s.valoreMerce = caso.percento(30) ? caso.tra(5000, 900'000) : 0;
    if (caso.percento(18))
        s.nota = notaSpedizione(caso);
    s.giorniConsegna = caso.percento(94) ? caso.tra(1, 4) : 0;
    return s;
}

/// The waybill that delivers a held shipment again, or takes it back to who sent it.
Righe::Spedizione Righe::riconsegna(const Posto& posto) const
{
    const Sosta& sosta = in(mCronologia.giacenze, posto.riconsegnaDi);
    const Posto& originale = in(mCronologia.spedizioni, sosta.spedizione);
    Spedizione s = nuova(sosta.spedizione);
    const QString vecchia = s.nota ? u" - "_s + *s.nota : QString();
    s.nota = u"%1 - giacenza %2/%3 - LDV %4/%5"_s
                 .arg(posto.reso ? u"Reso a Mittente"_s : u"Riconsegna a Destinatario"_s)
                 .arg(sosta.numero)
                 .arg(sosta.data.year())
                 .arg(originale.numero)
                 .arg(originale.data.year()) +
             vecchia;
    if (posto.reso) {
        s.destinatario = s.cliente->ragione;
        s.indirizzo = s.cliente->indirizzo;
        s.comune = s.cliente->comune;
        s.porto = 3;
        s.contrassegno = 0;
        s.anticipo = 0;
    }
    s.giorniConsegna = 0;
    return s;
}

Riga Righe::spedizione(int posizione) const
{
    const Posto& posto = in(mCronologia.spedizioni, posizione);
    const bool diNuovo = posto.riconsegnaDi >= 0;
    const Spedizione s = diNuovo ? riconsegna(posto) : nuova(posizione);
    const int legame = diNuovo ? posto.riconsegnaDi : posto.giacenza;
    const Sosta* sosta = legame < 0 ? nullptr : &in(mCronologia.giacenze, legame);
    const QDate consegna = posto.data.addDays(s.giorniConsegna);
    const bool consegnata = !sosta && s.giorniConsegna > 0 && consegna <= mCronologia.oggi;
    const bool partita = !diNuovo && posto.data < mCronologia.oggi;
    return {codiceFiliale(s.filiale),
            QString::number(posto.numero),
            anno(posto.data),
            data(posto.data),
            QString::number(s.cliente->codice),
            s.cliente->mpe,
            s.destinatario,
            s.indirizzo,
            s.comune->cap.toString(),
            s.comune->nome.toString(),
            s.comune->provincia.toString(),
            diNuovo ? Valore(u"R"_s) : Valore(),
            s.vettore,
            s.linea,
            s.merce,
            s.riferimento,
            s.dataRiferimento,
            QString::number(s.porto),
            QString::number(s.colli),
            testoDecimale(s.peso, 2),
            testoDecimale(s.peso / 25, 3),
            importo(s.contrassegno),
            importo(s.anticipo),
            s.nota,
            importo(s.valoreMerce),
            partita ? Valore(u"1"_s) : Valore(),
            sosta ? Valore(QString::number(sosta->numero)) : Valore(),
            sosta ? Valore(anno(sosta->data)) : Valore(),
            consegnata ? data(consegna) : Valore()};
}

Riga Righe::giacenza(int posizione) const
{
    const Sosta& sosta = in(mCronologia.giacenze, posizione);
    const Posto& posto = in(mCronologia.spedizioni, sosta.spedizione);
    const Spedizione s = nuova(sosta.spedizione);
    Caso caso(Caso::spedizione, sosta.spedizione);
    const bool chiusa = sosta.buonFine.isValid();
    const int giorni = chiusa ? static_cast<int>(sosta.data.daysTo(sosta.buonFine)) : 0;
    Valore fisso;
    Valore importoSosta;
    if (chiusa && s.cliente->condizioni) {
        const Costi totale = costi(*s.cliente->condizioni, giorni);
        fisso = testoDecimale(totale.fisso, 2);
        importoSosta = testoDecimale(totale.importo, 2);
    }
    // Invoices go out on the last day of the month of closure.
    QDate fattura =
        chiusa ? QDate(sosta.buonFine.year(), sosta.buonFine.month(), sosta.buonFine.daysInMonth()) : QDate();
    if (fattura > mCronologia.oggi || !fisso)
        fattura = {};
    return {codiceFiliale(s.filiale),
            QString::number(posto.numero),
            anno(posto.data),
            QString::number(s.cliente->codice),
            codiceFiliale(s.comune->filiale),
            QString::number(sosta.numero),
            anno(sosta.data),
            data(sosta.data),
            QString::number(giorni),
            sosta.avvisi > 0 ? Valore(QString::number(sosta.avvisi)) : Valore(),
            data(sosta.ultimoAvviso),
            descrizione(sosta, caso),
            data(sosta.buonFine),
            importoSosta,
            fisso,
            fattura.isValid() ? Valore(QString::number(100 + s.cliente->codice % 800)) : Valore(),
            data(fattura),
            fattura.isValid() ? Valore(u"G%1"_s.arg(fattura.month())) : Valore()};
}

Riga Righe::impostazioni() const
{
    int ultimo = 0;
    for (const Sosta& sosta : mCronologia.giacenze)
        ultimo = std::max(ultimo, sosta.numero);
    return {QString::number(ultimo),
            u"La merce resta a Vostra disposizione presso il nostro deposito. Attendiamo istruzioni "
            "scritte entro cinque giorni: consegna, nuova consegna o reso. Trascorso tale termine "
            "saranno addebitate le spese di sosta previste dal contratto."_s,
            QString::number(mCronologia.spedizioni.size() / 25), data(mCronologia.oggi)};
}

} // namespace giacenza::dimostrazione
