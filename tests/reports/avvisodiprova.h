#pragma once

#include "reports/casodiprova.h"
#include "reports/letters/rptavviso.h"
#include "reports/pagineprova.h"
#include "support/registromessaggi.h"

#include <gmock/gmock.h>

namespace giacenza::report::prove {

/// The notice of the test's held shipment.
class AvvisoDiProva : public testing::TestWithParam<std::string>
{
protected:
    AvvisoDiProva() { giacenza::prove::aggiungiCaso(mBase); }

    std::unique_ptr<DocumentoReport> componi() { return mAvviso.componi(mRichiesta, mOggi, nullptr); }
    PaginaReport pagina() { return componi()->pagina(0); }

    void esegui(const QString& istruzione) { mBase.esegui(istruzione); }

    giacenza::prove::BancaDati mBase{GetParam()};
    RichiestaDocumento mRichiesta = giacenza::prove::richiestaDelCaso(mBase);
    giacenza::prove::RegistroMessaggi mRegistro;
    RptAvviso mAvviso;
    QDate mOggi{2015, 4, 1};
};

} // namespace giacenza::report::prove
