#include "screens/costibuonfine.h"

#include "reports/letters/reportcondivisi.h"

#include <string_view>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

constexpr std::u16string_view riconsegna = u"txtRicons";
constexpr std::u16string_view costi[] = {u"corTot",     u"lblsosta",   u"txtGIGGSO",     u"txtGIIMGI",
                                         u"lblDossier", u"txtDossier", u"lblRiconsegna", riconsegna,
                                         u"lblTot",     u"txtTot"};

} // namespace

void NascondiCostiBuonFine(CostiNascosti quali)
{
    report::Sezione& dettaglio = rptBuonFine().sezione(u"Dettaglio_Dettaglio"_s);
    for (const std::u16string_view nome : costi)
        if (quali == CostiNascosti::tutti || nome != riconsegna)
            dettaglio.controllo(QString::fromUtf16(nome.data(), static_cast<qsizetype>(nome.size())))
                .visibile = false;
}

void MostraCostiBuonFine()
{
    rptBuonFine().mostraTutto();
}

} // namespace giacenza
