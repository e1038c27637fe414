#include "screens/spedizione.h"

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

using enum Conversione;

constexpr auto nessuna = u"";

bool stessaColonna(const char16_t* a, QStringView b)
{
    return QStringView(a).compare(b, Qt::CaseInsensitive) == 0;
}

Conversione conNullVuoto(Conversione conversione)
{
    switch (conversione) {
    case testo:
        return testoOVuoto;
    case importo:
        return importoOVuoto;
    case data:
        return dataOVuota;
    default:
        return conversione;
    }
}

/// The management screen has its own first controls: the waybill is shown, not searched.
MappaSpedizione creaMappaGestione()
{
    MappaSpedizione mappa = mappaRegistrazione();
    const auto inizio = std::next(mappa.begin());
    const auto fine = std::find_if(
        inizio, mappa.end(), [](const PassoSpedizione& p) { return stessaColonna(p.colonna, u"lefili"); });
    const auto dove = mappa.erase(inizio, fine);
    mappa.insert(
        dove,
        {{u"lenrlv", "txtLDV", testo}, {u"leanlv", "txtAnnoLdv", testo}, {u"lerifd", "txtAnnoRif", anno}});
    std::erase_if(mappa,
                  [](const PassoSpedizione& p) { return std::string_view(p.controllo) == "txtDataRif"; });
    return mappa;
}

/// The re-delivery screen empties what a waybill without a held shipment has nothing for.
MappaSpedizione creaMappaRiconsegna()
{
    static constexpr QStringView vuoteSeNull[] = {u"ledest", u"lerico", u"GIDES1", u"GIDTAV",
                                                  u"GIDTBF", u"GINRFA", u"GIDTFA", u"GIIMGI",
                                                  u"GICOFA", u"GIVNRG", u"GIVDTG"};
    MappaSpedizione mappa = mappaRegistrazione();
    for (PassoSpedizione& passo : mappa)
        if (std::ranges::any_of(vuoteSeNull, [&](auto c) { return stessaColonna(passo.colonna, c); }))
            passo.conversione = conNullVuoto(passo.conversione);
    return mappa;
}

/// The databases write a number each in its own way, "120" and "120.00": what is shown is made from its
/// value.
QString comeImporto(QString valore)
{
    FormattaNumero(valore);
    return valore;
}

QString comeQuantita(const QString& valore)
{
    QString cifre = Decimale(valore).testo();
    if (const qsizetype punto = cifre.indexOf(u'.'); punto >= 0) {
        while (cifre.endsWith(u'0'))
            cifre.chop(1);
        if (cifre.endsWith(u'.'))
            cifre.chop(1);
    }
    return cifre.replace(u'.', u',');
}

QDate comeData(const QString& valore)
{
    const auto giorno = leggiGiorno(valore);
    if (!giorno)
        throw ErroreConversione(u"Non è una data: %1"_s.arg(valore));
    return *giorno;
}

void esegui(const PassoSpedizione& passo, const Valore& valore, DestinazioneSpedizione& schermo)
{
    const QLatin1String controllo(passo.controllo);
    switch (passo.conversione) {
    case marca:
        return schermo.giaInGiacenza(valore && eNumero(*valore));
    case svuota:
        return schermo.scrivi(controllo, {});
    case testoOVuoto:
        return schermo.scrivi(controllo, valore.value_or(QString()));
    case importoOVuoto:
        return schermo.scrivi(controllo, valore ? comeImporto(*valore) : QString());
    case dataOVuota:
        return schermo.scrivi(controllo, valore ? dataBreve(comeData(*valore)) : QString());
    case dataSvuotata: {
        const auto giorno = valore ? leggiGiorno(*valore) : std::nullopt;
        return schermo.scrivi(controllo, giorno ? dataBreve(*giorno) : QString());
    }
    default:
        break;
    }
    if (!valore)
        return schermo.lascia(controllo);
    switch (passo.conversione) {
    case tag:
        return schermo.scriviTag(controllo, *valore);
    case importo:
        return schermo.scrivi(controllo, comeImporto(*valore));
    case quantita:
        return schermo.scrivi(controllo, comeQuantita(*valore));
    case data:
        return schermo.scrivi(controllo, dataBreve(comeData(*valore)));
    case anno:
        return schermo.scrivi(controllo, QString::number(comeData(*valore).year()));
    case posizione:
        return schermo.seleziona(controllo, intero16(*valore) - 1);
    default:
        return schermo.scrivi(controllo, *valore);
    }
}

} // namespace

const MappaSpedizione& mappaRegistrazione()
{
    static const MappaSpedizione mappa = {
        {u"GINRLV", "", marca},
        {u"ledtlv", "lblDataLav", data},
        {nessuna, "txtLDV", svuota},
        {u"lenrlv", "txtLDV", tag},
        {u"ledtlv", "txtDataLdv", dataSvuotata},
        {u"lefili", "txtFilSped", testo},
        {u"lefili", "txtFiliale", testo},
        {u"filiale", "barFilSped", testo},
        {u"ledest", "txtDestinatario", testo},
        {u"leindd", "txtIndDestinatario", testoOVuoto},
        {u"lecapd", "txtCapDestinatario", testoOVuoto},
        {u"lelocd", "txtLocalitaDest", testoOVuoto},
        {u"leprod", "txtProvDest", testo},
        {u"lerico", "txtRiconsegna", testo},
        {u"lecdve", "txtVettore", testo},
        {u"vettore", "barVettore", testo},
        {u"lelin1", "txtLinea", testo},
        {u"linea", "barLineaCli", testo},
        {u"lenatu", "cmbNaturaMerce", testo},
        {u"lerife", "txtRifMitt", testo},
        {u"lerife", "txtRiferimento", testo},
        {u"lerifd", "txtDataRifMitt", data},
        {u"lerifd", "txtDataRif", dataSvuotata},
        {u"leport", "cmbPorto", posizione},
        {u"lecoll", "txtColli", quantita},
        {u"lepeso", "txtPesoKg", quantita},
        {u"levolu", "txtVolume", quantita},
        {u"lecnss", "txtContrassegno", importo},
        {u"leanpc", "txtAnticipo", importo},
        {u"lenote", "txtNoteLdv", testo},
        {u"levame", "txtValMerce", importo},
        {u"GIDES1", "txtDescGia", testo},
        {u"GIFIGI", "txtFilialeGia", testo},
        {u"GIDTAV", "lblDataAvviso", data},
        {u"GIDTBF", "lblDataBuonFine", data},
        {u"GINRGI", "lblNrGia", testo},
        {u"GIDTGI", "txtDataGia", data},
        {u"GINRFA", "lblFattura", testo},
        {u"GIDTFA", "txtDataFatt", data},
        {u"GIIMGI", "txtImponibile", importo},
        {u"GICOFA", "txtCodFatt", testo},
        {u"GIVNRG", "txtGiaOld", testo},
        {u"GIVDTG", "txtDataGiaOld", data},
    };
    return mappa;
}

const MappaSpedizione& mappaGestione()
{
    static const MappaSpedizione mappa = creaMappaGestione();
    return mappa;
}

const MappaSpedizione& mappaRiconsegna()
{
    static const MappaSpedizione mappa = creaMappaRiconsegna();
    return mappa;
}

const std::vector<int>& PostiSpedizione::in(const Recordset& riga)
{
    if (valgono(riga))
        return mPosti;
    mPosti.clear();
    for (const PassoSpedizione& passo : mMappa)
        mPosti.push_back(*passo.colonna == 0 ? -1 : riga.indice(QString::fromUtf16(passo.colonna)));
    mColonne = riga.colonne();
    return mPosti;
}

bool PostiSpedizione::valgono(const Recordset& riga) const
{
    if (mColonne != riga.colonne())
        return false;
    for (std::size_t i = 0; i < mPosti.size(); ++i) {
        const char16_t* colonna = mMappa[i].colonna;
        if (*colonna != 0 && (mPosti[i] < 0 || !stessaColonna(colonna, riga.nomeColonna(mPosti[i]))))
            return false;
    }
    return true;
}

void CaricaDatiSpedizione(const Recordset& riga, PostiSpedizione& posti, DestinazioneSpedizione& schermo)
{
    const std::vector<int>& dove = posti.in(riga);
    for (std::size_t i = 0; i < dove.size(); ++i) {
        const PassoSpedizione& passo = posti.mappa()[i];
        try {
            if (*passo.colonna != 0 && dove[i] < 0)
                schermo.lascia(QLatin1String(passo.controllo));
            else
                esegui(passo, dove[i] < 0 ? Valore() : riga.valore(dove[i]), schermo);
        } catch (const Errore&) {
            schermo.lascia(QLatin1String(passo.controllo));
        }
    }
}

} // namespace giacenza
