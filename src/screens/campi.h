#pragma once

#include "screens/spedizione.h"

#include <QHash>
#include <QWidget>

#include <functional>

class QLineEdit;

namespace giacenza {

/// What a control of a screen shows, whatever its kind: a line or masked field, a text box, a list, a label.
///
/// A control that was filled from a row and has nothing in the next one keeps showing its old value, dimmed:
/// a left-over of another waybill. Every routine that reads it takes it as empty. Typing in it, or writing
/// it, takes the mark away.

/// The text that counts: empty for a left-over. Line ends are LF.
QString testo(const QWidget* controllo);
/// The text on the screen, a left-over's too.
QString testoMostrato(const QWidget* controllo);
/// Writes the text as the program's own: no left-over, and nothing to leave over.
void scrivi(QWidget* controllo, const QString& testo);
/// Writes what the program itself has to say of the shipment on the screen: a left-over, as a row's, as soon
/// as another shipment has nothing in its place.
void scriviDelCaso(QWidget* controllo, const QString& testo);
/// Makes what the control shows, whoever wrote it, the shipment's on the screen.
void segnaDelCaso(QWidget* controllo);
/// Calls azione, as long as the control lives, whenever it becomes a left-over or stops being one: testo()
/// gives something else then, though what is shown may be the same.
void quandoCambiaAvanzo(QWidget* controllo, std::function<void()> azione);
/// Draws a control anew after one of its properties, on which its looks depend, has changed: with the next
/// turn of the event loop, before it is painted, so that a press does not wait for the style sheet.
void rinnovaAspetto(QWidget* controllo);
bool eAvanzo(const QWidget* controllo);
/// Whether a row gave the control what it shows.
bool eRiempito(const QWidget* controllo);

/// The number of the waybill field: its text if there is one, else the number found, kept in its tag.
QString numeroLdv(const QLineEdit* campo);
/// The number found by the last lookup.
QString tag(const QLineEdit* campo);

/// Fills the controls of a screen, found by object name, from a row. Every control that it may mark is
/// watched for typing from the constructor on.
class CampiSchermata : public QObject, public DestinazioneSpedizione
{
    Q_OBJECT

public:
    /// schermata: the parent of the controls, and of this object; mappa: the columns it will be filled from.
    CampiSchermata(QWidget* schermata, const MappaSpedizione& mappa);

    void scrivi(QLatin1String controllo, const QString& testo) override;
    void scriviTag(QLatin1String controllo, const QString& testo) override;
    void seleziona(QLatin1String controllo, int riga) override;
    void lascia(QLatin1String controllo) override;
    void giaInGiacenza(bool giacente) override;

Q_SIGNALS:
    void giacenzaLetta(bool giacente);

private:
    QWidget* controllo(QLatin1String nome) const;
    void osserva(QWidget* controllo);

    QHash<QLatin1String, QWidget*> mControlli; ///< of the mapping, resolved once
};

} // namespace giacenza
