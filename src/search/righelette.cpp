#include "search/righelette.h"

#include <utility>

namespace giacenza {

namespace {

// A length is written seven bits to a byte, lowest first; the eighth bit tells that more follow. It counts
// from one, since zero is null.
constexpr int bitLunghezza = 7;
constexpr quint32 ancora = 1U << bitLunghezza;

constexpr int compressioneVeloce = 1;

void scriviLunghezza(QByteArray& byte, quint32 lunghezza)
{
    for (; lunghezza >= ancora; lunghezza >>= bitLunghezza)
        byte.append(static_cast<char>(lunghezza | ancora));
    byte.append(static_cast<char>(lunghezza));
}

quint32 leggiLunghezza(const char*& posto)
{
    quint32 lunghezza = 0;
    for (int bit = 0;; bit += bitLunghezza) {
        const auto parte = static_cast<unsigned char>(*posto++);
        lunghezza |= (parte & (ancora - 1U)) << bit;
        if (parte < ancora)
            return lunghezza;
    }
}

} // namespace

void RigheLette::svuota()
{
    mPagine = {};
    mRighe = 0;
    mAperte = {};
}

void RigheLette::aggiungiRiga()
{
    if (mRighe % righePagina == 0) {
        if (!mPagine.empty()) {
            QByteArray& piena = mPagine.back().byte;
            piena = qCompress(piena, compressioneVeloce);
            piena.squeeze(); // it was given room for the worst case
        }
        mPagine.emplace_back().inizi.reserve(righePagina);
    }
    mPagine.back().inizi.push_back(static_cast<quint32>(mPagine.back().byte.size()));
    ++mRighe;
}

void RigheLette::aggiungiValore(std::optional<QByteArrayView> valore)
{
    QByteArray& byte = mPagine.back().byte;
    scriviLunghezza(byte, valore ? static_cast<quint32>(valore->size()) + 1 : 0);
    if (valore)
        byte.append(*valore);
}

const QByteArray& RigheLette::byteDi(std::size_t pagina) const
{
    if (pagina + 1 == mPagine.size())
        return mPagine[pagina].byte;
    auto& [ultima, altra] = mAperte;
    if (ultima.byte.isEmpty() || ultima.pagina != pagina) {
        std::swap(ultima, altra);
        if (ultima.byte.isEmpty() || ultima.pagina != pagina)
            ultima = {pagina, qUncompress(mPagine[pagina].byte)};
    }
    return ultima.byte;
}

std::optional<QByteArrayView> RigheLette::valore(int riga, int colonna) const
{
    const auto pagina = static_cast<std::size_t>(riga / righePagina);
    const auto nella = static_cast<std::size_t>(riga % righePagina);
    const char* posto = byteDi(pagina).constData() + mPagine[pagina].inizi[nella];
    for (;; --colonna) {
        const quint32 lunghezza = leggiLunghezza(posto);
        if (colonna == 0)
            return lunghezza ? std::optional(QByteArrayView(posto, lunghezza - 1)) : std::nullopt;
        posto += lunghezza ? lunghezza - 1 : 0;
    }
}

} // namespace giacenza
