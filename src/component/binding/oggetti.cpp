#include "component/binding/oggetti.h"

#include "component/binding/confine.h"
#include "component/binding/membri.h"
#include "component/binding/valori.h"

#include <atomic>
#include <mutex>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// The numbers of all threads. Never destroyed: what a program has not released stays until it ends, since by
/// then its thread's screens are gone already.
struct Registro
{
    std::mutex porta;
    std::unordered_map<giacenza_oggetto, std::shared_ptr<Oggetto>> oggetti;
    giacenza_oggetto ultimo = 0;
};

Registro& registro()
{
    static auto* const unico = new Registro;
    return *unico;
}

class OggettoNostro : public Oggetto
{
public:
    OggettoNostro()
    {
        QObject::connect(&mClasse, &cGiacenza::fine, &mClasse, [this] { racconta(); });
    }

    void invoca(uint32_t id, int32_t modo, const giacenza_valore* argomenti, int32_t numero,
                giacenza_valore& risultato) override
    {
        if (modo != GIACENZA_LEGGI && modo != GIACENZA_SCRIVI && modo != GIACENZA_METODO)
            throw ErroreConfine(GIACENZA_MODO_SBAGLIATO, u"Modo di chiamata sconosciuto: %1."_s.arg(modo));
        // Before the arguments are looked at: a wrong number of them may reach beyond what is there.
        membroDaChiamare(id, static_cast<Modo>(modo), numero);
        riempi(risultato, chiama(mClasse, id, static_cast<Modo>(modo), argomentiDati(argomenti, numero)));
    }

    void ascolta(uint32_t evento) override
    {
        controllaId(evento);
        for (const Membro& membro : membri())
            if (membro.id == evento && membro.modo != Modo::evento)
                throw ErroreConfine(GIACENZA_MODO_SBAGLIATO,
                                    u"\"%1\" è %2: non si può ascoltare."_s.arg(
                                        QLatin1StringView(membro.nome), specie(membro)));
    }

private:
    cGiacenza mClasse;
};

} // namespace

uint64_t Oggetto::questoThread()
{
    static std::atomic<uint64_t> ultimo = 0;
    static thread_local const uint64_t numero = ++ultimo;
    return numero;
}

void Oggetto::setAscoltatore(giacenza_ascoltatore funzione, void* utente)
{
    mAscoltatore = funzione;
    mUtente = utente;
}

void Oggetto::racconta() const noexcept
{
    const InCorso questa;
    if (mAscoltatore)
        mAscoltatore(mNumero, mUtente);
}

giacenza_oggetto annota(std::unique_ptr<Oggetto> oggetto)
{
    Registro& tutti = registro();
    const std::lock_guard chiusa(tutti.porta);
    const giacenza_oggetto numero = tutti.ultimo + 1;
    oggetto->setNumero(numero);
    tutti.oggetti.emplace(numero, std::move(oggetto));
    tutti.ultimo = numero;
    return numero;
}

std::shared_ptr<Oggetto> oggetto(giacenza_oggetto numero)
{
    Registro& tutti = registro();
    const std::lock_guard chiusa(tutti.porta);
    const auto trovato = tutti.oggetti.find(numero);
    if (trovato == tutti.oggetti.end())
        throw ErroreConfine(GIACENZA_OGGETTO_IGNOTO,
                            u"L'oggetto %1 non c'è: mai creato, o già rilasciato."_s.arg(numero));
    if (!trovato->second->delThread())
        throw ErroreConfine(GIACENZA_ALTRO_THREAD, u"L'oggetto si usa nel thread che lo ha creato."_s);
    return trovato->second;
}

void rilascia(giacenza_oggetto numero)
{
    const std::shared_ptr<Oggetto> ultimo = oggetto(numero);
    ultimo->setAscoltatore(nullptr, nullptr);
    Registro& tutti = registro();
    const std::lock_guard chiusa(tutti.porta);
    tutti.oggetti.erase(numero);
}

bool ceNeSono()
{
    Registro& tutti = registro();
    const std::lock_guard chiusa(tutti.porta);
    return !tutti.oggetti.empty();
}

std::unique_ptr<Oggetto> nuovoOggetto()
{
    return std::make_unique<OggettoNostro>();
}

} // namespace giacenza
