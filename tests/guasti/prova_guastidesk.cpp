// Each call of the desk's operations fails in turn, those of its threads too.

#include "guasti/guastidesk.h"
#include "schema/registro.h"

#include <QComboBox>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;

namespace {

const QString nessuna = u"nessuna"_s;

class GuastiDesk : public DeskConGuasti
{
protected:
    GuastiDesk() { preparaRegistro(mBase.accessoAmministratore()); }

    /// What the desk says, and the driver's words behind it.
    QString stato() const
    {
        return detto() + u'\n' + figlio<QLabel>(u"lblEsito")->toolTip() + u'\n' + lettura() + u'\n' +
               filiali()->toolTip();
    }
    QString lettura() const { return figlio<QLabel>(u"lblLettura")->text(); }
    QComboBox* filiali() const { return figlio<QComboBox>(u"cmbFiliale"); }

    /// Until the list and the branches were read, or could not be.
    void attendiLetture()
    {
        attendi([this] {
            return (lettura().startsWith(u"letto"_s) || lettura().startsWith(u"lettura non"_s)) &&
                   (filiali()->findData(u"ZZ"_s) > 0 || !filiali()->toolTip().isEmpty());
        });
    }

    /// A desk that has read all, and of which the archive then knows something newer: a branch, a name.
    void apriConNovita()
    {
        mBase.esegui(u"delete from filiali where codice='ZZ';\n"
                     "update letve00f set ledest='Enoteca Bianchi' where lenrlv='4725';"_s);
        apriDesk();
        attendiElenco();
        attendi([this] { return filiali()->findData(u"MI"_s) > 0; });
        mBase.esegui(u"insert into filiali (codice, descrizione) values ('ZZ', 'Nuova');\n"
                     "update letve00f set ledest='Enoteca Verdi' where lenrlv='4725';"_s);
    }
    bool mostraNovita() const
    {
        QString tutto;
        const QAbstractItemModel* modello = elenco()->model();
        for (int riga = 0; riga < modello->rowCount(); ++riga)
            for (int colonna = 0; colonna < modello->columnCount(); ++colonna)
                tutto += modello->index(riga, colonna).data().toString() + u'\n';
        return modello->rowCount() == 5 && tutto.contains(u"Enoteca Verdi"_s) &&
               filiali()->findData(u"ZZ"_s) > 0 && filiali()->toolTip().isEmpty() && detto().isEmpty();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiDesk, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// The class, with the driver's words for whoever mends it.
bool conLeParole(const Accaduto& a)
{
    return a.dettoIlGuasto() && (a.detto(a.classe.guasto.testo) || a.detto(u"Server has gone away"_s));
}

TEST_P(GuastiDesk, OgniIstruzioneDellaPrimaLettura)
{
    prova({.prepara =
               [this] {
                   apriConNovita();
                   mFinestra.reset();
               },
           .compi =
               [this] {
                   apriDesk();
                   attendiLetture();
               },
           .righe = [] { return nessuna; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   // A list that could not be read to its end is not shown as the whole.
                   const bool elencoFallito = lettura().startsWith(u"lettura non riuscita alle "_s);
                   return a.completo ||
                          (conLeParole(a) && elencoFallito == (elenco()->model()->rowCount() == 0));
               },
           .mostrata = [this] { return mostraNovita(); },
           .fili = Fili::tutti});
}

TEST_P(GuastiDesk, OgniIstruzioneDellaRilettura)
{
    prova({.prepara = [this] { apriConNovita(); },
           .compi =
               [this] {
                   filiali()->setToolTip({});
                   premi(Qt::Key_F5);
                   attendiLetture();
               },
           .righe = [] { return nessuna; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   // What stands there stays, and says from when it is.
                   const bool elencoFallito = lettura().contains(u" non riuscita"_s);
                   return a.completo || (conLeParole(a) && elenco()->model()->rowCount() == 5 &&
                                         elencoFallito == detto().startsWith(u"L'elenco non si legge. "_s));
               },
           .mostrata = [this] { return mostraNovita(); },
           .fili = Fili::tutti});
}

TEST_P(GuastiDesk, OgniIstruzioneDellaFiliale)
{
    const auto sceglie = [this] {
        filiali()->setToolTip({});
        filiali()->setCurrentIndex(filiali()->findData(u"BO"_s));
        attendiLetture();
    };
    prova({.prepara = [this] { apriConNovita(); },
           .compi = sceglie,
           .righe = [] { return nessuna; },
           .stato = [this] { return stato(); },
           .vero = [](const Accaduto& a) { return a.completo || conLeParole(a); },
           .riprova =
               [this](const Accaduto&) {
                   filiali()->setToolTip({});
                   premi(Qt::Key_F5);
                   attendiLetture();
               },
           .mostrata =
               [this] {
                   return colonna(elenco(), 1) == QStringList{u"45/2026"_s} && detto().isEmpty() &&
                          filiali()->currentData() == u"BO"_s && filiali()->findData(u"ZZ"_s) > 0;
               },
           .fili = Fili::tutti});
}

TEST_P(GuastiDesk, OgniIstruzioneDiUnaScansione)
{
    apriConNovita();
    prova({.prepara =
               [this] {
                   mDesk->azioni().elenco->trigger();
                   ASSERT_EQ(pagina(), u"pagElenco"_s);
               },
           .compi = [this] { scansiona(u"42"_s); },
           .righe = [] { return nessuna; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   return a.completo || (conLeParole(a) && pagina() == u"pagElenco"_s);
               },
           .mostrata =
               [this] {
                   return pagina() == u"pagCaso"_s && detto().isEmpty() &&
                          figlio<QLabel>(u"lblCaso")->text() == u"Giacenza 42/2026 · LDV 4722/2026 MI"_s;
               },
           .fili = Fili::tutti});
}

TEST_P(GuastiDesk, OgniIstruzioneDiUnaScansioneConPiuDiUnRisultato)
{
    mBase.esegui(
        u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values ('BO','4722',2025,'2025-03-01',1002);"_s);
    apriConNovita();
    prova({.prepara =
               [this] {
                   mDesk->azioni().elenco->trigger();
                   ASSERT_EQ(pagina(), u"pagElenco"_s);
               },
           .compi =
               [this] {
                   scansiona(u"4722"_s);
                   // The case of the row that is chosen comes by itself.
                   attendi([this] { return !detto().isEmpty() || mDesk->casi().size() == 1; });
               },
           .righe = [] { return nessuna; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   return a.completo ||
                          (conLeParole(a) && (pagina() == u"pagElenco"_s || mDesk->casi().empty()));
               },
           .mostrata =
               [this] {
                   return pagina() == u"pagRisultati"_s && detto().isEmpty() && mDesk->casi().size() == 1 &&
                          mDesk->casi().front().chiave.numero == u"42"_s;
               },
           .fili = Fili::tutti});
}

} // namespace
