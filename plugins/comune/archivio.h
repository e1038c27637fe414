#pragma once

#include <QByteArray>
#include <QString>

namespace giacenza::comune {

/// A document's name as a file name, without folder and ending: what is not a letter, a digit, a blank or one
/// of
/// "_-." becomes "-", and so does a leading point.
QString nomeSicuro(const QString& nome);

/// Keeps a document in a folder, which is made if it is missing, and returns the file's path.
///
/// nome: made safe by nomeSicuro(). estensione: with its point. The file is nome + estensione, or the next
/// free one of "-2", "-3"...: an earlier document is never replaced. Either the whole file is there under its
/// name, or no file is. Throws Errore, which names folder or file.
QString archivia(const QString& cartella, const QString& nome, const QByteArray& byte,
                 const QString& estensione = QStringLiteral(".pdf"));

/// Puts a file in the place of the one that is there, if any: whole, or the one of before stays. Returns why
/// it did not work, in Italian, to go on a sentence; empty when it did.
QString sostituisci(const QString& percorso, const QByteArray& byte);

} // namespace giacenza::comune
