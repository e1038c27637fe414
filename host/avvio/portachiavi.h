#pragma once

#include <QString>

#include <optional>

namespace deposito {

/// What a key store answered.
struct EsitoPortachiavi
{
    bool riuscito = false;
    bool assente = false; ///< there is no key store on this machine
    QString parola{};     ///< of a reading
    QString motivo{};     ///< why it did not work, in Italian
};

/// The system's key store. Each call waits for the answer, and for the operator whom the store may ask to
/// unlock it, while windows stay alive.
class Portachiavi
{
public:
    Portachiavi() = default;
    Portachiavi(const Portachiavi&) = delete;
    Portachiavi& operator=(const Portachiavi&) = delete;
    virtual ~Portachiavi() = default;

    virtual EsitoPortachiavi leggi(const QString& nome) = 0;
    virtual EsitoPortachiavi scrivi(const QString& nome, const QString& parola) = 0;
    virtual EsitoPortachiavi togli(const QString& nome) = 0;
};

/// The store of the desktop (Secret Service, KWallet).
class PortachiaviDiSistema : public Portachiavi
{
public:
    EsitoPortachiavi leggi(const QString& nome) override;
    EsitoPortachiavi scrivi(const QString& nome, const QString& parola) override;
    EsitoPortachiavi togli(const QString& nome) override;
};

} // namespace deposito
