#include "host/finestra.h"
#include "host/immagini/capitoli.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>

using namespace Qt::StringLiterals;

void fotografaProgramma(Album& album)
{
    const QString ini = QDir(album.cartella).filePath(u"giacenza.ini"_s);
    const QString logo = QCoreApplication::applicationDirPath() + u"/logo.gif"_s;
    {
        deposito::Finestra finestra({album.database, ini, logo});
        finestra.show();
        auto* lettura = finestra.findChild<QLabel*>(u"lblLettura"_s);
        Regista::attende([&] { return lettura->text().startsWith(u"letto alle"_s); },
                         u"l'elenco delle giacenze non è stato letto"_s);
        // The clock would make another picture each time.
        lettura->setText(u"letto alle 08:30:00"_s);
        album.scatta(&finestra, u"programma"_s);
    }
    deposito::Finestra finestra({u"DRIVER={SQLite3};Database=/non/c'è/giacenza.db"_s, ini, logo});
    finestra.show();
    album.regista.preme(&finestra, Qt::Key_F2);
    Regista::verifica(Regista::controllo(&finestra, u"fraMessaggio"_s)->isVisible(),
                      u"il programma non dice che l'archivio manca"_s);
    auto* lettura = finestra.findChild<QLabel*>(u"lblLettura"_s);
    Regista::attende([&] { return lettura->text().startsWith(u"lettura non riuscita"_s); },
                     u"l'elenco non dice che non si legge"_s);
    lettura->setText(u"lettura non riuscita alle 08:30:00"_s);
    album.scatta(&finestra, u"programma-errore"_s);
    album.imposta();
}
