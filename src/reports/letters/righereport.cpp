#include "reports/letters/righereport.h"

#include "data/istruzionireport.h"
#include "database/recordset.h"

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

void aggiungiColonne(RigaReport& riga, const Recordset& recordset)
{
    for (int i = 0; i < recordset.colonne(); ++i)
        riga.aggiungi(recordset.nomeColonna(i), recordset.valore(i));
}

/// Reads a whole result, each row on top of a copy of base.
std::vector<RigaReport> leggi(Connessione& connessione, const QString& istruzione, const RigaReport& base)
{
    std::vector<RigaReport> righe;
    Recordset recordset;
    for (recordset.apri(connessione, istruzione, Recordset::Cursore::soloAvanti); !recordset.eof();
         recordset.successivo()) {
        righe.push_back(base);
        aggiungiColonne(righe.back(), recordset);
    }
    return righe;
}

} // namespace

ParteChiave separaChiave(const QString& chiave)
{
    const qsizetype dove = chiave.lastIndexOf(u'_');
    if (dove <= 0 || dove == chiave.size() - 1)
        throw Errore(u"La chiave \"%1\" non indica una giacenza."_s.arg(chiave));
    return {chiave.left(dove), chiave.mid(dove + 1)};
}

std::vector<RigaReport> leggiRighe(Connessione& connessione, const QString& chiave)
{
    const ParteChiave parti = separaChiave(chiave);
    const std::vector<RigaReport> giacenze =
        leggi(connessione, istruzioni::giacenzaReport(parti.numero, parti.anno), {});
    if (giacenze.empty())
        throw Errore(u"La giacenza %1 del %2 non c'è."_s.arg(parti.numero, parti.anno));
    std::vector<RigaReport> righe;
    for (const RigaReport& giacenza : giacenze) {
        const std::vector<RigaReport> spedizioni =
            leggi(connessione,
                  istruzioni::spedizioneReport(giacenza.testo(u"GIFILI"_s), giacenza.testo(u"GINRLV"_s),
                                               giacenza.testo(u"GIANLV"_s)),
                  giacenza);
        if (spedizioni.empty())
            righe.push_back(giacenza);
        righe.insert(righe.end(), spedizioni.begin(), spedizioni.end());
    }
    return righe;
}

} // namespace giacenza::report
