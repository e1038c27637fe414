#include "search/righelette.h"

#include <lz4.h>
#include <stdexcept>
#include <utility>

namespace giacenza {

namespace {

// A length is written seven bits to a byte, lowest first; the eighth bit tells that more follow. It counts
// from one, since zero is null.
constexpr int bitLunghezza = 7;
constexpr quint32 ancora = 1U << bitLunghezza;

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
        if (!mPagine.empty())
            comprimi(mPagine.back());
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

void RigheLette::comprimi(Pagina& pagina)
{
    if (pagina.byte.isEmpty() || pagina.byte.size() > LZ4_MAX_INPUT_SIZE)
        return;
    const auto quanti = static_cast<int>(pagina.byte.size());
    QByteArray compressi(LZ4_compressBound(quanti), Qt::Uninitialized);
    const int scritti = LZ4_compress_default(pagina.byte.constData(), compressi.data(), quanti,
                                             static_cast<int>(compressi.size()));
    // A copy of its own size: the room was for the worst case.
    pagina.byte = QByteArray(compressi.constData(), scritti);
    pagina.intera = quanti;
}

QByteArray RigheLette::intera(const Pagina& pagina)
{
    QByteArray byte(pagina.intera, Qt::Uninitialized);
    if (LZ4_decompress_safe(pagina.byte.constData(), byte.data(), static_cast<int>(pagina.byte.size()),
                            pagina.intera) != pagina.intera)
        throw std::logic_error("a page of the list is not what was compressed");
    return byte;
}

const QByteArray& RigheLette::byteDi(std::size_t pagina) const
{
    if (mPagine[pagina].intera == 0)
        return mPagine[pagina].byte;
    auto& [ultima, altra] = mAperte;
    if (ultima.byte.isEmpty() || ultima.pagina != pagina) {
        std::swap(ultima, altra);
        if (ultima.byte.isEmpty() || ultima.pagina != pagina)
            ultima = {pagina, intera(mPagine[pagina])};
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
