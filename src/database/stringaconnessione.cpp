#include "database/stringaconnessione.h"

using namespace Qt::StringLiterals;

namespace giacenza {

// By hand: it is asked at each opening, and making a pattern takes longer than a statement.
QStringView voceConnessione(QStringView stringa, QStringView chiave)
{
    while (!stringa.isEmpty()) {
        const qsizetype uguale = stringa.indexOf(u'=');
        if (uguale < 0)
            return {};
        const QStringView prima = stringa.left(uguale);
        const QStringView nome = prima.mid(prima.lastIndexOf(u';') + 1).trimmed();
        QStringView valore = stringa.mid(uguale + 1).trimmed();
        const bool traGraffe = valore.startsWith(u'{') && valore.contains(u'}');
        const qsizetype fine = traGraffe ? valore.indexOf(u'}') : valore.indexOf(u';');
        const QStringView resto = fine < 0 ? QStringView() : valore.mid(fine + 1);
        if (nome.compare(chiave, Qt::CaseInsensitive) == 0)
            return traGraffe ? valore.mid(1, fine - 1)
                             : valore.left(fine < 0 ? valore.size() : fine).trimmed();
        stringa = resto;
    }
    return {};
}

QString fileSqlite(const QString& stringa)
{
    if (!voceConnessione(stringa, u"DRIVER").contains("sqlite"_L1, Qt::CaseInsensitive))
        return {};
    const QString file = voceConnessione(stringa, u"Database").toString();
    return file.startsWith(u':') ? QString() : file;
}

} // namespace giacenza
