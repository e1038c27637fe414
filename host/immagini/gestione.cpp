#include "host/immagini/capitoli.h"

#include "database/valori.h"

#include <QDate>
#include <QFile>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

struct Caso
{
    QString numero;
    QDate giorno;
    QString cliente;
};

/// The latest open case that was noticed once and that the screen can bring up.
Caso casoAperto(Archivio& archivio)
{
    const auto riga = archivio.riga(
        u"select GINRGI, GIDTGI, lecodi from giace00f "
        "inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "inner join filiali on lefili=filiali.codice inner join codicizona on lelin1=codicizona.Codice "
        "inner join forni on forni.Codice=lecdve where GIDTBF is null and GINRAV='1' and GIDTGI<'%1' "
        "and GIDES1 is not null order by GIDTGI desc, cast(GINRGI as decimal) desc limit 1"_s.arg(
            qEnvironmentVariable("GIACENZA_OGGI")));
    Regista::verifica(riga.size() == 3, u"manca una giacenza da gestire"_s);
    return {*riga[0], *leggiData(*riga[1]), *riga[2]};
}

void richiama(Album& album, QWidget* schermata, const Caso& caso)
{
    Regista& regista = album.regista;
    regista.scrive(schermata, u"txtNGiace"_s, caso.numero);
    regista.preme(Regista::controllo(schermata, u"txtNGiace"_s), Qt::Key_Return);
    regista.scrive(schermata, u"txtDataGiace"_s, caso.giorno.toString(u"ddMMyyyy"_s));
    regista.preme(Regista::controllo(schermata, u"txtDataGiace"_s), Qt::Key_Return);
    Regista::verifica(Regista::testo(schermata, u"lblNrGia"_s) == caso.numero,
                      u"la giacenza %1 non è stata richiamata"_s.arg(caso.numero));
}

void perCliente(Album& album, QWidget* schermata, const Caso& caso)
{
    Regista& regista = album.regista;
    regista.clicca(schermata, u"chkRicerca"_s);
    regista.scrive(schermata, u"txtCodiceCli"_s, caso.cliente);
    regista.preme(Regista::controllo(schermata, u"txtCodiceCli"_s), Qt::Key_Tab);
    album.scatta(schermata, u"gestione-cliente"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_H, Qt::AltModifier); },
                        {album.dialogo(u"elenco-giacenze"_s,
                                       [&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); })});
    regista.clicca(schermata, u"chkRicerca"_s);
}

/// The print module's mode of the settings file.
void modalita(const Album& album, const QString& nome)
{
    QFile file(album.cartella + u"/giacenza.ini"_s);
    Regista::verifica(file.open(QIODevice::ReadWrite), file.errorString());
    const QString testo = QString::fromUtf8(file.readAll()).remove(u"Modalita=anteprima\n"_s);
    file.resize(0);
    file.seek(0);
    file.write(
        QString(testo).replace(u"[DLLStampe]\n"_s, u"[DLLStampe]\nModalita=%1\n"_s.arg(nome)).toUtf8());
}

void chiude(Album& album, QWidget* schermata)
{
    Regista& regista = album.regista;
    modalita(album, u"anteprima"_s);
    regista.rispondendo(
        [&] { regista.preme(schermata, Qt::Key_R, Qt::AltModifier); },
        {album.dialogo(u"anteprima"_s, [&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); })});
    modalita(album, u"pdf"_s);
    regista.preme(schermata, Qt::Key_B, Qt::AltModifier);
    album.scatta(schermata, u"gestione-chiusa"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
                        {album.messaggio(u"messaggio-chiusa"_s)});
}

} // namespace

void fotografaGestione(Album& album)
{
    Regista& regista = album.regista;
    const Caso caso = casoAperto(album.archivio);
    album.componente.ConsultaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGestGia"_s);
    schermata->activateWindow();
    Regista::attende([&] { return schermata->isActiveWindow(); }, u"la gestione non è diventata attiva"_s);
    album.scatta(schermata, u"gestione-vuota"_s);
    perCliente(album, schermata, caso);
    richiama(album, schermata, caso);
    album.scatta(schermata, u"gestione-aperta"_s);
    regista.rispondendo(
        [&] { regista.preme(schermata, Qt::Key_V, Qt::AltModifier); }, {[&](QWidget* dialogo) {
            regista.scrive(dialogo, u"txtMotivazione"_s, u"Il destinatario rifiuta i colli bagnati"_s);
            album.scatta(dialogo, u"rifiuto"_s);
            regista.preme(dialogo, Qt::Key_Return);
        }});
    album.scatta(schermata, u"gestione-avviso"_s);
    chiude(album, schermata);
    album.esce(schermata);
}
