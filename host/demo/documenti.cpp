#include "documenti.h"

#include "regista.h"

#include <QDir>

using namespace Qt::StringLiterals;

QStringList documenti(const QString& cartella)
{
    return QDir(cartella).entryList({u"*.pdf"_s}, QDir::Files);
}

QString documentoNuovo(const QString& chiave, const QString& cartella, const QStringList& prima)
{
    const QStringList adesso = documenti(cartella);
    for (const QString& nome : adesso)
        if (nome.startsWith(chiave) && !prima.contains(nome))
            return nome;
    throw Imprevisto(u"manca il documento %1"_s.arg(chiave));
}
