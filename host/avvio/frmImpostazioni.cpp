#include "host/avvio/frmImpostazioni.h"

#include "desk/dati/impostazionidesk.h"

#include "host/avvio/vociimpostazioni.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

/// Room for an address in one line.
constexpr int caratteriInVista = 48;
/// More than any line of a letter holds.
constexpr int caratteriMassimi = 200;

} // namespace

frmImpostazioni::frmImpostazioni(const QString& file, QWidget* padre) : QDialog(padre), mFile(file)
{
    setObjectName(u"frmImpostazioni"_s);
    setWindowTitle(u"Impostazioni"_s);
    componi();
    leggi();
}

void frmImpostazioni::componi()
{
    auto* moduli = new QWidget;
    auto* forma = new QFormLayout(moduli);
    for (std::size_t i = 0; i < vociImpostazioni().size(); ++i) {
        auto* suo = campo(i);
        auto* spiegazione = new QLabel(QString::fromUtf16(vociImpostazioni()[i].significato));
        spiegazione->setWordWrap(true);
        auto* insieme = new QVBoxLayout;
        insieme->setSpacing(1);
        insieme->addWidget(suo->parentWidget() ? suo->parentWidget() : suo);
        insieme->addWidget(spiegazione);
        forma->addRow(QString::fromUtf16(vociImpostazioni()[i].nome), insieme);
    }
    auto* area = new QScrollArea;
    area->setWidget(moduli);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    mEsito = new QLabel;
    mEsito->setObjectName(u"lblEsito"_s);
    mEsito->setWordWrap(true);
    auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(bottoni, &QDialogButtonBox::accepted, this, &frmImpostazioni::accept);
    connect(bottoni, &QDialogButtonBox::rejected, this, &frmImpostazioni::reject);
    auto* verticale = new QVBoxLayout(this);
    verticale->addWidget(area, 1);
    auto* quale = new QLabel(u"File: %1"_s.arg(QDir::toNativeSeparators(mFile)));
    quale->setMinimumWidth(1); // a long path must not widen the window
    quale->setToolTip(QDir::toNativeSeparators(mFile));
    verticale->addWidget(quale);
    verticale->addWidget(mEsito);
    verticale->addWidget(bottoni);
    constexpr int righe = 36;
    constexpr int cornice = 40; // of the window manager
    resize(moduli->sizeHint().width() + caratteriInVista,
           std::min(fontMetrics().height() * righe, screen()->availableSize().height() - cornice));
}

/// The control of an entry; a folder's has its button beside it, in a parent of their own.
QWidget* frmImpostazioni::campo(std::size_t indice)
{
    const VoceImpostazioni& voce = vociImpostazioni()[indice];
    const QString nome = QString::fromUtf16(voce.nome);
    QWidget* campo = nullptr;
    if (voce.genere == VoceImpostazioni::Genere::scelta) {
        auto* elenco = new QComboBox;
        elenco->addItem(u"(come da programma)"_s, QString());
        for (const char16_t* valore : voce.valori)
            elenco->addItem(QString::fromUtf16(valore), QString::fromUtf16(valore));
        campo = elenco;
    } else {
        auto* riga = new QLineEdit;
        riga->setMaxLength(caratteriMassimi);
        riga->setMinimumWidth(riga->fontMetrics().averageCharWidth() * caratteriInVista);
        campo = riga;
        if (voce.genere == VoceImpostazioni::Genere::cartella) {
            auto* accanto = new QHBoxLayout(new QWidget);
            accanto->setContentsMargins({});
            auto* sfoglia = new QPushButton(u"Sfoglia…"_s);
            sfoglia->setAccessibleName(u"Sfoglia: %1"_s.arg(nome));
            sfoglia->setAutoDefault(false);
            connect(sfoglia, &QPushButton::clicked, this, [this, riga, nome] {
                const QString scelta = QFileDialog::getExistingDirectory(this, nome, riga->text());
                if (!scelta.isEmpty())
                    riga->setText(scelta);
            });
            accanto->addWidget(riga, 1);
            accanto->addWidget(sfoglia);
        }
    }
    campo->setObjectName(QString::fromUtf16(voce.chiave));
    campo->setAccessibleName(nome);
    campo->setAccessibleDescription(QString::fromUtf16(voce.significato));
    mCampi.push_back(campo);
    return campo;
}

void frmImpostazioni::leggi()
{
    try {
        const std::vector<QString> valori = leggiImpostazioni(mFile);
        for (std::size_t i = 0; i < mCampi.size(); ++i) {
            if (auto* riga = qobject_cast<QLineEdit*>(mCampi[i])) {
                // What stands in the file may be longer, and is not cut by being shown.
                riga->setMaxLength(std::max(caratteriMassimi, static_cast<int>(valori[i].size())));
                riga->setText(valori[i]);
            }
            auto* elenco = qobject_cast<QComboBox*>(mCampi[i]);
            if (!elenco)
                continue;
            // What stands in the file and is none of ours is kept, and can be seen.
            if (elenco->findData(valori[i], Qt::UserRole, Qt::MatchFixedString) < 0)
                elenco->addItem(valori[i], valori[i]);
            elenco->setCurrentIndex(elenco->findData(valori[i], Qt::UserRole, Qt::MatchFixedString));
        }
    } catch (const std::exception& errore) {
        dici(QString::fromUtf8(errore.what()));
    }
}

QString frmImpostazioni::valore(std::size_t indice) const
{
    if (const auto* elenco = qobject_cast<const QComboBox*>(mCampi[indice]))
        return elenco->currentData().toString();
    return qobject_cast<const QLineEdit*>(mCampi[indice])->text();
}

void frmImpostazioni::accept()
{
    std::vector<QString> valori;
    for (std::size_t i = 0; i < mCampi.size(); ++i) {
        valori.push_back(valore(i));
        const VoceImpostazioni& voce = vociImpostazioni()[i];
        if (voce.genere == VoceImpostazioni::Genere::numero && !valori.back().isEmpty() &&
            !giacenza::desk::leggiGiorniFerma(valori.back())) {
            mCampi[i]->setFocus();
            return dici(u"%1: scrivere un numero di giorni, da 1 a %2."_s.arg(
                QString::fromUtf16(voce.nome), QString::number(giacenza::desk::giorniFermaMassimi)));
        }
    }
    const QString guasto = scriviImpostazioni(mFile, valori);
    if (!guasto.isEmpty())
        return dici(guasto);
    QDialog::accept();
}

void frmImpostazioni::dici(const QString& testo)
{
    mEsito->setText(u"⚠ "_s + testo);
    QAccessibleEvent annuncio(mEsito, QAccessible::Alert);
    QAccessible::updateAccessibility(&annuncio);
}

} // namespace deposito
