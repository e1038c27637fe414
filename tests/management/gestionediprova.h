#pragma once

#include "management/frmGestGia.h"
#include "screens/schermatadiprova.h"

#include <functional>

using namespace Qt::StringLiterals;

class QDialog;

namespace giacenza::prove {

/// The management screen under test. Beside the small depot: line and carrier of every waybill known, the
/// customer's billing terms (fixed fee 7.50, 5 free days, 1.50 a day, at least 15.00), and two open cases of
/// branch MI, 41 of 10/11/2026 on waybill 4711 (never noticed) and 39 of 05/11/2026 on waybill 4712 (noticed
/// three times, last on 20/11/2026).
class GestioneDiProva : public SchermataDiProva
{
protected:
    GestioneDiProva();

    std::unique_ptr<Schermata> crea() const override { return std::make_unique<frmGestGia>(); }

    /// Types number and date, "ddmmyyyy", and presses Enter in the date.
    void richiama(const QString& numero, const QString& data);
    void richiamaMaiAvvisato() { richiama(u"41"_s, u"10112026"_s); }
    void richiamaAvvisato() { richiama(u"39"_s, u"05112026"_s); }
    void richiamaChiuso() { richiama(u"40"_s, u"13112026"_s); }

    /// Does something in the dialog that the next action opens, once it is open.
    void nelDialogo(std::function<void(QDialog& dialogo)> azione);

    /// Clicks what opens the refusal dialog, types the reason there and confirms; with an empty reason
    /// presses Esc. Fails when no dialog came.
    void avvisa(const QString& motivo);
    /// Types the reason into the refusal dialog that is open, and confirms.
    static void confermaRifiuto(const QString& motivo);

    /// Puts a text into a label, as nothing on the screen could.
    void scriviEtichetta(const char* nome, const QString& testo);

    /// The columns of a case, joined by "|".
    QString caso(const QString& colonne, const QString& numero) const;
    /// The same, as it is before and after what a test does to it.
    QString tutto(const QString& numero) const;
};

} // namespace giacenza::prove
