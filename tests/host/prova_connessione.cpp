#include "connessione.h"
#include "opzioni.h"

#include "support/stampa.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using deposito::FonteArchivio;
using deposito::leggiArchivio;
using deposito::StringaArchivio;

namespace {

const QString stringa = u"DRIVER={MariaDB Unicode};UID=ufficio;PWD=parola d'ordine è lunga"_s;

class StringaDiConnessione : public testing::Test
{
protected:
    StringaDiConnessione() { qunsetenv(deposito::variabileArchivio); }
    ~StringaDiConnessione() override { qunsetenv(deposito::variabileArchivio); }

    QString scrivi(const QByteArray& byte) const
    {
        const QString nome = mCartella.filePath(u"stringa"_s);
        QFile file(nome);
        if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size())
            throw std::runtime_error("il file di prova non si scrive");
        return nome;
    }
    static StringaArchivio leggi(const FonteArchivio& fonte, QByteArray ingresso = {})
    {
        QBuffer buffer(&ingresso);
        if (!buffer.open(QIODevice::ReadOnly))
            throw std::runtime_error("l'ingresso di prova non si apre");
        return leggiArchivio(fonte, buffer);
    }
    static void data(const StringaArchivio& letta)
    {
        EXPECT_EQ(letta.stringa, stringa);
        EXPECT_EQ(letta.guasto, QString());
    }
    static void rifiutata(const StringaArchivio& letta, const QString& guasto)
    {
        EXPECT_EQ(letta.stringa, QString());
        EXPECT_EQ(letta.guasto.toStdString(), guasto.toStdString());
    }

    QTemporaryDir mCartella;
};

} // namespace

TEST_F(StringaDiConnessione, siDaInQuattroModi)
{
    data(leggi({stringa, {}}));
    data(leggi({u"-"_s, {}}, stringa.toUtf8() + "\r\nun'altra riga\n"));
    data(leggi({{}, scrivi(stringa.toUtf8() + '\n')}));
    qputenv(deposito::variabileArchivio, stringa.toUtf8());
    data(leggi({}));
}

TEST_F(StringaDiConnessione, laRigaDiComandoVinceSullAmbienteCheSiSvuotaComunque)
{
    for (const FonteArchivio& fonte : {FonteArchivio{stringa, {}}, FonteArchivio{u"-"_s, {}},
                                       FonteArchivio{{}, scrivi(stringa.toUtf8())}}) {
        qputenv(deposito::variabileArchivio, "DSN=un altro");
        data(leggi(fonte, stringa.toUtf8()));
        EXPECT_FALSE(qEnvironmentVariableIsSet(deposito::variabileArchivio));
    }
}

TEST_F(StringaDiConnessione, senzaNienteNonCEneStringaNeGuasto)
{
    rifiutata(leggi({}), {});
}

TEST_F(StringaDiConnessione, unFileCheNonVaSiDice)
{
    rifiutata(leggi({{}, u"/non/c'è"_s}),
              u"Il file \"/non/c'è\" con la stringa di connessione non c'è, o non è un file."_s);
    const QString cartella = mCartella.path();
    rifiutata(leggi({{}, cartella}),
              u"Il file \"%1\" con la stringa di connessione non c'è, o non è un file."_s.arg(cartella));
    const QString vuoto = scrivi("\n" + stringa.toUtf8());
    rifiutata(leggi({{}, vuoto}),
              u"Il file \"%1\" non contiene una stringa di connessione: la prima riga è vuota."_s.arg(vuoto));
    const QString lungo = scrivi(QByteArray(70000, 'x'));
    rifiutata(leggi({{}, lungo}),
              u"Il file \"%1\" non contiene una stringa di connessione: la prima riga è troppo lunga."_s.arg(
                  lungo));
}

TEST_F(StringaDiConnessione, unIngressoVuotoSiDice)
{
    rifiutata(leggi({u"-"_s, {}}),
              u"Lo standard input non contiene una stringa di connessione: la prima riga è vuota."_s);
}

TEST(Programma, leSueImpostazioniPortanoIlSuoNome)
{
    const QString prima = QCoreApplication::applicationName();
    deposito::presentati();
    EXPECT_TRUE(QSettings().fileName().endsWith(u"/deposito/deposito.conf"_s))
        << QSettings().fileName().toStdString();
    EXPECT_EQ(QGuiApplication::desktopFileName(), u"local.giacenza.deposito"_s) << "the menu entry's";
    QCoreApplication::setOrganizationName({});
    QCoreApplication::setApplicationName(prima);
}
