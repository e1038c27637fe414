#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

namespace giacenza {

/// Rows of a result, kept once and compactly: for each page of rows one block of UTF-8 bytes, in which every
/// value stands behind its length, and the place where each row begins.
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
    /// row is added.
    std::optional<QByteArrayView> valore(int riga, int colonna) const;

private:
    struct Pagina
    {
        QByteArray byte;
        std::vector<quint32> inizi;
    };

    std::vector<Pagina> mPagine;
    int mRighe = 0;
};

} // namespace giacenza
