#pragma once

namespace giacenza::odbc {

/// A reading with rows still to come.
class Lettura
{
public:
    /// Reads the rest now; a failure is kept for whoever asks for the row.
    virtual void completa() noexcept = 0;

protected:
    Lettura() = default;
    Lettura(const Lettura&) = delete;
    Lettura& operator=(const Lettura&) = delete;
    virtual ~Lettura() = default;
};

} // namespace giacenza::odbc
