#include "reports/engine/caratteri.h"

#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

/// A little air between lines: what is read in a hurry must not be set solid.
constexpr double interlinea = 1.15;

/// Line ends as the text layout wants them, and blanks for what cannot be shown.
QStringList paragrafi(QString testo)
{
    testo.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    for (QChar& carattere : testo) {
        if (carattere != u'\n' && carattere.category() == QChar::Other_Control)
            carattere = u' ';
    }
    while (!testo.isEmpty() && testo.back().isSpace())
        testo.chop(1);
    return testo.isEmpty() ? QStringList() : testo.split(u'\n');
}

} // namespace

QFont fontDi(const Carattere& carattere)
{
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"DejaVu Sans"_s, u"sans-serif"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    constexpr double mmPerPunto = 25.4 / 72;
    font.setPixelSize(qRound(carattere.punti * mmPerPunto * unitaPerMm));
    font.setBold(carattere.grassetto);
    return font;
}

const Misuratore::Voce& Misuratore::voce(const Carattere& carattere)
{
    const auto trovata = std::ranges::find_if(mVoci, [&](const Voce& v) {
        return qFuzzyCompare(v.carattere.punti, carattere.punti) &&
               v.carattere.grassetto == carattere.grassetto;
    });
    if (trovata != mVoci.end())
        return *trovata;
    const QFont font = fontDi(carattere);
    mVoci.push_back({carattere, font, QFontMetricsF(font)});
    return mVoci.back();
}

double Misuratore::altezzaRiga(const Carattere& carattere)
{
    return voce(carattere).metrica.height() * interlinea / unitaPerMm;
}

double Misuratore::ascendente(const Carattere& carattere)
{
    return voce(carattere).metrica.ascent() / unitaPerMm;
}

std::vector<RigaTesto> Misuratore::righe(const QString& testo, const Carattere& carattere, double larghezza)
{
    const QFont font = voce(carattere).font;
    QTextOption opzioni;
    opzioni.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    std::vector<RigaTesto> righe;
    for (const QString& paragrafo : paragrafi(testo)) {
        if (paragrafo.isEmpty()) {
            righe.push_back({});
            continue;
        }
        QTextLayout impaginazione(paragrafo, font);
        impaginazione.setTextOption(opzioni);
        impaginazione.beginLayout();
        for (QTextLine riga = impaginazione.createLine(); riga.isValid(); riga = impaginazione.createLine()) {
            riga.setLineWidth(larghezza * unitaPerMm);
            QString parte = paragrafo.mid(riga.textStart(), riga.textLength());
            while (!parte.isEmpty() && parte.back().isSpace())
                parte.chop(1);
            righe.push_back({parte, riga.naturalTextWidth() / unitaPerMm});
        }
        impaginazione.endLayout();
    }
    return righe;
}

RigaTesto Misuratore::accorciata(const QString& testo, const Carattere& carattere, double larghezza)
{
    const QFontMetricsF& metrica = voce(carattere).metrica;
    const QString corta = metrica.elidedText(testo + u"…"_s, Qt::ElideRight, larghezza * unitaPerMm);
    return {corta, metrica.horizontalAdvance(corta) / unitaPerMm};
}

} // namespace giacenza::report
