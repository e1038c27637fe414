#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <array>
#include <optional>
#include <vector>

namespace giacenza {

/// Rows of a result, kept once and compactly: for each page of rows one block of UTF-8 bytes, in which every
/// value stands behind its length, and the place where each row begins. All pages but the last are
/// compressed, and the two that were looked at last are kept open: a grid shows no more at a time.
class RigheLette
{
public:
    /// How many rows share a block.
    static constexpr int righePagina = 256;

    void svuota();

    /// Starts a row; its values are then added in the order of the columns.
    void aggiungiRiga();
    void aggiungiValore(std::optional<QByteArrayView> valore);

    int righe() const noexcept { return mRighe; }

    /// A value, nothing for null. riga: 0 to righe() - 1; colonna: one that was added. Valid until the next
    /// call.
    std::optional<QByteArrayView> valore(int riga, int colonna) const;

private:
    struct Pagina
    {
        QByteArray byte;
        int intera = 0; // its size before it was compressed; 0: it is not: the last page, one too large
        std::vector<quint32> inizi;
    };
    struct Aperta
    {
        std::size_t pagina = 0;
        QByteArray byte; // empty: none
    };

    static void comprimi(Pagina& pagina);
    static QByteArray intera(const Pagina& pagina);
    const QByteArray& byteDi(std::size_t pagina) const;

    std::vector<Pagina> mPagine;
    int mRighe = 0;
    mutable std::array<Aperta, 2> mAperte; // the one opened last comes first
};

} // namespace giacenza
