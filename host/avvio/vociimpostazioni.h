#pragma once

#include <QString>

#include <vector>

namespace deposito {

/// A setting of the component's file that the operator may change.
struct VoceImpostazioni
{
    enum class Genere
    {
        testo,
        cartella,
        scelta,
        numero
    };

    const char16_t* sezione;
    const char16_t* chiave;
    const char16_t* nome;        ///< what the dialog calls it
    const char16_t* significato; ///< what it does, one sentence
    Genere genere = Genere::testo;
    std::vector<const char16_t*> valori{}; ///< of a choice
};

/// All of them, in the order of the dialog.
const std::vector<VoceImpostazioni>& vociImpostazioni();

/// Writes values into a settings file, of which everything else, comments included, stays as it is. A file
/// that is not there is made; one that changes is replaced whole or not at all.
///
/// valori: one for each of vociImpostazioni(); an empty one takes the key away. Returns why it did not work,
/// in Italian; empty when it did.
QString scriviImpostazioni(const QString& file, const std::vector<QString>& valori);

/// The values as they stand, "" for what is missing. Throws giacenza::Errore when the file cannot be read.
std::vector<QString> leggiImpostazioni(const QString& file);

} // namespace deposito
