#include "reports/letters/costibuonfine.h"

#include "reports/letters/reportcondivisi.h"

using namespace Qt::StringLiterals;

namespace giacenza {

void NascondiCostiBuonFine()
{
    report::Sezione& dettaglio = rptBuonFine().sezione(u"Dettaglio_Dettaglio"_s);
    for (const QString& nome :
         {u"corTot"_s, u"lblsosta"_s, u"txtGIGGSO"_s, u"txtGIIMGI"_s, u"lblDossier"_s, u"txtDossier"_s,
          u"lblRiconsegna"_s, u"txtRicons"_s, u"lblTot"_s, u"txtTot"_s})
        dettaglio.controllo(nome).visibile = false;
}

void MostraCostiBuonFine()
{
    rptBuonFine().mostraTutto();
}

} // namespace giacenza
