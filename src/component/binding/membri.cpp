#include "component/binding/membri.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

constexpr giacenza_argomento percorso[] = {{"percorso", GIACENZA_TESTO, 0}};
constexpr giacenza_argomento tipo[] = {{"tipo", GIACENZA_RESO, 0}};
constexpr giacenza_argomento spedizione[] = {
    {"strLdv", GIACENZA_TESTO, GIACENZA_PER_RIFERIMENTO},
    {"strDataLdv", GIACENZA_TESTO, GIACENZA_PER_RIFERIMENTO},
    {"strFiliale", GIACENZA_TESTO, GIACENZA_PER_RIFERIMENTO},
    {"strCliente", GIACENZA_TESTO, GIACENZA_PER_RIFERIMENTO},
};
constexpr giacenza_argomento azione[] = {
    {"Azione", GIACENZA_TESTO, GIACENZA_PER_RIFERIMENTO},
    {"Arg", GIACENZA_VARIANTE, GIACENZA_PER_RIFERIMENTO | GIACENZA_FACOLTATIVO},
};

/// A let of a property that is a text.
template<void (cGiacenza::*scrivi)(const QString&)>
QVariant scriviTesto(cGiacenza& oggetto, const QVariantList& argomenti)
{
    (oggetto.*scrivi)(argomenti[0].toString());
    return {};
}

template<QString (cGiacenza::*leggi)() const>
QVariant leggiTesto(cGiacenza& oggetto, const QVariantList&)
{
    return (oggetto.*leggi)();
}

template<void (cGiacenza::*apri)()>
QVariant apriSchermata(cGiacenza& oggetto, const QVariantList&)
{
    (oggetto.*apri)();
    return {};
}

QVariant apriSpedizione(cGiacenza& oggetto, const QVariantList& argomenti)
{
    oggetto.NuovaGiacenzaEXT(argomenti[0].toString(), argomenti[1].toString(), argomenti[2].toString(),
                             argomenti[3].toString());
    return {};
}

QVariant scriviReso(cGiacenza& oggetto, const QVariantList& argomenti)
{
    oggetto.setTipoReso(static_cast<cGiacenza::Reso>(argomenti[0].toInt()));
    return {};
}

QVariant esegui(cGiacenza& oggetto, const QVariantList& argomenti)
{
    return oggetto.Esegui(argomenti[0].toString(), argomenti.value(1));
}

// clang-format off
const std::array<Membro, 12> tabella = {{
    {1, "PercorsoDatabase", cGiacenza::IdPercorsoDatabase, Modo::leggi, {}, GIACENZA_TESTO,
     leggiTesto<&cGiacenza::PercorsoDatabase>},
    {2, "PercorsoDatabase", cGiacenza::IdPercorsoDatabase, Modo::scrivi, percorso, GIACENZA_VUOTO,
     scriviTesto<&cGiacenza::setPercorsoDatabase>},
    {3, "PercorsoFileIni", cGiacenza::IdPercorsoFileIni, Modo::leggi, {}, GIACENZA_TESTO,
     leggiTesto<&cGiacenza::PercorsoFileIni>},
    {4, "PercorsoFileIni", cGiacenza::IdPercorsoFileIni, Modo::scrivi, percorso, GIACENZA_VUOTO,
     scriviTesto<&cGiacenza::setPercorsoFileIni>},
    {5, "NuovaGiacenza", cGiacenza::IdNuovaGiacenza, Modo::metodo, {}, GIACENZA_VUOTO,
     apriSchermata<&cGiacenza::NuovaGiacenza>},
    {6, "NuovaGiacenzaEXT", cGiacenza::IdNuovaGiacenzaEXT, Modo::metodo, spedizione, GIACENZA_VUOTO,
     apriSpedizione},
    {7, "PercorsoLogoIntestazione", cGiacenza::IdPercorsoLogoIntestazione, Modo::scrivi, percorso, GIACENZA_VUOTO,
     scriviTesto<&cGiacenza::setPercorsoLogoIntestazione>},
    {8, "MostraRiconsegna", cGiacenza::IdMostraRiconsegna, Modo::metodo, {}, GIACENZA_VUOTO,
     apriSchermata<&cGiacenza::MostraRiconsegna>},
    {9, "TipoReso", cGiacenza::IdTipoReso, Modo::scrivi, tipo, GIACENZA_VUOTO, scriviReso},
    {10, "ConsultaGiacenza", cGiacenza::IdConsultaGiacenza, Modo::metodo, {}, GIACENZA_VUOTO,
     apriSchermata<&cGiacenza::ConsultaGiacenza>},
    {11, "Esegui", cGiacenza::IdEsegui, Modo::metodo, azione, GIACENZA_VARIANTE, esegui},
    // Of the event interface.
    {1, "fine", GIACENZA_ID_FINE, Modo::evento, {}, GIACENZA_VUOTO, nullptr},
}};
// clang-format on

constexpr std::array<Costante, 2> reso = {{
    {"ResoDestinatario", cGiacenza::ResoDestinatario},
    {"ResoMittente", cGiacenza::ResoMittente},
}};

qsizetype minimo(const Membro& membro)
{
    return std::count_if(membro.argomenti.begin(), membro.argomenti.end(),
                         [](const giacenza_argomento& a) { return (a.segni & GIACENZA_FACOLTATIVO) == 0; });
}

[[noreturn]] void rifiutaModo(const Membro& membro, Modo modo)
{
    if (modo < Modo::leggi || modo > Modo::evento)
        throw ErroreChiamata(ErroreChiamata::modoSbagliato,
                             u"Modo di chiamata sconosciuto: %1."_s.arg(static_cast<int>(modo)));
    const QString nome = QString::fromLatin1(membro.nome);
    if (membro.modo == Modo::scrivi && modo == Modo::leggi)
        throw ErroreChiamata(ErroreChiamata::soloScrittura,
                             u"La proprietà \"%1\" si scrive soltanto."_s.arg(nome));
    QString verbo;
    switch (modo) {
    case Modo::leggi:
        verbo = u"leggere"_s;
        break;
    case Modo::scrivi:
        verbo = u"scrivere"_s;
        break;
    case Modo::metodo:
    case Modo::evento:
        verbo = u"chiamare"_s;
        break;
    }
    throw ErroreChiamata(ErroreChiamata::modoSbagliato,
                         u"\"%1\" è %2: non si può %3."_s.arg(nome, specie(membro), verbo));
}

void controllaNumero(const Membro& membro, qsizetype dati)
{
    const qsizetype massimo = std::ssize(membro.argomenti);
    const qsizetype almeno = minimo(membro);
    if (dati >= almeno && dati <= massimo)
        return;
    const QString vuole =
        almeno == massimo ? QString::number(massimo) : u"da %1 a %2"_s.arg(almeno).arg(massimo);
    throw ErroreChiamata(ErroreChiamata::numeroArgomenti,
                         u"Numero di argomenti sbagliato per \"%1\": ne vuole %2, ne ha avuti %3."_s
                             .arg(QString::fromLatin1(membro.nome), vuole)
                             .arg(dati));
}

} // namespace

static_assert(static_cast<int>(Modo::leggi) == GIACENZA_LEGGI &&
              static_cast<int>(Modo::scrivi) == GIACENZA_SCRIVI &&
              static_cast<int>(Modo::metodo) == GIACENZA_METODO &&
              static_cast<int>(Modo::evento) == GIACENZA_EVENTO);

std::span<const Membro> membri()
{
    return tabella;
}

std::span<const Costante> costantiReso()
{
    return reso;
}

QString specie(const Membro& membro)
{
    switch (membro.modo) {
    case Modo::leggi:
    case Modo::scrivi:
        return u"una proprietà"_s;
    case Modo::metodo:
        return u"un metodo"_s;
    case Modo::evento:
        return u"un evento"_s;
    }
    return {};
}

void controllaId(quint32 id)
{
    if (std::none_of(tabella.begin(), tabella.end(), [id](const Membro& m) { return m.id == id; }))
        throw ErroreChiamata(ErroreChiamata::membroIgnoto,
                             u"La classe non ha un membro con il numero 0x%1."_s.arg(id, 8, 16, QChar(u'0')));
}

const Membro& membroDaChiamare(quint32 id, Modo modo, qsizetype argomenti)
{
    controllaId(id);
    const auto conId = [id](const Membro& m) { return m.id == id; };
    const auto trovato = std::find_if(tabella.begin(), tabella.end(), [&](const Membro& m) {
        return conId(m) && m.modo == modo && m.chiama;
    });
    if (trovato == tabella.end())
        rifiutaModo(*std::find_if(tabella.begin(), tabella.end(), conId), modo);
    controllaNumero(*trovato, argomenti);
    return *trovato;
}

} // namespace giacenza
