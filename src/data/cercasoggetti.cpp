#include "data/cercasoggetti.h"

namespace giacenza {

void CercaSoggetti::cerca(const Accesso& accesso, const RichiestaSoggetti& richiesta)
{
    mRighe.chiudi();
    const QString istruzione = istruzioni::ricercaSoggetti(richiesta.tabella, richiesta.campo);
    // Between two searches the dialog may have been open for long.
    if (!mConnessione.viva())
        mConnessione.chiudi();
    mConnessione.apri(accesso);
    Valore cercato = richiesta.testo.trimmed();
    if (richiesta.campo == CampoSoggetto::codice) {
        if (!soloCifre(*cercato))
            return;
    } else if (richiesta.campo != CampoSoggetto::partitaIva) {
        cercato = istruzioni::modelloSoggetti(richiesta.testo, richiesta.interna);
    }
    mRighe.apri(mConnessione, istruzione, Recordset::Cursore::soloAvanti, {&cercato, 1});
}

std::vector<Soggetto> CercaSoggetti::leggi(int massimo)
{
    std::vector<Soggetto> letti;
    const auto testo = [this](int colonna) { return mRighe.valore(colonna).value_or(QString()); };
    while (!mRighe.eof() && std::ssize(letti) < massimo) {
        letti.push_back({testo(0), testo(1), testo(2), testo(3)});
        mRighe.successivo();
    }
    return letti;
}

void CercaSoggetti::chiudi() noexcept
{
    ChiudiOggettiDB(&mRighe, &mConnessione, Rilascio::si, Mantieni::no);
}

} // namespace giacenza
