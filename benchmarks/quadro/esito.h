#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>

/// What a measured program has in common with the bare ones beside it, so nothing but the standard library.
///
/// A program is started with the connection string in the environment and prints one line:
/// "milliseconds peak-kilobytes".
namespace banco {

inline constexpr const char* variabileConnessione = "BANCO_CONNESSIONE";

class Cronometro
{
public:
    double millisecondi() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - mInizio).count();
    }

private:
    std::chrono::steady_clock::time_point mInizio = std::chrono::steady_clock::now();
};

/// The most memory this process ever had resident. Not from getrusage, whose figure starts with that of the
/// process that forked this one.
inline long piccoKilobyte()
{
    long picco = 0;
    if (std::FILE* stato = std::fopen("/proc/self/status", "r")) {
        char riga[256];
        while (std::fgets(riga, sizeof riga, stato))
            if (std::sscanf(riga, "VmHWM: %ld", &picco) == 1)
                break;
        std::fclose(stato);
    }
    return picco;
}

/// righe: how many came out, attese: how many had to. picco: the peak, where it is not this process's own.
/// Returns the exit code.
inline int stampaEsito(double millisecondi, long righe, long attese, long picco = piccoKilobyte())
{
    if (righe != attese) {
        std::fprintf(stderr, "%ld came out, not %ld\n", righe, attese);
        return EXIT_FAILURE;
    }
    std::printf("%.3f %ld\n", millisecondi, picco);
    return EXIT_SUCCESS;
}

} // namespace banco
