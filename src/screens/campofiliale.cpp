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

CampoFiliale::CampoFiliale(Schermata& schermata, QLineEdit* codice, QLabel* barra)
    : mSchermata(schermata), mCodice(codice), mBarra(barra)
{
    suTasto(codice, Qt::Key_F12, schermata.gestore([this] { cerca(); }));
    // The name belongs to the code that was there.
    QObject::connect(codice, &QLineEdit::textEdited, &schermata, [this] { scrivi(mBarra, {}); });
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
    mSchermata.durante(
        [&] { ricerca.parte->mostra(istruzioni::elencoFiliali(), u"Ricerca Filiale"_s, &mSchermata); });
}

void CampoFiliale::leggiNome()
{
    const QString codice = testo(mCodice);
    if (codice.isEmpty())
        return;
    try {
        Recordset filiale;
        filiale.apri(mSchermata.connessione(), istruzioni::descrizioneFiliale(codice));
        if (!filiale.eof())
            scrivi(mBarra, filiale.valore(0).value_or(QString()));
    } catch (const ErroreDatabase& errore) {
        mSchermata.stato(errore.testo());
    }
}

} // namespace giacenza
