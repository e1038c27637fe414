#include "screens/stampa.h"

#include "widgets/attesa.h"
#include "widgets/primopiano.h"

#include <QPointer>
#include <QWidget>

namespace giacenza {

namespace {

/// The screen out of the always-on-top state, while a document is made.
class SottoLeAltre
{
public:
    explicit SottoLeAltre(QWidget* schermata) : mSchermata(schermata)
    {
        SempreInPrimoPiano(mSchermata, false);
    }
    SottoLeAltre(const SottoLeAltre&) = delete;
    SottoLeAltre& operator=(const SottoLeAltre&) = delete;
    ~SottoLeAltre()
    {
        if (mSchermata)
            SempreInPrimoPiano(mSchermata, true);
    }

private:
    QPointer<QWidget> mSchermata;
};

} // namespace

EsitoStampa stampaDocumento(QWidget* schermata, TipoDocumento tipo, const QString& chiave,
                            const std::array<QString, 4>& didascalie)
{
    const SottoLeAltre sotto(schermata);
    const Attesa attesa;
    return stampaConModulo(schermata, tipo, chiave, didascalie);
}

} // namespace giacenza
