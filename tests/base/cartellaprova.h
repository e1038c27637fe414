#pragma once

#include "base/impostazioni.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A folder of the test's own that holds the settings file, settings as new, and every message recorded.
class CartellaProva : public ::testing::Test
{
protected:
    CartellaProva()
    {
        impostazioni() = {};
        impostazioni().percorsoFileIni = percorso(u"gest.ini"_s);
    }

    ~CartellaProva() override { impostazioni() = {}; }

    QString percorso(const QString& nome) const { return mCartella.filePath(nome); }

    void scrivi(const QString& nome, const QByteArray& byte) const
    {
        QFile file(percorso(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(byte), byte.size());
    }

    QByteArray leggi(const QString& nome) const
    {
        QFile file(percorso(nome));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    RegistroMessaggi mRegistro;

private:
    QTemporaryDir mCartella;
};

} // namespace giacenza::prove
