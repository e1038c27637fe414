#pragma once

#include <QProcess>
#include <QString>

namespace giacenza::prove {

/// A display and a window manager of the test's own, on which other programs are run and worked as by an
/// operator.
class Schermo
{
public:
    /// Throws std::runtime_error when it does not come up.
    Schermo();
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;
    ~Schermo();

    /// The environment of a program that shows its windows here.
    QProcessEnvironment ambiente() const;

    /// Waits for a window and makes it the active one, then presses keys ("alt+F4"). Throws
    /// std::runtime_error when it does not come within a minute. nome: how its title begins.
    void premi(const QString& nome, const QString& tasti) const;

private:
    QString xdotool(const QStringList& argomenti) const;

    QProcess mXvfb;
    QProcess mGestore;
    QString mNome;
};

} // namespace giacenza::prove
