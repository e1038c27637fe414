// Each call of the registration screen's operations fails in turn.

#include "guasti/operazione.h"
#include "registration/registrazionediprova.h"
#include "search/frmRicerca.h"
#include "search/frmRicercaGia.h"
#include "search/listascelta.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

const QString aggiunta = u"Giacenza aggiunta in database."_s;
const QString impossibile = u"Impossibile aggiungere la nuova giacenza."_s;

class GuastiRegistrazione : public RegistrazioneDiProva
{
protected:
    QString stato() const { return mostrato("lblStato"); }
    QString destinatario() const { return mostrato("txtDestinatario"); }

    void TearDown() override { delete mSchermata; }
    void prova(const Operazione& operazione) { mCavo.prova(GetParam(), mMessaggi, operazione); }

    /// The case of waybill 4711 without its number, and whether the waybill's link is that case's.
    QString giacenzaNuova() const
    {
        const auto righe = mBase.righe(
            u"select GINRAV, GIDTAV, GIDES1, LEDTCO, case when GINRGI is null and LERFGI is null then "
            u"'libera' "
            "when GINRGI=LERFGI and GIANGI=LEANGI then 'legata' else 'rotta' end "
            "from letve00f left join giace00f on ginrlv=lenrlv and gianlv=leanlv where lenrlv='4711'"_s);
        QStringList testi;
        for (const QStringList& riga : righe)
            testi << riga.join(u'|');
        return testi.join(u'\n');
    }

    void togliGiacenzaNuova()
    {
        mBase.esegui(
            u"delete from giace00f where GINRLV='4711';\nupdate letve00f set LERFGI=null, LEANGI=null, "
            "LEDTCO='2026-11-14' where lenrlv='4711';\nupdate ekelvorqzt_tabge00f set "
            "UltimoNumGiacenza=41;"_s);
        mStampe.clear();
    }

    /// Without a window manager nobody gives the window the focus back when a dialog over it has closed.
    void attiva()
    {
        mSchermata->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
    }

    void scriviChiave(const char* campo, const QString& chiave, const char* data, const QString& giorno)
    {
        if (!mSchermata) {
            apri();
            scrivi("txtCodiceCli", u"1001"_s);
            lascia("txtCodiceCli");
        }
        // What was found before would look like what is sought.
        scrivi("txtDataLdv", {});
        scrivi("txtDataRif", {});
        scrivi("txtFiliale", u"MI"_s);
        qobject_cast<QLineEdit*>(c("txtDestinatario"))->clear();
        scrivi(campo, chiave);
        scrivi(data, giorno);
        scrivi(campo, chiave);
    }

    /// Of the waybill 4711, by either of its keys.
    Operazione ricerca(const char* campo, const QString& chiave, const char* data, const QString& giorno)
    {
        return {.prepara = [=, this] { scriviChiave(campo, chiave, data, giorno); },
                .compi =
                    [=, this] {
                        scrivi(campo, chiave);
                        tasto(campo, Qt::Key_F12);
                    },
                .righe = [] { return u"nessuna"_s; },
                .stato = [this] { return stato(); },
                .vero = [](const Accaduto& a) { return a.completo || a.dettoIlGuasto(); },
                .mostrata = [this] { return destinatario() == u"Utensileria del Lago"_s; }};
    }

    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiRegistrazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

bool veroSalvataggio(const Accaduto& a)
{
    const bool dettaAggiunta = a.scatole == QStringList{aggiunta};
    if (a.completo)
        return dettaAggiunta && a.stato.startsWith(u"Avviso di giacenza 4"_s) &&
               a.stato.endsWith(u"_2026 prodotto."_s);
    if (a.passo == 0)
        return a.dettoIlGuasto() && (a.scatole == QStringList{impossibile} ||
                                     a.stato.startsWith(u"Niente è stato salvato; riprovare con Salva. "_s));
    return dettaAggiunta && a.dettoIlGuasto() &&
           (a.stato.contains(u" è registrata, l'avviso no: emetterlo con il suo bottone. "_s) ||
            a.stato.contains(
                u" è registrata, non si sa se l'avviso è contato: emetterlo con il suo bottone. "_s));
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDelSalvataggio)
{
    prova({.prepara =
               [this] {
                   togliGiacenzaNuova();
                   consegna(u"4711"_s);
               },
           .compi = [this] { clicca("cmdSalva"); },
           .righe = [this] { return giacenzaNuova(); },
           .stato = [this] { return stato(); },
           .vero = veroSalvataggio,
           .riprova = [this](const Accaduto& a) { clicca(a.passo == 0 ? "cmdSalva" : "cmdAvvisoGia"); }});
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDellAvviso)
{
    prova({.prepara =
               [this] {
                   mBase.esegui(u"update giace00f set GIDTAV='2026-11-15', GINRAV='2' where GINRGI='40';"_s);
                   mStampe.clear();
                   consegna(u"4714"_s);
               },
           .compi = [this] { clicca("cmdAvvisoGia"); },
           .righe =
               [this] {
                   return mBase.righe(u"select GINRAV, GIDTAV, GIDES1 from giace00f where GINRGI='40'"_s)
                       .front()
                       .join(u'|');
               },
           .stato = [this] { return stato(); },
           .vero =
               [](const Accaduto& a) {
                   return a.completo ? a.stato == u"Avviso di giacenza 40_2026 prodotto."_s
                                     : a.dettoIlGuasto() && a.scatole.size() == 1;
               }});
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDellaRicercaPerNumero)
{
    prova(ricerca("txtLDV", u"4711"_s, "txtDataLdv", u"12112026"_s));
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDellaRicercaPerRiferimento)
{
    prova(ricerca("txtRiferimento", u"ORD-881"_s, "txtDataRif", u"10112026"_s));
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDelCliente)
{
    prova({.prepara =
               [this] {
                   delete mSchermata;
                   apri();
               },
           .compi =
               [this] {
                   scrivi("txtCodiceCli", u"1001"_s);
                   lascia("txtCodiceCli");
               },
           .righe = [] { return u"nessuna"_s; },
           .stato = [this] { return stato(); },
           .vero = [](const Accaduto& a) { return a.completo || a.dettoIlGuasto(); },
           .mostrata = [this] { return mostrato("barCliente") == u"Ferramenta Lombarda S.r.l."_s; }});
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDellElenco)
{
    int righe = 0;
    QString detto;
    prova({.prepara =
               [&] {
                   righe = 0;
                   delete mSchermata;
                   apri();
                   scrivi("txtCodiceCli", u"1001"_s);
                   lascia("txtCodiceCli");
                   scrivi("txtFiliale", u"MI"_s);
               },
           .compi =
               [&] {
                   const QuandoAperta<frmRicercaGia> intanto([&](frmRicercaGia& elenco) {
                       righe = trova<QTableView>(elenco, u"Griglia"_s)->model()->rowCount();
                       detto = trova<QLabel>(elenco, u"lblRighe"_s)->text();
                       elenco.close();
                   });
                   attiva();
                   scrivi("txtLDV", u"4711"_s);
                   scrivi("txtDataLdv", u"12112026"_s);
                   tasto("txtDataLdv", Qt::Key_F9);
               },
           .righe = [] { return u"nessuna"_s; },
           .stato = [&] { return detto + stato(); },
           .vero = [](const Accaduto& a) { return a.completo || a.dettoIlGuasto(); },
           .mostrata = [&] { return righe == 4; }});
}

TEST_P(GuastiRegistrazione, OgniIstruzioneDellaRicercaDelCliente)
{
    int voci = 0;
    prova({.prepara =
               [&] {
                   voci = 0;
                   if (!mSchermata)
                       apri();
               },
           .compi =
               [&] {
                   const QuandoAperta<frmRicerca> intanto([&](frmRicerca& ricerca) {
                       auto* testo = trova<QLineEdit>(ricerca, u"txtCerca"_s);
                       QTest::keyClicks(testo, u"oleificio"_s);
                       QTest::keyClick(testo, Qt::Key_Return);
                       voci = trova<ListaScelta>(ricerca, u"lstCerca"_s)->count();
                       ricerca.close();
                   });
                   attiva();
                   tasto("txtCodiceCli", Qt::Key_F12);
               },
           .righe = [] { return u"nessuna"_s; },
           .stato = [this] { return stato(); },
           .vero = [](const Accaduto& a) { return a.completo || a.dettoIlGuasto(); },
           .mostrata = [&] { return voci == 1; }});
}

} // namespace
