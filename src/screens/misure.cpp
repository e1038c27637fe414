#include "screens/misure.h"

#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

constexpr char16_t giorno[] = u"gg/mm/aaaa"; // the hint of an empty field, wider than any date
constexpr char16_t importo[] = u"-9999999999,99";
constexpr char16_t codice[] = u"ABCDE01234";
constexpr char16_t numero[] = u"00000000000000000000";
constexpr char16_t riferimento[] = u"ORDINE 2026/000123456789 RIF. 2026-000123456789 DEL 01/01/26";
constexpr char16_t spedizione[] = u"00000000000000000000 del 00/00/0000";

/// How much larger than the screen's font the number of the held shipment is.
constexpr qreal risalto = 1.15;

/// What a line field needs around its text: its frame, its margins, the cursor at the end.
int larghezzaRiga(const QLineEdit* riga, const QString& testo)
{
    constexpr int margine = 2; // the field's own, on either side; Qt gives it no name
    QStyleOptionFrame opzione;
    opzione.initFrom(riga);
    opzione.lineWidth = riga->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opzione, riga);
    opzione.state |= QStyle::State_Sunken;
    const QMargins suoi = riga->textMargins();
    const int dentro = riga->fontMetrics().horizontalAdvance(testo) + 2 * margine + suoi.left() +
                       suoi.right() + riga->style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, riga);
    return riga->style()
        ->sizeFromContents(QStyle::CT_LineEdit, &opzione, {dentro, riga->fontMetrics().height()}, riga)
        .width();
}

/// The same of a label, whose padding only the style sheet knows: what its hint has over its text.
int larghezzaEtichetta(QLabel* etichetta, const QString& testo)
{
    etichetta->setMinimumWidth(0); // its hint is never less, and it may have been measured before
    const QFontMetrics metrica = etichetta->fontMetrics();
    const int intorno = etichetta->sizeHint().width() - metrica.horizontalAdvance(etichetta->text());
    return metrica.horizontalAdvance(testo) + qMax(intorno, 0) + metrica.averageCharWidth();
}

void larghezza(QWidget* controllo, int quanto, bool largo)
{
    controllo->setMinimumWidth(quanto);
    controllo->setMaximumWidth(largo ? QWIDGETSIZE_MAX : quanto);
}

} // namespace

const std::vector<MisuraCampo>& misureCampi()
{
    static const std::vector<MisuraCampo> misure = {
        {"txtCodiceCli", u"2147483647", false},
        {"txtFiliale", codice, false},
        {"txtLDV", numero, false},
        {"txtAnnoLdv", u"0000", false},
        {"txtDataLdv", giorno, false},
        {"txtRiferimento", riferimento, true},
        {"txtAnnoRif", u"0000", false},
        {"txtDataRif", giorno, false},
        {"txtNGiace", numero, false},
        {"txtDataGiace", giorno, false},
        {"barLdv", spedizione, true},
        {"txtFilSped", codice, false},
        {"txtCapDestinatario", codice, false},
        {"txtProvDest", u"MM", false},
        {"txtVettore", codice, false},
        {"txtLinea", codice, false},
        {"txtRifMitt", riferimento, true},
        {"txtDataRifMitt", giorno, false},
        {"txtRiconsegna", u"R", false},
        {"txtColli", u"2147483647", true},
        {"txtPesoKg", importo, true},
        {"txtVolume", u"-999999999,999", true},
        {"txtContrassegno", importo, true},
        {"txtAnticipo", importo, true},
        {"txtValMerce", importo, true},
        {"lblNrGia", numero, false},
        {"txtDataGia", giorno, false},
        {"lblDataLav", giorno, false},
        {"barGiorniSosta", u"-999999", false},
        {"txtFilialeGia", codice, false},
        {"txtGiaOld", numero, false},
        {"txtDataGiaOld", giorno, false},
        {"lblDataAvviso", giorno, false},
        {"lblDataBuonFine", giorno, false},
        {"txtImponibile", importo, false},
        {"lblFattura", numero, false},
        {"txtDataFatt", giorno, false},
        {"txtCodFatt", codice, false},
    };
    return misure;
}

void misuraCampi(QWidget* schermata)
{
    if (auto* numeroCaso = schermata->findChild<QLabel*>(u"lblNrGia"_s)) {
        QFont grande = schermata->font();
        grande.setPointSizeF(grande.pointSizeF() * risalto);
        grande.setBold(true);
        numeroCaso->setFont(grande);
    }
    for (const MisuraCampo& misura : misureCampi()) {
        auto* controllo = schermata->findChild<QWidget*>(QLatin1String(misura.controllo));
        if (!controllo)
            continue; // each screen has its own
        controllo->ensurePolished();
        const QString testo = QString::fromUtf16(misura.piuLungo);
        if (const auto* riga = qobject_cast<QLineEdit*>(controllo))
            larghezza(controllo, larghezzaRiga(riga, testo), misura.largo);
        else if (auto* etichetta = qobject_cast<QLabel*>(controllo))
            larghezza(controllo, larghezzaEtichetta(etichetta, testo), misura.largo);
    }
}

} // namespace giacenza
