#pragma once

#include "component/impostazioni.h"
#include "component/messaggi.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

/// A folder of the test's own that holds the settings file, settings as new, and every message recorded and
/// answered with OK.
class CartellaProva : public ::testing::Test
{
protected:
    CartellaProva()
    {
        giacenza::impostazioni() = {};
        giacenza::impostazioni().percorsoFileIni = percorso(QStringLiteral("gest.ini"));
        mPrima = giacenza::impostaPortaMessaggi([this](QWidget* padre, const giacenza::Messaggio& messaggio) {
            mPadri.push_back(padre);
            mMessaggi.push_back(messaggio);
            return giacenza::Risposta::ok;
        });
    }

    ~CartellaProva() override
    {
        giacenza::impostaPortaMessaggi(mPrima);
        giacenza::impostazioni() = {};
    }

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

    std::vector<giacenza::Messaggio> mMessaggi;
    std::vector<QWidget*> mPadri;

private:
    QTemporaryDir mCartella;
    giacenza::PortaMessaggi mPrima;
};
