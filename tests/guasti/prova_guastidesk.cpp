// Each call of the desk's operations fails in turn, those of its threads too.

#include "desk/deskdiprova.h"
#include "desk/finestra/finestrainvio.h"
#include "guasti/operazione.h"
#include "schema/registro.h"
#include "support/modale.h"

#include <QComboBox>
#include <QPushButton>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;

namespace {

constexpr int pazienza = 20'000;
const QString nessuna = u"nessuna"_s;

class GuastiDesk : public DeskDiProva
{
protected:
    GuastiDesk()
    {
        preparaRegistro(mBase.accessoAmministratore());
        mStringa = mCavo.stringa();
    }

    void prova(const Operazione& operazione) { mCavo.prova(GetParam(), mMessaggi, operazione); }

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

    RegistroMessaggi mMessaggi;
    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
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

/// Notices of the two cases that are marked, one after the other.
class GuastiInvio : public GuastiDesk
{
protected:
    /// As it was before; 42 had two before, 41 none.
    void rimetti()
    {
        mBase.esegui(u"update giace00f set GINRAV=null, GIDTAV=null where GINRGI='41';\n"
                     "update giace00f set GINRAV='2', GIDTAV='2026-11-12' where GINRGI='42';"_s);
        mStampate.clear();
        premi(Qt::Key_F5);
        attendiElenco();
    }

    /// Whether each has its notice of today, once, by its place.
    QList<bool> avvisate() const
    {
        QList<bool> tutte;
        for (const QStringList& riga :
             mBase.righe(u"select GINRGI, GINRAV, GIDTAV, GIDES1 from giace00f where GINRGI in "
                         "('41','42') order by GINRGI"_s)) {
            const bool oggi = riga.at(2) == u"2026-11-20"_s;
            const QString dopo = QStringList{u"1"_s, u"3"_s}.at(tutte.size());
            EXPECT_EQ(riga.at(1) == dopo, oggi) << riga.join(u'|').toStdString();
            tutte << oggi;
        }
        return tutte;
    }

    void invia()
    {
        mFinestra->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
        elenco()->setFocus();
        elenco()->clearSelection();
        for (const QString& giacenza : {u"41/2026"_s, u"42/2026"_s}) {
            const auto riga = static_cast<int>(colonna(elenco(), 1).indexOf(giacenza));
            elenco()->selectionModel()->select(elenco()->model()->index(riga, 0),
                                               QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
        const QuandoAperta<FinestraInvio> intanto([this](FinestraInvio& finestra) {
            QTest::keyClick(&finestra, Qt::Key_Return, Qt::ControlModifier);
            const auto* chiudi = trova<QPushButton>(finestra, u"cmdChiudi"_s);
            EXPECT_TRUE(QTest::qWaitFor([&] { return chiudi->text() == u"&Chiudi"_s; }, pazienza));
            leggiEsiti(finestra);
            QTest::keyClick(&finestra, Qt::Key_Escape);
        });
        premi(Qt::Key_N, Qt::ControlModifier);
        attendiElenco();
    }

    /// By the cases' order, whatever the list's was.
    void leggiEsiti(const FinestraInvio& finestra)
    {
        const auto* tabella = trova<QTableView>(finestra, u"tabInvio"_s);
        const QStringList casi = colonna(tabella, 0);
        const QStringList esiti = colonna(tabella, 3);
        mEsiti.clear();
        for (const QString& giacenza : {u"41/2026"_s, u"42/2026"_s})
            mEsiti << esiti.value(casi.indexOf(giacenza));
        mRiepilogo = trova<QLabel>(finestra, u"lblInvio"_s)->text();
    }

    /// What is said of each case is what became of it.
    bool vero(const Accaduto& a)
    {
        const QList<bool> fatte = avvisate();
        int ignote = 0;
        for (qsizetype i = 0; i < fatte.size(); ++i) {
            const QString& esito = mEsiti.value(i);
            const bool fatta = esito.startsWith(u"✓ "_s);
            const bool rifiutata = esito.startsWith(u"✗ rifiutata: "_s) || esito == u"non cominciata"_s;
            const bool ignota = esito.startsWith(u"⚠ non si sa se l'avviso è contato: "_s);
            ignote += ignota ? 1 : 0;
            if (!(fatte.at(i) ? fatta || ignota : rifiutata || ignota))
                return false;
        }
        const bool tutteDette = mEsiti.filter(u"✓ "_s).size() == fatte.size();
        return ignote <= 1 && (tutteDette || a.dettoIlGuasto()) &&
               mStampate.size() == mEsiti.filter(u"✓ "_s).size();
    }

    QStringList mEsiti;
    QString mRiepilogo;
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiInvio, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(GuastiInvio, OgniIstruzioneDegliAvvisi)
{
    prova({.prepara = [this] { rimetti(); },
           .compi = [this] { invia(); },
           .righe = [this] { return u"%1 avvisate"_s.arg(avvisate().count(true)); },
           .stato = [this] { return mEsiti.join(u'\n') + u'\n' + mRiepilogo; },
           .vero = [this](const Accaduto& a) { return vero(a); },
           .riprova =
               [this](const Accaduto& a) {
                   // The list was read anew: who has its notice of today is left out.
                   if (!a.completo)
                       invia();
               }});
}

} // namespace
