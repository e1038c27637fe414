#include "database/nuovariga.h"

#include "database/collegamento.h"
#include "database/istruzioneodbc.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

/// Only prepared and described: running the select would read the whole table on one database, and on the
/// other take a snapshot that a write of the same transaction could no longer leave.
NuovaRiga::NuovaRiga(Connessione& connessione, const QString& tabella)
    : mCollegamento(connessione.collegamento()), mTabella(tabella), mIstruzione(u"select * from "_s + tabella)
{
    odbc::Istruzione descrizione(mCollegamento);
    mCollegamento->esegui(EventoDati::istruzione, mIstruzione, [&] {
        descrizione.prepara(mIstruzione);
        std::vector<QString> nomi;
        for (odbc::Colonna& colonna : descrizione.colonne()) {
            nomi.push_back(std::move(colonna.nome));
            mLarghezze.push_back(colonna.larghezza);
        }
        mColonne = NomiColonne(std::move(nomi));
    });
}

qsizetype NuovaRiga::trova(const QString& colonna) const
{
    const qsizetype posto = mColonne.posto(colonna);
    if (posto < 0)
        throw ErroreDatabase(u"42S22"_s, 0, u"La colonna \"%1\" non esiste."_s.arg(colonna), mIstruzione);
    return posto;
}

qint64 NuovaRiga::larghezza(const QString& colonna) const
{
    return mLarghezze[static_cast<std::size_t>(trova(colonna))];
}

void NuovaRiga::imposta(const QString& colonna, const Valore& valore)
{
    const qsizetype posto = trova(colonna);
    const auto gia = std::find_if(mImpostati.begin(), mImpostati.end(),
                                  [posto](const auto& impostata) { return impostata.first == posto; });
    if (gia == mImpostati.end())
        mImpostati.emplace_back(posto, valore);
    else
        gia->second = valore;
}

void NuovaRiga::aggiungi()
{
    if (mImpostati.empty())
        throw ErroreDatabase(u"HY010"_s, 0, u"Non c'è una nuova riga da scrivere."_s, mIstruzione);
    QStringList colonne;
    QStringList segni;
    std::vector<Valore> valori;
    for (const auto& [colonna, valore] : mImpostati) {
        colonne += mColonne[colonna];
        segni += u"?"_s;
        valori.push_back(valore);
    }
    odbc::Istruzione inserimento(mCollegamento);
    inserimento.eseguiConValori(
        u"insert into %1 (%2) values (%3)"_s.arg(mTabella, colonne.join(u", "_s), segni.join(u", "_s)),
        valori);
    mImpostati.clear();
}

} // namespace giacenza
