// The mapping from a row to the controls of the three screens, with any values in the row.

#include "fuzz/fuzz.h"

#include "screens/spedizione.h"

#include <QRegularExpression>
#include <QSet>

#include <vector>

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

namespace {

/// Keeps which controls were seen to; a date box is given a date or nothing.
class Schermo : public DestinazioneSpedizione
{
public:
    void scrivi(QLatin1String controllo, const QString& testo) override
    {
        mVisti.insert(controllo);
        static const QRegularExpression data(u"^\\d\\d/\\d\\d/\\d{4}$"_s);
        if (controllo == "txtDataLdv"_L1 || controllo == "txtDataGia"_L1 || controllo == "lblDataAvviso"_L1)
            vale(testo.isEmpty() || data.match(testo).hasMatch(), "a date is shown as one");
    }
    void scriviTag(QLatin1String controllo, const QString& testo) override
    {
        mVisti.insert(controllo);
        vale(!testo.isNull(), "a tag that is written is there");
    }
    void seleziona(QLatin1String controllo, int) override { mVisti.insert(controllo); }
    void lascia(QLatin1String controllo) override { mVisti.insert(controllo); }
    void giaInGiacenza(bool) override { mVisti.insert({}); }

    qsizetype visti() const { return mVisti.size(); }

private:
    QSet<QString> mVisti;
};

Connessione& memoria()
{
    static Connessione connessione;
    if (!connessione.aperta())
        connessione.apri({u"DRIVER={SQLite3};Database=:memory:"_s});
    return connessione;
}

/// What a value looks like in a select; any bytes, as SQLite would give them back.
QString valore(Pezzi& pezzi)
{
    const int come = pezzi.numero();
    const QByteArray byte = pezzi.riga();
    if (come % 8 == 0)
        return u"null"_s;
    if (come % 8 == 1)
        return QString::number(qHash(byte) % 100'000) + u".5"_s;
    return u"cast(x'%1' as text)"_s.arg(QString::fromLatin1(byte.left(300).toHex()));
}

void prova(const MappaSpedizione& mappa, const std::vector<QString>& valori)
{
    QStringList colonne;
    QSet<QString> controlli;
    std::size_t i = 0;
    for (const PassoSpedizione& passo : mappa) {
        controlli.insert(QLatin1String(passo.controllo));
        const QString colonna = QString::fromUtf16(passo.colonna);
        if (!colonna.isEmpty())
            colonne << valori[i++ % valori.size()] + u" as "_s + colonna;
    }
    Recordset riga;
    riga.apri(memoria(), u"select "_s + colonne.join(u", "_s));
    PostiSpedizione posti(mappa);
    Schermo schermo;
    CaricaDatiSpedizione(riga, posti, schermo);
    vale(schermo.visti() == controlli.size(), "every control is seen to");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    Pezzi pezzi(byte, quanti);
    const int quale = pezzi.numero();
    std::vector<QString> valori;
    do
        valori.push_back(valore(pezzi));
    while (!pezzi.finiti() && valori.size() < 60);
    if (quale % 3 == 0)
        prova(mappaRegistrazione(), valori);
    else if (quale % 3 == 1)
        prova(mappaGestione(), valori);
    else
        prova(mappaRiconsegna(), valori);
    return 0;
}
