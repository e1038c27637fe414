#include "ricercatabella.h"

#include "frmRicercaTabella.h"
#include "righetabella.h"

#include <QPointer>

void RicercaTabellaElenco::mostra(const QString& istruzione, const QString& titolo, QWidget* padre)
{
    auto righe = std::make_unique<RigheTabella>(mPercorsoDatabase, istruzione);
    const QPointer<frmRicercaTabella> finestra = new frmRicercaTabella(std::move(righe), titolo, padre);
    finestra->exec();
    if (!finestra)
        return;
    const std::optional<QStringList> presi = finestra->scelta();
    delete finestra.data();
    // A copy: the event may set another one.
    const Scelta scelta = mScelta;
    if (presi && scelta)
        scelta(*presi);
}
