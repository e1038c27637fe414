#pragma once

#include <QObject>
#include <QString>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// The children of an object, one to a line: class and name, indented by depth; those without a name only
/// when something under them has one.
QString elencoFigli(const QObject& radice);

/// The child of a class with an object name, at any depth. Throws, and so fails the test, with a list of the
/// children that are there.
template<class Classe>
Classe* trova(const QObject& radice, const QString& nome)
{
    if (auto* figlio = radice.findChild<Classe*>(nome))
        return figlio;
    const QString testo = u"%1 \"%2\" non c'è in %3. Ci sono:\n%4"_s.arg(
        QString::fromLatin1(Classe::staticMetaObject.className()), nome, radice.objectName(),
        elencoFigli(radice));
    throw std::runtime_error(testo.toStdString());
}

template<class Classe>
Classe* trova(const QObject* radice, const QString& nome)
{
    if (!radice)
        throw std::runtime_error("Nessuna finestra in cui cercare " + nome.toStdString());
    return trova<Classe>(*radice, nome);
}

} // namespace giacenza::prove
