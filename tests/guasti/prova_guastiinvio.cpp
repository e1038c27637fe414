// Each call of several notices sent in a row from the desk fails in turn.

#include "desk/finestra/finestrainvio.h"
#include "guasti/guastidesk.h"
#include "support/modale.h"

#include <QPushButton>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;

namespace {

constexpr int pazienza = 20'000;

/// Notices of the two cases that are marked, one after the other.
class GuastiInvio : public DeskConGuasti
{
protected:
    /// As it was before; 42 had two before, 41 none.
    void rimetti()
    {
        mBase.esegui(u"update giace00f set GINRAV=null, GIDTAV=null where GINRGI='41';\n"
                     "update giace00f set GINRAV='2', GIDTAV='2026-11-12' where GINRGI='42';"_s);
        mStampate.clear();
        mDesk->azioni().aggiorna->trigger();
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
        EXPECT_EQ(mRiepilogo.contains(u"1 non si sa se contato: ripeterlo non lo conta due volte; se resta "
                                      "fuori perché avvisato oggi ristamparlo con Ctrl+P"_s),
                  ignote == 1)
            << mRiepilogo.toStdString();
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
