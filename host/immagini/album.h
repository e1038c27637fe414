#pragma once

#include "host/demo/archivio.h"
#include "host/demo/regista.h"

#include <giacenza/cGiacenza.h>

/// The pictures of the guide: a folder, the hands that play the screens, and what they are played on.
class Album
{
public:
    /// dove: where the pictures go, and where settings and documents of the story lie.
    /// stringa: connection string of demonstration data whose today is the story's.
    Album(const QString& dove, const QString& stringa);

    /// Gives the component its settings, which every object of the thread shares: anew after a window that
    /// has set its own.
    void imposta();

    /// Keeps a picture of a window, "nome.png". Throws Imprevisto when the name was taken, or it cannot be
    /// written.
    void scatta(QWidget* finestra, const QString& nome);

    /// The answer to a dialog: a picture of it as it stands, then what closes it.
    Regista::Risposta dialogo(const QString& nome, const std::function<void(QWidget*)>& chiusura);
    /// The same for a message, whose preset button is taken.
    Regista::Risposta messaggio(const QString& nome);
    /// The answer to a message that the guide does not show.
    Regista::Risposta conferma();

    /// Leaves a screen and waits until the component has said so.
    void esce(QWidget* schermata);

    Regista regista;
    Archivio archivio;
    giacenza::cGiacenza componente;
    QString cartella;
    QString database;

private:
    QStringList mScattate;
};
