#include "host/immagini/capitoli.h"

#include <QModelIndex>

using namespace Qt::StringLiterals;

namespace {

void scriveCliente(Album& album, QWidget* schermata, const QString& cliente)
{
    album.regista.scrive(schermata, u"txtCodiceCli"_s, cliente);
    album.regista.preme(Regista::controllo(schermata, u"txtCodiceCli"_s), Qt::Key_Tab);
}

void scriveLdv(Album& album, QWidget* schermata, const Spedizione& s)
{
    album.regista.scrive(schermata, u"txtFiliale"_s, s.filiale);
    album.regista.scrive(schermata, u"txtLDV"_s, s.numero);
    album.regista.scrive(schermata, u"txtDataLdv"_s, QString(s.data).remove(u'/'));
}

void cercaCliente(Album& album, QWidget* schermata, const QString& nome)
{
    Regista& regista = album.regista;
    regista.rispondendo([&] { regista.clicca(schermata, u"cmdCercaCliente"_s); }, {[&](QWidget* dialogo) {
                            regista.clicca(dialogo, u"optRagSoc"_s);
                            regista.scrive(dialogo, u"txtCerca"_s, nome.left(1));
                            regista.preme(Regista::controllo(dialogo, u"txtCerca"_s), Qt::Key_Return);
                            QWidget* elenco = Regista::controllo(dialogo, u"lstCerca"_s);
                            elenco->setFocus();
                            regista.scorre(elenco,
                                           [&](const QModelIndex& riga) { return riga.data() == nome; });
                            album.scatta(dialogo, u"ricerca-clienti"_s);
                            regista.preme(elenco, Qt::Key_Return);
                        }});
}

/// Opens a list by F9 in a field, pictures it and leaves it without a choice.
void elenco(Album& album, QWidget* schermata, const QString& campo, const QString& nome)
{
    Regista& regista = album.regista;
    regista.rispondendo(
        [&] { regista.preme(Regista::controllo(schermata, campo), Qt::Key_F9); },
        {album.dialogo(nome, [&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); })});
}

void perRicerca(Album& album, const Spedizione& s, const QString& nome)
{
    Regista& regista = album.regista;
    album.componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGiacenza"_s);
    cercaCliente(album, schermata, nome);
    regista.scrive(schermata, u"txtFiliale"_s, s.filiale);
    regista.scrive(schermata, u"txtLDV"_s, s.numero.left(1));
    regista.scrive(schermata, u"txtDataLdv"_s, QString(s.data).remove(u'/'));
    elenco(album, schermata, u"txtDataLdv"_s, u"elenco-spedizioni"_s);
    album.esce(schermata);
}

void registra(Album& album, const Spedizione& s)
{
    Regista& regista = album.regista;
    album.componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGiacenza"_s);
    album.scatta(schermata, u"registrazione-vuota"_s);
    regista.rispondendo(
        [&] { regista.clicca(schermata, u"cmdData"_s); },
        {album.dialogo(u"calendario"_s, [&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); })});
    scriveCliente(album, schermata, s.cliente);
    scriveLdv(album, schermata, s);
    regista.preme(Regista::controllo(schermata, u"txtDataLdv"_s), Qt::Key_Tab);
    Regista::verifica(Regista::testo(schermata, u"txtDestinatario"_s) == s.destinatario,
                      u"la LDV %1 non è stata trovata"_s.arg(s.numero));
    album.scatta(schermata, u"registrazione-trovata"_s);
    regista.rispondendo(
        [&] { regista.preme(Regista::controllo(schermata, u"txtFilialeGia"_s), Qt::Key_F12); },
        {album.dialogo(u"elenco-filiali"_s,
                       [&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); })});
    regista.scrive(schermata, u"txtFilialeGia"_s, s.filiale);
    regista.scrive(schermata, u"txtDescGia"_s, u"Destinatario assente, negozio chiuso"_s);
    album.scatta(schermata, u"registrazione-compilata"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {album.messaggio(u"messaggio-salvata"_s)});
    album.scatta(schermata, u"registrazione-salvata"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {album.messaggio(u"messaggio-esistente"_s)});
    album.esce(schermata);
}

/// A waybill of another customer, with the hints beside the fields.
void diUnAltro(Album& album, const Spedizione& s, const QString& cliente)
{
    Regista& regista = album.regista;
    album.componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGiacenza"_s);
    scriveCliente(album, schermata, cliente);
    scriveLdv(album, schermata, s);
    regista.preme(Regista::controllo(schermata, u"txtDataLdv"_s), Qt::Key_Tab);
    regista.scrive(schermata, u"txtFilialeGia"_s, u"ZZ"_s);
    regista.preme(Regista::controllo(schermata, u"txtFilialeGia"_s), Qt::Key_Tab);
    album.scatta(schermata, u"registrazione-avvertenze"_s);
    album.esce(schermata);
}

} // namespace

void fotografaRegistrazione(Album& album)
{
    const auto libere = spedizioniLibere(album.archivio);
    registra(album, libere[0]);
    const auto altra = [&](std::size_t quale) -> const Spedizione& {
        while (libere[quale].cliente == libere[0].cliente)
            ++quale;
        return libere[quale];
    };
    diUnAltro(album, altra(1), libere[0].cliente);
    perRicerca(
        album, altra(1),
        album.archivio.valore(u"select RagioneSociale from clien where Codice=%1"_s.arg(altra(1).cliente)));
}
