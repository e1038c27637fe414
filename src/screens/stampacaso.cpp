#include "screens/stampacaso.h"

#include "screens/stampa.h"
#include "widgets/tasti.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace giacenza {

StampaCaso::StampaCaso(Schermata& schermata) : mSchermata(schermata)
{
    suTasto(&schermata, Qt::CTRL | Qt::Key_O, schermata.gestore([this] { apri(); }));
}

void StampaCaso::stampa(TipoDocumento tipo, const ChiaveGiacenza& caso,
                        const std::array<QString, 4>& didascalie, const TestiStampa& testi)
{
    const QString chiave = u"%1_%2"_s.arg(caso.numero).arg(caso.anno);
    EsitoStampa esito;
    mSchermata.attendi();
    mSchermata.durante([&] { esito = stampaDocumento(&mSchermata, tipo, chiave, didascalie); });
    mFile = esito.file;
    if (esito.prodotto)
        return mSchermata.stato(
            testi.prodotto.arg(chiave) +
            (mFile.isEmpty() ? QString() : u" Ctrl+O apre %1"_s.arg(QDir::toNativeSeparators(mFile))));
    const QString rimasto = testi.rimasto.isEmpty() ? testi.nonProdotto : testi.rimasto.arg(chiave);
    mSchermata.stato(rimasto + u' ' + esito.motivo, rimasto + u' ' + esito.parole);
    if (!esito.raccontato)
        mSchermata.messaggio(testi.nonProdotto + u"\n\n"_s + esito.motivo, Stile::avviso);
}

void StampaCaso::apri()
{
    if (mFile.isEmpty())
        return mSchermata.stato(u"Nessun documento da aprire: stamparne uno prima."_s);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(mFile)))
        mSchermata.stato(u"Il documento non si apre: manca un programma per i PDF. È in %1"_s.arg(
            QDir::toNativeSeparators(mFile)));
}

} // namespace giacenza
