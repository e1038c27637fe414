#include "benchmarks/quadro/relazione.h"
#include "benchmarks/quadro/temi.h"

#include <giacenza/Errore.h>

#include <QCoreApplication>

#include <cstdio>
#include <map>

using namespace banco;
using namespace Qt::StringLiterals;

namespace {

using Tema = std::vector<Confronto> (*)(const Basi&, const Opzioni&);

const std::map<QString, Tema>& temi()
{
    static const std::map<QString, Tema> tutti{
        {u"desk"_s, temaDesk}, {u"grid"_s, temaGriglia}, {u"print"_s, temaStampa}};
    return tutti;
}

void stampa(const QString& testo)
{
    std::fputs(qPrintable(testo), stdout);
    std::fflush(stdout);
}

void misuraTutto(const Opzioni& opzioni)
{
    for (const QString& tema : opzioni.temi)
        if (!temi().contains(tema))
            throw giacenza::Errore(u"There is no topic \"%1\"."_s.arg(tema));
    const Basi basi(opzioni);
    std::vector<Misura> misure;
    bool primo = true;
    for (const auto& [nome, tema] : temi()) {
        if (!opzioni.temi.isEmpty() && !opzioni.temi.contains(nome))
            continue;
        const std::vector<Confronto> confronti = tema(basi, opzioni);
        if (std::exchange(primo, false))
            stampa(testata());
        for (const Confronto& confronto : confronti) {
            misure.push_back(misura(confronto, opzioni.corse));
            stampa(riga(misure.back()));
        }
    }
    scriviRelazione(opzioni.relazione, misure);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    try {
        misuraTutto(leggiOpzioni(QCoreApplication::arguments()));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
