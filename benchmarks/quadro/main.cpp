#include "benchmarks/quadro/precedente.h"
#include "benchmarks/quadro/relazione.h"
#include "benchmarks/quadro/temi.h"

#include <giacenza/Errore.h>

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

using namespace banco;
using namespace Qt::StringLiterals;

namespace {

/// As ./bench --help lists them.
enum Uscita
{
    fatto = 0,
    fallito = 1,
    piuLento = 3
};

/// In the order in which they are measured.
std::vector<Tema> tuttiITemi()
{
    std::vector<Tema> tutti;
    for (const auto& temi : {temiChiave, temiGriglia, temiStampa, temiDesk, temiAvvio})
        for (Tema& tema : temi())
            tutti.push_back(std::move(tema));
    return tutti;
}

void stampa(const QString& testo)
{
    std::fputs(qPrintable(testo), stdout);
    std::fflush(stdout);
}

std::vector<Tema> temiChiesti(const QStringList& nomi)
{
    std::vector<Tema> temi = tuttiITemi();
    for (const QString& nome : nomi)
        if (std::none_of(temi.begin(), temi.end(), [&](const Tema& tema) { return tema.nome == nome; })) {
            QStringList noti;
            for (const Tema& tema : temi)
                noti += tema.nome;
            throw giacenza::Errore(u"There is no \"%1\". There is: %2."_s.arg(nome, noti.join(u", "_s)));
        }
    if (!nomi.isEmpty())
        std::erase_if(temi, [&](const Tema& tema) { return !nomi.contains(tema.nome); });
    return temi;
}

std::vector<Misura> misuraTutto(const Opzioni& opzioni)
{
    const Basi basi(opzioni);
    std::vector<Misura> misure;
    bool primo = true;
    for (const Tema& tema : temiChiesti(opzioni.nomi)) {
        const std::vector<Confronto> confronti = tema.confronti(basi, opzioni);
        if (std::exchange(primo, false))
            stampa(testata());
        for (const Confronto& confronto : confronti) {
            misure.push_back(misura(confronto, opzioni.corse));
            stampa(riga(misure.back()));
            // What was measured stays if a later one fails.
            scriviRelazione(opzioni.relazione, misure);
        }
    }
    return misure;
}

Uscita confronta(const std::vector<Precedente>& precedenti, const std::vector<Misura>& misure)
{
    const QStringList lente = rallentate(precedenti, misure);
    for (const QString& lenta : lente)
        stampa(lenta + u'\n');
    if (lente.isEmpty())
        stampa(u"Nothing got slower.\n"_s);
    return lente.isEmpty() ? fatto : piuLento;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    try {
        const Opzioni opzioni = leggiOpzioni(QCoreApplication::arguments());
        if (opzioni.precedente.isEmpty()) {
            misuraTutto(opzioni);
            return fatto;
        }
        // Read first: it may be the very file that is written.
        const std::vector<Precedente> precedenti = leggiPrecedenti(opzioni.precedente);
        return confronta(precedenti, misuraTutto(opzioni));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return fallito;
    }
}
