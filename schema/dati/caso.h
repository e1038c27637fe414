#pragma once

#include <QtGlobal>

#include <random>

namespace giacenza::dimostrazione {

/// Chance that is the same on every machine: a topic and a position always give the same sequence. The
/// standard fixes what the engine gives, but not what its distributions make of it, hence the remainder.
class Caso
{
public:
    enum Tema : quint64
    {
        cliente = 1,
        condizioni,
        fornitore,
        spedizione,
        evento
    };

    Caso(Tema tema, qsizetype posizione)
        : mMotore((static_cast<quint64>(tema) << 40) + static_cast<quint64>(posizione))
    {}

    /// A whole number from minimo to massimo, both included.
    int tra(int minimo, int massimo)
    {
        return minimo + static_cast<int>(mMotore() % static_cast<quint64>(massimo - minimo + 1));
    }

    /// True p times in a hundred.
    bool percento(int p) { return tra(1, 100) <= p; }

    /// One of the elements.
    template<class Elenco>
    const auto& uno(const Elenco& elenco)
    {
        return elenco[static_cast<std::size_t>(tra(0, static_cast<int>(std::size(elenco)) - 1))];
    }

private:
    std::mt19937_64 mMotore;
};

} // namespace giacenza::dimostrazione
