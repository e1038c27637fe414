#include "riconsegna.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QModelIndex>

using namespace Qt::StringLiterals;

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
        u"select GINRGI, GIANGI, lefili, lenrlv, ledtlv, lecodi, GIDTBF from giace00f "
        "inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "inner join filiali on lefili=filiali.codice inner join codicizona on "
        "lelin1=codicizona.Codice inner join forni on forni.Codice=lecdve "
        "inner join clien on clien.Codice=lecodi "
        "where GIANGI=%1 and GIDTBF is %2 null and "
        "(select count(*) from letve00f legata where legata.LERFGI=GINRGI and legata.LEANGI=GIANGI)=1 "
        "order by cast(GINRGI as decimal) desc limit 1"_s.arg(QDate::currentDate().year())
            .arg(chiuso ? u"not"_s : QString()));
    Regista::verifica(riga.size() == 7, u"nell'archivio manca una giacenza da riconsegnare"_s);
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
        .valore(
            u"select count(*) from letve00f where LERFGI='%1' and LEANGI=%2"_s.arg(caso.numero, caso.anno))
        .toInt();
}

QWidget* apri(Regista& regista, cGiacenza& componente, cGiacenza::Reso tipo, const QString& titolo)
{
    componente.setTipoReso(tipo);
    componente.MostraRiconsegna();
    QWidget* schermata = regista.finestra(u"frmRiconsegna"_s);
    Regista::verifica(schermata->windowTitle() == titolo,
                      u"la schermata si intitola \"%1\""_s.arg(schermata->windowTitle()));
    return schermata;
}

void esce(Regista& regista, cGiacenza& componente, QWidget* schermata)
{
    bool uscita = false;
    const auto ascolto =
        QObject::connect(&componente, &cGiacenza::fine, &regista, [&uscita] { uscita = true; });
    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
    Regista::attende([&] { return uscita; }, u"la chiusura della schermata non è stata annunciata"_s);
    QObject::disconnect(ascolto);
}

void scriveCliente(Regista& regista, QWidget* schermata, const Caso& caso)
{
    regista.scrive(schermata, u"txtCodiceCli"_s, caso.cliente);
    regista.preme(Regista::controllo(schermata, u"txtCodiceCli"_s), Qt::Key_Tab);
}

void verificaMostrata(QWidget* schermata, const Caso& caso)
{
    Regista::verifica(Regista::testo(schermata, u"lblNrGia"_s) == caso.numero,
                      u"la giacenza %1 non è sullo schermo"_s.arg(caso.numero));
}

/// By the list of the customer's held shipments.
void cercaNellElenco(Regista& regista, QWidget* schermata, const Caso& caso)
{
    scriveCliente(regista, schermata, caso);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_Z, Qt::AltModifier); },
                        {[&](QWidget* dialogo) {
                            QWidget* griglia = Regista::controllo(dialogo, u"Griglia"_s);
                            griglia->setFocus();
                            regista.scorre(griglia, [&](const QModelIndex& riga) {
                                return riga.siblingAtColumn(2).data() == caso.numero;
                            });
                            regista.fotografa(dialogo, u"giacenze-da-riconsegnare"_s);
                            regista.preme(griglia, Qt::Key_Return);
                        }});
    verificaMostrata(schermata, caso);
}

/// By number and date of the waybill.
void cercaPerNumero(Regista& regista, QWidget* schermata, const Caso& caso)
{
    scriveCliente(regista, schermata, caso);
    regista.scrive(schermata, u"txtLDV"_s, caso.ldv);
    regista.scrive(schermata, u"txtDataLdv"_s, QString(caso.dataLdv).remove(u'/'));
    regista.preme(Regista::controllo(schermata, u"txtDataLdv"_s), Qt::Key_Tab);
    verificaMostrata(schermata, caso);
}

/// Confirms the freight terms as they are preset.
Regista::Risposta porto(Regista& regista)
{
    return [&regista](QWidget* dialogo) {
        Regista::verifica(dialogo->objectName() == u"frmPorto"_s,
                          u"al posto del porto si è aperta %1"_s.arg(dialogo->objectName()));
        regista.fotografa(dialogo, u"porto"_s);
        regista.clicca(dialogo, u"cmdEsci"_s);
    };
}

/// Answers a question by its button.
Regista::Risposta domanda(Regista& regista, const QString& testo, const QString& bottone)
{
    return [&regista, testo, bottone](QWidget* dialogo) {
        Regista::verifica(dialogo->property("text").toString() == testo,
                          u"domanda inattesa: %1"_s.arg(dialogo->property("text").toString()));
        regista.fotografa(dialogo, u"domanda"_s);
        regista.passo(u"    domanda: %1 %2"_s.arg(testo, bottone));
        const auto bottoni = dialogo->findChildren<QAbstractButton*>();
        for (QAbstractButton* candidato : bottoni)
            if (QString(candidato->text()).remove(u'&') == bottone)
                return candidato->click();
        throw Imprevisto(u"la domanda non ha il bottone %1"_s.arg(bottone));
    };
}

void preme(Regista& regista, QWidget* schermata, std::deque<Regista::Risposta> risposte)
{
    regista.passo(u"  Alt+V: emetti nuova LDV"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); }, std::move(risposte));
}

/// One waybill more is linked to the case, it is a re-delivery of today's, and its print is there.
void verificaEmessa(Regista& regista, Archivio& archivio, const Caso& caso, int prima,
                    const QString& destinatario, const QString& cartella)
{
    Regista::verifica(legate(archivio, caso) == prima + 1,
                      u"alla giacenza %1 non si è aggiunta una LDV"_s.arg(caso.numero));
    const auto riga = archivio.riga(
        u"select lefili, lenrlv, leanlv, lerico, ledtlv, ledest, lenote from letve00f where LERFGI='%1' "
        "and LEANGI=%2 order by leanlv desc, cast(lenrlv as unsigned) desc limit 1"_s.arg(caso.numero,
                                                                                          caso.anno));
    Regista::verifica(riga[0] == caso.filiale && riga[3] == u"R"_s &&
                          riga[4] == dataSql(QDate::currentDate()) && riga[5] == destinatario,
                      u"la LDV %1 non è quella attesa"_s.arg(*riga[1]));
    Regista::verifica(riga[6] && riga[6]->contains(u"LDV originale "_s + caso.ldv),
                      u"la LDV %1 non nomina l'originale"_s.arg(*riga[1]));
    const QString nome = u"LDV_%1_%2_%3.pdf"_s.arg(*riga[0], *riga[1], *riga[2]);
    const QString stampata = QDir(QCoreApplication::applicationDirPath() + u"/imp"_s).filePath(nome);
    const QString copia = QDir(cartella).filePath(nome);
    QFile::remove(copia);
    // The print folder may still hold the print of an earlier demonstration: the newest one is ours.
    QString ultima = stampata;
    for (int i = 2; QFile::exists(QString(stampata).replace(u".pdf"_s, u"-%1.pdf"_s.arg(i))); ++i)
        ultima = QString(stampata).replace(u".pdf"_s, u"-%1.pdf"_s.arg(i));
    Regista::verifica(QFile::copy(ultima, copia), u"manca la stampa %1"_s.arg(ultima));
    regista.passo(
        u"    in archivio la LDV %1/%2 per %3, stampata: %4"_s.arg(*riga[1], *riga[2], destinatario, nome));
}

QString destinatarioDi(Archivio& archivio, const Caso& caso)
{
    return archivio.valore(u"select ledest from letve00f where lefili='%1' and lenrlv='%2' and leanlv="
                           "(select GIANLV from giace00f where GINRGI='%3' and GIANGI=%4)"_s.arg(
                               caso.filiale, caso.ldv, caso.numero, caso.anno));
}

void primaESeconda(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    const Caso scelto = caso(archivio, false);
    const QString lavoro = u"Riconsegna a Destinatario"_s;
    const QString destinatario = destinatarioDi(archivio, scelto);
    regista.passo(u"Riconsegna della giacenza %1 del %2"_s.arg(scelto.numero, scelto.anno));
    QWidget* schermata = apri(regista, componente, cGiacenza::ResoDestinatario, lavoro);
    regista.fotografa(schermata, u"riconsegna-vuota"_s);
    cercaNellElenco(regista, schermata, scelto);
    regista.fotografa(schermata, u"riconsegna-trovata"_s);
    preme(regista, schermata, {porto(regista)});
    verificaEmessa(regista, archivio, scelto, 1, destinatario, cartella);
    regista.fotografa(schermata, u"riconsegna-emessa"_s);
    Regista::verifica(!Regista::controllo(schermata, u"cmdRiconsegna"_s)->isEnabled(),
                      u"il bottone è rimasto acceso"_s);
    esce(regista, componente, schermata);

    regista.passo(u"Una seconda riconsegna della stessa giacenza"_s);
    const QString conferma = u"Sono presenti n.1 riconsegne emettere una nuova riconsegna?"_s;
    schermata = apri(regista, componente, cGiacenza::ResoDestinatario, lavoro);
    cercaPerNumero(regista, schermata, scelto);
    preme(regista, schermata, {porto(regista), domanda(regista, conferma, u"No"_s)});
    Regista::verifica(legate(archivio, scelto) == 2 &&
                          Regista::controllo(schermata, u"cmdRiconsegna"_s)->isEnabled(),
                      u"il No non ha fermato l'emissione"_s);
    preme(regista, schermata, {porto(regista), domanda(regista, conferma, u"Sì"_s)});
    verificaEmessa(regista, archivio, scelto, 2, destinatario, cartella);
    esce(regista, componente, schermata);
}

void chiusa(Regista& regista, cGiacenza& componente, Archivio& archivio)
{
    const Caso scelto = caso(archivio, true);
    regista.passo(u"La giacenza %1 è chiusa: non si riconsegna"_s.arg(scelto.numero));
    QWidget* schermata =
        apri(regista, componente, cGiacenza::ResoDestinatario, u"Riconsegna a Destinatario"_s);
    cercaPerNumero(regista, schermata, scelto);
    preme(regista, schermata,
          {porto(regista),
           regista.messaggio(
               u"la Giacenza è stata chiusa con avviso di buon fine in data: %1."_s.arg(scelto.chiusa))});
    Regista::verifica(legate(archivio, scelto) == 1, u"la giacenza chiusa è stata riconsegnata"_s);
    esce(regista, componente, schermata);
}

void reso(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    const Caso scelto = caso(archivio, false);
    regista.passo(u"Reso al mittente della giacenza %1"_s.arg(scelto.numero));
    QWidget* schermata = apri(regista, componente, cGiacenza::ResoMittente, u"Reso a Mittente"_s);
    cercaPerNumero(regista, schermata, scelto);
    preme(regista, schermata, {porto(regista)});
    verificaEmessa(regista, archivio, scelto, 1,
                   archivio.valore(u"select RagioneSociale from clien where Codice=%1"_s.arg(scelto.cliente)),
                   cartella);
    regista.fotografa(schermata, u"reso-emesso"_s);
    esce(regista, componente, schermata);
}

} // namespace

void raccontaRiconsegna(Regista& regista, cGiacenza& componente, Archivio& archivio, const QString& cartella)
{
    primaESeconda(regista, componente, archivio, cartella);
    chiusa(regista, componente, archivio);
    reso(regista, componente, archivio, cartella);
}
