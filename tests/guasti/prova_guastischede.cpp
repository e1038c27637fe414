// Each call of the windows about a case's cost and history fails in turn, and those of the statements'
// thread.

#include "base/impostazioni.h"
#include "desk-documenti/depositodesk.h"
#include "desk/schede/finestracaso.h"
#include "desk/schede/finestraconto.h"
#include "desk/schede/finestraestratti.h"
#include "guasti/operazione.h"
#include "support/trova.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using namespace giacenza::schede;

namespace {

constexpr int pazienza = 60'000;

class GuastiSchede : public DepositoDesk
{
protected:
    GuastiSchede() { conRegistro(); }
    ~GuastiSchede() override { impostazioni() = {}; }

    void TearDown() override { mFinestra.reset(); }
    void prova(const Operazione& operazione) { mCavo.prova(GetParam(), mMessaggi, operazione); }

    /// Opens a window in the place of the one that is open.
    template<class Finestra, class... Resto>
    void apri(Resto... resto)
    {
        mFinestra = std::make_unique<Finestra>(mAccesso, resto..., carta());
        mFinestra->show();
    }
    QString scritta(const char16_t* nome) const
    {
        return trova<QLabel>(*mFinestra, QString::fromUtf16(nome))->text();
    }
    QString stato() const { return scritta(u"lblStato"); }
    QPushButton* tasto(const char16_t* nome) const
    {
        return trova<QPushButton>(*mFinestra, QString::fromUtf16(nome));
    }
    int eventi() const { return trova<QTableView>(*mFinestra, u"tblCronologia"_s)->model()->rowCount(); }
    void togliSalvati() const
    {
        for (const QString& nome : salvati())
            ASSERT_TRUE(QFile::remove(mCartella.filePath(nome)));
    }
    /// Every file that is there is a document to its end, none half one.
    bool soloInteri() const
    {
        const QStringList tutti = salvati();
        return std::all_of(tutti.begin(), tutti.end(), [this](const QString& nome) {
            QFile file(mCartella.filePath(nome));
            return nome.endsWith(u".pdf"_s) && file.open(QIODevice::ReadOnly) &&
                   file.readAll().trimmed().endsWith("%%EOF");
        });
    }
    /// The statements, as CSV: what is laid out reads nothing.
    void esegui() const
    {
        trova<QCheckBox>(*mFinestra, u"chkPdf"_s)->setChecked(false);
        trova<QCheckBox>(*mFinestra, u"chkCsv"_s)->setChecked(true);
        tasto(u"cmdEsegui")->click();
        ASSERT_TRUE(QTest::qWaitFor([this] { return tasto(u"cmdEsegui")->isEnabled(); }, pazienza));
    }
    int note() const { return mBase.leggi(u"select count(*) from registro_note"_s).value_or(u"?"_s).toInt(); }

    RegistroMessaggi mMessaggi;
    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
    Accesso mAccesso{mCavo.stringa()};
    std::unique_ptr<QDialog> mFinestra;
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiSchede, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

bool dettoOCompleto(const Accaduto& a)
{
    return a.completo || a.dettoIlGuasto();
}

TEST_P(GuastiSchede, OgniIstruzioneDelConto)
{
    prova({.prepara = [this] { mFinestra.reset(); },
           .compi = [this] { apri<FinestraConto>(mAperta); },
           .righe = [] { return u"nessuna"_s; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   return a.completo || (a.dettoIlGuasto() && !tasto(u"cmdSalvaPdf")->isEnabled() &&
                                         scritta(u"lblTesta") == u"La giacenza non si è potuta leggere."_s &&
                                         scritta(u"lblTotaleCalcolato").isEmpty());
               },
           .mostrata =
               [this] {
                   return tasto(u"cmdSalvaPdf")->isEnabled() &&
                          scritta(u"lblTesta").contains(u"Ferramenta Lombarda S.r.l."_s) &&
                          scritta(u"lblTotaleCalcolato") == u"29,00 €"_s;
               }});
}

TEST_P(GuastiSchede, OgniIstruzioneDelDiario)
{
    prova({.prepara = [this] { mFinestra.reset(); },
           .compi = [this] { apri<FinestraCaso>(mAperta); },
           .righe = [] { return u"nessuna"_s; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   // Nothing half: neither some events nor a note on a case that was not read.
                   return a.completo ||
                          (a.dettoIlGuasto() && eventi() == 0 && !tasto(u"cmdFascicolo")->isEnabled() &&
                           !tasto(u"cmdAggiungiNota")->isEnabled());
               },
           .mostrata = [this] { return eventi() == 3 && tasto(u"cmdAggiungiNota")->isEnabled(); }});
}

TEST_P(GuastiSchede, OgniIstruzioneDiUnaNota)
{
    const QString testo = u"Richiamare lunedì"_s;
    int prima = 0; // a note is never taken away
    const auto nota = [this] { return trova<QPlainTextEdit>(*mFinestra, u"txtNota"_s); };
    prova({.prepara =
               [&] {
                   prima = note();
                   apri<FinestraCaso>(mAperta);
                   nota()->setPlainText(testo);
               },
           .compi = [&] { tasto(u"cmdAggiungiNota")->click(); },
           .righe = [&] { return u"%1 in più"_s.arg(note() - prima); },
           .stato = [this] { return stato(); },
           .vero =
               [&](const Accaduto& a) {
                   if (a.passo == 0)
                       return a.dettoIlGuasto() && nota()->toPlainText() == testo;
                   // It is there: said so, and not offered to be written again, also when the timeline fails.
                   return a.detto(u"Nota aggiunta."_s) && nota()->toPlainText().isEmpty() &&
                          (a.completo || a.dettoIlGuasto());
               },
           .riprova =
               [&](const Accaduto& a) {
                   if (a.passo == 0)
                       tasto(u"cmdAggiungiNota")->click();
                   else
                       apri<FinestraCaso>(mAperta);
               },
           .mostrata = [&] { return eventi() == 4 + prima && nota()->toPlainText().isEmpty(); }});
}

/// The archive is silent from the lost answer on: nobody can say, until it is read again.
TEST_P(GuastiSchede, UnaNotaInDubbioSiScioglieQuandoLArchivioRisponde)
{
    const QString inserimento =
        u"insert into registro_note (GINRGI, GIANGI, autore, testo) values (?,?,?,?)"_s;
    for (const Momento momento : {Momento::dopo, Momento::prima}) {
        SCOPED_TRACE(momento == Momento::dopo ? "it was added" : "it was not added");
        const int prima = note();
        bool muto = false;
        bool cade = true;
        mAccesso.traccia = [&](EventoDati evento, const QString& istruzione) {
            if (muto && evento == EventoDati::istruzione)
                throw ErroreDatabase(u"08S01"_s, 2006, u"Server has gone away"_s);
            muto = muto || (cade && istruzione == inserimento);
        };
        apri<FinestraCaso>(mAperta);
        auto* nota = trova<QPlainTextEdit>(*mFinestra, u"txtNota"_s);
        nota->setPlainText(u"Richiamare lunedì"_s);
        GuastiOdbc guasti;
        guasti.pianta(
            inserimento, 0,
            {.sqlstate = u"08S01"_s, .codice = 2013, .testo = u"Lost"_s, .momento = momento, .cade = true});
        for (int volta = 0; volta < 2; ++volta) {
            tasto(u"cmdAggiungiNota")->click();
            EXPECT_EQ(stato(), u"Non si sa se la nota è stata aggiunta: premere ancora Aggiungi nota quando "
                               "l'archivio risponde, non la aggiunge due volte. La connessione con "
                               "l'archivio è caduta."_s);
            EXPECT_EQ(nota->toPlainText(), u"Richiamare lunedì"_s);
            EXPECT_EQ(note(), prima + (momento == Momento::dopo ? 1 : 0));
        }
        muto = cade = false;
        tasto(u"cmdAggiungiNota")->click();
        EXPECT_EQ(stato(), u"Nota aggiunta."_s);
        EXPECT_EQ(nota->toPlainText(), QString());
        EXPECT_EQ(note(), prima + 1);
        EXPECT_EQ(eventi(), 4 + prima);
        mFinestra.reset();
        mAccesso.traccia = {};
    }
}

TEST_P(GuastiSchede, OgniIstruzioneDelFascicolo)
{
    prova({.prepara =
               [this] {
                   togliSalvati();
                   apri<FinestraCaso>(mChiusa);
               },
           .compi = [this] { tasto(u"cmdFascicolo")->click(); },
           .righe = [] { return u"nessuna"_s; },
           .stato = [this] { return stato(); },
           .vero =
               [this](const Accaduto& a) {
                   return a.completo ||
                          (a.dettoIlGuasto() && salvati().isEmpty() && !tasto(u"cmdApri")->isEnabled());
               },
           .mostrata =
               [this] {
                   return salvati() == QStringList{u"Fascicolo giacenza 40-2026.pdf"_s} && soloInteri() &&
                          stato().startsWith(u"Salvato: "_s) && tasto(u"cmdApri")->isEnabled();
               }});
}

TEST_P(GuastiSchede, OgniIstruzioneDegliEstratti)
{
    const auto esiti = [this] { return trova<QPlainTextEdit>(*mFinestra, u"txtEsiti"_s)->toPlainText(); };
    prova({.prepara = [this] { togliSalvati(); },
           .compi =
               [this] {
                   apri<FinestraEstratti>(QString(), QDate(2026, 11, 1), QDate(2026, 11, 30));
                   if (tasto(u"cmdEsegui")->isEnabled()) // else there is nobody to make one for
                       esegui();
               },
           .righe = [] { return u"nessuna"_s; },
           .stato = [&] { return stato() + u'\n' + esiti(); },
           .vero =
               [&](const Accaduto& a) {
                   const auto fatti = salvati().size();
                   const auto nonFatti = esiti().count(u": NON FATTO. "_s);
                   return dettoOCompleto(a) &&
                          (esiti().isEmpty()
                               ? fatti == 0
                               : fatti + nonFatti == 2 &&
                                     stato().startsWith(u"Estratti salvati: %1 di 2."_s.arg(fatti)));
               },
           .riprova =
               [this](const Accaduto&) {
                   togliSalvati();
                   apri<FinestraEstratti>(QString(), QDate(2026, 11, 1), QDate(2026, 11, 30));
                   esegui();
               },
           .mostrata =
               [&] {
                   return salvati().size() == 2 && stato() == u"Estratti salvati: 2 di 2."_s &&
                          !esiti().contains(u"NON FATTO"_s);
               },
           .fili = Fili::tutti});
}

} // namespace
