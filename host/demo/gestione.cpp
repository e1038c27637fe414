#include "gestione.h"

#include "documenti.h"

#include <QModelIndex>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

/// The component reads its day here at each look: a later day is rehearsed by it.
constexpr char variabileOggi[] = "GIACENZA_OGGI";

struct Caso
{
    QString numero;
    QString anno;
    QDate giorno;
    QString cliente;
    QString ldv;

    QString chiave() const { return numero + u'_' + anno; }
};

/// The open cases taken in today, noticed once, that the management screen can bring up; the latest first.
std::vector<Caso> casiDiOggi(Archivio& archivio)
{
    std::vector<Caso> casi;
    const QString oggi = dataSql(QDate::currentDate());
    for (QString sotto = u"999999999"_s; casi.size() < 2;) {
        const auto riga = archivio.riga(
            u"select GINRGI, GIANGI, lecodi, lenrlv from giace00f "
            "inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
            "inner join filiali on lefili=filiali.codice inner join codicizona on "
            "lelin1=codicizona.Codice "
            "inner join forni on forni.Codice=lecdve where GIDTGI='%1' and GIDTBF is null and GINRAV='1' "
            "and cast(GINRGI as decimal)<%2 order by cast(GINRGI as decimal) desc limit 1"_s.arg(oggi,
                                                                                                 sotto));
        Regista::verifica(riga.size() == 4, u"mancano giacenze di oggi da gestire"_s);
        casi.push_back({*riga[0], *riga[1], QDate::currentDate(), *riga[2], *riga[3]});
        sotto = *riga[0];
    }
    return casi;
}

/// What the archive holds of a case: notices, their date, reason, closure, days, fixed fee, amount.
std::vector<Valore> riga(Archivio& archivio, const Caso& caso)
{
    return archivio.riga(u"select GINRAV, GIDTAV, GIDES1, GIDTBF, GIGGSO, FissoGiacenza, GIIMGI "
                         "from giace00f where GINRGI='%1' and GIANGI=%2"_s.arg(caso.numero, caso.anno));
}

enum Colonna
{
    avvisi,
    dataAvviso,
    descrizione,
    dataBuonFine,
    giorniSosta,
    fisso,
    importo
};

/// The fixed fee is the customer's, an amount was worked out, the closure and its days are those expected.
void verificaChiusura(Archivio& archivio, const Caso& caso, QDate chiusa, int giorni)
{
    const auto valori = riga(archivio, caso);
    Regista::verifica(valori[dataBuonFine] == dataSql(chiusa),
                      u"la giacenza %1 non è chiusa il %2"_s.arg(caso.numero, dataBreve(chiusa)));
    Regista::verifica(valori[giorniSosta] == QString::number(giorni),
                      u"la giacenza %1 non ha %2 giorni di sosta"_s.arg(caso.numero).arg(giorni));
    QString atteso = archivio.valore(
        u"select FADFGI from tabfatturazione inner join letve00f on facodi=lecodi and "
        "facmpe=lecmpe where falcod='C' and lenrlv='%1' and leanlv=%2"_s.arg(caso.ldv, caso.anno));
    Regista::verifica(valori[fisso] && valori[importo] &&
                          confronta(*valori[fisso], FormattaNumero(atteso)) == std::strong_ordering::equal,
                      u"i costi della giacenza %1 non sono in archivio"_s.arg(caso.numero));
}

void oggiE(QDate giorno)
{
    qputenv(variabileOggi, dataSql(giorno).toLatin1());
}

void richiamaPerNumero(Regista& regista, QWidget* schermata, const Caso& caso)
{
    regista.scrive(schermata, u"txtNGiace"_s, caso.numero);
    regista.preme(Regista::controllo(schermata, u"txtNGiace"_s), Qt::Key_Return);
    regista.scrive(schermata, u"txtDataGiace"_s, caso.giorno.toString(u"ddMMyyyy"_s));
    regista.preme(Regista::controllo(schermata, u"txtDataGiace"_s), Qt::Key_Return);
    Regista::verifica(Regista::testo(schermata, u"lblNrGia"_s) == caso.numero,
                      u"la giacenza %1 non è stata richiamata"_s.arg(caso.numero));
}

void richiamaPerCliente(Regista& regista, QWidget* schermata, const Caso& caso)
{
    regista.clicca(schermata, u"chkRicerca"_s);
    regista.scrive(schermata, u"txtCodiceCli"_s, caso.cliente);
    regista.preme(Regista::controllo(schermata, u"txtCodiceCli"_s), Qt::Key_Tab);
    regista.fotografa(schermata, u"gestione-per-cliente"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_H, Qt::AltModifier); },
                        {[&](QWidget* dialogo) {
                            QWidget* griglia = Regista::controllo(dialogo, u"Griglia"_s);
                            griglia->setFocus();
                            regista.scorre(griglia, [&](const QModelIndex& riga) {
                                return riga.siblingAtColumn(2).data() == caso.numero;
                            });
                            regista.fotografa(dialogo, u"giacenze-del-cliente"_s);
                            regista.preme(griglia, Qt::Key_Return);
                        }});
    Regista::verifica(Regista::testo(schermata, u"lblNrGia"_s) == caso.numero,
                      u"la giacenza %1 non è stata presa dall'elenco"_s.arg(caso.numero));
    regista.clicca(schermata, u"chkRicerca"_s);
}

/// Presses a button, which has a document made, and says which.
void produce(Regista& regista, QWidget* schermata, Qt::Key lettera, const Caso& caso, const QString& cartella)
{
    const QStringList prima = documenti(cartella);
    regista.preme(schermata, lettera, Qt::AltModifier);
    Regista::attende([&] { return documenti(cartella).size() > prima.size(); },
                     u"manca il documento %1"_s.arg(caso.chiave()));
    regista.passo(u"    documento %1"_s.arg(documentoNuovo(caso.chiave(), cartella, prima)));
}

void secondoAvviso(Regista& regista, QWidget* schermata, Archivio& archivio, const Caso& caso,
                   const QString& cartella)
{
    const auto prima = riga(archivio, caso);
    regista.passo(u"  Alt+V, poi Esc nel rifiuto: non accade niente"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
                        {[&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); }});
    Regista::verifica(riga(archivio, caso) == prima, u"l'annullamento ha scritto qualcosa"_s);

    const QDate dopo = caso.giorno.addDays(6);
    oggiE(dopo);
    regista.passo(u"  Sei giorni dopo: il destinatario rifiuta, secondo avviso"_s);
    const QString motivo = u"Il destinatario rifiuta l'imballo bagnato"_s;
    const QStringList documentiPrima = documenti(cartella);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
                        {[&](QWidget* dialogo) {
                            regista.scrive(dialogo, u"txtMotivazione"_s, motivo);
                            regista.fotografa(dialogo, u"rifiuto"_s);
                            regista.preme(dialogo, Qt::Key_Return);
                        }});
    regista.fotografa(schermata, u"secondo-avviso"_s);
    const auto valori = riga(archivio, caso);
    Regista::verifica(valori[avvisi] == u"2"_s && valori[dataAvviso] == dataSql(dopo),
                      u"il secondo avviso della giacenza %1 non è contato"_s.arg(caso.numero));
    Regista::verifica(valori[descrizione] &&
                          valori[descrizione]->endsWith(dataBreve(dopo) + u" - "_s + motivo),
                      u"il rifiuto non è nella descrizione"_s);
    regista.passo(u"    documento %1"_s.arg(documentoNuovo(caso.chiave(), cartella, documentiPrima)));
    regista.passo(u"  Alt+R: ristampa"_s);
    produce(regista, schermata, Qt::Key_R, caso, cartella);
    Regista::verifica(riga(archivio, caso) == valori, u"la ristampa ha scritto qualcosa"_s);
}

void chiusure(Regista& regista, QWidget* schermata, Archivio& archivio, const Caso& caso,
              const QString& cartella)
{
    const QDate chiusa = caso.giorno.addDays(10);
    oggiE(chiusa);
    richiamaPerNumero(regista, schermata, caso);
    regista.passo(u"  Dieci giorni dopo: Alt+B, buon fine con i costi"_s);
    produce(regista, schermata, Qt::Key_B, caso, cartella);
    regista.fotografa(schermata, u"buon-fine"_s);
    verificaChiusura(archivio, caso, chiusa, 10);
    regista.passo(u"    in archivio: 10 giorni, importo %1"_s.arg(*riga(archivio, caso)[importo]));

    oggiE(caso.giorno.addDays(13));
    regista.passo(u"  Tre giorni più tardi di nuovo Alt+B: resta la prima data"_s);
    produce(regista, schermata, Qt::Key_B, caso, cartella);
    verificaChiusura(archivio, caso, chiusa, 10);
    regista.passo(u"  Alt+V su una giacenza chiusa"_s);
    regista.rispondendo(
        [&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
        {regista.messaggio(u"La giacenza risulta chiusa,in data: %1."_s.arg(dataBreve(chiusa)))});
}

} // namespace

void raccontaGestione(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    bool uscita = false;
    const auto ascolto =
        QObject::connect(&componente, &cGiacenza::fine, &regista, [&uscita] { uscita = true; });
    const auto casi = casiDiOggi(archivio);
    componente.ConsultaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGestGia"_s);
    // Becoming active puts the fields of the number back: a check box clicked before that would lose its
    // effect.
    schermata->activateWindow();
    Regista::attende([&] { return schermata->isActiveWindow(); }, u"la gestione non è diventata attiva"_s);
    regista.fotografa(schermata, u"gestione-vuota"_s);

    regista.passo(u"Gestione: la giacenza %1 dall'elenco del cliente, chiusa senza costi sul documento"_s.arg(
        casi[1].numero));
    richiamaPerCliente(regista, schermata, casi[1]);
    regista.clicca(schermata, u"optCostiNo"_s);
    produce(regista, schermata, Qt::Key_B, casi[1], cartella);
    regista.fotografa(schermata, u"buon-fine-senza-costi"_s);
    verificaChiusura(archivio, casi[1], casi[1].giorno, 0);
    regista.clicca(schermata, u"optCosti"_s);

    regista.passo(u"Gestione: la giacenza %1 per numero e data"_s.arg(casi[0].numero));
    richiamaPerNumero(regista, schermata, casi[0]);
    regista.fotografa(schermata, u"gestione-per-numero"_s);
    secondoAvviso(regista, schermata, archivio, casi[0], cartella);
    chiusure(regista, schermata, archivio, casi[0], cartella);

    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
    Regista::attende([&] { return uscita; }, u"la chiusura della schermata non è stata annunciata"_s);
    QObject::disconnect(ascolto);
    qunsetenv(variabileOggi);
}
