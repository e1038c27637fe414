#include "registrazione.h"

#include "salvata.h"

#include <QModelIndex>

using namespace giacenza;

namespace {

void digitata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
              const QString& cartella)
{
    regista.passo(QStringLiteral("Registrazione di una giacenza dalla LDV %1 del %2").arg(s.numero, s.data));
    componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(QStringLiteral("frmGiacenza"));
    regista.fotografa(schermata, QStringLiteral("registrazione-vuota"));

    regista.scrive(schermata, QStringLiteral("txtCodiceCli"), s.cliente);
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtCodiceCli")), Qt::Key_Tab);
    regista.passo(QStringLiteral("  Cliente %1: %2")
                      .arg(s.cliente, Regista::testo(schermata, QStringLiteral("barCliente"))));
    regista.scrive(schermata, QStringLiteral("txtFiliale"), s.filiale);
    regista.scrive(schermata, QStringLiteral("txtLDV"), s.numero);
    regista.scrive(schermata, QStringLiteral("txtDataLdv"), QString(s.data).remove(QLatin1Char('/')));
    regista.preme(Regista::controllo(schermata, QStringLiteral("txtDataLdv")), Qt::Key_Tab);
    Regista::verifica(Regista::testo(schermata, QStringLiteral("txtDestinatario")) == s.destinatario,
                      QStringLiteral("la LDV %1 non è stata trovata").arg(s.numero));
    regista.fotografa(schermata, QStringLiteral("ldv-trovata"));
    regista.passo(QStringLiteral("  Trovata: destinatario %1").arg(s.destinatario));

    regista.scrive(schermata, QStringLiteral("txtFilialeGia"), s.filiale);
    regista.scrive(schermata, QStringLiteral("txtDescGia"),
                   QStringLiteral("Destinatario assente, negozio chiuso"));
    regista.fotografa(schermata, QStringLiteral("compilata"));
    salvaEVerifica(regista, archivio, schermata, s, cartella);

    regista.passo(QStringLiteral("  Ancora Alt+S: la spedizione è già in giacenza"));
    regista.rispondendo(
        [&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
        {regista.messaggio(QStringLiteral("Giacenza esistente impossibile inserirla in database."))});
    regista.preme(schermata, Qt::Key_E, Qt::AltModifier);
}

void consegnata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
                const QString& cartella)
{
    regista.passo(
        QStringLiteral("Registrazione dalla LDV %1 consegnata dal programma del deposito").arg(s.numero));
    componente.NuovaGiacenzaEXT(s.numero, s.data, s.filiale, s.cliente);
    QWidget* schermata = regista.finestra(QStringLiteral("frmGiacenza"));
    Regista::attende(
        [&] { return Regista::testo(schermata, QStringLiteral("txtDestinatario")) == s.destinatario; },
        QStringLiteral("la LDV %1 non è stata trovata").arg(s.numero));
    regista.scrive(schermata, QStringLiteral("txtDescGia"), QStringLiteral("Indirizzo sconosciuto"));
    regista.fotografa(schermata, QStringLiteral("consegnata"));
    salvaEVerifica(regista, archivio, schermata, s, cartella);
    regista.clicca(schermata, QStringLiteral("cmdEsci"));
}

void cercata(Regista& regista, cGiacenza& componente, Archivio& archivio, const Spedizione& s,
             const QString& cartella)
{
    const QString nome =
        archivio.valore(QStringLiteral("select RagioneSociale from clien where Codice=%1").arg(s.cliente));
    regista.passo(QStringLiteral("Registrazione cercando il cliente per nome e la LDV nell'elenco"));
    componente.NuovaGiacenza();
    QWidget* schermata = regista.finestra(QStringLiteral("frmGiacenza"));
    regista.rispondendo(
        [&] { regista.clicca(schermata, QStringLiteral("cmdCercaCliente")); }, {[&](QWidget* dialogo) {
            regista.clicca(dialogo, QStringLiteral("optRagSoc"));
            regista.scrive(dialogo, QStringLiteral("txtCerca"), nome.section(QLatin1Char(' '), 0, 0));
            regista.preme(Regista::controllo(dialogo, QStringLiteral("txtCerca")), Qt::Key_Return);
            QWidget* elenco = Regista::controllo(dialogo, QStringLiteral("lstCerca"));
            elenco->setFocus();
            regista.scorre(elenco, [&](const QModelIndex& riga) { return riga.data() == nome; });
            regista.fotografa(dialogo, QStringLiteral("ricerca-cliente"));
            regista.preme(elenco, Qt::Key_Return);
        }});
    Regista::verifica(Regista::testo(schermata, QStringLiteral("txtCodiceCli")) == s.cliente,
                      QStringLiteral("il cliente %1 non è stato preso").arg(nome));
    regista.passo(QStringLiteral("  Cliente %1: %2").arg(s.cliente, nome));

    regista.scrive(schermata, QStringLiteral("txtFiliale"), s.filiale);
    regista.scrive(schermata, QStringLiteral("txtLDV"), s.numero.left(1));
    regista.scrive(schermata, QStringLiteral("txtDataLdv"), QString(s.data).remove(QLatin1Char('/')));
    regista.rispondendo(
        [&] { regista.preme(Regista::controllo(schermata, QStringLiteral("txtDataLdv")), Qt::Key_F9); },
        {[&](QWidget* dialogo) {
            QWidget* griglia = Regista::controllo(dialogo, QStringLiteral("Griglia"));
            griglia->setFocus();
            regista.scorre(griglia, [&](const QModelIndex& riga) {
                return riga.siblingAtColumn(0).data() == s.numero && riga.siblingAtColumn(1).data() == s.data;
            });
            regista.fotografa(dialogo, QStringLiteral("ricerca-ldv"));
            regista.preme(griglia, Qt::Key_Return);
        }});
    Regista::verifica(Regista::testo(schermata, QStringLiteral("txtDestinatario")) == s.destinatario,
                      QStringLiteral("la LDV %1 non è stata presa dall'elenco").arg(s.numero));
    regista.passo(QStringLiteral("  Scelta la LDV %1 del %2").arg(s.numero, s.data));
    regista.scrive(schermata, QStringLiteral("txtDescGia"), QStringLiteral("Merce rifiutata"));
    salvaEVerifica(regista, archivio, schermata, s, cartella);
    regista.clicca(schermata, QStringLiteral("cmdEsci"));
}

} // namespace

void raccontaRegistrazione(Regista& regista, cGiacenza& componente, Archivio& archivio,
                           const QString& cartella)
{
    int chiusure = 0;
    QObject::connect(&componente, &cGiacenza::fine, &regista, [&chiusure] { ++chiusure; });
    const auto libere = spedizioniLibere(archivio);
    digitata(regista, componente, archivio, libere[0], cartella);
    Regista::attende([&] { return chiusure == 1; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    consegnata(regista, componente, archivio, libere[1], cartella);
    Regista::attende([&] { return chiusure == 2; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    cercata(regista, componente, archivio, libere[2], cartella);
    Regista::attende([&] { return chiusure == 3; },
                     QStringLiteral("la chiusura della schermata non è stata annunciata"));
    QObject::disconnect(&componente, &cGiacenza::fine, &regista, nullptr);
}
