#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>

/// What a measured program has in common with the bare ones beside it, so nothing but the standard library.
///
/// A program is started with the connection string in the environment and prints one line for its run:
/// "milliseconds peak-kilobytes". One that stays (residente.h) reads a line for each run and prints such a
/// line for it.
namespace banco {

inline constexpr const char* variabileConnessione = "BANCO_CONNESSIONE";
/// When the process was started: nanosecondi() of who started it.
inline constexpr const char* variabileAvvio = "BANCO_AVVIO";
/// In front of a request to a program that stays: the statements of the run are asked for, not its time.
inline constexpr const char* chiediIstruzioni = "? ";

/// Of the steady clock, which is one for the whole machine.
inline long long nanosecondi()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

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

/// Since this process was started.
inline double millisecondiDallAvvio()
{
    constexpr double nanosecondiPerMillisecondo = 1e6;
    const char* inizio = std::getenv(variabileAvvio);
    return inizio ? static_cast<double>(nanosecondi() - std::atoll(inizio)) / nanosecondiPerMillisecondo : 0;
}

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
    std::printf("%.4f %ld\n", millisecondi, picco);
    std::fflush(stdout);
    return EXIT_SUCCESS;
}

} // namespace banco
