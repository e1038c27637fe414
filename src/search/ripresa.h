#pragma once

#include "search/colonnericerca.h"

#include <QByteArray>
#include <QHash>

#include <optional>
#include <vector>

namespace giacenza {

/// Goes on in a second reading of a list behind the rows that a first one showed, so that none comes twice
/// and none is missing.
///
/// Rows are known by their key, not counted: between the readings rows come, go and change, and where the
/// order leaves two equal the database may turn them round. Not even the key has to be unique.
class Ripresa
{
public:
    /// The values of a row, nothing for null.
    using Riga = std::vector<std::optional<QByteArray>>;

    /// chiave: where a row has its key.
    explicit Ripresa(PostiScelta chiave) : mChiave(chiave) {}

    /// A row that was shown. Only before the first call of segue().
    void mostrata(Riga riga);

    /// What the next row of the second reading adds to the list: nothing when it was shown, itself when it is
    /// new, and with it or in its place rows of the same key that waited to be told from one that was shown.
    std::vector<Riga> segue(Riga riga);

    /// Every row that was shown has come again: all that follows is new.
    bool finita() const noexcept { return mVoci.isEmpty(); }

private:
    using Chiave = std::pair<QByteArray, QByteArray>;
    struct Voce
    {
        std::vector<Riga> mostrate; // and not come again
        std::vector<Riga> sospese;  // come, but not as they were shown
    };

    Chiave chiaveDi(const Riga& riga) const;

    PostiScelta mChiave;
    QHash<Chiave, Voce> mVoci;
};

} // namespace giacenza
