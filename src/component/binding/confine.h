#pragma once

#include <giacenza/Errore.h>
#include <giacenza/giacenza.h>

#include <QString>

namespace giacenza {

/// A failure as the C interface tells it. sqlstate and nativo: of a database's only.
class ErroreConfine : public Errore
{
public:
    ErroreConfine(int32_t codice, const QString& testo, const QString& sqlstate = {}, int32_t nativo = 0)
        : Errore(testo), mCodice(codice), mSqlstate(sqlstate), mNativo(nativo)
    {}

    int32_t codice() const noexcept { return mCodice; }
    const QString& sqlstate() const noexcept { return mSqlstate; }
    int32_t nativo() const noexcept { return mNativo; }

private:
    int32_t mCodice;
    QString mSqlstate;
    int32_t mNativo;
};

/// Forgets the thread's last error; returns GIACENZA_BENE.
int32_t riuscita() noexcept;
/// Keeps the exception that is being handled as the thread's last error; returns its code.
int32_t fallita() noexcept;

/// The thread's last error.
int32_t ultimoCodice() noexcept;
const char* ultimoTesto() noexcept;
const char* ultimoSqlstate() noexcept;
int32_t ultimoNativo() noexcept;

/// Runs the body of a function of the C interface: what it throws becomes the last error, whatever it is.
template<class Corpo>
int32_t alConfine(const Corpo& corpo) noexcept
{
    try {
        corpo();
    } catch (...) {
        return fallita();
    }
    return riuscita();
}

/// Throws when a pointer that a program must give is null. nome: how the header calls it.
template<class Tipo>
Tipo& dato(Tipo* puntatore, const char* nome)
{
    if (!puntatore)
        throw ErroreConfine(GIACENZA_PUNTATORE_NULLO,
                            QStringLiteral("Il puntatore \"%1\" è nullo.").arg(QLatin1StringView(nome)));
    return *puntatore;
}

/// While one lives, a call of the component runs on this thread: its QApplication stays.
class InCorso
{
public:
    InCorso() noexcept;
    InCorso(const InCorso&) = delete;
    InCorso& operator=(const InCorso&) = delete;
    ~InCorso();

    static bool qualcuna() noexcept { return quante() > 0; }
    static int quante() noexcept;
};

} // namespace giacenza
