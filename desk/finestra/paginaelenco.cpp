#include "desk/finestra/paginaelenco.h"

#include "desk/finestra/archiviodesk.h"
#include "desk/finestra/colonnecasi.h"
#include "desk/finestra/modellocasi.h"
#include "desk/finestra/tabellacasi.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

/// A list of choices that letters do not turn: they are a scanner's.
class ElencoFermo : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* evento) override { evento->ignore(); }
};

QString testoTotali(const Totali& totali, std::size_t tutte)
{
    const QString quanti =
        static_cast<std::size_t>(totali.casi) == tutte
            ? conteggio(totali.casi)
            : u"%1 di %2"_s.arg(conteggio(totali.casi), conteggio(static_cast<qint64>(tutte)));
    QString testo = u"%1 casi · %2 colli · %3 · %4 a oggi"_s.arg(
        quanti, conteggio(totali.colli), chili(totali.centesimiKg), euro(totali.centesimi));
    if (totali.senzaImporto > 0)
        testo += u", più %1 senza importo"_s.arg(conteggio(totali.senzaImporto));
    return testo;
}

} // namespace

PaginaElenco::PaginaElenco(QWidget* padre)
    : QWidget(padre), mModello(new ModelloCasi(this)), mFiltro(new QLineEdit(this)),
      mTogliFiltro(new QToolButton(this)), mFiliale(new ElencoFermo(this)),
      mTabella(new TabellaCasi(mModello, this)), mTotali(new QLabel(this)), mLettura(new QLabel(this))
{
    setObjectName(u"pagElenco"_s);
    componi();
    connect(mModello, &QAbstractItemModel::modelReset, this, &PaginaElenco::mostraTotali);
    connect(mFiltro, &QLineEdit::textChanged, mModello, &ModelloCasi::setFiltro);
    connect(mFiltro, &QLineEdit::textChanged, this, &PaginaElenco::mostraSeFiltra);
    connect(mTogliFiltro, &QToolButton::clicked, mFiltro, &QLineEdit::clear);
    connect(mFiltro, &QLineEdit::returnPressed, mTabella, [this] {
        mTabella->setFocus();
        if (mModello->rowCount() > 0 && !mTabella->currentIndex().isValid())
            mTabella->mostraRiga(0);
    });
    connect(mFiliale, &QComboBox::currentIndexChanged, this, &PaginaElenco::filialeScelta);
    connect(mTabella, &TabellaDesk::presa, this,
            [this](int riga) { Q_EMIT preso(mModello->riga(riga).caso); });
    mostraTotali();
}

void PaginaElenco::componi()
{
    constexpr int lunghezzaFiltro = 100;
    mFiltro->setObjectName(u"txtFiltro"_s);
    mFiltro->setMaxLength(lunghezzaFiltro);
    mFiltro->setClearButtonEnabled(true);
    mFiltro->setPlaceholderText(u"numero, LDV, nomi, riferimento"_s);
    mTogliFiltro->setObjectName(u"cmdTogliFiltro"_s);
    mTogliFiltro->setText(u"Togli filtro"_s);
    mTogliFiltro->setToolTip(u"Mostra di nuovo tutti i casi (Esc nel filtro)"_s);
    mTogliFiltro->hide();
    mFiliale->setObjectName(u"cmbFiliale"_s);
    mFiliale->addItem(u"Tutte le filiali"_s, QString());
    mFiliale->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mTotali->setObjectName(u"lblTotali"_s);
    mTotali->setProperty("totale", true);
    mLettura->setObjectName(u"lblLettura"_s);
    mLettura->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // They give way in a narrow window, and are whole under the pointer.
    for (QLabel* etichetta : {mTotali, mLettura})
        etichetta->setMinimumWidth(1);

    auto* sopra = new QHBoxLayout;
    const auto etichetta = [&](const QString& testo, QWidget* di) {
        auto* nome = new QLabel(testo, this);
        nome->setBuddy(di);
        sopra->addWidget(nome);
    };
    etichetta(u"Fil&tra"_s, mFiltro);
    sopra->addWidget(mFiltro, 1);
    sopra->addWidget(mTogliFiltro);
    etichetta(u"Fi&liale"_s, mFiliale);
    sopra->addWidget(mFiliale);
    auto* sotto = new QHBoxLayout;
    sotto->addWidget(mTotali, 1);
    sotto->addWidget(mLettura);
    auto* verticale = new QVBoxLayout(this);
    verticale->setContentsMargins(0, 0, 0, 0);
    verticale->addLayout(sopra);
    verticale->addWidget(mTabella, 1);
    verticale->addLayout(sotto);
}

QString PaginaElenco::filiale() const
{
    return mFiliale->currentData().toString();
}

void PaginaElenco::scegliFiliale(const QString& codice)
{
    const QSignalBlocker zitto(mFiliale);
    if (mFiliale->findData(codice) < 0)
        mFiliale->addItem(codice, codice);
    mFiliale->setCurrentIndex(mFiliale->findData(codice));
}

void PaginaElenco::diciGuastoFiliali(const QString& testo, const QString& dettaglio)
{
    mFiliale->setToolTip(dettaglio.isEmpty() ? testo : testo + u'\n' + dettaglio);
    mFiliale->setAccessibleDescription(testo);
}

void PaginaElenco::setFiliali(const std::vector<Filiale>& filiali)
{
    diciGuastoFiliali({});
    QSignalBlocker zitto(mFiliale);
    const QString scelta = filiale();
    while (mFiliale->count() > 1)
        mFiliale->removeItem(1);
    std::vector<Filiale> ordinate = filiali;
    std::sort(ordinate.begin(), ordinate.end(),
              [](const Filiale& una, const Filiale& altra) { return una.codice < altra.codice; });
    for (const Filiale& f : ordinate)
        mFiliale->addItem(f.nome.isEmpty() ? f.codice : u"%1 · %2"_s.arg(f.codice, f.nome), f.codice);
    const int posto = mFiliale->findData(scelta);
    mFiliale->setCurrentIndex(std::max(0, posto));
    zitto.unblock();
    if (posto < 0)
        Q_EMIT filialeScelta();
}

void PaginaElenco::letta()
{
    mLetta = true;
    mostraTotali();
}

void PaginaElenco::setLettura(const QString& testo)
{
    mLettura->setText(testo);
    mLettura->setToolTip(testo);
}

std::vector<Caso> PaginaElenco::marcati() const
{
    std::vector<Caso> casi;
    for (const int riga : mTabella->marcate())
        casi.push_back(mModello->riga(riga).caso);
    return casi;
}

void PaginaElenco::filtra()
{
    mFiltro->setFocus(Qt::ShortcutFocusReason);
    mFiltro->selectAll();
}

/// A filter that hides cases must be seen, also by who did not write it today.
void PaginaElenco::mostraSeFiltra()
{
    mFiltro->setProperty("filtra", !mFiltro->text().isEmpty());
    mTogliFiltro->setVisible(!mFiltro->text().isEmpty());
    mFiltro->style()->unpolish(mFiltro);
    mFiltro->style()->polish(mFiltro);
}

void PaginaElenco::mostraTotali()
{
    const bool noti = mLetta || mModello->tutte() > 0;
    mTotali->setText(noti ? testoTotali(mModello->totali(), mModello->tutte()) : QString());
    mTotali->setToolTip(mTotali->text());
}

} // namespace giacenza::desk
