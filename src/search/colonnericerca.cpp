#include "search/colonnericerca.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

bool compare(const QStringList& nomi, const QString& nome)
{
    return nomi.contains(nome, Qt::CaseInsensitive);
}

QString mostraData(const QString& testo)
{
    const auto giorno = leggiGiorno(testo);
    return giorno ? dataBreve(*giorno) : testo;
}

} // namespace

QString BorCons(const Valore& valore)
{
    const QString testo = valore.value_or(QString()).trimmed();
    if (testo.isEmpty() || testo.compare(u"false"_s, Qt::CaseInsensitive) == 0)
        return {};
    const bool zero = eNumero(testo) && std::all_of(testo.begin(), testo.end(), [](QChar carattere) {
                          return !carattere.isDigit() || carattere == u'0';
                      });
    return zero ? QString() : u"*"_s;
}

Aspetto aspetto(const QString& nome)
{
    static const QStringList date{u"Data_Emissione"_s, u"Data_Rif"_s,  u"Data_Giac"_s,
                                  u"Data_Rif_Mitt"_s,  u"Buon_Fine"_s, u"ledtlv"_s};
    if (compare(date, nome))
        return Aspetto::data;
    return compare({u"Bord_Inv"_s}, nome) ? Aspetto::segno : Aspetto::testo;
}

QString mostra(Aspetto aspetto, const Valore& valore)
{
    switch (aspetto) {
    case Aspetto::data:
        return mostraData(valore.value_or(QString()));
    case Aspetto::segno:
        return BorCons(valore);
    case Aspetto::testo:
        break;
    }
    return valore.value_or(QString());
}

QString didascalia(const QString& nome)
{
    return compare({u"lenrlv"_s}, nome) ? u"Num_Ldv"_s : nome;
}

bool nascosta(ModoRicerca modo, const QString& nome)
{
    return modo == ModoRicerca::giacenze && compare({u"ginrlv"_s, u"ledtlv"_s}, nome);
}

std::optional<PostiScelta> postiScelta(ModoRicerca modo)
{
    switch (modo) {
    case ModoRicerca::riferimento:
        return PostiScelta{0, 5, false};
    case ModoRicerca::letteraVettura:
    case ModoRicerca::giacenze:
        return PostiScelta{0, 1, true};
    case ModoRicerca::riconsegne:
        break;
    }
    return std::nullopt;
}

} // namespace giacenza
