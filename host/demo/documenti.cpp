#include "documenti.h"

#include "regista.h"

#include <QDir>

QStringList documenti(const QString& cartella)
{
    return QDir(cartella).entryList({QStringLiteral("*.pdf")}, QDir::Files);
}

QString documentoNuovo(const QString& chiave, const QString& cartella, const QStringList& prima)
{
    const QStringList adesso = documenti(cartella);
    for (const QString& nome : adesso)
        if (nome.startsWith(chiave) && !prima.contains(nome))
            return nome;
    throw Imprevisto(QStringLiteral("manca il documento %1").arg(chiave));
}
