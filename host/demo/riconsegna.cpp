#include "riconsegna.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QModelIndex>

using namespace giacenza;

namespace {

/// A held shipment and the waybill that is held.
struct Caso
{
    QString numero;
    QString anno;
    QString filiale;
    QString ldv;
    QString dataLdv; ///< dd/mm/yyyy
    QString cliente;
    QString chiusa; ///< dd/mm/yyyy, empty while open
};

/// The latest held shipment of this year to which only its own waybill is linked, among the open or the
/// closed ones.
Caso caso(Archivio& archivio, bool chiuso)
{
    const auto riga = archivio.riga(
        QStringLiteral(
            "select GINRGI, GIANGI, lefili, lenrlv, ledtlv, lecodi, GIDTBF from giace00f "
            "inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
            "inner join filiali on lefili=filiali.codice inner join codicizona on "
            "lelin1=codicizona.Codice inner join forni on forni.Codice=lecdve "
            "inner join clien on clien.Codice=lecodi "
            "where GIANGI=%1 and GIDTBF is %2 null and "
            "(select count(*) from letve00f legata where legata.LERFGI=GINRGI and legata.LEANGI=GIANGI)=1 "
            "order by cast(GINRGI as decimal) desc limit 1")
            .arg(QDate::currentDate().year())
            .arg(chiuso ? QStringLiteral("not") : QString()));
    Regista::verifica(riga.size() == 7, QStringLiteral("nell'archivio manca una giacenza da riconsegnare"));
    return {*riga[0],
            *riga[1],
            *riga[2],
            *riga[3],
            dataBreve(*leggiData(*riga[4])),
            *riga[5],
            riga[6] ? dataBreve(*leggiData(*riga[6])) : QString()};
}

int legate(Archivio& archivio, const Caso& caso)
{
    return archivio
        .valore(QStringLiteral("select count(*) from letve00f where LERFGI='%1' and LEANGI=%2")
                    .arg(caso.numero, caso.anno))
        .toInt();
}

QWidget* apri(Regista& regista, cGiacenza& componente, cGiacenza::Reso tipo, const QString& titolo)
{
    componente.setTipoReso(tipo);
    componente.MostraRiconsegna();
    QWidget* schermata = regista.finestra(QStringLiteral("frmRiconsegna"));
    Regista::verifica(schermata->windowTitle() == titolo,
                      QStringLiteral("la schermata si intitola \"%1\"").arg(schermata->windowTitle()));
    return schermata;
}

void esce(Regista& regista, cGiacenza& componente, QWidget* schermata)
{
    bool uscita = false;
    const auto ascolto =
        QObject::connect(&componente, &cGiacenza::fine, &regista, [&uscita] { uscita = true; });
    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
    Regista::attende([&] { return uscita; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    QObject::disconnect(ascolto);
}

void scriveCliente(Regista& regista, QWidget* schermata, const Caso& caso)
{
    regista.scrive(schermata, QStringLiteral("txtCodiceCli"), caso.cliente);
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtCodiceCli")), Qt::Key_Tab);
}

void verificaMostrata(QWidget* schermata, const Caso& caso)
{
    Regista::verifica(Regista::testo(schermata, QStringLiteral("lblNrGia")) == caso.numero,
                      QStringLiteral("la giacenza %1 non è sullo schermo").arg(caso.numero));
}

/// By the list of the customer's held shipments.
void cercaNellElenco(Regista& regista, QWidget* schermata, const Caso& caso)
{
    scriveCliente(regista, schermata, caso);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_Z, Qt::AltModifier); },
                        {[&](QWidget* dialogo) {
                            QWidget* griglia = Regista::controllo(dialogo, QStringLiteral("Griglia"));
                            griglia->setFocus();
                            regista.scorre(griglia, [&](const QModelIndex& riga) {
                                return riga.siblingAtColumn(2).data() == caso.numero;
                            });
                            regista.fotografa(dialogo, QStringLiteral("giacenze-da-riconsegnare"));
                            regista.preme(griglia, Qt::Key_Return);
                        }});
    verificaMostrata(schermata, caso);
}

/// By number and date of the waybill.
void cercaPerNumero(Regista& regista, QWidget* schermata, const Caso& caso)
{
    scriveCliente(regista, schermata, caso);
    regista.scrive(schermata, QStringLiteral("txtLDV"), caso.ldv);
    regista.scrive(schermata, QStringLiteral("txtDataLdv"), QString(caso.dataLdv).remove(QLatin1Char('/')));
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtDataLdv")), Qt::Key_Tab);
    verificaMostrata(schermata, caso);
}

/// Confirms the freight terms as they are preset.
Regista::Risposta porto(Regista& regista)
{
    return [&regista](QWidget* dialogo) {
        Regista::verifica(dialogo->objectName() == QStringLiteral("frmPorto"),
                          QStringLiteral("al posto del porto si è aperta %1").arg(dialogo->objectName()));
        regista.fotografa(dialogo, QStringLiteral("porto"));
        regista.clicca(dialogo, QStringLiteral("cmdEsci"));
    };
}

/// Answers a question by its button.
Regista::Risposta domanda(Regista& regista, const QString& testo, const QString& bottone)
{
    return [&regista, testo, bottone](QWidget* dialogo) {
        Regista::verifica(dialogo->property("text").toString() == testo,
                          QStringLiteral("domanda inattesa: %1").arg(dialogo->property("text").toString()));
        regista.fotografa(dialogo, QStringLiteral("domanda"));
        regista.passo(QStringLiteral("    domanda: %1 %2").arg(testo, bottone));
        const auto bottoni = dialogo->findChildren<QAbstractButton*>();
        for (QAbstractButton* candidato : bottoni)
            if (QString(candidato->text()).remove(QLatin1Char('&')) == bottone)
                return candidato->click();
        throw Imprevisto(QStringLiteral("la domanda non ha il bottone %1").arg(bottone));
    };
}

void preme(Regista& regista, QWidget* schermata, std::deque<Regista::Risposta> risposte)
{
    regista.passo(QStringLiteral("  Alt+V: emetti nuova LDV"));
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); }, std::move(risposte));
}

/// One waybill more is linked to the case, it is a re-delivery of today's, and its print is there.
void verificaEmessa(Regista& regista, Archivio& archivio, const Caso& caso, int prima,
                    const QString& destinatario, const QString& cartella)
{
    Regista::verifica(legate(archivio, caso) == prima + 1,
                      QStringLiteral("alla giacenza %1 non si è aggiunta una LDV").arg(caso.numero));
    const auto riga = archivio.riga(
        QStringLiteral(
            "select lefili, lenrlv, leanlv, lerico, ledtlv, ledest, lenote from letve00f where LERFGI='%1' "
            "and LEANGI=%2 order by leanlv desc, cast(lenrlv as unsigned) desc limit 1")
            .arg(caso.numero, caso.anno));
    Regista::verifica(riga[0] == caso.filiale && riga[3] == QStringLiteral("R") &&
                          riga[4] == dataSql(QDate::currentDate()) && riga[5] == destinatario,
                      QStringLiteral("la LDV %1 non è quella attesa").arg(*riga[1]));
    Regista::verifica(riga[6] && riga[6]->contains(QStringLiteral("LDV originale ") + caso.ldv),
                      QStringLiteral("la LDV %1 non nomina l'originale").arg(*riga[1]));
    const QString nome = QStringLiteral("LDV_%1_%2_%3.pdf").arg(*riga[0], *riga[1], *riga[2]);
    const QString stampata =
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/imp")).filePath(nome);
    const QString copia = QDir(cartella).filePath(nome);
    QFile::remove(copia);
    // The print folder may still hold the print of an earlier demonstration: the newest one is ours.
    QString ultima = stampata;
    for (int i = 2;
         QFile::exists(QString(stampata).replace(QStringLiteral(".pdf"), QStringLiteral("-%1.pdf").arg(i)));
         ++i)
        ultima = QString(stampata).replace(QStringLiteral(".pdf"), QStringLiteral("-%1.pdf").arg(i));
    Regista::verifica(QFile::copy(ultima, copia), QStringLiteral("manca la stampa %1").arg(ultima));
    regista.passo(QStringLiteral("    in archivio la LDV %1/%2 per %3, stampata: %4")
                      .arg(*riga[1], *riga[2], destinatario, nome));
}

QString destinatarioDi(Archivio& archivio, const Caso& caso)
{
    return archivio.valore(
        QStringLiteral("select ledest from letve00f where lefili='%1' and lenrlv='%2' and leanlv="
                       "(select GIANLV from giace00f where GINRGI='%3' and GIANGI=%4)")
            .arg(caso.filiale, caso.ldv, caso.numero, caso.anno));
}

void primaESeconda(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    const Caso scelto = caso(archivio, false);
    const QString lavoro = QStringLiteral("Riconsegna a Destinatario");
    const QString destinatario = destinatarioDi(archivio, scelto);
    regista.passo(QStringLiteral("Riconsegna della giacenza %1 del %2").arg(scelto.numero, scelto.anno));
    QWidget* schermata = apri(regista, componente, cGiacenza::ResoDestinatario, lavoro);
    regista.fotografa(schermata, QStringLiteral("riconsegna-vuota"));
    cercaNellElenco(regista, schermata, scelto);
    regista.fotografa(schermata, QStringLiteral("riconsegna-trovata"));
    preme(regista, schermata, {porto(regista)});
    verificaEmessa(regista, archivio, scelto, 1, destinatario, cartella);
    regista.fotografa(schermata, QStringLiteral("riconsegna-emessa"));
    Regista::verifica(!Regista::controllo(schermata, QStringLiteral("cmdRiconsegna"))->isEnabled(),
                      QStringLiteral("il bottone è rimasto acceso"));
    esce(regista, componente, schermata);

    regista.passo(QStringLiteral("Una seconda riconsegna della stessa giacenza"));
    const QString conferma = QStringLiteral("Sono presenti n.1 riconsegne emettere una nuova riconsegna?");
    schermata = apri(regista, componente, cGiacenza::ResoDestinatario, lavoro);
    cercaPerNumero(regista, schermata, scelto);
    preme(regista, schermata, {porto(regista), domanda(regista, conferma, QStringLiteral("No"))});
    Regista::verifica(legate(archivio, scelto) == 2 &&
                          Regista::controllo(schermata, QStringLiteral("cmdRiconsegna"))->isEnabled(),
                      QStringLiteral("il No non ha fermato l'emissione"));
    preme(regista, schermata, {porto(regista), domanda(regista, conferma, QStringLiteral("Sì"))});
    verificaEmessa(regista, archivio, scelto, 2, destinatario, cartella);
    esce(regista, componente, schermata);
}

void chiusa(Regista& regista, cGiacenza& componente, Archivio& archivio)
{
    const Caso scelto = caso(archivio, true);
    regista.passo(QStringLiteral("La giacenza %1 è chiusa: non si riconsegna").arg(scelto.numero));
    QWidget* schermata =
        apri(regista, componente, cGiacenza::ResoDestinatario, QStringLiteral("Riconsegna a Destinatario"));
    cercaPerNumero(regista, schermata, scelto);
    preme(regista, schermata,
          {porto(regista),
           regista.messaggio(QStringLiteral("la Giacenza è stata chiusa con avviso di buon fine in data: %1.")
                                 .arg(scelto.chiusa))});
    Regista::verifica(legate(archivio, scelto) == 1,
                      QStringLiteral("la giacenza chiusa è stata riconsegnata"));
    esce(regista, componente, schermata);
}

void reso(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    const Caso scelto = caso(archivio, false);
    regista.passo(QStringLiteral("Reso al mittente della giacenza %1").arg(scelto.numero));
    QWidget* schermata =
        apri(regista, componente, cGiacenza::ResoMittente, QStringLiteral("Reso a Mittente"));
    cercaPerNumero(regista, schermata, scelto);
    preme(regista, schermata, {porto(regista)});
    verificaEmessa(
        regista, archivio, scelto, 1,
        archivio.valore(
            QStringLiteral("select RagioneSociale from clien where Codice=%1").arg(scelto.cliente)),
        cartella);
    regista.fotografa(schermata, QStringLiteral("reso-emesso"));
    esce(regista, componente, schermata);
}

} // namespace

void raccontaRiconsegna(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    primaESeconda(regista, componente, archivio, cartella);
    chiusa(regista, componente, archivio);
    reso(regista, componente, archivio, cartella);
}
