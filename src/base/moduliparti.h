#pragma once

#include <giacenza/ParteEsterna.h>

#include <QStringList>

#include <memory>

namespace giacenza {

/// A part, or why there is none; both empty when the file does not serve the class.
struct ParteProvata
{
    std::unique_ptr<ParteEsterna> parte;
    QString causa;
};

/// Calls a factory; what it throws, and its giving nothing, become the cause.
ParteProvata provaACreare(const FabbricaParte& fabbrica);

/// The plug-in files of some folders, whole paths, in order of folder and then of name.
QStringList fileModuli(const QStringList& cartelle);

/// The part of a class out of one plug-in file, which is loaded only when its metadata names the class.
ParteProvata parteDalModulo(const QString& percorso, const QString& nomeClasse);

} // namespace giacenza
