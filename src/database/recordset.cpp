#include "database/recordset.h"

#include "database/collegamento.h"
#include "database/nomicolonne.h"
#include "database/righe.h"
#include "database/tentativi.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

class Recordset::Interno
{
public:
    std::shared_ptr<odbc::Collegamento> collegamento;
    QString istruzione;
    NomiColonne nomi;
    std::unique_ptr<Righe> righe;

    void apri(const QString& testo, Cursore cursore, std::span<const Valore> parametri);
    const odbc::Riga& corrente() const;
    qsizetype indiceCerto(const QString& nome) const;
    [[noreturn]] void fallisci(const char* stato, const QString& testo) const;
};

void Recordset::Interno::fallisci(const char* stato, const QString& testo) const
{
    throw ErroreDatabase(QString::fromLatin1(stato), 0, testo, istruzione);
}

void Recordset::Interno::apri(const QString& testo, Cursore cursore, std::span<const Valore> parametri)
{
    istruzione = testo;
    auto lettura = std::make_unique<odbc::Istruzione>(collegamento);
    if (parametri.empty())
        lettura->esegui(testo);
    else
        lettura->eseguiConValori(testo, parametri);
    nomi = NomiColonne(lettura->nomiColonne());
    if (nomi.vuoti())
        fallisci("07005", u"L'istruzione non dà righe."_s);
    righe = std::make_unique<Righe>(std::move(lettura), nomi.quanti(), cursore);
}

const odbc::Riga& Recordset::Interno::corrente() const
{
    if (righe->finite())
        fallisci("02000", u"Non c'è un record corrente."_s);
    return righe->corrente();
}

qsizetype Recordset::Interno::indiceCerto(const QString& nome) const
{
    const qsizetype trovato = nomi.posto(nome);
    if (trovato < 0)
        fallisci("42S22", u"La colonna \"%1\" non esiste."_s.arg(nome));
    return trovato;
}

Recordset::Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

void Recordset::apri(Connessione& connessione, const QString& istruzione, Cursore cursore,
                     std::span<const Valore> parametri)
{
    chiudi();
    mInterno = conTentativi(
        [&] {
            auto nuovo = std::make_unique<Interno>();
            nuovo->collegamento = connessione.collegamento();
            nuovo->apri(istruzione, cursore, parametri);
            return nuovo;
        },
        [&](const ErroreDatabase& errore) {
            return perAttesaVana(errore) && !connessione.collegamento()->inTransazione();
        });
}

bool Recordset::aperto() const noexcept
{
    return mInterno && mInterno->collegamento->aperto();
}

void Recordset::chiudi() noexcept
{
    mInterno.reset();
}

Recordset::Interno& Recordset::interno() const
{
    if (!aperto())
        throw ErroreDatabase(u"24000"_s, 0, u"Il recordset è chiuso."_s);
    return *mInterno;
}

bool Recordset::bof() const noexcept
{
    return !aperto() || mInterno->righe->vuote();
}

bool Recordset::eof() const noexcept
{
    return !aperto() || mInterno->righe->finite();
}

void Recordset::primo()
{
    Interno& i = interno();
    if (!i.righe->primo())
        i.fallisci("24000", u"Il recordset legge solo in avanti."_s);
}

void Recordset::successivo()
{
    interno().righe->avanti();
}

int Recordset::colonne() const noexcept
{
    return aperto() ? mInterno->nomi.quanti() : 0;
}

QString Recordset::nomeColonna(int colonna) const
{
    const Interno& i = interno();
    if (colonna < 0 || colonna >= colonne())
        i.fallisci("42S22", u"La colonna %1 non esiste."_s.arg(colonna));
    return i.nomi[colonna];
}

int Recordset::indice(const QString& nome) const
{
    return static_cast<int>(interno().nomi.posto(nome));
}

std::optional<QByteArrayView> Recordset::utf8(int colonna) const
{
    const Interno& i = interno();
    if (colonna < 0 || colonna >= colonne())
        i.fallisci("42S22", u"La colonna %1 non esiste."_s.arg(colonna));
    const odbc::Riga& riga = i.corrente();
    const auto& cella = riga.celle[static_cast<std::size_t>(colonna)];
    if (cella.lunghezza < 0)
        return std::nullopt;
    return QByteArrayView(riga.dati.constData() + cella.inizio, cella.lunghezza);
}

Valore Recordset::valore(int colonna) const
{
    const auto byte = utf8(colonna);
    return byte ? Valore(QString::fromUtf8(*byte)) : std::nullopt;
}

Valore Recordset::valore(const QString& nome) const
{
    return valore(static_cast<int>(interno().indiceCerto(nome)));
}

void ChiudiOggettiDB(Recordset* recordset, Connessione* connessione, Rilascio rilascio,
                     Mantieni connessioneAperta) noexcept
{
    if (recordset)
        recordset->chiudi();
    if (connessione && (rilascio == Rilascio::si || connessioneAperta == Mantieni::no))
        connessione->chiudi();
}

} // namespace giacenza
