#pragma once

#include "reports/engine/banda.h"
#include "reports/engine/documentoreport.h"
#include "reports/engine/riga.h"

#include <QPointer>

class QWidget;

namespace giacenza::report {

/// Seconds since a print began; made anew for each print.
using Cronometro = std::function<int()>;

/// A banded report: its definition, and what it remembers for its lifetime. What a caller hides stays hidden
/// until mostraTutto(), so that the caller need not be the one who prints.
class Report
{
public:
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    virtual ~Report() = default;

    /// A section of the definition, by name without case; throws Errore when there is none.
    Sezione& sezione(const QString& nome) { return mDefinizione.sezione(nome); }
    /// Makes every control of every section visible.
    void mostraTutto();

    /// The periodic notification of a running print: asks the operator, at most once in 20 seconds, whether
    /// to go on. secondi: since the print began. annulla: set to true when the print is to be given up.
    void ProcessingTimeout(int secondi, bool& annulla);
    /// The notification of an error: shows it, with its description. 0, 1 and 2 are no errors. mostra: set to
    /// false, since nothing is left to be shown.
    void Error(int codice, bool& mostra);
    /// The description that Error() shows.
    void setDescrizioneErrore(const QString& descrizione) { mDescrizioneErrore = descrizione; }

    /// What becomes of a field that cannot be formatted.
    enum class Guasti
    {
        mostrati, ///< Error() shows it
        lanciati, ///< for whoever tells it in another way
    };

    /// Reads the rows and lays the report out.
    ///
    /// oggi: the day on which the report is made. padre: over which questions and errors open; may be null.
    /// Nothing when the operator gave the print up, or when a field could not be formatted and was shown.
    /// Throws Errore when the key names no held shipment, ErroreDatabase when the rows cannot be read, and
    /// what a field's formatting throws where guasti says so.
    std::unique_ptr<DocumentoReport> componi(const RichiestaDocumento& richiesta, QDate oggi, QWidget* padre,
                                             Guasti guasti = Guasti::mostrati);

    /// Who counts the seconds; an empty function is the real clock.
    void setCronometro(std::function<Cronometro()> fabbrica) { mFabbricaCronometro = std::move(fabbrica); }

protected:
    explicit Report(Definizione definizione);

    /// The document's title for a held shipment.
    virtual QString titolo(const QString& numero, const QString& anno) const = 0;

    void attaccaFormato(const QString& campo, Formato formato);

private:
    void ricomincia();
    bool prosegue();
    void notifica(int codice, const QString& descrizione);
    void notificaQuesto();

    Definizione mDefinizione;
    QPointer<QWidget> mPadre;
    std::function<Cronometro()> mFabbricaCronometro;
    Cronometro mCronometro;
    int mUltimaDomanda = 0; ///< seconds at which the operator was last asked
    QString mDescrizioneErrore;
};

/// Codes of Error(); the system's own end at 512.
enum CodiceErrore : int
{
    erroreDatabase = 513,
    erroreConversione = 514,
    erroreFormato = 515,
};

} // namespace giacenza::report
