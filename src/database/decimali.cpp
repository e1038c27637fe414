#include "database/decimali.h"

#include <QRegularExpression>

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <string>

using namespace Qt::StringLiterals;
using boost::multiprecision::cpp_int;

namespace giacenza {

namespace {

/// unita / 10^decimali, exactly.
struct Cifre
{
    cpp_int unita;
    int decimali = 0;
};

cpp_int potenzaDiDieci(int esponente)
{
    return boost::multiprecision::pow(cpp_int(10), static_cast<unsigned>(esponente));
}

Cifre leggi(const QString& testo)
{
    if (!eNumero(testo)) {
        throw ErroreConversione(u"\"%1\" non è un numero."_s.arg(testo));
    }
    std::string cifre = testo.trimmed().replace(u',', u'.').toStdString();
    int decimali = 0;
    if (const auto punto = cifre.find('.'); punto != std::string::npos) {
        decimali = static_cast<int>(cifre.size() - punto - 1);
        cifre.erase(punto, 1);
    }
    const bool negativo = cifre.starts_with('-');
    // The big integer would read a leading zero as the mark of an octal number.
    const auto prima = cifre.find_first_not_of("+-0");
    cpp_int unita(prima == std::string::npos ? std::string("0") : cifre.substr(prima));
    return {negativo ? cpp_int(-unita) : unita, decimali};
}

QString scrivi(const Cifre& numero)
{
    QString cifre = QString::fromStdString(cpp_int(abs(numero.unita)).str());
    if (numero.decimali > 0) {
        cifre = cifre.rightJustified(numero.decimali + 1, u'0');
        cifre.insert(cifre.size() - numero.decimali, u'.');
    }
    return numero.unita < 0 ? u'-' + cifre : cifre;
}

/// The same value with more decimals.
cpp_int unitaCon(const Cifre& numero, int decimali)
{
    return numero.unita * potenzaDiDieci(decimali - numero.decimali);
}

} // namespace

bool eNumero(const QString& testo)
{
    static const QRegularExpression modello(u"\\A[+-]?(?:[0-9]+[.,]?[0-9]*|[.,][0-9]+)\\z"_s);
    return modello.match(testo.trimmed()).hasMatch();
}

Decimale::Decimale(const QString& testo) : mTesto(somma(testo, u"0"_s)) {}

QString arrotonda(const QString& valore, int cifre, Arrotondamento modo)
{
    const Cifre numero = leggi(valore);
    if (numero.decimali <= cifre) {
        return scrivi({unitaCon(numero, cifre), cifre});
    }
    const cpp_int divisore = potenzaDiDieci(numero.decimali - cifre);
    cpp_int quoziente;
    cpp_int resto;
    divide_qr(cpp_int(abs(numero.unita)), divisore, quoziente, resto);
    const int meta = cpp_int(resto * 2).compare(divisore);
    if (meta > 0 || (meta == 0 && (modo == Arrotondamento::lontanoDaZero || bit_test(quoziente, 0)))) {
        ++quoziente;
    }
    return scrivi({numero.unita < 0 ? cpp_int(-quoziente) : quoziente, cifre});
}

QString somma(const QString& primo, const QString& secondo)
{
    const Cifre a = leggi(primo);
    const Cifre b = leggi(secondo);
    const int decimali = std::max(a.decimali, b.decimali);
    return scrivi({unitaCon(a, decimali) + unitaCon(b, decimali), decimali});
}

QString prodotto(const QString& primo, const QString& secondo)
{
    const Cifre a = leggi(primo);
    const Cifre b = leggi(secondo);
    return scrivi({a.unita * b.unita, a.decimali + b.decimali});
}

std::strong_ordering confronta(const QString& primo, const QString& secondo)
{
    const Cifre a = leggi(primo);
    const Cifre b = leggi(secondo);
    const int decimali = std::max(a.decimali, b.decimali);
    return unitaCon(a, decimali).compare(unitaCon(b, decimali)) <=> 0;
}

} // namespace giacenza
