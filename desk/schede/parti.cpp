#include "desk/schede/parti.h"

#include "base/spiegazioni.h"
#include "widgets/attesa.h"

#include <QDesktopServices>
#include <QHeaderView>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace giacenza::schede {

QSize inCaratteri(const QWidget& finestra, int larga, int alta)
{
    const QFontMetrics carattere = finestra.fontMetrics();
    return {carattere.averageCharWidth() * larga, carattere.height() * alta};
}

QPushButton* pulsante(QWidget* padre, const QString& nome, const QString& testo, const QString& aiuto)
{
    auto* nuovo = new QPushButton(testo, padre);
    nuovo->setObjectName(nome);
    nuovo->setToolTip(aiuto);
    nuovo->setAccessibleDescription(aiuto);
    nuovo->setAutoDefault(false);
    return nuovo;
}

QLabel* scritta(QWidget* padre, const QString& nome)
{
    auto* nuova = new QLabel(padre);
    nuova->setObjectName(nome);
    nuova->setWordWrap(true);
    nuova->setTextFormat(Qt::PlainText);
    nuova->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return nuova;
}

QTableView* tavola(QWidget* padre, const QString& nome, const QString& nomeLetto)
{
    auto* nuova = new QTableView(padre);
    nuova->setObjectName(nome);
    nuova->setAccessibleName(nomeLetto);
    nuova->setEditTriggers(QAbstractItemView::NoEditTriggers);
    nuova->setSelectionBehavior(QAbstractItemView::SelectRows);
    nuova->setSelectionMode(QAbstractItemView::SingleSelection);
    nuova->setTabKeyNavigation(false);
    nuova->setAlternatingRowColors(true);
    nuova->setShowGrid(false);
    nuova->verticalHeader()->hide();
    const int altezza = nuova->fontMetrics().height() + 6;
    nuova->verticalHeader()->setMinimumSectionSize(altezza);
    nuova->verticalHeader()->setDefaultSectionSize(altezza);
    nuova->horizontalHeader()->setHighlightSections(false);
    return nuova;
}

void mostraAvvertenza(QLabel& scritta, const QString& testo)
{
    QFont carattere = scritta.font();
    carattere.setBold(true);
    scritta.setFont(carattere);
    scritta.setFrameShape(QFrame::Box);
    scritta.setMargin(4);
    scritta.setText(testo);
    scritta.setAccessibleName(testo);
    scritta.setVisible(!testo.isEmpty());
}

QString provando(const std::function<void()>& azione)
{
    const Attesa attesa;
    try {
        azione();
    } catch (const ErroreDatabase& errore) {
        return spiega(errore);
    } catch (const Errore& errore) {
        return errore.testo();
    }
    return {};
}

PulsanteApri::PulsanteApri(QWidget* padre) : QPushButton(u"&Apri"_s, padre)
{
    setObjectName(u"cmdApri"_s);
    setToolTip(u"Apre il documento appena salvato"_s);
    setAccessibleDescription(toolTip());
    setAutoDefault(false);
    setEnabled(false);
    connect(this, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(mFile)); });
}

void PulsanteApri::offri(const QString& file)
{
    mFile = file;
    setEnabled(!file.isEmpty());
}

} // namespace giacenza::schede
