#include "data/istruzionisoggetti.h"

#include <giacenza/Errore.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

namespace {

QString condizione(CampoSoggetto campo)
{
    switch (campo) {
    case CampoSoggetto::codice:
        return u"Codice=?"_s;
    case CampoSoggetto::partitaIva:
        return u"PartitaIva=?"_s;
    case CampoSoggetto::ragioneSociale:
        return u"RagioneSociale like ? escape '!'"_s;
    case CampoSoggetto::localita:
        return u"Localita like ? escape '!'"_s;
    case CampoSoggetto::provincia:
        break;
    }
    return u"Provincia like ? escape '!'"_s;
}

} // namespace

QString ricercaSoggetti(const QString& tabella, CampoSoggetto campo)
{
    static const QRegularExpression identificatore(u"\\A[A-Za-z_][A-Za-z0-9_]*\\z"_s);
    if (!identificatore.match(tabella).hasMatch()) {
        throw Errore(u"Il nome di tabella \"%1\" non è valido."_s.arg(tabella));
    }
    return u"select Codice, RagioneSociale, Localita, Provincia from %1 where %2 "
           "order by RagioneSociale, Codice;"_s.arg(tabella, condizione(campo));
}

QString modelloSoggetti(const QString& testo, bool interna)
{
    // Not the backslash: one of the databases reads it in literals, according to the session's mode.
    constexpr QChar protezione(u'!');
    QString modello = interna ? u"%"_s : QString();
    for (const QChar carattere : testo) {
        if (carattere == u'%' || carattere == u'_' || carattere == protezione) {
            modello += protezione;
        }
        modello += carattere;
    }
    return modello + u'%';
}

} // namespace giacenza::istruzioni
