#include "component/binding/confine.h"

#include <giacenza/Chiamata.h>

#include <new>

using namespace Qt::StringLiterals;

namespace giacenza {

static_assert(int{ErroreChiamata::membroIgnoto} == int{GIACENZA_MEMBRO_IGNOTO} &&
              int{ErroreChiamata::modoSbagliato} == int{GIACENZA_MODO_SBAGLIATO} &&
              int{ErroreChiamata::soloScrittura} == int{GIACENZA_SOLO_SCRITTURA} &&
              int{ErroreChiamata::numeroArgomenti} == int{GIACENZA_NUMERO_ARGOMENTI} &&
              int{ErroreChiamata::tipoArgomento} == int{GIACENZA_TIPO_ARGOMENTO} &&
              int{ErroreChiamata::altroThread} == int{GIACENZA_ALTRO_THREAD} &&
              int{ErroreChiamata::senzaInterfaccia} == int{GIACENZA_SENZA_INTERFACCIA});

namespace {

struct UltimoErrore
{
    int32_t codice = GIACENZA_BENE;
    QByteArray testo;
    QByteArray sqlstate;
    int32_t nativo = 0;
};

UltimoErrore& delThread()
{
    static thread_local UltimoErrore errore;
    return errore;
}

thread_local int chiamateInCorso = 0;

UltimoErrore daCodice(int32_t codice, const QString& testo)
{
    return {codice, testo.toUtf8(), {}, 0};
}

/// What is being handled, told; only what has to be made for the telling can be thrown.
UltimoErrore racconta()
{
    try {
        throw;
    } catch (const ErroreConfine& errore) {
        return {errore.codice(), errore.testo().toUtf8(), errore.sqlstate().toUtf8(), errore.nativo()};
    } catch (const ErroreChiamata& errore) {
        return daCodice(errore.codice(), errore.testo());
    } catch (const ErroreDatabase& errore) {
        return {GIACENZA_DATABASE, errore.testo().toUtf8(), errore.sqlstate().toUtf8(),
                errore.codiceNativo()};
    } catch (const Errore& errore) {
        return daCodice(GIACENZA_FALLITA, errore.testo());
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& errore) {
        return daCodice(GIACENZA_INATTESO, u"Errore inatteso: %1"_s.arg(QString::fromUtf8(errore.what())));
    } catch (...) {
        return daCodice(GIACENZA_INATTESO, u"Errore inatteso, senza descrizione."_s);
    }
}

} // namespace

int32_t riuscita() noexcept
{
    delThread() = {};
    return GIACENZA_BENE;
}

int32_t fallita() noexcept
{
    UltimoErrore& ultimo = delThread();
    try {
        ultimo = racconta();
    } catch (...) {
        // There is no memory: this text takes none.
        static constexpr char testo[] = "Memoria insufficiente.";
        ultimo = {GIACENZA_MEMORIA, QByteArray::fromRawData(testo, sizeof testo - 1), {}, 0};
    }
    return ultimo.codice;
}

int32_t ultimoCodice() noexcept
{
    return delThread().codice;
}

const char* ultimoTesto() noexcept
{
    return delThread().testo.constData();
}

const char* ultimoSqlstate() noexcept
{
    return delThread().sqlstate.constData();
}

int32_t ultimoNativo() noexcept
{
    return delThread().nativo;
}

InCorso::InCorso() noexcept
{
    ++chiamateInCorso;
}

InCorso::~InCorso()
{
    --chiamateInCorso;
}

int InCorso::quante() noexcept
{
    return chiamateInCorso;
}

} // namespace giacenza
