#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives no file of this process grows beyond some bytes: a write stops there, as on a full disk,
/// whoever the user is.
class LimiteFile
{
public:
    explicit LimiteFile(rlim_t byte)
    {
        mSegnale = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mPrima);
        const rlimit stretto{byte, mPrima.rlim_max};
        setrlimit(RLIMIT_FSIZE, &stretto);
    }
    LimiteFile(const LimiteFile&) = delete;
    LimiteFile& operator=(const LimiteFile&) = delete;
    ~LimiteFile()
    {
        setrlimit(RLIMIT_FSIZE, &mPrima);
        std::signal(SIGXFSZ, mSegnale);
    }

private:
    rlimit mPrima{};
    void (*mSegnale)(int) = nullptr;
};
