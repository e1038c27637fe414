#pragma once

#include "support/stampa.h"

#include <giacenza/giacenza.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

struct Esito
{
    int codice;
    QString uscita;
    QString errori;
};

/// A user's data folder of the test's own, and giacenza-registra run in it without a display.
class RegistroProva : public testing::Test
{
protected:
    RegistroProva()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(mCasa.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(mCasa.filePath(u"radice"_s + sistema())));
    }
    ~RegistroProva() override
    {
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_DATA_DIRS");
    }

    static QString libreria() { return QStringLiteral(LIBRERIA); }
    static QString sistema() { return QStringLiteral(CARTELLA_DATI); }
    /// Where a program seeks the class, as messages name it.
    QString cartelle() const
    {
        return u"%1/giacenza/classi, %1/radice%2/giacenza/classi, %2/giacenza/classi"_s.arg(mCasa.path(),
                                                                                            sistema());
    }
    QString descrittore() const { return mCasa.filePath(u"giacenza/classi/giacenza.cgiacenza.json"_s); }

    Esito registra(const QStringList& argomenti, const QString& radice = {}) const
    {
        QProcess processo;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        for (const QString& nome : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            ambiente.remove(nome);
        if (!radice.isEmpty())
            ambiente.insert(u"DESTDIR"_s, radice);
        processo.setProcessEnvironment(ambiente);
        processo.start(QStringLiteral(REGISTRA), argomenti);
        if (!processo.waitForFinished(60000))
            throw std::runtime_error("giacenza-registra non finisce");
        return {processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput()),
                QString::fromUtf8(processo.readAllStandardError())};
    }

    /// A copy of the library in a folder of its own, as another installation would have it.
    QString copia(const QString& cartella) const
    {
        const QString dove = mCasa.filePath(cartella);
        EXPECT_TRUE(QDir().mkpath(dove));
        const QString file = dove + u"/libgiacenza.so.0"_s;
        EXPECT_TRUE(QFile::copy(libreria(), file));
        return file;
    }

    /// Puts another text into the descriptor that there is.
    void cambia(const QByteArray& prima, const QByteArray& dopo) const
    {
        QFile file(descrittore());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray tutto = file.readAll();
        ASSERT_TRUE(tutto.contains(prima));
        tutto.replace(prima, dopo);
        file.resize(0);
        file.seek(0);
        file.write(tutto);
    }

    QTemporaryDir mCasa;
};

} // namespace giacenza::prove
