#include "host/immagini/album.h"

#include <QAbstractAnimation>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

Album::Album(const QString& dove, const QString& stringa)
    : regista(dove), archivio(stringa), cartella(dove), database(stringa)
{
    imposta();
}

void Album::imposta()
{
    componente.setPercorsoDatabase(database);
    componente.setPercorsoFileIni(QDir(cartella).filePath(u"giacenza.ini"_s));
    componente.setPercorsoLogoIntestazione(QCoreApplication::applicationDirPath());
}

void Album::scatta(QWidget* finestra, const QString& nome)
{
    Regista::verifica(!mScattate.contains(nome), u"due immagini si chiamano %1"_s.arg(nome));
    mScattate << nome;
    // A field's cross fades in.
    Regista::attende(
        [&] {
            const auto animazioni = finestra->findChildren<QAbstractAnimation*>();
            return std::none_of(animazioni.begin(), animazioni.end(),
                                [](const QAbstractAnimation* animazione) {
                                    return animazione->state() == QAbstractAnimation::Running;
                                });
        },
        u"la finestra %1 continua a muoversi"_s.arg(nome));
    QCoreApplication::processEvents();
    Regista::verifica(finestra->grab().save(QDir(cartella).filePath(nome + u".png"_s)),
                      u"l'immagine %1 non è stata scritta"_s.arg(nome));
}

Regista::Risposta Album::dialogo(const QString& nome, const std::function<void(QWidget*)>& chiusura)
{
    return [this, nome, chiusura](QWidget* aperto) {
        scatta(aperto, nome);
        chiusura(aperto);
    };
}

Regista::Risposta Album::messaggio(const QString& nome)
{
    return dialogo(nome, [this](QWidget* aperto) { regista.preme(aperto, Qt::Key_Return); });
}

Regista::Risposta Album::conferma()
{
    return [this](QWidget* aperto) { regista.preme(aperto, Qt::Key_Return); };
}

void Album::esce(QWidget* schermata)
{
    bool uscita = false;
    const auto ascolto =
        QObject::connect(&componente, &giacenza::cGiacenza::fine, &regista, [&uscita] { uscita = true; });
    regista.clicca(schermata, u"cmdEsci"_s);
    Regista::attende([&] { return uscita; }, u"la chiusura della schermata non è stata annunciata"_s);
    QObject::disconnect(ascolto);
}
