#include "base/messaggi.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QWindow>

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

PortaMessaggi portaImposta;

// A style number is an icon's number plus, for a question, four.
constexpr int bitDomanda = 4;

bool eDomanda(Stile stile)
{
    return (static_cast<int>(stile) & bitDomanda) != 0;
}

QMessageBox::Icon icona(Stile stile)
{
    switch (static_cast<Stile>(static_cast<int>(stile) & ~bitDomanda)) {
    case Stile::critico:
        return QMessageBox::Critical;
    case Stile::avviso:
        return QMessageBox::Warning;
    default:
        return QMessageBox::Information;
    }
}

// A box is as tall as its text and breaks no word: beyond these bounds its buttons would leave the display.
bool fuoriMisura(const QString& testo)
{
    static const QRegularExpression parolaLunga(u"\\S{70}"_s);
    return testo.size() > 1200 || testo.count(u'\n') > 20 || testo.contains(parolaLunga);
}

void mostraScorrevole(QMessageBox& scatola)
{
    auto* griglia = qobject_cast<QGridLayout*>(scatola.layout());
    auto* etichetta = scatola.findChild<QLabel*>(u"qt_msgbox_label"_s);
    const int indice = griglia && etichetta ? griglia->indexOf(etichetta) : -1;
    if (indice < 0)
        return;
    int riga = 0, colonna = 0, righe = 0, colonne = 0;
    griglia->getItemPosition(indice, &riga, &colonna, &righe, &colonne);
    auto* testo = new QPlainTextEdit(scatola.text(), &scatola);
    testo->setObjectName(u"txtMessaggio"_s);
    testo->setReadOnly(true);
    testo->setTabChangesFocus(true);
    testo->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QFontMetrics misure(testo->font());
    testo->setMinimumSize(misure.averageCharWidth() * 70, misure.lineSpacing() * 12);
    griglia->removeWidget(etichetta);
    etichetta->hide();
    griglia->addWidget(testo, riga, colonna, righe, colonne);
    scatola.defaultButton()->setFocus();
}

bool sempreInPrimoPiano(const QWidget* padre)
{
    const QWidget* finestra = padre ? padre->window() : nullptr;
    if (!finestra)
        return false;
    const QWindow* nativa = finestra->windowHandle();
    const Qt::WindowFlags segni = nativa ? nativa->flags() : finestra->windowFlags();
    return segni.testFlag(Qt::WindowStaysOnTopHint);
}

QAbstractButton* aggiungiBottone(QMessageBox& scatola, const QString& testo,
                                 QMessageBox::StandardButton quale)
{
    QPushButton* bottone = scatola.addButton(quale);
    bottone->setText(testo);
    bottone->setIcon({});
    return bottone;
}

Risposta mostraScatola(QWidget* padre, const Messaggio& messaggio)
{
    // The screen may be destroyed while the box is open, and takes the box with it.
    const QPointer<QMessageBox> scatola =
        new QMessageBox(icona(messaggio.stile), messaggio.titolo, {}, QMessageBox::NoButton, padre);
    scatola->setTextFormat(Qt::PlainText);
    scatola->setText(messaggio.testo);
    scatola->setTextInteractionFlags(Qt::TextSelectableByMouse);
    scatola->setAttribute(Qt::WA_QuitOnClose, false);
    scatola->setWindowModality(padre ? Qt::WindowModal : Qt::ApplicationModal);
    if (sempreInPrimoPiano(padre))
        scatola->setWindowFlag(Qt::WindowStaysOnTopHint, true);

    QAbstractButton* si = nullptr;
    if (eDomanda(messaggio.stile)) {
        si = aggiungiBottone(*scatola, u"Sì"_s, QMessageBox::Yes);
        scatola->setEscapeButton(aggiungiBottone(*scatola, u"No"_s, QMessageBox::No));
        scatola->setDefaultButton(QMessageBox::Yes);
    } else {
        scatola->setEscapeButton(aggiungiBottone(*scatola, u"OK"_s, QMessageBox::Ok));
        scatola->setDefaultButton(QMessageBox::Ok);
    }
    if (fuoriMisura(messaggio.testo))
        mostraScorrevole(*scatola);

    scatola->exec();
    const bool premutoSi = scatola && si && scatola->clickedButton() == si;
    delete scatola.data();
    if (!eDomanda(messaggio.stile))
        return Risposta::ok;
    return premutoSi ? Risposta::si : Risposta::no;
}

} // namespace

QString titoloGestione()
{
    return u"Gestione Trasporti"_s;
}

QString titoloApplicazione()
{
    return QGuiApplication::applicationDisplayName();
}

Risposta mostraMessaggio(QWidget* padre, const Messaggio& messaggio)
{
    // A copy: what stands in for the box may change the stand-in.
    if (const PortaMessaggi porta = portaImposta)
        return porta(padre, messaggio);
    return mostraScatola(padre, messaggio);
}

PortaMessaggi impostaPortaMessaggi(PortaMessaggi porta)
{
    return std::exchange(portaImposta, std::move(porta));
}

} // namespace giacenza
