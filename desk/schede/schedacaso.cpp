#include "desk/schede/schedacaso.h"

#include "base/orologio.h"
#include "desk/documenti/fascicolo.h"
#include "desk/documenti/salvati.h"
#include "desk/registro/note.h"
#include "desk/schede/modellocronologia.h"
#include "desk/schede/parti.h"
#include "widgets/campotesto.h"

#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace giacenza::schede {

SchedaCaso::SchedaCaso(const Accesso& accesso, const documenti::Carta& carta, QWidget* padre)
    : QWidget(padre), mAccesso(accesso), mCarta(carta)
{
    setObjectName(u"schedaCaso"_s);
    componi();
    permettiNote(false);
    mFascicolo->setEnabled(false);
}

void SchedaCaso::componi()
{
    auto* tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(0, 0, 0, 0);
    mMancanza = scritta(this, u"lblMancanza"_s);
    mMancanza->hide();
    tutto->addWidget(mMancanza);

    mModello = new ModelloCronologia(this);
    mTavola = tavola(this, u"tblCronologia"_s, u"Che cosa è successo, dal più recente"_s);
    mTavola->setModel(mModello);
    mTavola->horizontalHeader()->setSectionResizeMode(ModelloCronologia::quando,
                                                      QHeaderView::ResizeToContents);
    mTavola->horizontalHeader()->setSectionResizeMode(ModelloCronologia::chi, QHeaderView::ResizeToContents);
    mTavola->horizontalHeader()->setSectionResizeMode(ModelloCronologia::che, QHeaderView::Stretch);
    mTavola->horizontalHeader()->setMaximumSectionSize(260);
    mTavola->setWordWrap(false);
    tutto->addWidget(mTavola, 3);

    mTesto = new QPlainTextEdit(this);
    mTesto->setObjectName(u"txtEvento"_s);
    mTesto->setAccessibleName(u"Testo dell'evento scelto"_s);
    mTesto->setReadOnly(true);
    mTesto->setTabChangesFocus(true);
    mTesto->setPlaceholderText(u"Qui sta il testo dell'evento scelto"_s);
    tutto->addWidget(mTesto, 1);
    tutto->addWidget(riquadroNota());

    mStato = scritta(this, u"lblStato"_s);
    tutto->addWidget(mStato);
    auto* fondo = new QHBoxLayout;
    mFascicolo =
        pulsante(this, u"cmdFascicolo"_s, u"&Fascicolo PDF"_s,
                 u"Salva nella cartella dei documenti il caso intero: cronologia, conto, avviso, lettere"_s);
    mApri = new PulsanteApri(this);
    fondo->addWidget(mFascicolo);
    fondo->addWidget(mApri);
    fondo->addStretch();
    tutto->addLayout(fondo);

    connect(mTavola->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &SchedaCaso::mostraTesto);
    connect(mAggiungi, &QPushButton::clicked, this, &SchedaCaso::aggiungi);
    connect(mFascicolo, &QPushButton::clicked, this, &SchedaCaso::stampa);
}

QWidget* SchedaCaso::riquadroNota()
{
    constexpr int righeNota = 3;
    auto* riquadro = new QGroupBox(u"Nuova nota"_s, this);
    auto* griglia = new QGridLayout(riquadro);
    mAutore = new QLineEdit(riquadro);
    mAutore->setObjectName(u"txtAutore"_s);
    mAutore->setAccessibleName(u"Chi scrive la nota"_s);
    mAutore->setMaxLength(registro::lunghezzaAutore);
    mAutore->setText(registro::autoreProposto());
    mNota = new CampoTesto(riquadro);
    mNota->setObjectName(u"txtNota"_s);
    mNota->setAccessibleName(u"Testo della nota"_s);
    mNota->setTabChangesFocus(true);
    mNota->setFixedHeight(mNota->fontMetrics().lineSpacing() * righeNota + 2 * mNota->frameWidth() + 10);
    mAggiungi = pulsante(riquadro, u"cmdAggiungiNota"_s, u"Aggiungi &nota"_s,
                         u"Aggiunge la nota al caso; una nota aggiunta non si cambia più (Ctrl+Invio)"_s);
    mNota->installEventFilter(this);
    auto* chi = new QLabel(u"C&hi scrive"_s, riquadro);
    chi->setBuddy(mAutore);
    auto* che = new QLabel(u"&Testo"_s, riquadro);
    che->setBuddy(mNota);
    griglia->addWidget(chi, 0, 0);
    griglia->addWidget(mAutore, 0, 1);
    griglia->addWidget(mAggiungi, 0, 2);
    griglia->addWidget(che, 1, 0, Qt::AlignTop);
    griglia->addWidget(mNota, 1, 1, 1, 2);
    griglia->setColumnStretch(1, 1);
    return riquadro;
}

/// Enter is a line of the note; with Ctrl it ends the note.
bool SchedaCaso::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (oggetto == mNota && evento->type() == QEvent::KeyPress) {
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        const bool invio = tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter;
        if (invio && tasto->modifiers().testFlag(Qt::ControlModifier)) {
            aggiungi();
            return true;
        }
    }
    return QWidget::eventFilter(oggetto, evento);
}

void SchedaCaso::permettiNote(bool permesse)
{
    for (QWidget* parte :
         {static_cast<QWidget*>(mAutore), static_cast<QWidget*>(mNota), static_cast<QWidget*>(mAggiungi)})
        parte->setEnabled(permesse);
}

void SchedaCaso::mostra(const ChiaveGiacenza& caso)
{
    if (caso.numero != mCaso.numero || caso.anno != mCaso.anno) {
        mCaso = caso;
        mNota->clear(); // it was meant for another case
        mLetta = false;
        mInDubbio.reset();
        mApri->offri({});
        dici({});
    }
    rileggi();
}

void SchedaCaso::rileggi()
{
    if (const QString guasto = leggi(); !guasto.isEmpty())
        dici(guasto);
}

QString SchedaCaso::leggi()
{
    registro::Cronologia letta;
    const QString guasto = provando([&] {
        Connessione connessione;
        connessione.apri(mAccesso);
        letta = registro::leggiCronologia(connessione, mCaso);
    });
    // What was read before stays, and so does what is being written.
    if (!guasto.isEmpty() && mLetta)
        return guasto;
    mLetta = guasto.isEmpty();
    mFascicolo->setEnabled(guasto.isEmpty());
    permettiNote(guasto.isEmpty() && letta.presenza.note);
    const QString mancanza = guasto.isEmpty() ? letta.presenza.mancanza() : QString();
    mMancanza->setText(mancanza);
    mMancanza->setAccessibleName(mancanza);
    mMancanza->setVisible(!mancanza.isEmpty());
    mModello->mostra(std::move(letta.eventi));
    if (mModello->rowCount() > 0)
        mTavola->selectRow(0);
    mostraTesto();
    return guasto;
}

void SchedaCaso::mostraTesto()
{
    const QModelIndex scelta = mTavola->currentIndex();
    if (!scelta.isValid()) {
        mTesto->clear();
        return;
    }
    const registro::Evento& evento = mModello->evento(scelta.row());
    mTesto->setPlainText(evento.testo.isEmpty() ? evento.che : evento.che + u'\n' + evento.testo);
}

/// Those on the screen that say what is written now.
qsizetype SchedaCaso::noteUguali() const
{
    qsizetype quante = 0;
    for (int riga = 0; riga < mModello->rowCount(); ++riga) {
        const registro::Evento& evento = mModello->evento(riga);
        quante +=
            evento.fonte == registro::Fonte::nota && evento.testo == mNota->toPlainText().trimmed() ? 1 : 0;
    }
    return quante;
}

/// Gives why it was not written, in Italian; empty when it was. Where the answer was lost the timeline, read
/// anew, tells.
QString SchedaCaso::scrivi()
{
    const QString nota = mNota->toPlainText().trimmed();
    if (mInDubbio && mInDubbio->testo == nota)
        if (const std::optional<QString> esito = scioglie())
            return *esito;
    mInDubbio.reset();
    bool caduta = false;
    const QString guasto = provando([&] {
        Connessione connessione;
        connessione.apri(mAccesso);
        try {
            registro::aggiungiNota(connessione, mCaso, mAutore->text(), mNota->toPlainText());
        } catch (const ErroreDatabase&) {
            caduta = !connessione.aperta();
            throw;
        }
    });
    if (!caduta)
        return guasto;
    mInDubbio = Dubbio{nota, noteUguali()};
    return scioglie().value_or(guasto);
}

/// Looks whether the note whose answer was lost is there: empty when it is; why nobody can say, in Italian;
/// nothing when it is not there.
std::optional<QString> SchedaCaso::scioglie()
{
    if (const QString guasto = leggi(); !guasto.isEmpty())
        return u"Non si sa se la nota è stata aggiunta: premere ancora Aggiungi nota quando l'archivio "
               "risponde, non la aggiunge due volte. "_s +
               guasto;
    const Dubbio dubbio = *std::exchange(mInDubbio, {});
    return noteUguali() > dubbio.uguali ? std::optional(QString()) : std::nullopt;
}

void SchedaCaso::aggiungi()
{
    if (const QString guasto = scrivi(); !guasto.isEmpty()) {
        dici(guasto);
        mNota->setFocus();
        return;
    }
    mNota->clear();
    const QString nonRiletta = leggi();
    dici(nonRiletta.isEmpty() ? u"Nota aggiunta."_s
                              : u"Nota aggiunta. La cronologia non si rilegge: "_s + nonRiletta);
    Q_EMIT notaAggiunta();
}

void SchedaCaso::stampa()
{
    QString file;
    const QString guasto = provando([&] {
        const auto documento = documenti::fascicolo(mAccesso, mCaso, mCarta, oggi());
        file = documenti::salvaPdf(*documento, documenti::nomeFascicolo(mCaso), mCarta);
    });
    dici(guasto.isEmpty() ? u"Salvato: %1"_s.arg(QDir::toNativeSeparators(file)) : guasto);
    mApri->offri(file);
}

void SchedaCaso::dici(const QString& testo)
{
    mStato->setText(testo);
    mStato->setAccessibleName(testo);
}

} // namespace giacenza::schede
