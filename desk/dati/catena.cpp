#include "desk/dati/catena.h"

#include "data/istruzionidesk.h"
#include "desk/registro/cronologia.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

using istruzioni::ColonnaChiusura;
using istruzioni::ColonnaLegata;

namespace {

template<class Colonna>
QString testo(const Recordset& riga, Colonna colonna)
{
    return riga.valore(static_cast<int>(colonna)).value_or(QString());
}

template<class Colonna>
QDate data(const Recordset& riga, Colonna colonna)
{
    return leggiGiorno(testo(riga, colonna)).value_or(QDate());
}

Catena leggiTesta(const Recordset& riga, Connessione& connessione, QDate oggi, int giorniFerma)
{
    Catena catena;
    catena.riga = rigaDi(leggiCaso(riga, connessione), oggi, giorniFerma);
    catena.buonFine = data(riga, ColonnaChiusura::gidtbf);
    catena.giorni = testo(riga, ColonnaChiusura::giggso);
    catena.importo = testo(riga, ColonnaChiusura::giimgi);
    catena.fisso = testo(riga, ColonnaChiusura::fissoGiacenza);
    const QString fattura = testo(riga, ColonnaChiusura::ginrfa);
    const QDate giornoFattura = data(riga, ColonnaChiusura::gidtfa);
    if (!fattura.isEmpty())
        catena.fattura =
            giornoFattura.isValid() ? u"%1 del %2"_s.arg(fattura, dataBreve(giornoFattura)) : fattura;
    const Caso& caso = catena.riga.caso;
    const QString prima = testo(riga, ColonnaChiusura::givnrg);
    catena.passi.push_back(
        {TipoPasso::lettera,
         caso.dataLdv,
         u"%1, cliente %2"_s.arg(nomeLdv(caso.ldv),
                                 caso.ragioneSociale.isEmpty() ? caso.cliente : caso.ragioneSociale),
         {}});
    catena.passi.push_back({TipoPasso::giacenza,
                            caso.dal,
                            prima.isEmpty()
                                ? nomeGiacenza(caso.chiave)
                                : u"%1, segue la giacenza %2"_s.arg(nomeGiacenza(caso.chiave), prima),
                            {}});
    return catena;
}

void aggiungiDocumenti(Catena& catena, const std::vector<DocumentoTrovato>& documenti)
{
    for (const DocumentoTrovato& documento : documenti)
        catena.passi.push_back({TipoPasso::documento, documento.scritto.date(),
                                QFileInfo(documento.file).fileName(), documento.file});
}

/// The notices that the register saw go out, each with its day; nothing where it is not there, or came after
/// the first of them: then the case alone says how many there are.
std::vector<registro::Evento> avvisiRegistrati(Connessione& connessione, const Caso& caso)
{
    const registro::Presenza presenza = registro::presenzaRegistro(connessione);
    if (!presenza.eventi)
        return {};
    std::vector<registro::Evento> avvisi = leggiCronologia(connessione, caso.chiave, presenza).eventi;
    std::erase_if(avvisi, [](const registro::Evento& evento) {
        return evento.fatto != u"avvisata"_s || evento.valore.isEmpty() ||
               evento.fonte != registro::Fonte::registro;
    });
    return avvisi;
}

/// Each notice, and behind it the prints of its day and of the days up to the next one.
void aggiungiAvvisiEDocumenti(Catena& catena, const std::vector<registro::Evento>& avvisi,
                              const std::vector<DocumentoTrovato>& documenti)
{
    auto stampa = documenti.begin();
    const auto aggiungiFinoA = [&](QDate giorno) {
        for (; stampa != documenti.end() && stampa->scritto.date() < giorno; ++stampa)
            aggiungiDocumenti(catena, {*stampa});
    };
    for (const registro::Evento& avviso : avvisi) {
        aggiungiFinoA(avviso.quando.date());
        catena.passi.push_back({TipoPasso::avviso, avviso.quando.date(), u"n. "_s + avviso.valore, {}});
    }
    aggiungiDocumenti(catena, {stampa, documenti.end()});
}

void aggiungiAvvisi(Catena& catena, Connessione& connessione, const Cartelle& cartelle)
{
    const Caso& caso = catena.riga.caso;
    const auto documenti = avvisiArchiviati(cartelle, caso.chiave);
    const auto avvisi =
        caso.avvisi.isEmpty() ? std::vector<registro::Evento>() : avvisiRegistrati(connessione, caso);
    const auto primi = caso.avvisi.toInt() - static_cast<int>(avvisi.size());
    if (avvisi.empty()) {
        const QString quanti =
            caso.avvisi == u"1"_s ? u"1 avviso"_s : u"%1 avvisi; questo è l'ultimo"_s.arg(caso.avvisi);
        catena.passi.push_back(
            {TipoPasso::avviso, caso.ultimoAvviso, caso.avvisi.isEmpty() ? u"nessun avviso"_s : quanti, {}});
        return aggiungiDocumenti(catena, documenti);
    }
    if (primi > 0)
        catena.passi.push_back({TipoPasso::avviso,
                                {},
                                primi == 1 ? u"1 avviso di prima del registro"_s
                                           : u"%1 avvisi di prima del registro"_s.arg(primi),
                                {}});
    aggiungiAvvisiEDocumenti(catena, avvisi, documenti);
}

QString statoLettera(const Recordset& riga)
{
    const QDate consegna = data(riga, ColonnaLegata::ledtco);
    if (consegna.isValid())
        return u"consegnata il %1"_s.arg(dataBreve(consegna));
    const QString bordereau = testo(riga, ColonnaLegata::leflbc);
    return bordereau.isEmpty() || bordereau == u"0"_s ? u"non ancora in bordereau"_s : u"in viaggio"_s;
}

void aggiungiLegate(Catena& catena, Connessione& connessione, const Cartelle& cartelle)
{
    const Caso& caso = catena.riga.caso;
    Recordset riga;
    riga.apri(connessione, istruzioni::lettereLegate(), Recordset::Cursore::soloAvanti,
              std::vector<Valore>{caso.chiave.numero, QString::number(caso.chiave.anno)});
    for (; !riga.eof(); riga.successivo()) {
        const ChiaveSpedizione ldv{testo(riga, ColonnaLegata::lefili), testo(riga, ColonnaLegata::lenrlv),
                                   testo(riga, ColonnaLegata::leanlv).toInt()};
        if (nomeLdv(ldv) == nomeLdv(caso.ldv))
            continue;
        const bool reso =
            testo(riga, ColonnaLegata::lenote).startsWith(u"Reso a Mittente"_s, Qt::CaseInsensitive);
        const QString luogo =
            QStringList{testo(riga, ColonnaLegata::ledest), testo(riga, ColonnaLegata::lelocd)}
                .join(u' ')
                .simplified();
        catena.passi.push_back({reso ? TipoPasso::reso : TipoPasso::riconsegna,
                                data(riga, ColonnaLegata::ledtlv),
                                u"LDV %1, %2%3"_s.arg(nomeLdv(ldv), statoLettera(riga),
                                                      luogo.isEmpty() ? QString() : u": "_s + luogo),
                                {}});
        aggiungiDocumenti(catena, lettereArchiviate(cartelle, ldv));
    }
}

void aggiungiBuonFine(Catena& catena, const Cartelle& cartelle)
{
    if (!catena.buonFine.isValid()) {
        catena.passi.push_back({TipoPasso::buonFine, {}, u"non ancora"_s, {}});
    } else {
        QString testo =
            catena.giorni.isEmpty() ? u"chiusa"_s : u"chiusa, %1 giorni di sosta"_s.arg(catena.giorni);
        if (!catena.fattura.isEmpty())
            testo += u", fattura %1"_s.arg(catena.fattura);
        catena.passi.push_back({TipoPasso::buonFine, catena.buonFine, testo, {}});
    }
    aggiungiDocumenti(catena, buonFineArchiviati(cartelle, catena.riga.caso.chiave));
}

} // namespace

QString parole(TipoPasso tipo)
{
    switch (tipo) {
    case TipoPasso::lettera:
        return u"LDV"_s;
    case TipoPasso::giacenza:
        return u"Giacenza"_s;
    case TipoPasso::avviso:
        return u"Avviso"_s;
    case TipoPasso::documento:
        return u"Documento"_s;
    case TipoPasso::riconsegna:
        return u"Riconsegna"_s;
    case TipoPasso::reso:
        return u"Reso"_s;
    case TipoPasso::buonFine:
        break;
    }
    return u"Buon fine"_s;
}

std::optional<Catena> leggiCatena(Connessione& connessione, const ChiaveGiacenza& chiave,
                                  const Cartelle& cartelle, QDate oggi, int giorniFerma)
{
    Recordset riga;
    riga.apri(connessione, istruzioni::casoIntero(), Recordset::Cursore::soloAvanti,
              std::vector<Valore>{chiave.numero, QString::number(chiave.anno)});
    if (riga.eof())
        return std::nullopt;
    Catena catena = leggiTesta(riga, connessione, oggi, giorniFerma);
    riga.chiudi();
    aggiungiAvvisi(catena, connessione, cartelle);
    aggiungiLegate(catena, connessione, cartelle);
    aggiungiBuonFine(catena, cartelle);
    return catena;
}

} // namespace giacenza::desk
