#pragma once

#include "schema/dati/caso.h"

#include <QString>

#include <span>

/// The words that demonstration data are made of: real places of Italy, invented companies.
namespace giacenza::dimostrazione {

struct Comune
{
    QStringView nome;
    QStringView cap;
    QStringView provincia;
    int filiale = 0; ///< position of the branch that serves it
};

/// Words with a blank between them.
QString frase(std::initializer_list<QStringView> parole);

/// The towns; the first of each branch is the branch's own.
std::span<const Comune> comuni();
inline constexpr int numeroFiliali = 12;
/// The town of a branch, by its position.
const Comune& comuneFiliale(int filiale);

/// The i-th of the companies that send; all different up to massimoMittenti.
QString ragioneMittente(int i, Caso& caso);
inline constexpr int massimoMittenti = 1440;
/// The i-th of the carriers, up to numeroVettori.
QString ragioneVettore(int i);
inline constexpr int numeroVettori = 2 * numeroFiliali;

QString nomeDestinatario(Caso& caso);
QString indirizzo(Caso& caso);
QString naturaMerce(Caso& caso);
QString notaSpedizione(Caso& caso);
/// Why a shipment is held.
QString motivoGiacenza(Caso& caso);

/// An Italian VAT number: seven digits of the company, three of the office, the check digit.
QString partitaIva(int azienda, int ufficio);

} // namespace giacenza::dimostrazione
