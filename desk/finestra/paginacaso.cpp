#include "desk/finestra/paginacaso.h"

#include "database/valori.h"
#include "desk/finestra/aspettodesk.h"
#include "desk/finestra/colonnecasi.h"
#include "desk/finestra/tabelladesk.h"
#include "widgets/annuncio.h"

#include <QGridLayout>
#include <QLabel>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

QString sosta(const RigaCaso& riga, QDate buonFine)
{
    const Caso& caso = riga.caso;
    QString testo = u"dal %1"_s.arg(dataBreve(caso.dal));
    if (buonFine.isValid() || !riga.valutazione.giorni)
        return testo;
    testo += u", %1 giorni"_s.arg(*riga.valutazione.giorni);
    if (const auto franchi = riga.valutazione.franchi)
        testo += *franchi >= 0 ? u", restano %1 giorni franchi"_s.arg(*franchi)
                               : u", %1 giorni in addebito"_s.arg(-*franchi);
    return testo;
}

QString importo(const Catena& catena)
{
    if (catena.buonFine.isValid())
        return u"chiusa"_s;
    const Valutazione& v = catena.riga.valutazione;
    return v.centesimi
               ? u"%1 (quota fissa %2, sosta %3)"_s.arg(euro(*v.centesimi), valuta(v.fisso), valuta(v.sosta))
               : v.senzaImporto;
}

QString scritto(const Catena& catena)
{
    if (catena.importo.isEmpty() && catena.fisso.isEmpty())
        return u"niente"_s;
    const auto quanto = [](const QString& valore) { return valore.isEmpty() ? u"–"_s : valuta(valore); };
    const QString testo = u"quota fissa %1, sosta %2"_s.arg(quanto(catena.fisso), quanto(catena.importo));
    return catena.fattura.isEmpty() ? testo : u"%1; fattura %2"_s.arg(testo, catena.fattura);
}

constexpr const char* nomeVoce = "voce";

/// A value has no name before it for who does not see it: it says its own.
void scrivi(QLabel* valore, const QString& testo)
{
    valore->setText(testo);
    valore->setAccessibleName(u"%1: %2"_s.arg(valore->property(nomeVoce).toString(), testo));
}

} // namespace

PaginaCaso::PaginaCaso(QWidget* padre)
    : QWidget(padre), mTitolo(new QLabel(this)), mStato(new QLabel(this)),
      mPassi(new TabellaDesk(u"Storia del caso"_s, this)), mModello(new QStandardItemModel(this))
{
    setObjectName(u"pagCaso"_s);
    componi();
    connect(mPassi, &TabellaDesk::presa, this, [this](int quale) {
        const Passo& passo = mCatena->passi.at(static_cast<std::size_t>(quale));
        if (passo.file.isEmpty())
            Q_EMIT preso(mCatena->riga.caso);
        else
            Q_EMIT documento(passo.file);
    });
    setFocusProxy(mPassi);
}

QLabel* PaginaCaso::voce(QGridLayout* griglia, int riga, int colonna, const QString& nome)
{
    auto* titolo = new QLabel(nome, this);
    titolo->setProperty("totale", true);
    titolo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* valore = new QLabel(this);
    valore->setTextFormat(Qt::PlainText);
    valore->setWordWrap(true);
    valore->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    valore->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    valore->setFocusPolicy(Qt::StrongFocus); // text that can be marked alone is only clicked on
    valore->setProperty(nomeVoce, nome);
    griglia->addWidget(titolo, riga, 2 * colonna);
    griglia->addWidget(valore, riga, 2 * colonna + 1);
    return valore;
}

void PaginaCaso::componi()
{
    mTitolo->setObjectName(u"lblCaso"_s);
    mTitolo->setProperty("titolo", true);
    mTitolo->setTextFormat(Qt::PlainText);
    mStato->setObjectName(u"lblStatoCaso"_s);
    mStato->setProperty("insegna", true);
    auto* testa = new QHBoxLayout;
    testa->addWidget(mTitolo);
    testa->addWidget(mStato);
    testa->addStretch(1);

    auto* griglia = new QGridLayout;
    constexpr int spazio = 12;
    griglia->setHorizontalSpacing(spazio);
    griglia->setColumnStretch(1, 1);
    griglia->setColumnStretch(3, 1);
    mCliente = voce(griglia, 0, 0, u"Cliente"_s);
    mDestinatario = voce(griglia, 1, 0, u"Destinatario"_s);
    mRiferimento = voce(griglia, 2, 0, u"Riferimento"_s);
    mSosta = voce(griglia, 0, 1, u"In giacenza"_s);
    mImporto = voce(griglia, 1, 1, u"Chiudendo oggi"_s);
    mScritto = voce(griglia, 2, 1, u"Già scritto"_s);
    mMotivo = voce(griglia, 3, 0, u"Motivo"_s);
    // The reason may be long: it has the whole width.
    griglia->removeWidget(mMotivo);
    griglia->addWidget(mMotivo, 3, 1, 1, 3);

    mPassi->setObjectName(u"tabPassi"_s);
    mPassi->setSelectionMode(QAbstractItemView::SingleSelection);
    mPassi->setModel(mModello);
    auto* hint = new QLabel(u"Invio apre un documento, o il caso in gestione. Esc torna all'elenco."_s, this);
    hint->setObjectName(u"lblSuggerimentoCaso"_s);
    hint->setWordWrap(true);
    auto* verticale = new QVBoxLayout(this);
    verticale->setContentsMargins(0, 0, 0, 0);
    verticale->addLayout(testa);
    verticale->addLayout(griglia);
    verticale->addWidget(mPassi, 1);
    verticale->addWidget(hint);
}

void PaginaCaso::mostra(const Catena& catena)
{
    const bool stesso =
        mCatena && nomeGiacenza(mCatena->riga.caso.chiave) == nomeGiacenza(catena.riga.caso.chiave);
    const int prima = stesso ? mPassi->currentIndex().row() : 0;
    mCatena = catena;
    mostraTesta();
    mostraPassi();
    mPassi->setCurrentIndex(mModello->index(std::clamp(prima, 0, std::max(0, mModello->rowCount() - 1)), 0));
    if (!stesso)
        annuncia(mTitolo);
}

void PaginaCaso::mostraTesta()
{
    const Catena& c = *mCatena;
    const Caso& caso = c.riga.caso;
    mTitolo->setText(u"Giacenza %1 · LDV %2"_s.arg(nomeGiacenza(caso.chiave), nomeLdv(caso.ldv)));
    const bool chiusa = c.buonFine.isValid();
    mStato->setText(chiusa ? u"CHIUSA"_s : parole(c.riga.valutazione.stato).toUpper());
    tingi(mStato, chiusa ? QColor() : colore(c.riga.valutazione.stato));
    scrivi(mCliente, u"%1 %2"_s.arg(caso.cliente, caso.ragioneSociale).trimmed());
    scrivi(mDestinatario,
           QStringList{caso.destinatario, caso.localita, caso.provincia}.join(u' ').simplified());
    scrivi(mRiferimento, u"%1 · %2 colli, %3"_s.arg(caso.riferimento.isEmpty() ? u"–"_s : caso.riferimento,
                                                    QString::number(caso.colli),
                                                    chili(inCentesimi(caso.peso).value_or(0))));
    scrivi(mSosta, sosta(c.riga, c.buonFine) + u", filiale "_s + caso.filiale);
    scrivi(mImporto, importo(c));
    scrivi(mScritto, scritto(c));
    constexpr qsizetype massimo = 400;
    scrivi(mMotivo, caso.motivo.size() > massimo ? caso.motivo.left(massimo) + u"…"_s : caso.motivo);
}

void PaginaCaso::mostraPassi()
{
    mModello->clear();
    mModello->setHorizontalHeaderLabels({u"Passo"_s, u"Data"_s, u"Che cosa"_s});
    for (const Passo& passo : mCatena->passi) {
        QList<QStandardItem*> celle;
        const QString rientro = passo.tipo == TipoPasso::documento ? u"    "_s : QString();
        for (const QString& testo : {rientro + parole(passo.tipo), dataBreve(passo.giorno), passo.testo}) {
            auto* cella = new QStandardItem(testo);
            cella->setEditable(false);
            cella->setToolTip(passo.file.isEmpty() ? testo : passo.file);
            celle << cella;
        }
        mModello->appendRow(celle);
    }
    mPassi->setMisure({u"    Documento  "_s, u"00/00/0000"_s});
}

} // namespace giacenza::desk
