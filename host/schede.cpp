#include "schede.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "base/spiegazioni.h"
#include "desk/finestra/finestradesk.h"
#include "desk/schede/finestracaso.h"
#include "desk/schede/finestraconto.h"
#include "desk/schede/finestraestratti.h"

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

using giacenza::desk::Caso;
using giacenza::documenti::Carta;

/// What an entry opens, on the case that is shown or marked.
struct Voce
{
    const char16_t* nome;
    QString testo;
    QString spiegazione;
    QKeySequence tasto;
    bool serveUnCaso = true;
    std::function<void(const std::vector<Caso>& casi, const Carta& carta)> apri = {};
};

/// The statement of what has happened since the year began.
void apriEstratti(const giacenza::Accesso& accesso, const std::vector<Caso>& casi, const Carta& carta,
                  QWidget* padre)
{
    const QDate oggi = giacenza::oggi();
    giacenza::schede::FinestraEstratti(accesso, casi.size() == 1 ? casi.front().cliente : QString(),
                                       QDate(oggi.year(), 1, 1), oggi, carta, padre)
        .exec();
}

std::vector<Voce> voci(const QString& database, QWidget* padre)
{
    const giacenza::Accesso accesso(database);
    return {
        {u"azConto", u"C&onto della sosta…"_s, u"Che cosa costa il caso, giorno per giorno"_s,
         Qt::CTRL | Qt::Key_K, true,
         [=](const std::vector<Caso>& casi, const Carta& carta) {
             giacenza::schede::FinestraConto(accesso, casi.front().chiave, carta, padre).exec();
         }},
        {u"azFascicolo", u"&Diario, note e fascicolo…"_s,
         u"Che cosa è successo al caso, chi l'ha fatto, le note"_s, Qt::CTRL | Qt::Key_D, true,
         [=](const std::vector<Caso>& casi, const Carta& carta) {
             giacenza::schede::FinestraCaso(accesso, casi.front().chiave, carta, padre).exec();
         }},
        {u"azEstratti", u"Es&tratti per mittente…"_s,
         u"Giacenze e costi di un cliente, o di tutti, in un periodo"_s, Qt::CTRL | Qt::Key_E, false,
         [=](const std::vector<Caso>& casi, const Carta& carta) {
             apriEstratti(accesso, casi, carta, padre);
         }},
    };
}

} // namespace

void aggiungiSchede(giacenza::desk::FinestraDesk& desk, const Opzioni& opzioni,
                    const std::function<void(const QString& testo)>& messaggio)
{
    // This program's own copy of the settings: the component has another.
    giacenza::impostazioni().percorsoFileIni = opzioni.ini;
    for (const Voce& voce : voci(opzioni.database, &desk)) {
        auto* azione = new QAction(voce.testo, &desk);
        azione->setObjectName(QString::fromUtf16(voce.nome));
        azione->setToolTip(voce.spiegazione);
        azione->setStatusTip(voce.spiegazione);
        azione->setShortcut(voce.tasto);
        desk.addAction(azione);
        QObject::connect(azione, &QAction::triggered, &desk, [&desk, voce, messaggio, logo = opzioni.logo] {
            const std::vector<Caso> casi = desk.casi();
            if (voce.serveUnCaso && casi.empty())
                return messaggio(u"Scegliere prima un caso nell'elenco."_s);
            try {
                voce.apri(casi, giacenza::documenti::cartaDelleLettere(logo));
            } catch (const giacenza::Errore& errore) {
                messaggio(giacenza::spiega(errore));
            }
        });
        desk.azioni().altre << azione;
    }
}

} // namespace deposito
