#include "screens/campofiliale.h"

#include "base/impostazioni.h"
#include "base/parti.h"
#include "data/istruzioni.h"
#include "database/recordset.h"
#include "screens/campi.h"
#include "widgets/tasti.h"

#include <giacenza/RicercaTabella.h>

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace giacenza {

CampoFiliale::CampoFiliale(Schermata& schermata, const Controlli& controlli, bool senzaRiquadri)
    : mSchermata(schermata), mSenzaRiquadri(senzaRiquadri), mCodice(controlli.codice),
      mBarra(controlli.barra), mConAvvertenza(controlli.avvertenza),
      mAvvertenza(controlli.codice, controlli.avvertenza)
{
    suTasto(mCodice, Qt::Key_F12, schermata.gestore([this] { cerca(); }));
    // The name belongs to the code that was there.
    QObject::connect(mCodice, &QLineEdit::textEdited, &schermata, [this] { scrivi(mBarra, {}); });
    // A code half typed is no wrong one yet; a row, or a lookup that clears it, is told at once.
    QObject::connect(mCodice, &QLineEdit::editingFinished, &schermata, [this] { avverti(); });
    const auto senzaDigitare = [this] {
        if (!mCodice->hasFocus() || testo(mCodice).isEmpty())
            avverti();
    };
    QObject::connect(mCodice, &QLineEdit::textChanged, &schermata, senzaDigitare);
    quandoCambiaAvanzo(mCodice, senzaDigitare);
}

void CampoFiliale::leggiFiliali()
{
    if (mConAvvertenza)
        mFiliali.leggi(mSchermata.connessione());
}

void CampoFiliale::avverti()
{
    mAvvertenza.mostra(mFiliali.sconosciuta(testo(mCodice).trimmed()) ? u"filiale sconosciuta"_s : QString());
}

void CampoFiliale::cerca()
{
    const auto ricerca = creaParteDi<RicercaTabella>(QString::fromUtf16(classeRicercaTabella));
    if (!ricerca.parte)
        return mSchermata.stato(ricerca.motivo);
    ricerca.parte->setPercorsoDatabase(impostazioni().percorsoDatabase);
    ricerca.parte->setScelta([this](const QStringList& valori) {
        scrivi(mCodice, valori.value(0));
        scrivi(mBarra, valori.value(1));
    });
    mSchermata.attendi();
    try {
        mSchermata.durante(
            [&] { ricerca.parte->mostra(istruzioni::elencoFiliali(), u"Ricerca Filiale"_s, &mSchermata); });
    } catch (const ErroreDatabase& errore) {
        if (!mSenzaRiquadri)
            throw;
        mSchermata.statoGuasto(errore, u"L'elenco delle filiali non si legge. "_s);
    }
}

std::optional<ErroreDatabase> CampoFiliale::leggiNome()
{
    // Also where the focus waits in the field: nothing was typed there.
    avverti();
    const QString codice = testo(mCodice);
    scrivi(mBarra, {});
    if (codice.isEmpty())
        return {};
    try {
        Recordset filiale;
        filiale.apri(mSchermata.connessione(), istruzioni::descrizioneFiliale(codice));
        if (!filiale.eof())
            scrivi(mBarra, filiale.valore(0).value_or(QString()));
        return {};
    } catch (const ErroreDatabase& errore) {
        return errore;
    }
}

} // namespace giacenza
