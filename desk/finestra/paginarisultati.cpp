#include "desk/finestra/paginarisultati.h"

#include "database/valori.h"
#include "desk/finestra/tabelladesk.h"
#include "widgets/annuncio.h"

#include <QHeaderView>
#include <QLabel>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

QString cheCosa(const Trovata& t)
{
    if (!t.caso)
        return u"LDV non in giacenza"_s;
    const QString giacenza = u"giacenza %1"_s.arg(nomeGiacenza(*t.caso));
    return t.buonFine.isValid() ? u"%1, chiusa il %2"_s.arg(giacenza, dataBreve(t.buonFine))
                                : giacenza + u", aperta"_s;
}

QString lettera(const Trovata& t)
{
    const QString nome = nomeLdv(t.ldv);
    return t.riconsegna || (t.caso && !t.sua) ? nome + u" (riconsegna)"_s : nome;
}

QList<QStandardItem*> riga(const Trovata& t)
{
    QList<QStandardItem*> celle;
    for (const QString& testo : {cheCosa(t), lettera(t), dataBreve(t.dataLdv),
                                 t.ragioneSociale.isEmpty() ? t.cliente : t.ragioneSociale,
                                 (t.destinatario + u' ' + t.localita).trimmed(), t.riferimento, t.come}) {
        auto* cella = new QStandardItem(testo);
        cella->setEditable(false);
        cella->setToolTip(testo);
        celle << cella;
    }
    return celle;
}

} // namespace

PaginaRisultati::PaginaRisultati(QWidget* padre)
    : QWidget(padre), mTitolo(new QLabel(this)), mTabella(new TabellaDesk(u"Corrispondenze"_s, this)),
      mSuggerimento(new QLabel(this)), mModello(new QStandardItemModel(this))
{
    setObjectName(u"pagRisultati"_s);
    mTitolo->setObjectName(u"lblRisultati"_s);
    mTitolo->setProperty("titolo", true);
    mTitolo->setTextFormat(Qt::PlainText);
    mTabella->setObjectName(u"tabRisultati"_s);
    mTabella->setSelectionMode(QAbstractItemView::SingleSelection);
    mTabella->setModel(mModello);
    mSuggerimento->setObjectName(u"lblSuggerimento"_s);
    mSuggerimento->setWordWrap(true);

    auto* verticale = new QVBoxLayout(this);
    verticale->setContentsMargins(0, 0, 0, 0);
    verticale->addWidget(mTitolo);
    verticale->addWidget(mTabella, 1);
    verticale->addWidget(mSuggerimento);

    connect(mTabella, &TabellaDesk::presa, this,
            [this](int quale) { Q_EMIT scelta(mEsito.trovate.at(static_cast<std::size_t>(quale))); });
    connect(mTabella->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& corrente) { indica(corrente.row()); });
    setFocusProxy(mTabella);
}

void PaginaRisultati::mostra(EsitoRicerca esito)
{
    mCaso.reset(); // of an earlier search: it is read anew, or nothing is done with it
    riempi(std::move(esito));
    mTabella->setCurrentIndex(mModello->index(0, 0));
    annuncia(mTitolo);
}

void PaginaRisultati::rimostra(EsitoRicerca esito)
{
    const Trovata* scelta = corrente();
    const QString prima = scelta ? nomeLdv(scelta->ldv) : QString();
    riempi(std::move(esito));
    const auto stessa = std::find_if(mEsito.trovate.begin(), mEsito.trovate.end(),
                                     [&](const Trovata& t) { return nomeLdv(t.ldv) == prima; });
    const auto posto = stessa == mEsito.trovate.end() ? 0 : stessa - mEsito.trovate.begin();
    mTabella->setCurrentIndex(mModello->index(static_cast<int>(posto), 0));
}

void PaginaRisultati::riempi(EsitoRicerca esito)
{
    mEsito = std::move(esito);
    mModello->clear();
    mSuggerimento->clear();
    mModello->setHorizontalHeaderLabels({u"Che cosa"_s, u"LDV"_s, u"Data"_s, u"Cliente"_s, u"Destinatario"_s,
                                         u"Riferimento"_s, u"Trovata come"_s});
    for (const Trovata& trovata : mEsito.trovate)
        mModello->appendRow(riga(trovata));
    const auto quante = mEsito.trovate.size();
    mTitolo->setText(quante == 1 ? u"%1: una lettera di vettura che non è in giacenza"_s.arg(mEsito.cercato)
                     : mEsito.altre
                         ? u"%1: le prime %2 corrispondenze; ce ne sono altre"_s.arg(mEsito.cercato,
                                                                                     QString::number(quante))
                         : u"%1: %2 corrispondenze"_s.arg(mEsito.cercato, QString::number(quante)));
    mTabella->setMisure({u"giacenza 99999/2026, chiusa il 00/00/0000"_s, u"99999/2026 MI (riconsegna)"_s,
                         u"00/00/0000"_s, u"Ferramenta Lombarda S.r.l."_s, u"Utensileria del Lago Como"_s,
                         u"ORD-0000000"_s});
}

const Trovata* PaginaRisultati::corrente() const
{
    const int quale = mTabella->currentIndex().row();
    return quale < 0 ? nullptr : &mEsito.trovate.at(static_cast<std::size_t>(quale));
}

std::optional<Caso> PaginaRisultati::caso() const
{
    const Trovata* t = corrente();
    return t && t->caso && mCaso && nomeGiacenza(mCaso->chiave) == nomeGiacenza(*t->caso) ? mCaso
                                                                                          : std::nullopt;
}

void PaginaRisultati::setCaso(const Caso& caso)
{
    mCaso = caso;
}

void PaginaRisultati::indica(int quale)
{
    if (quale < 0)
        return mSuggerimento->clear();
    const Trovata& t = mEsito.trovate.at(static_cast<std::size_t>(quale));
    if (t.caso)
        Q_EMIT indicata(*t.caso);
    mSuggerimento->setText(
        t.caso ? u"Invio mostra il caso. Esc torna all'elenco."_s
               : u"Invio registra la giacenza di questa lettera di vettura. Esc torna all'elenco."_s);
}

} // namespace giacenza::desk
