#include "desk/schede/finestraconto.h"

#include "base/orologio.h"
#include "desk/documenti/contoletto.h"
#include "desk/documenti/foglioconto.h"
#include "desk/documenti/salvati.h"
#include "desk/schede/modelloconto.h"
#include "desk/schede/parti.h"
#include "widgets/campodata.h"
#include "widgets/misuraricordata.h"

#include <QDir>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace giacenza::schede {

FinestraConto::FinestraConto(const Accesso& accesso, const ChiaveGiacenza& caso,
                             const documenti::Carta& carta, QWidget* padre)
    : QDialog(padre), mAccesso(accesso), mCaso(caso), mCarta(carta)
{
    setObjectName(u"finestraConto"_s);
    setWindowTitle(u"Conto della sosta — giacenza %1/%2"_s.arg(caso.numero, QString::number(caso.anno)));
    componi();
    mAlla->imposta(dataBreve(oggi()));
    leggi();
}

void FinestraConto::componi()
{
    auto* tutto = new QVBoxLayout(this);
    mTesta = scritta(this, u"lblTesta"_s);
    mCondizioni = scritta(this, u"lblCondizioni"_s);
    mAvvertenze = scritta(this, u"lblAvvertenze"_s);
    tutto->addWidget(mTesta);
    tutto->addWidget(mCondizioni);
    tutto->addWidget(mAvvertenze);

    auto* riga = new QHBoxLayout;
    mAlla = new CampoData(this);
    mAlla->setObjectName(u"txtAlla"_s);
    mAlla->setAccessibleName(u"Conto alla data"_s);
    mAlla->setMaximumWidth(mAlla->fontMetrics().averageCharWidth() * 18);
    auto* etichetta = new QLabel(u"Conto alla &data"_s, this);
    etichetta->setBuddy(mAlla);
    auto* ricalcola =
        pulsante(this, u"cmdCalcola"_s, u"&Calcola"_s, u"Calcola il conto alla data scritta (Invio)"_s);
    ricalcola->setDefault(true);
    riga->addWidget(etichetta);
    riga->addWidget(mAlla);
    riga->addWidget(ricalcola);
    riga->addStretch();
    tutto->addLayout(riga);

    mModello = new ModelloConto(this);
    QTableView* giorni = tavola(this, u"tblGiorni"_s, u"Giorni di sosta"_s);
    giorni->setModel(mModello);
    giorni->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    giorni->horizontalHeader()->setSectionResizeMode(ModelloConto::genere, QHeaderView::ResizeToContents);
    tutto->addWidget(giorni, 1);
    tutto->addWidget(riquadroTotali());

    mStato = scritta(this, u"lblStato"_s);
    tutto->addWidget(mStato);
    tutto->addLayout(rigaComandi());
    resize(inCaratteri(*this, 104, 38));
    ricordaMisura(*this, u"conto"_s);

    connect(ricalcola, &QPushButton::clicked, this, &FinestraConto::calcola);
}

QLayout* FinestraConto::rigaComandi()
{
    auto* fondo = new QHBoxLayout;
    mSalva = pulsante(this, u"cmdSalvaPdf"_s, u"&Salva PDF"_s,
                      u"Salva nella cartella dei documenti la pagina che va col buon fine"_s);
    mSalvaIntero = pulsante(this, u"cmdSalvaIntero"_s, u"Salva PDF &giorno per giorno"_s,
                            u"Salva nella cartella dei documenti il conto con una riga per ogni giorno"_s);
    auto* chiudi = pulsante(this, u"cmdChiudi"_s, u"C&hiudi"_s, u"Chiude la finestra (Esc)"_s);
    fondo->addWidget(mSalva);
    fondo->addWidget(mSalvaIntero);
    mApri = new PulsanteApri(this);
    fondo->addWidget(mApri);
    fondo->addStretch();
    fondo->addWidget(chiudi);
    connect(mSalva, &QPushButton::clicked, this, [this] { salva(false); });
    connect(mSalvaIntero, &QPushButton::clicked, this, [this] { salva(true); });
    connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
    return fondo;
}

QWidget* FinestraConto::riquadroTotali()
{
    auto* riquadro = new QGroupBox(u"Importi"_s, this);
    auto* griglia = new QGridLayout(riquadro);
    const QStringList righe = {u"Sosta"_s, u"Fisso"_s, u"Totale"_s};
    mCalcolati = scritta(riquadro, u"lblCalcolati"_s);
    mCalcolati->setWordWrap(false);
    griglia->addWidget(mCalcolati, 0, 1, Qt::AlignRight);
    griglia->addWidget(new QLabel(u"Scritti sulla giacenza"_s, riquadro), 0, 2, Qt::AlignRight);
    for (int i = 0; i < 3; ++i) {
        griglia->addWidget(new QLabel(righe[i], riquadro), i + 1, 0);
        for (int colonna = 0; colonna < 2; ++colonna) {
            QLabel*& valore = mTotali[2 * i + colonna];
            valore =
                scritta(riquadro, u"lbl%1%2"_s.arg(righe[i], colonna == 0 ? u"Calcolato"_s : u"Scritto"_s));
            valore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            griglia->addWidget(valore, i + 1, colonna + 1);
        }
    }
    for (int colonna = 0; colonna < 2; ++colonna) {
        QFont forte = mTotali[4 + colonna]->font();
        forte.setBold(true);
        mTotali[4 + colonna]->setFont(forte);
    }
    return riquadro;
}

void FinestraConto::leggi()
{
    mLetto = false;
    const QString guasto = provando([this] {
        Connessione connessione;
        connessione.apri(mAccesso);
        mDati = documenti::leggiDatiConto(connessione, mCaso);
        mLetto = true;
    });
    mSalva->setEnabled(mLetto);
    mSalvaIntero->setEnabled(mLetto);
    if (!mLetto) {
        mTesta->setText(u"La giacenza non si è potuta leggere."_s);
        mAvvertenze->hide();
        dici(guasto);
        return;
    }
    calcola();
}

bool FinestraConto::calcola()
{
    const auto alla = leggiData(mAlla->testo());
    if (!mLetto)
        return false;
    if (!alla) {
        dici(u"La data del conto non è una data."_s);
        mAlla->setFocus();
        return false;
    }
    mConto = documenti::calcolaConto(mDati, *alla);
    dici({});
    mostra();
    return true;
}

void FinestraConto::mostra()
{
    mTesta->setText(
        u"%1 %2 — destinatario %3\nLettera di vettura %4/%5 %6, in giacenza dal %7%8: %9 giorni"_s.arg(
            mDati.cliente, mDati.ragioneSociale,
            mDati.destinatario.isEmpty() ? u"non detto"_s : mDati.destinatario, mDati.ldv.numero,
            QString::number(mDati.ldv.anno), mDati.ldv.filiale,
            mDati.dal ? dataBreve(*mDati.dal) : u"(manca)"_s,
            mDati.buonFine ? u", buon fine del "_s + dataBreve(*mDati.buonFine) : QString(),
            QString::number(mConto.giorni)));
    mCondizioni->setText(u"Condizioni: "_s + documenti::condizioniInParole(mDati.condizioni));
    QStringList avvertenze = mConto.avvertenze;
    if (!mConto.mancante.isEmpty())
        avvertenze.prepend(mConto.mancante);
    mostraAvvertenza(*mAvvertenze, avvertenze.join(u'\n'));
    mModello->mostra(mConto.righe);
    mCalcolati->setText(u"Calcolati al "_s + dataBreve(mConto.alla));

    const auto euro = [](const Valore& importo) {
        return importo && eNumero(*importo) ? valuta(*importo) : u"—"_s;
    };
    const auto& importi = mConto.importi;
    const QString valori[] = {
        importi ? valuta(importi->sosta) : u"manca"_s,  euro(mDati.sostaScritta),
        importi ? valuta(importi->fisso) : u"manca"_s,  euro(mDati.fissoScritto),
        importi ? valuta(importi->totale) : u"manca"_s, euro(documenti::totaleScritto(mDati))};
    for (int i = 0; i < 6; ++i)
        mTotali[i]->setText(valori[i]);
}

void FinestraConto::salva(bool interi)
{
    // The page is of the day that stands in the field, also when nobody asked for its amounts yet.
    mApri->offri({});
    if (!calcola())
        return;
    QString file;
    const QString guasto = provando([&] {
        const auto documento = documenti::documentoConto(mConto, mCarta, oggi(), interi);
        file = documenti::salvaPdf(*documento, documenti::nomeConto(mCaso), mCarta);
    });
    dici(guasto.isEmpty() ? u"Salvato: %1"_s.arg(QDir::toNativeSeparators(file)) : guasto);
    mApri->offri(guasto.isEmpty() ? file : QString());
}

void FinestraConto::dici(const QString& testo)
{
    mStato->setText(testo);
    mStato->setAccessibleName(testo);
}

} // namespace giacenza::schede
