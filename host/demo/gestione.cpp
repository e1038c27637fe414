#include "gestione.h"

#include "documenti.h"

#include <QModelIndex>

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

    QString chiave() const { return numero + QLatin1Char('_') + anno; }
};

/// The open cases taken in today, noticed once, that the management screen can bring up; the latest first.
std::vector<Caso> casiDiOggi(Archivio& archivio)
{
    std::vector<Caso> casi;
    const QString oggi = dataSql(QDate::currentDate());
    for (QString sotto = QStringLiteral("999999999"); casi.size() < 2;) {
        const auto riga = archivio.riga(
            QStringLiteral(
                "select GINRGI, GIANGI, lecodi, lenrlv from giace00f "
                "inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
                "inner join filiali on lefili=filiali.codice inner join codicizona on "
                "lelin1=codicizona.Codice "
                "inner join forni on forni.Codice=lecdve where GIDTGI='%1' and GIDTBF is null and GINRAV='1' "
                "and cast(GINRGI as decimal)<%2 order by cast(GINRGI as decimal) desc limit 1")
                .arg(oggi, sotto));
        Regista::verifica(riga.size() == 4, QStringLiteral("mancano giacenze di oggi da gestire"));
        casi.push_back({*riga[0], *riga[1], QDate::currentDate(), *riga[2], *riga[3]});
        sotto = *riga[0];
    }
    return casi;
}

/// What the archive holds of a case: notices, their date, reason, closure, days, fixed fee, amount.
std::vector<Valore> riga(Archivio& archivio, const Caso& caso)
{
    return archivio.riga(
        QStringLiteral("select GINRAV, GIDTAV, GIDES1, GIDTBF, GIGGSO, FissoGiacenza, GIIMGI "
                       "from giace00f where GINRGI='%1' and GIANGI=%2")
            .arg(caso.numero, caso.anno));
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
    Regista::verifica(
        valori[dataBuonFine] == dataSql(chiusa),
        QStringLiteral("la giacenza %1 non è chiusa il %2").arg(caso.numero, dataBreve(chiusa)));
    Regista::verifica(
        valori[giorniSosta] == QString::number(giorni),
        QStringLiteral("la giacenza %1 non ha %2 giorni di sosta").arg(caso.numero).arg(giorni));
    QString atteso = archivio.valore(
        QStringLiteral("select FADFGI from tabfatturazione inner join letve00f on facodi=lecodi and "
                       "facmpe=lecmpe where falcod='C' and lenrlv='%1' and leanlv=%2")
            .arg(caso.ldv, caso.anno));
    Regista::verifica(valori[fisso] && valori[importo] &&
                          confronta(*valori[fisso], FormattaNumero(atteso)) == std::strong_ordering::equal,
                      QStringLiteral("i costi della giacenza %1 non sono in archivio").arg(caso.numero));
}

void oggiE(QDate giorno)
{
    qputenv(variabileOggi, dataSql(giorno).toLatin1());
}

void richiamaPerNumero(Regista& regista, QWidget* schermata, const Caso& caso)
{
    regista.scrive(schermata, QStringLiteral("txtNGiace"), caso.numero);
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtNGiace")), Qt::Key_Return);
    regista.scrive(schermata, QStringLiteral("txtDataGiace"),
                   caso.giorno.toString(QStringLiteral("ddMMyyyy")));
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtDataGiace")), Qt::Key_Return);
    Regista::verifica(Regista::testo(schermata, QStringLiteral("lblNrGia")) == caso.numero,
                      QStringLiteral("la giacenza %1 non è stata richiamata").arg(caso.numero));
}

void richiamaPerCliente(Regista& regista, QWidget* schermata, const Caso& caso)
{
    regista.clicca(schermata, QStringLiteral("chkRicerca"));
    regista.scrive(schermata, QStringLiteral("txtCodiceCli"), caso.cliente);
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtCodiceCli")), Qt::Key_Tab);
    regista.fotografa(schermata, QStringLiteral("gestione-per-cliente"));
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_H, Qt::AltModifier); },
                        {[&](QWidget* dialogo) {
                            QWidget* griglia = Regista::controllo(dialogo, QStringLiteral("Griglia"));
                            griglia->setFocus();
                            regista.scorre(griglia, [&](const QModelIndex& riga) {
                                return riga.siblingAtColumn(2).data() == caso.numero;
                            });
                            regista.fotografa(dialogo, QStringLiteral("giacenze-del-cliente"));
                            regista.preme(griglia, Qt::Key_Return);
                        }});
    Regista::verifica(Regista::testo(schermata, QStringLiteral("lblNrGia")) == caso.numero,
                      QStringLiteral("la giacenza %1 non è stata presa dall'elenco").arg(caso.numero));
    regista.clicca(schermata, QStringLiteral("chkRicerca"));
}

/// Presses a button, which has a document made, and says which.
void produce(Regista& regista, QWidget* schermata, Qt::Key lettera, const Caso& caso, const QString& cartella)
{
    const QStringList prima = documenti(cartella);
    regista.preme(schermata, lettera, Qt::AltModifier);
    Regista::attende([&] { return documenti(cartella).size() > prima.size(); },
                     QStringLiteral("manca il documento %1").arg(caso.chiave()));
    regista.passo(QStringLiteral("    documento %1").arg(documentoNuovo(caso.chiave(), cartella, prima)));
}

void secondoAvviso(Regista& regista, QWidget* schermata, Archivio& archivio, const Caso& caso,
                   const QString& cartella)
{
    const auto prima = riga(archivio, caso);
    regista.passo(QStringLiteral("  Alt+V, poi Esc nel rifiuto: non accade niente"));
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
                        {[&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); }});
    Regista::verifica(riga(archivio, caso) == prima, QStringLiteral("l'annullamento ha scritto qualcosa"));

    const QDate dopo = caso.giorno.addDays(6);
    oggiE(dopo);
    regista.passo(QStringLiteral("  Sei giorni dopo: il destinatario rifiuta, secondo avviso"));
    const QString motivo = QStringLiteral("Il destinatario rifiuta l'imballo bagnato");
    const QStringList documentiPrima = documenti(cartella);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
                        {[&](QWidget* dialogo) {
                            regista.scrive(dialogo, QStringLiteral("txtMotivazione"), motivo);
                            regista.fotografa(dialogo, QStringLiteral("rifiuto"));
                            regista.preme(dialogo, Qt::Key_Return);
                        }});
    regista.fotografa(schermata, QStringLiteral("secondo-avviso"));
    const auto valori = riga(archivio, caso);
    Regista::verifica(valori[avvisi] == QStringLiteral("2") && valori[dataAvviso] == dataSql(dopo),
                      QStringLiteral("il secondo avviso della giacenza %1 non è contato").arg(caso.numero));
    Regista::verifica(valori[descrizione] &&
                          valori[descrizione]->endsWith(dataBreve(dopo) + QStringLiteral(" - ") + motivo),
                      QStringLiteral("il rifiuto non è nella descrizione"));
    regista.passo(
        QStringLiteral("    documento %1").arg(documentoNuovo(caso.chiave(), cartella, documentiPrima)));
    regista.passo(QStringLiteral("  Alt+R: ristampa"));
    produce(regista, schermata, Qt::Key_R, caso, cartella);
    Regista::verifica(riga(archivio, caso) == valori, QStringLiteral("la ristampa ha scritto qualcosa"));
}

void chiusure(Regista& regista, QWidget* schermata, Archivio& archivio, const Caso& caso,
              const QString& cartella)
{
    const QDate chiusa = caso.giorno.addDays(10);
    oggiE(chiusa);
    richiamaPerNumero(regista, schermata, caso);
    regista.passo(QStringLiteral("  Dieci giorni dopo: Alt+B, buon fine con i costi"));
    produce(regista, schermata, Qt::Key_B, caso, cartella);
    regista.fotografa(schermata, QStringLiteral("buon-fine"));
    verificaChiusura(archivio, caso, chiusa, 10);
    regista.passo(
        QStringLiteral("    in archivio: 10 giorni, importo %1").arg(*riga(archivio, caso)[importo]));

    oggiE(caso.giorno.addDays(13));
    regista.passo(QStringLiteral("  Tre giorni più tardi di nuovo Alt+B: resta la prima data"));
    produce(regista, schermata, Qt::Key_B, caso, cartella);
    verificaChiusura(archivio, caso, chiusa, 10);
    regista.passo(QStringLiteral("  Alt+V su una giacenza chiusa"));
    regista.rispondendo(
        [&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
        {regista.messaggio(
            QStringLiteral("La giacenza risulta chiusa,in data: %1.").arg(dataBreve(chiusa)))});
}

} // namespace

void raccontaGestione(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    bool uscita = false;
    const auto ascolto =
        QObject::connect(&componente, &cGiacenza::fine, &regista, [&uscita] { uscita = true; });
    const auto casi = casiDiOggi(archivio);
    componente.ConsultaGiacenza();
    QWidget* schermata = regista.finestra(QStringLiteral("frmGestGia"));
    // Becoming active puts the fields of the number back: a check box clicked before that would lose its
    // effect.
    schermata->activateWindow();
    Regista::attende([&] { return schermata->isActiveWindow(); },
                     QStringLiteral("la gestione non è diventata attiva"));
    regista.fotografa(schermata, QStringLiteral("gestione-vuota"));

    regista.passo(
        QStringLiteral("Gestione: la giacenza %1 dall'elenco del cliente, chiusa senza costi sul documento")
            .arg(casi[1].numero));
    richiamaPerCliente(regista, schermata, casi[1]);
    regista.clicca(schermata, QStringLiteral("optCostiNo"));
    produce(regista, schermata, Qt::Key_B, casi[1], cartella);
    regista.fotografa(schermata, QStringLiteral("buon-fine-senza-costi"));
    verificaChiusura(archivio, casi[1], casi[1].giorno, 0);
    regista.clicca(schermata, QStringLiteral("optCosti"));

    regista.passo(QStringLiteral("Gestione: la giacenza %1 per numero e data").arg(casi[0].numero));
    richiamaPerNumero(regista, schermata, casi[0]);
    regista.fotografa(schermata, QStringLiteral("gestione-per-numero"));
    secondoAvviso(regista, schermata, archivio, casi[0], cartella);
    chiusure(regista, schermata, archivio, casi[0], cartella);

    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
    Regista::attende([&] { return uscita; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    QObject::disconnect(ascolto);
    qunsetenv(variabileOggi);
}
