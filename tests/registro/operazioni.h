#pragma once

#include "schema/registro.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// Who is at work on a database that knows no users.
inline const QString addetto = u"Bianchi"_s;

/// Registers 4711 as the case 42, through the component's own routine.
void registra(const BancaDati& base);

/// Everything that the component does to a case, through its own routines: registers 4711, notices it three
/// times (one of them on the same day), closes it, closes it again, charges it, issues a waybill for it.
void faiTutto(const BancaDati& base);

/// What is in the tables of the component.
QList<QList<QStringList>> contenuto(const BancaDati& base);

/// Who, case, waybill, what, before and after, of each row of the register.
QList<QStringList> registrati(const BancaDati& base);

/// A small depot, with the register where it is asked for.
class ConRegistro : public testing::TestWithParam<std::string>
{
protected:
    ConRegistro()
    {
        qputenv("GIACENZA_UTENTE", addetto.toUtf8());
        riempiDeposito(mBase);
        preparaRegistro(mBase.accessoAmministratore());
    }
    ~ConRegistro() override { qunsetenv("GIACENZA_UTENTE"); }

    bool mariadb() const { return GetParam() == "mariadb"; }

    const BancaDati mBase{GetParam()};
};

} // namespace giacenza::prove
