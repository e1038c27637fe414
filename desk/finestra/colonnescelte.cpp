#include "desk/finestra/colonnescelte.h"

#include "desk/finestra/tabelladesk.h"

#include <QHeaderView>
#include <QMenu>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

constexpr QChar tra = u'|';
const QString crescente = u"crescente"_s;
const QString decrescente = u"decrescente"_s;
constexpr int centesimi = 100;
/// Hundredths of a character: no screen is wider.
constexpr int larghezzaMassima = 100'000;

} // namespace

struct ColonneScelte::Voce
{
    int colonna;
    int larghezza; ///< hundredths of a character; 0: the usual one
    bool vista;
};

ColonneScelte::ColonneScelte(TabellaDesk* tabella)
    : QObject(tabella), mTabella(tabella), mOrdineSolito(ordine())
{}

QString ColonneScelte::titolo(int colonna) const
{
    return mTabella->model()->headerData(colonna, Qt::Horizontal).toString();
}

int ColonneScelte::colonnaDi(const QString& nome) const
{
    for (int colonna = 0; colonna < mTabella->model()->columnCount(); ++colonna)
        if (titolo(colonna) == nome)
            return colonna;
    return -1;
}

int ColonneScelte::ultimaVista() const
{
    const QHeaderView* testata = mTabella->horizontalHeader();
    for (int posto = testata->count() - 1; posto >= 0; --posto)
        if (!testata->isSectionHidden(testata->logicalIndex(posto)))
            return testata->logicalIndex(posto);
    return -1;
}

QStringList ColonneScelte::scritte() const
{
    const QHeaderView* testata = mTabella->horizontalHeader();
    const int carattere = mTabella->fontMetrics().averageCharWidth();
    const int ultima = ultimaVista(); // it takes what is left, which nobody chose
    QStringList righe;
    for (int posto = 0; posto < testata->count(); ++posto) {
        const int colonna = testata->logicalIndex(posto);
        const bool vista = !testata->isSectionHidden(colonna);
        const int larghezza =
            vista && colonna != ultima ? testata->sectionSize(colonna) * centesimi / carattere : 0;
        righe << QStringList{titolo(colonna), QString::number(larghezza), vista ? u"1"_s : u"0"_s}.join(tra);
    }
    return righe;
}

QString ColonneScelte::ordine() const
{
    const QHeaderView* testata = mTabella->horizontalHeader();
    return titolo(testata->sortIndicatorSection()) + tra +
           (testata->sortIndicatorOrder() == Qt::AscendingOrder ? crescente : decrescente);
}

/// Nothing when a line is none of ours, or no column would be left to see.
std::optional<std::vector<ColonneScelte::Voce>> ColonneScelte::leggi(const QStringList& scritte) const
{
    std::vector<Voce> voci;
    const auto gia = [&](int colonna) {
        return std::any_of(voci.begin(), voci.end(), [=](const Voce& v) { return v.colonna == colonna; });
    };
    for (const QString& riga : scritte) {
        const QStringList parti = riga.split(tra);
        bool numero = false;
        const int larghezza = parti.value(1).toInt(&numero);
        const bool intera = parti.size() == 3 && numero && larghezza >= 0 && larghezza <= larghezzaMassima &&
                            (parti[2] == u"0"_s || parti[2] == u"1"_s);
        if (!intera)
            return std::nullopt;
        const int colonna = colonnaDi(parti[0]);
        if (colonna < 0) // another version's
            continue;
        if (gia(colonna))
            return std::nullopt;
        voci.push_back({colonna, larghezza, parti[2] == u"1"_s});
    }
    for (int colonna = 0; colonna < mTabella->model()->columnCount() && !voci.empty(); ++colonna)
        if (!gia(colonna))
            voci.push_back({colonna, 0, true});
    if (std::none_of(voci.begin(), voci.end(), [](const Voce& v) { return v.vista; }))
        return std::nullopt;
    return voci;
}

void ColonneScelte::rimetti(const QStringList& scritte, const QString& ordine)
{
    QHeaderView* testata = mTabella->horizontalHeader();
    if (const auto voci = leggi(scritte)) {
        const int carattere = mTabella->fontMetrics().averageCharWidth();
        int posto = 0;
        for (const Voce& voce : *voci) {
            testata->moveSection(testata->visualIndex(voce.colonna), posto++);
            if (voce.larghezza > 0)
                testata->resizeSection(voce.colonna, static_cast<int>(std::lround(double(voce.larghezza) *
                                                                                  carattere / centesimi)));
            testata->setSectionHidden(voce.colonna, !voce.vista);
        }
    }
    const int colonna = colonnaDi(ordine.section(tra, 0, -2));
    const QString verso = ordine.section(tra, -1);
    if (colonna >= 0 && (verso == crescente || verso == decrescente))
        mTabella->sortByColumn(colonna, verso == crescente ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ColonneScelte::ripristina()
{
    QStringList solite;
    for (int colonna = 0; colonna < mTabella->model()->columnCount(); ++colonna)
        solite << QStringList{titolo(colonna), u"0"_s, u"1"_s}.join(tra);
    rimetti(solite, mOrdineSolito);
    mTabella->larghezzeSolite();
}

void ColonneScelte::mostra(int colonna, bool vista)
{
    QHeaderView* testata = mTabella->horizontalHeader();
    // One stays: a list without columns could not be asked for them.
    if (vista || testata->hiddenSectionCount() + 1 < testata->count())
        testata->setSectionHidden(colonna, !vista);
}

void ColonneScelte::riempi(QMenu* menu)
{
    for (int colonna = 0; colonna < mTabella->model()->columnCount(); ++colonna) {
        QAction* voce = menu->addAction(titolo(colonna));
        voce->setCheckable(true);
        voce->setStatusTip(u"Mostra o nasconde la colonna %1"_s.arg(titolo(colonna)));
        const auto segna = [=, this] {
            voce->setChecked(!mTabella->horizontalHeader()->isSectionHidden(colonna));
        };
        segna();
        connect(voce, &QAction::triggered, this, [=, this] {
            mostra(colonna, mTabella->horizontalHeader()->isSectionHidden(colonna));
            segna();
        });
        connect(menu, &QMenu::aboutToShow, voce, segna);
    }
    menu->addSeparator();
    QAction* solite = menu->addAction(u"&Ripristina colonne"_s);
    solite->setObjectName(u"azRipristinaColonne"_s);
    solite->setStatusTip(u"Ordine, larghezza e scelta delle colonne tornano quelli soliti"_s);
    connect(solite, &QAction::triggered, this, &ColonneScelte::ripristina);
    QHeaderView* testata = mTabella->horizontalHeader();
    testata->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(testata, &QWidget::customContextMenuRequested, menu,
            [=](const QPoint& dove) { menu->popup(testata->mapToGlobal(dove)); });
}

} // namespace giacenza::desk
