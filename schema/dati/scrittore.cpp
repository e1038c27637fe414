#include "schema/dati/scrittore.h"

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

constexpr std::size_t righeInsieme = 50;

} // namespace

Scrittore::Scrittore(Connessione& connessione, const Tabella& tabella)
    : mConnessione(connessione), mTabella(tabella),
      mPiena(static_cast<std::size_t>(tabella.colonne.size()) * righeInsieme)
{
    mValori.reserve(mPiena);
}

void Scrittore::aggiungi(const Riga& riga)
{
    mValori.insert(mValori.end(), riga.begin(), riga.end());
    if (mValori.size() < mPiena)
        return;
    if (!mComando)
        mComando.emplace(mConnessione, istruzione(righeInsieme));
    mComando->esegui(mValori);
    mValori.clear();
}

void Scrittore::finisci()
{
    if (mValori.empty())
        return;
    const auto colonne = static_cast<std::size_t>(mTabella.colonne.size());
    Comando(mConnessione, istruzione(mValori.size() / colonne)).esegui(mValori);
    mValori.clear();
}

QString Scrittore::istruzione(std::size_t righe) const
{
    const QString riga = u'(' + QStringList(mTabella.colonne.size(), u"?"_s).join(u", "_s) + u')';
    return u"insert into %1 (%2) values %3"_s.arg(
        mTabella.nome, mTabella.colonne.join(u", "_s),
        QStringList(static_cast<qsizetype>(righe), riga).join(u", "_s));
}

} // namespace giacenza::dimostrazione
