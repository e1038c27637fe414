#pragma once

#include "reports/engine/caratteri.h"
#include "reports/engine/impaginatore.h"
#include "reports/engine/primitive.h"

namespace giacenza::report {

/// A section filled with values: how high it came out, and what stands where in it.
struct Banda
{
    double altezza = 0;
    std::vector<Primitiva> primitive;
    std::vector<Unito> uniti; ///< what no page break may cross: lines, pictures, headings and their text

    Blocco blocco() const { return {altezza, uniti, false}; }
};

/// What each control of a section shows, in their order: text for labels, fields and barcodes, empty for the
/// rest and for what is hidden.
using TestiSezione = std::vector<QString>;

/// Asks for the texts of a section's visible controls, once each and in their order.
TestiSezione testiDi(const Sezione& sezione, const std::function<QString(const Controllo&)>& testo);

/// Fills a section: breaks and cuts texts, lets fields grow, moves what stands below them and stretches the
/// frames around them.
///
/// logo: shown by picture controls, as large as it fits, at their upper left; null: they stay empty.
/// riduzione: the size of reducible texts, 1 for their own.
Banda componiBanda(const Sezione& sezione, const TestiSezione& testi, const QImage& logo,
                   Misuratore& misuratore, double riduzione = 1);

/// How high a section may become, in mm, and how small its reducible texts may be set for that.
struct Limite
{
    double altezza = 0;
    double riduzione = 1;
};

/// The same for a section that must not be higher than a limit: its reducible texts are set smaller step by
/// step, and when even the smallest size is too high, every text is cut to its field.
Banda componiEntro(Sezione sezione, const TestiSezione& testi, const QImage& logo, Misuratore& misuratore,
                   const Limite& limite);

} // namespace giacenza::report
