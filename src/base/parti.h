#pragma once

#include <giacenza/ParteEsterna.h>

#include <memory>

namespace giacenza {

/// A new object of a class, by name, or an empty reference with the reason in Italian.
struct ParteCreata
{
    std::unique_ptr<ParteEsterna> parte;
    QString motivo; ///< why there is none: what was sought and where; empty when parte is there
};

/// Looks first at what was registered in this process, then at the metadata of the plug-in files in the
/// folders of cartelleParti(). Never throws: a part that cannot be made leaves an empty reference. Files are
/// never unloaded.
ParteCreata creaParte(const QString& nomeClasse);

/// The same for a part that is asked for at every step and that most depots do without: reading the metadata
/// of every plug-in file costs more than the step. That no file of the folders serves the class is remembered
/// until the process ends, for each list of folders; nothing else is: a part that is there is sought anew
/// each time, and so is one whose file is broken or fails, since the file may be put right. What the process
/// registered is seen at once. Empty where there is none.
std::unique_ptr<ParteEsterna> creaParteFacoltativa(const QString& nomeClasse);

/// Where plug-in files are sought, in order: the folders of the environment variable GIACENZA_PARTI
/// (colon-separated), then "giacenza" beside the component's own library, then the folder of the
/// installation.
QStringList cartelleParti();

/// For a program that has taken this code into itself and whose parts lie beside the component's library: one
/// more folder, sought after the program's own.
void aggiungiCartellaParti(const QString& cartella);

/// creaParte() with the interface asked for; empty with a reason also when the object is of another kind.
template<class Interfaccia>
struct ParteDi
{
    std::unique_ptr<Interfaccia> parte;
    QString motivo;
};

template<class Interfaccia>
ParteDi<Interfaccia> creaParteDi(const QString& nomeClasse)
{
    using namespace Qt::StringLiterals;
    ParteCreata creata = creaParte(nomeClasse);
    if (!creata.parte)
        return {nullptr, creata.motivo};
    auto* voluta = dynamic_cast<Interfaccia*>(creata.parte.get());
    if (!voluta)
        return {nullptr, u"La classe %1 non offre ciò che serve."_s.arg(nomeClasse)};
    creata.parte.release();
    return {std::unique_ptr<Interfaccia>(voluta), {}};
}

} // namespace giacenza
