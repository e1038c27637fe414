// What is no table, on a disk that is full, or read-only: settings, goods types, the document of a notice.

#include "dintorni/discopiccolo.h"

#include "base/cartellaprova.h"
#include "base/impostazioni.h"
#include "base/listbox.h"
#include "host/avvio/vociimpostazioni.h"
#include "reports/casodiprova.h"
#include "reports/letters/fontedocumenti.h"
#include "stampa/modulodeposito.h"
#include "widgets/naturamerce.h"

#include <QComboBox>
#include <QDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

/// The archive stays where it can be written.
struct Disco
{
    BancaDati mBase{"sqlite"};
    DiscoPiccolo mDisco{1024};
};

/// The settings' folder is on the disk.
class DiscoFile : protected Disco, public CartellaProva
{
protected:
    QStringList presenti(const QString& cartella = u"."_s) const
    {
        return QDir(percorso(cartella)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    /// What is tried fails on the full disk, and on the read-only one, and works when all is well again.
    void provaAmbedue(const std::function<void(const QString& perche)>& fallisce)
    {
        mDisco.riempi();
        {
            SCOPED_TRACE("full");
            fallisce(u"il disco è pieno"_s);
        }
        mDisco.libera();
        mDisco.setSolaLettura(true);
        {
            SCOPED_TRACE("read-only");
            fallisce(u"il disco è protetto da scrittura"_s);
        }
        mDisco.setSolaLettura(false);
    }
};

TEST_F(DiscoFile, LeImpostazioniRestanoQuelleDiPrima)
{
    const QString file = percorso(u"giacenza.ini"_s);
    const QByteArray prima = "; nostre\n[Bord]\nCaptionLbl1=uno\n";
    scrivi(u"giacenza.ini"_s, prima);
    std::vector<QString> valori = deposito::leggiImpostazioni(file);
    valori.front() = u"Deposito"_s;
    provaAmbedue([&](const QString& perche) {
        EXPECT_EQ(deposito::scriviImpostazioni(file, valori),
                  u"Le impostazioni non si possono scrivere in \"%1\": %2."_s.arg(file, perche));
        EXPECT_EQ(leggi(u"giacenza.ini"_s), prima);
        EXPECT_THAT(presenti().filter(u"giacenza"_s), ElementsAre(u"giacenza.ini"_s));
    });
    EXPECT_EQ(deposito::scriviImpostazioni(file, valori), QString());
    EXPECT_EQ(deposito::leggiImpostazioni(file), valori);
}

TEST_F(DiscoFile, LaListaDelleMerciRestaQuellaDiPrima)
{
    impostazioni().percorsoFileIni = percorso(u"giacenza.ini"_s);
    const QByteArray prima = "VEDI DDT\n" + QByteArray(DiscoPiccolo::pagina - 10, 'X') + '\n';
    scrivi(u"listbox.dat"_s, prima);
    QComboBox elenco;
    elenco.setEditable(true);
    elenco.setEditText(u"scatole"_s);
    provaAmbedue([&](const QString&) {
        AggiungiNaturaMerce(&elenco);
        EXPECT_THAT(mRegistro.prendi(),
                    ElementsAre(Messaggio{
                        u"Impossibile aggiungere il valore nella lista del controllo Natura merce"_s,
                        Stile::informazione, u"Gestione Trasporti"_s}));
        EXPECT_EQ(leggi(u"listbox.dat"_s), prima);
        CaricaNaturaMerce(&elenco);
        EXPECT_EQ(elenco.count(), 2) << "reading goes on";
    });
    AggiungiNaturaMerce(&elenco);
    EXPECT_EQ(leggi(u"listbox.dat"_s), prima + "SCATOLE\n");
    QFile::remove(percorso(u"listbox.dat"_s));
    provaAmbedue([&](const QString&) {
        AggiungiNaturaMerce(&elenco);
        mRegistro.prendi();
        EXPECT_FALSE(QFile::exists(percorso(u"listbox.dat"_s))) << "no list without its first line";
    });
}

TEST_F(DiscoFile, IlDocumentoDiUnAvvisoCEInteroONonCE)
{
    aggiungiCaso(mBase);
    const RichiestaDocumento richiesta = richiestaDelCaso(mBase, TipoDocumento::avviso);
    stampa::ModuloDeposito modulo;
    collegaFonte(modulo, nullptr);
    modulo.setPercorsoDatabase(richiesta.percorsoDatabase);
    modulo.setDidascalie(richiesta.didascalie);
    modulo.setStampa(true);
    modulo.setTipoDocumento(TipoDocumento::avviso);
    bool nonProdotto = true;
    modulo.stampaDocumento(u"1234_2015"_s, nonProdotto);
    ASSERT_FALSE(nonProdotto);
    const QByteArray prima = leggi(u"documenti/1234_2015.pdf"_s);
    ASSERT_TRUE(prima.startsWith("%PDF"));
    const auto fallisce = [&](const QString& perche) {
        QString detto;
        try {
            modulo.stampaDocumento(u"1234_2015"_s, nonProdotto);
        } catch (const Errore& errore) {
            detto = errore.testo();
        }
        EXPECT_EQ(detto, u"Impossibile scrivere il documento \"%1\": %2."_s.arg(
                             percorso(u"documenti/1234_2015.pdf"_s), perche));
        EXPECT_EQ(leggi(u"documenti/1234_2015.pdf"_s), prima);
        EXPECT_THAT(presenti(u"documenti"_s), ElementsAre(u"1234_2015.pdf"_s));
    };
    mDisco.riempi();
    fallisce(u"il disco è pieno"_s);
    mDisco.libera();
    mDisco.riempi(1); // not enough for the whole of it
    fallisce(u"il disco è pieno"_s);
    mDisco.libera();
    mDisco.setSolaLettura(true);
    fallisce(u"il disco è protetto da scrittura"_s);
    mDisco.setSolaLettura(false);
    modulo.stampaDocumento(u"1234_2015"_s, nonProdotto);
    EXPECT_THAT(presenti(u"documenti"_s), ElementsAre(u"1234_2015-2.pdf"_s, u"1234_2015.pdf"_s));
}

} // namespace
