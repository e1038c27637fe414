#include "desk/finestra/memoriadesk.h"

#include "desk/finestra/colonnecasi.h"
#include "desk/finestra/colonnescelte.h"
#include "desk/finestra/finestradesk.h"
#include "desk/finestra/modellocasi.h"
#include "desk/finestra/paginaelenco.h"
#include "desk/finestra/tabellacasi.h"

#include <QLineEdit>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

const QString voceColonne = u"desk/colonne"_s;
const QString voceOrdine = u"desk/ordine"_s;
const QString voceFiliale = u"desk/filiale"_s;
const QString voceFiltro = u"desk/filtro"_s;

/// A text that somebody can have typed or chosen; else empty.
QString testo(const QSettings& impostazioni, const QString& voce)
{
    constexpr qsizetype massimo = 100;
    const QString scritto = impostazioni.value(voce).toString();
    const bool buono =
        scritto.size() <= massimo && scritto.isValidUtf16() &&
        std::all_of(scritto.begin(), scritto.end(), [](QChar c) { return c.isPrint() || c.isSurrogate(); });
    return buono ? scritto : QString();
}

} // namespace

void scriviMemoria(QSettings& impostazioni, const PaginaElenco& elenco)
{
    const ColonneScelte& colonne = *elenco.tabella()->colonneScelte();
    impostazioni.setValue(voceColonne, colonne.scritte());
    impostazioni.setValue(voceOrdine, colonne.ordine());
    impostazioni.setValue(voceFiliale, elenco.filiale());
    impostazioni.setValue(voceFiltro, elenco.filtro()->text());
}

void leggiMemoria(const QSettings& impostazioni, PaginaElenco& elenco)
{
    elenco.tabella()->colonneScelte()->rimetti(impostazioni.value(voceColonne).toStringList(),
                                               testo(impostazioni, voceOrdine));
    if (const QString filiale = testo(impostazioni, voceFiliale); !filiale.isEmpty())
        elenco.scegliFiliale(filiale);
    elenco.filtro()->setText(testo(impostazioni, voceFiltro));
}

void FinestraDesk::riprendi(const QSettings& impostazioni)
{
    leggiMemoria(impostazioni, *mElenco);
    mFiltroRipreso = !mElenco->filtro()->text().isEmpty();
}

void FinestraDesk::ricorda(QSettings& impostazioni) const
{
    scriviMemoria(impostazioni, *mElenco);
}

void FinestraDesk::diciFiltroRipreso()
{
    const QString filtro = mElenco->filtro()->text();
    const ModelloCasi& casi = *mElenco->modello();
    const auto nascosti = static_cast<qint64>(casi.tutte()) - casi.totali().casi;
    if (filtro.isEmpty() || nascosti == 0)
        return;
    dici(
        u"L'elenco mostra %1 di %2 casi: vale ancora il filtro \"%3\" dell'ultima volta. Ctrl+F e poi Esc lo "
        "tolgono."_s.arg(conteggio(casi.totali().casi), conteggio(static_cast<qint64>(casi.tutte())),
                         filtro));
}

} // namespace giacenza::desk
