#include "desk/schede/finestraestratti.h"

#include "base/orologio.h"
#include "desk/schede/lavoroestratti.h"
#include "desk/schede/parti.h"
#include "widgets/campodata.h"
#include "widgets/misuraricordata.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::schede {

namespace {

QString nome(const documenti::ClienteAperto& cliente)
{
    return u"%1 %2"_s.arg(cliente.codice, cliente.ragioneSociale).trimmed();
}

} // namespace

FinestraEstratti::FinestraEstratti(const Accesso& accesso, const QString& cliente, QDate da, QDate a,
                                   const documenti::Carta& carta, QWidget* padre)
    : QDialog(padre), mAccesso(accesso), mCarta(carta), mLavoro(new LavoroEstratti(this))
{
    setObjectName(u"finestraEstratti"_s);
    setWindowTitle(u"Estratti delle giacenze"_s);
    componi();
    collegaLavoro();
    mDa->imposta(dataBreve(da));
    mA->imposta(dataBreve(a));
    mCartella->setText(QDir::toNativeSeparators(carta.cartella));
    leggiClienti(cliente);
}

void FinestraEstratti::componi()
{
    auto* tutto = new QVBoxLayout(this);
    mCliente = new QComboBox(this);
    mCliente->setObjectName(u"cmbCliente"_s);
    mCliente->setAccessibleName(u"Cliente"_s);
    auto* etichetta = new QLabel(u"C&liente"_s, this);
    etichetta->setBuddy(mCliente);
    auto* riga = new QHBoxLayout;
    riga->addWidget(etichetta);
    riga->addWidget(mCliente, 1);
    tutto->addLayout(riga);
    tutto->addLayout(rigaPeriodo());
    tutto->addLayout(rigaCartella());

    mAvanzamento = new QProgressBar(this);
    mAvanzamento->setObjectName(u"barAvanzamento"_s);
    mAvanzamento->setAccessibleName(u"Estratti fatti"_s);
    mAvanzamento->setFormat(u"%v di %m"_s);
    mAvanzamento->setRange(0, 1);
    mAvanzamento->setValue(0);
    mEsiti = new QPlainTextEdit(this);
    mEsiti->setObjectName(u"txtEsiti"_s);
    mEsiti->setAccessibleName(u"Esiti, una riga per cliente"_s);
    mEsiti->setReadOnly(true);
    mEsiti->setTabChangesFocus(true);
    mEsiti->setPlaceholderText(u"Qui si legge, cliente per cliente, che cosa è stato salvato"_s);
    mStato = scritta(this, u"lblStato"_s);
    tutto->addWidget(mAvanzamento);
    tutto->addWidget(mEsiti, 1);
    tutto->addWidget(mStato);

    mEsegui =
        pulsante(this, u"cmdEsegui"_s, u"&Esegui"_s, u"Fa gli estratti e li salva nella cartella (Invio)"_s);
    mEsegui->setDefault(true);
    mFerma = pulsante(this, u"cmdFerma"_s, u"&Ferma"_s, u"Si ferma dopo l'estratto in corso (Esc)"_s);
    mFerma->setEnabled(false);
    QPushButton* chiudi = pulsante(this, u"cmdChiudi"_s, u"C&hiudi"_s, u"Chiude la finestra (Esc)"_s);
    auto* fondo = new QHBoxLayout;
    fondo->addWidget(mEsegui);
    fondo->addWidget(mFerma);
    fondo->addStretch();
    fondo->addWidget(chiudi);
    tutto->addLayout(fondo);
    resize(inCaratteri(*this, 104, 31));
    ricordaMisura(*this, u"estratti"_s);
    connect(mEsegui, &QPushButton::clicked, this, &FinestraEstratti::comincia);
    connect(mFerma, &QPushButton::clicked, this, &FinestraEstratti::ferma);
    connect(chiudi, &QPushButton::clicked, this, &FinestraEstratti::reject);
}

void FinestraEstratti::collegaLavoro()
{
    connect(mLavoro, &LavoroEstratti::cominciato, this, [this](const documenti::ClienteAperto& cliente) {
        if (!mFermata)
            dici(u"Estratto di %1…"_s.arg(nome(cliente)));
    });
    connect(mLavoro, &LavoroEstratti::fatto, this, &FinestraEstratti::scriviEsito);
    connect(mLavoro, &LavoroEstratti::finito, this, &FinestraEstratti::finisci);
}

QLayout* FinestraEstratti::rigaPeriodo()
{
    auto* riga = new QHBoxLayout;
    const auto campo = [&](const QString& nome, const QString& testo, const QString& letto) {
        auto* giorno = new CampoData(this);
        giorno->setObjectName(nome);
        giorno->setAccessibleName(letto);
        constexpr int cifreEBordo = 14;
        giorno->setMinimumWidth(giorno->fontMetrics().averageCharWidth() * cifreEBordo);
        auto* etichetta = new QLabel(testo, this);
        etichetta->setBuddy(giorno);
        riga->addWidget(etichetta);
        riga->addWidget(giorno);
        return giorno;
    };
    mDa = campo(u"txtDa"_s, u"&Dal"_s, u"Primo giorno del periodo"_s);
    mA = campo(u"txtA"_s, u"&al"_s, u"Ultimo giorno del periodo"_s);
    riga->addStretch();
    const std::pair<QString, QString> nomi[] = {
        {u"chkPdf"_s, u"&PDF"_s}, {u"chkCsv"_s, u"C&SV"_s}, {u"chkXlsx"_s, u"Foglio di calcolo (&XLSX)"_s}};
    for (std::size_t i = 0; i < std::size(nomi); ++i) {
        mForme[i] = new QCheckBox(nomi[i].second, this);
        mForme[i]->setObjectName(nomi[i].first);
        riga->addWidget(mForme[i]);
    }
    mForme[0]->setChecked(true);
    return riga;
}

QLayout* FinestraEstratti::rigaCartella()
{
    auto* riga = new QHBoxLayout;
    mCartella = new QLineEdit(this);
    mCartella->setObjectName(u"txtCartella"_s);
    mCartella->setAccessibleName(u"Cartella in cui salvare"_s);
    auto* etichetta = new QLabel(u"&Cartella"_s, this);
    etichetta->setBuddy(mCartella);
    QPushButton* sfoglia =
        pulsante(this, u"cmdSfoglia"_s, u"Sfo&glia…"_s, u"Sceglie la cartella in cui salvare"_s);
    riga->addWidget(etichetta);
    riga->addWidget(mCartella, 1);
    riga->addWidget(sfoglia);
    connect(sfoglia, &QPushButton::clicked, this, [this] {
        const QString scelta =
            QFileDialog::getExistingDirectory(this, u"Cartella degli estratti"_s, mCartella->text());
        if (!scelta.isEmpty())
            mCartella->setText(QDir::toNativeSeparators(scelta));
    });
    return riga;
}

void FinestraEstratti::leggiClienti(const QString& cliente)
{
    const QString guasto = provando([this] {
        Connessione connessione;
        connessione.apri(mAccesso);
        mClienti = documenti::clientiConAperte(connessione);
    });
    const auto nostro = [&](const documenti::ClienteAperto& aperto) { return aperto.codice == cliente; };
    // Who has no open case may be asked for all the same.
    if (guasto.isEmpty() && !cliente.isEmpty() && std::none_of(mClienti.begin(), mClienti.end(), nostro))
        mClienti.push_back({cliente, {}, 0});
    mCliente->addItem(u"Tutti i clienti con giacenze aperte (%1)"_s.arg(mClienti.size()));
    for (const documenti::ClienteAperto& aperto : mClienti) {
        mCliente->addItem(u"%1 %2 — aperte: %3"_s.arg(aperto.codice, aperto.ragioneSociale,
                                                      QString::number(aperto.aperte)));
        if (nostro(aperto))
            mCliente->setCurrentIndex(mCliente->count() - 1);
    }
    mEsegui->setEnabled(guasto.isEmpty() && !mClienti.empty());
    dici(!guasto.isEmpty() ? guasto : mClienti.empty() ? u"Non ci sono giacenze aperte."_s : QString());
}

std::vector<documenti::ClienteAperto> FinestraEstratti::scelti() const
{
    const int quale = mCliente->currentIndex();
    if (quale < 1)
        return mClienti;
    return {mClienti.at(static_cast<std::size_t>(quale) - 1)};
}

documenti::Forme FinestraEstratti::forme() const
{
    return {mForme[0]->isChecked(), mForme[1]->isChecked(), mForme[2]->isChecked()};
}

/// Whether what is asked for can be made; says what is missing.
bool FinestraEstratti::completo()
{
    const auto manca = [this](const QString& che, QWidget* dove) {
        dici(che);
        dove->setFocus();
        return false;
    };
    const auto da = leggiData(mDa->testo());
    const auto a = leggiData(mA->testo());
    if (!da || !a || *a < *da)
        return manca(u"Il periodo non va bene: servono due date, la prima non dopo la seconda."_s, mDa);
    if (forme().nessuna())
        return manca(u"Scegliere almeno una forma: PDF, CSV o foglio di calcolo."_s, mForme[0]);
    if (mCartella->text().trimmed().isEmpty())
        return manca(u"Manca la cartella in cui salvare."_s, mCartella);
    return true;
}

void FinestraEstratti::comincia()
{
    if (mLavoro->inCorso() || !completo())
        return;
    const OrdineEstratti ordine{
        mAccesso, scelti(), {{}, *leggiData(mDa->testo()), *leggiData(mA->testo()), oggi()},
        forme(),  mCarta,   QDir::fromNativeSeparators(mCartella->text().trimmed())};
    mFermata = false;
    mTotale = static_cast<int>(ordine.clienti.size());
    mFatti = mFalliti = 0;
    mEsiti->clear();
    mAvanzamento->setRange(0, mTotale);
    mAvanzamento->setValue(0);
    mEsegui->setEnabled(false);
    mFerma->setEnabled(true);
    mFerma->setFocus();
    dici({});
    mLavoro->comincia(ordine);
}

void FinestraEstratti::ferma()
{
    mFermata = true;
    mFerma->setEnabled(false);
    mLavoro->ferma();
    dici(u"Mi fermo dopo l'estratto in corso…"_s);
}

void FinestraEstratti::scriviEsito(const documenti::EsitoEstratto& esito)
{
    ++mFatti;
    mFalliti += esito.guasto.isEmpty() ? 0 : 1;
    mEsiti->appendPlainText(esito.guasto.isEmpty()
                                ? u"%1: giacenze %2, salvati %3"_s.arg(nome(esito.cliente),
                                                                       QString::number(esito.casi),
                                                                       esito.file.join(u", "_s))
                                : u"%1: NON FATTO. %2"_s.arg(nome(esito.cliente), esito.guasto));
    mAvanzamento->setValue(mFatti);
}

void FinestraEstratti::finisci(const QString& guasto)
{
    QString testo = u"Estratti salvati: %1 di %2."_s.arg(mFatti - mFalliti).arg(mTotale);
    if (mFalliti > 0)
        testo += u" Non fatti: %1."_s.arg(mFalliti);
    if (mFatti < mTotale)
        testo += u" Fermato: i clienti che seguono non sono stati guardati."_s;
    mEsegui->setEnabled(true);
    mFerma->setEnabled(false);
    mEsegui->setFocus();
    dici(guasto.isEmpty() ? testo : guasto);
}

void FinestraEstratti::reject()
{
    if (mLavoro->inCorso() && !mFermata)
        ferma();
    else
        QDialog::reject();
}

void FinestraEstratti::dici(const QString& testo)
{
    mStato->setText(testo);
    mStato->setAccessibleName(testo);
}

} // namespace giacenza::schede
