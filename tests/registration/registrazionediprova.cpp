#include "registration/registrazionediprova.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

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
    consegna(ldv, u"12/11/2026"_s, u"MI"_s, u"1001"_s);
}

} // namespace giacenza::prove
