#include "registration/registrazionediprova.h"

#include <QCoreApplication>

namespace giacenza::prove {

void RegistrazioneDiProva::consegna(const QString& ldv, const QString& data, const QString& filiale,
                                    const QString& cliente)
{
    if (!mSchermata)
        apri();
    mSchermata->setProperty("NLettVett", ldv);
    mSchermata->setProperty("DataLdv", data);
    mSchermata->setProperty("Filiale", filiale);
    mSchermata->setProperty("CodiceCliente", cliente);
    QCoreApplication::processEvents();
}

void RegistrazioneDiProva::consegna(const QString& ldv)
{
    consegna(ldv, QStringLiteral("12/11/2026"), QStringLiteral("MI"), QStringLiteral("1001"));
}

} // namespace giacenza::prove
