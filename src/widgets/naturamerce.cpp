#include "widgets/naturamerce.h"
#include "base/errorenumerato.h"
#include "base/impostazioni.h"
#include "base/listbox.h"
#include "base/messaggi.h"

#include <QComboBox>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

void riempi(QComboBox& elenco, const QStringList& righe)
{
    const QString testo = elenco.currentText();
    // Whoever listens to the list is told nothing of a text that comes and goes.
    const QSignalBlocker silenzio(elenco);
    elenco.clear();
    elenco.addItems(righe);
    elenco.setCurrentIndex(
        testo.isEmpty() ? -1 : elenco.findText(testo, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    if (elenco.isEditable())
        elenco.setEditText(testo);
}

} // namespace

QString percorsoNaturaMerce()
{
    const QString& impostazioniFile = impostazioni().percorsoFileIni;
    const qsizetype ultimo =
        std::max(impostazioniFile.lastIndexOf(u'\\'), impostazioniFile.lastIndexOf(u'/'));
    return impostazioniFile.left(ultimo + 1) + u"listbox.dat"_s;
}

void CaricaNaturaMerce(QComboBox* elenco)
{
    if (!leggiNaturaMerce(elenco))
        diciNaturaMerceNonLetta(elenco);
}

bool leggiNaturaMerce(QComboBox* elenco)
{
    try {
        if (const std::optional<QStringList> righe = leggiElenco(percorsoNaturaMerce()))
            riempi(*elenco, *righe);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void diciNaturaMerceNonLetta(QComboBox* elenco)
{
    mostraMessaggio(elenco, {u"Impossibile caricare i dati nel controllo Natura merce"_s, Stile::critico,
                             titoloGestione()});
}

void AggiungiNaturaMerce(QComboBox* elenco)
{
    try {
        aggiungiAllElenco(percorsoNaturaMerce(), elenco->currentText().toUpper());
    } catch (const std::exception&) {
        mostraMessaggio(elenco, {u"Impossibile aggiungere il valore nella lista del controllo Natura merce"_s,
                                 Stile::informazione, titoloGestione()});
    }
}

} // namespace giacenza
