#include "registrazione.h"

#include "salvata.h"

#include <QModelIndex>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

void digitata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
              const QString& cartella)
{
    regista.passo(u"Registrazione di una giacenza dalla LDV %1 del %2"_s.arg(s.numero, s.data));
    componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGiacenza"_s);
    regista.fotografa(schermata, u"registrazione-vuota"_s);

    regista.scrive(schermata, u"txtCodiceCli"_s, s.cliente);
    regista.preme(Regista::controllo(schermata, u"txtCodiceCli"_s), Qt::Key_Tab);
    regista.passo(u"  Cliente %1: %2"_s.arg(s.cliente, Regista::testo(schermata, u"barCliente"_s)));
    regista.scrive(schermata, u"txtFiliale"_s, s.filiale);
    regista.scrive(schermata, u"txtLDV"_s, s.numero);
    regista.scrive(schermata, u"txtDataLdv"_s, QString(s.data).remove(u'/'));
    regista.preme(Regista::controllo(schermata, u"txtDataLdv"_s), Qt::Key_Tab);
    Regista::verifica(Regista::testo(schermata, u"txtDestinatario"_s) == s.destinatario,
                      u"la LDV %1 non è stata trovata"_s.arg(s.numero));
    regista.fotografa(schermata, u"ldv-trovata"_s);
    regista.passo(u"  Trovata: destinatario %1"_s.arg(s.destinatario));

    regista.scrive(schermata, u"txtFilialeGia"_s, s.filiale);
    regista.scrive(schermata, u"txtDescGia"_s, u"Destinatario assente, negozio chiuso"_s);
    regista.fotografa(schermata, u"compilata"_s);
    salvaEVerifica(regista, archivio, schermata, s, cartella);

    regista.passo(u"  Ancora Alt+S: la spedizione è già in giacenza"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {regista.messaggio(u"Giacenza esistente impossibile inserirla in database."_s)});
    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
}

void consegnata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
                const QString& cartella)
{
    regista.passo(u"Registrazione dalla LDV %1 consegnata dal programma del deposito"_s.arg(s.numero));
    componente.NuovaGiacenzaEXT(s.numero, s.data, s.filiale, s.cliente);
    QWidget* schermata = regista.finestra(u"frmGiacenza"_s);
    Regista::attende([&] { return Regista::testo(schermata, u"txtDestinatario"_s) == s.destinatario; },
                     u"la LDV %1 non è stata trovata"_s.arg(s.numero));
    regista.scrive(schermata, u"txtDescGia"_s, u"Indirizzo sconosciuto"_s);
    regista.fotografa(schermata, u"consegnata"_s);
    salvaEVerifica(regista, archivio, schermata, s, cartella);
    regista.clicca(schermata, u"cmdEsci"_s);
}

void cercata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
             const QString& cartella)
{
    const QString nome =
        archivio.valore(u"select RagioneSociale from clien where Codice=%1"_s.arg(s.cliente));
    regista.passo(u"Registrazione cercando il cliente per nome e la LDV nell'elenco"_s);
    componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(u"frmGiacenza"_s);
    regista.rispondendo([&] { regista.clicca(schermata, u"cmdCercaCliente"_s); }, {[&](QWidget* dialogo) {
                            regista.clicca(dialogo, u"optRagSoc"_s);
                            regista.scrive(dialogo, u"txtCerca"_s, nome.section(u' ', 0, 0));
                            regista.preme(Regista::controllo(dialogo, u"txtCerca"_s), Qt::Key_Return);
                            QWidget* elenco = Regista::controllo(dialogo, u"lstCerca"_s);
                            elenco->setFocus();
                            regista.scorre(elenco,
                                           [&](const QModelIndex& riga) { return riga.data() == nome; });
                            regista.fotografa(dialogo, u"ricerca-cliente"_s);
                            regista.preme(elenco, Qt::Key_Return);
                        }});
    Regista::verifica(Regista::testo(schermata, u"txtCodiceCli"_s) == s.cliente,
                      u"il cliente %1 non è stato preso"_s.arg(nome));
    regista.passo(u"  Cliente %1: %2"_s.arg(s.cliente, nome));

    regista.scrive(schermata, u"txtFiliale"_s, s.filiale);
    regista.scrive(schermata, u"txtLDV"_s, s.numero.left(1));
    regista.scrive(schermata, u"txtDataLdv"_s, QString(s.data).remove(u'/'));
    regista.rispondendo([&] { regista.preme(Regista::controllo(schermata, u"txtDataLdv"_s), Qt::Key_F9); },
                        {[&](QWidget* dialogo) {
                            QWidget* griglia = Regista::controllo(dialogo, u"Griglia"_s);
                            griglia->setFocus();
                            regista.scorre(griglia, [&](const QModelIndex& riga) {
                                return riga.siblingAtColumn(0).data() == s.numero &&
                                       riga.siblingAtColumn(1).data() == s.data;
                            });
                            regista.fotografa(dialogo, u"ricerca-ldv"_s);
                            regista.preme(griglia, Qt::Key_Return);
                        }});
    Regista::verifica(Regista::testo(schermata, u"txtDestinatario"_s) == s.destinatario,
                      u"la LDV %1 non è stata presa dall'elenco"_s.arg(s.numero));
    regista.passo(u"  Scelta la LDV %1 del %2"_s.arg(s.numero, s.data));
    regista.scrive(schermata, u"txtDescGia"_s, u"Merce rifiutata"_s);
    salvaEVerifica(regista, archivio, schermata, s, cartella);
    regista.clicca(schermata, u"cmdEsci"_s);
}

} // namespace

void raccontaRegistrazione(Regista& regista, cGiacenza& componente, Archivio& archivio,
                           const QString& cartella)
{
    int chiusure = 0;
    QObject::connect(&componente, &cGiacenza::fine, &regista, [&chiusure] { ++chiusure; });
    const auto libere = spedizioniLibere(archivio);
    digitata(regista, componente, archivio, libere[0], cartella);
    Regista::attende([&] { return chiusure == 1; }, u"la chiusura della schermata non è stata annunciata"_s);
    consegnata(regista, componente, archivio, libere[1], cartella);
    Regista::attende([&] { return chiusure == 2; }, u"la chiusura della schermata non è stata annunciata"_s);
    cercata(regista, componente, archivio, libere[2], cartella);
    Regista::attende([&] { return chiusure == 3; }, u"la chiusura della schermata non è stata annunciata"_s);
    QObject::disconnect(&componente, &cGiacenza::fine, &regista, nullptr);
}
