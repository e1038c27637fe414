#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <optional>

namespace giacenza::prove {

/// A disk of a test's own that can be really full and really read-only: a file system in memory. The program
/// has to run under in-privato. While it lives, temporary files and folders are made there.
class DiscoPiccolo
{
public:
    /// Bytes of a page, the unit in which the space of this disk is given.
    static constexpr qint64 pagina = 4096;

    /// Throws std::runtime_error, with what to do, where a disk cannot be mounted.
    explicit DiscoPiccolo(qint64 pagine);
    DiscoPiccolo(const DiscoPiccolo&) = delete;
    DiscoPiccolo& operator=(const DiscoPiccolo&) = delete;
    ~DiscoPiccolo();

    QString percorso() const { return mPosto.path(); }

    /// Fills it but for some pages. Throws when less than these are free.
    void riempi(qint64 libere = 0);
    /// Takes away what riempi() put there.
    void libera();

    /// Refuses all writing, or allows it again. Throws when a file is still open for writing.
    void setSolaLettura(bool sola);

private:
    QTemporaryDir mPosto;
    std::optional<QByteArray> mTemporaneiPrima;
};

} // namespace giacenza::prove
