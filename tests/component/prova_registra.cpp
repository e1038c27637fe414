// giacenza-registra as a process, without a display.

#include "component/registroprova.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

using namespace giacenza::prove;
using testing::HasSubstr;

namespace {

class Registra : public RegistroProva
{
protected:
    static void fatto(const Esito& esito, const QString& uscita)
    {
        EXPECT_EQ(esito.errori, QString());
        EXPECT_EQ(esito.uscita, uscita);
        EXPECT_EQ(esito.codice, 0);
    }
    static void fallito(const Esito& esito, int codice, const QString& errori)
    {
        EXPECT_EQ(esito.uscita, QString());
        EXPECT_EQ(esito.errori, errori);
        EXPECT_EQ(esito.codice, codice);
    }
};

const QString versione = QStringLiteral(VERSIONE);
/// dove: the folders in which it was sought.
QString nonRegistrata(const QString& dove)
{
    return u"La classe \"giacenza.cGiacenza\" non è registrata. Cercata in: %1.\n"_s.arg(dove);
}
const QString diNuovo = u" Registrare di nuovo la classe con giacenza-registra.\n"_s;

} // namespace

TEST_F(Registra, registraMostraVerificaToglie)
{
    const QString quale = QFileInfo(libreria()).absolutePath() + u"/libgiacenza.so.0"_s;
    fatto(registra({}),
          u"Registrata la classe \"giacenza.cGiacenza\", versione %1.\nLibreria: %2\nDescrittore: %3\n"_s.arg(
              versione, quale, descrittore()));
    fatto(registra({u"--verifica"_s}),
          u"In ordine: classe \"giacenza.cGiacenza\", versione %1, libreria %2.\n"_s.arg(versione, quale));
    fatto(registra({u"--mostra"_s, u"--utente"_s}), uR"(Classe: giacenza.cGiacenza
Identificativo: b83c3226-1c9b-4820-a0fb-9bf880a7f6c3
Versione: %1
Libreria: %2
Descrittore: %3
Membri:
  0x68030003  leggi  PercorsoDatabase()
  0x68030003  scrivi PercorsoDatabase(percorso)
  0x68030002  leggi  PercorsoFileIni()
  0x68030002  scrivi PercorsoFileIni(percorso)
  0x60030005  metodo NuovaGiacenza()
  0x60030006  metodo NuovaGiacenzaEXT(strLdv, strDataLdv, strFiliale, strCliente)
  0x68030001  scrivi PercorsoLogoIntestazione(percorso)
  0x60030008  metodo MostraRiconsegna()
  0x68030000  scrivi TipoReso(tipo)
  0x6003000b  metodo ConsultaGiacenza()
  0x6003000c  metodo Esegui(Azione, Arg)
  0x00000001  evento fine()
)"_s.arg(versione, quale, descrittore()));
    fatto(registra({u"--togli"_s}),
          u"Tolta la registrazione della classe \"giacenza.cGiacenza\": %1\n"_s.arg(descrittore()));
    EXPECT_FALSE(QFileInfo::exists(descrittore()));
    for (const QString& opzione : {u"--mostra"_s, u"--verifica"_s})
        fallito(registra({opzione}), 2, nonRegistrata(cartelle()));
    fallito(registra({u"--togli"_s}), 2, nonRegistrata(QFileInfo(descrittore()).path()));
}

TEST_F(Registra, perTuttaLaMacchinaSottoUnaRadice)
{
    const QString radice = mCasa.filePath(u"radice"_s);
    const QString file = copia(u"radice/usr/lib"_s);
    const QString dove = radice + sistema() + u"/giacenza/classi/giacenza.cgiacenza.json"_s;
    fatto(registra({u"--sistema"_s, u"--libreria"_s, file}, radice),
          u"Registrata la classe \"giacenza.cGiacenza\", versione %1.\nLibreria: /usr/lib/libgiacenza.so.0\n"
          "Descrittore: %2\n"_s.arg(versione, dove));
    EXPECT_TRUE(QFileInfo::exists(dove));
    EXPECT_FALSE(QFileInfo::exists(descrittore()));
    EXPECT_EQ(registra({u"--mostra"_s}).codice, 0) << "found by way of XDG_DATA_DIRS";
    EXPECT_EQ(registra({u"--mostra"_s, u"--utente"_s}).codice, 2);
    EXPECT_EQ(registra({u"--mostra"_s, u"--sistema"_s}, radice).codice, 0);
    fatto(registra({u"--togli"_s, u"--sistema"_s}, radice),
          u"Tolta la registrazione della classe \"giacenza.cGiacenza\": %1\n"_s.arg(dove));
}

TEST_F(Registra, laLibreriaCheNonVaBene)
{
    const QString manca = mCasa.filePath(u"manca.so"_s);
    fallito(registra({u"--libreria"_s, manca}), 4, u"La libreria \"%1\" non c'è.\n"_s.arg(manca));
    const QString testo = mCasa.filePath(u"testo.so"_s);
    QFile file(testo);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("non è una libreria, anche se è abbastanza lunga per sembrarlo, a prima vista.");
    file.close();
    const Esito esito = registra({u"--libreria"_s, testo});
    EXPECT_EQ(esito.codice, 4);
    EXPECT_THAT(esito.errori.toStdString(),
                testing::StartsWith(u"La libreria \"%1\" non si carica: "_s.arg(testo).toStdString()));
    fallito(registra({u"--libreria"_s, QStringLiteral(FINTA_ALTRA)}), 4,
            u"\"%1\" non è il componente delle giacenze: manca la funzione giacenza_versione.\n"_s.arg(
                QStringLiteral(FINTA_ALTRA)));
    fallito(registra({u"--libreria"_s, QStringLiteral(FINTA_MONCA)}), 4,
            u"\"%1\" non è il componente delle giacenze: manca la funzione giacenza_errore_testo.\n"_s.arg(
                QStringLiteral(FINTA_MONCA)));
    EXPECT_FALSE(QFileInfo::exists(descrittore()));
}

TEST_F(Registra, ilDescrittoreInvecchiato)
{
    const QString file = copia(u"vecchia"_s);
    ASSERT_EQ(registra({u"--libreria"_s, file}).codice, 0);
    cambia("\"versione\": \"" VERSIONE "\"", "\"versione\": \"7.0.0\"");
    fallito(registra({u"--verifica"_s}), 5,
            u"La libreria \"%1\" è della versione %2, il descrittore \"%3\" della 7.0.0."_s.arg(
                file, versione, descrittore()) +
                diNuovo);
    cambia("\"versione\": \"7.0.0\"", "\"versione\": \"0.0.9\"");
    fallito(registra({u"--verifica"_s}), 5,
            u"Il descrittore \"%1\" non dice ciò che dice la libreria \"%2\" (versioni 0.0.9 e %3)."_s.arg(
                descrittore(), file, versione) +
                diNuovo);
    cambia("\"versione\": \"0.0.9\"", "\"versione\": \"" VERSIONE "\"");
    cambia("\"NuovaGiacenza\"", "\"VecchiaGiacenza\"");
    fallito(
        registra({u"--verifica"_s}), 5,
        u"Il descrittore \"%1\" non dice ciò che dice la libreria \"%2\" (stessa versione, altro contenuto)."_s
                .arg(descrittore(), file) +
            diNuovo);
    ASSERT_TRUE(QFile::remove(file));
    fallito(registra({u"--verifica"_s}), 4,
            u"La libreria \"%1\", indicata dal descrittore \"%2\", non c'è più."_s.arg(file, descrittore()) +
                diNuovo);
    EXPECT_EQ(registra({u"--mostra"_s}).codice, 0) << "it can be looked at all the same";
    cambia("{", "");
    for (const QString& opzione : {u"--mostra"_s, u"--verifica"_s}) {
        const Esito esito = registra({opzione});
        EXPECT_EQ(esito.codice, 3);
        EXPECT_THAT(esito.errori.toStdString(),
                    testing::StartsWith(
                        u"Il descrittore \"%1\" non è in ordine: "_s.arg(descrittore()).toStdString()));
    }
    EXPECT_EQ(registra({u"--togli"_s}).codice, 0) << "and taken away";
    EXPECT_FALSE(QFileInfo::exists(descrittore()));
}

TEST_F(Registra, cioCheNonSiScrive)
{
    QFile ostacolo(mCasa.filePath(u"giacenza"_s));
    ASSERT_TRUE(ostacolo.open(QIODevice::WriteOnly));
    fallito(registra({}), 6,
            u"Il descrittore \"%1\" non è stato scritto: la cartella non si crea.\n"_s.arg(descrittore()));
    ASSERT_TRUE(ostacolo.remove());
    ASSERT_TRUE(QDir().mkpath(descrittore()));
    const Esito esito = registra({u"--togli"_s});
    EXPECT_EQ(esito.codice, 6);
    EXPECT_THAT(
        esito.errori.toStdString(),
        testing::StartsWith(u"Il descrittore \"%1\" non è stato tolto: "_s.arg(descrittore()).toStdString()));
}

TEST_F(Registra, lUscitaCheNonSiScrive)
{
    ASSERT_EQ(registra({}).codice, 0);
    for (const QStringList& riga : {QStringList{u"--mostra"_s}, QStringList{u"--verifica"_s},
                                    QStringList{u"--help"_s}, QStringList{u"--version"_s}, QStringList{}}) {
        QProcess processo;
        processo.setStandardOutputFile(u"/dev/full"_s);
        processo.start(QStringLiteral(REGISTRA), riga);
        ASSERT_TRUE(processo.waitForFinished(60000));
        EXPECT_EQ(processo.exitCode(), 7) << riga.join(u' ').toStdString();
        EXPECT_EQ(processo.readAllStandardError(), "L'uscita non si scrive.\n");
    }
}

TEST_F(Registra, laRigaDiComando)
{
    const QString coda = u"\nSi veda giacenza-registra --help.\n"_s;
    fallito(registra({u"--mostra"_s, u"--togli"_s}), 1,
            u"--mostra, --verifica e --togli non vanno insieme."_s + coda);
    fallito(registra({u"--utente"_s, u"--sistema"_s}), 1,
            u"--utente e --sistema non vanno insieme."_s + coda);
    fallito(registra({u"--togli"_s, u"--libreria"_s, u"x"_s}), 1,
            u"--libreria vale soltanto per registrare, e vuole un file."_s + coda);
    fallito(registra({u"--libreria"_s, u""_s}), 1,
            u"--libreria vale soltanto per registrare, e vuole un file."_s + coda);
    fallito(registra({u"--sbagliata"_s}), 1, u"Opzione sconosciuta: sbagliata."_s + coda);
    fallito(registra({u"--mostra=x"_s}), 1,
            u"Le opzioni non si capiscono: dopo --libreria ci vuole un file, dopo le altre niente."_s + coda);
    fallito(registra({u"altro"_s}), 1, u"Di troppo: altro."_s + coda);
    fatto(registra({u"--version"_s}), u"giacenza-registra %1\n"_s.arg(versione));
    const Esito aiuto = registra({u"--help"_s});
    EXPECT_EQ(aiuto.codice, 0);
    EXPECT_EQ(aiuto.errori, QString());
    for (const char* opzione :
         {"--utente", "--sistema", "--libreria FILE", "--mostra", "--verifica", "--togli", "-h, --help",
          "-v, --version", "Codici d'uscita: 0 fatto; 1 riga di comando sbagliata;"})
        EXPECT_THAT(aiuto.uscita.toStdString(), HasSubstr(opzione));
    // The manual names every option and every code.
    QFile manuale(QStringLiteral(MANUALE));
    ASSERT_TRUE(manuale.open(QIODevice::ReadOnly));
    const std::string pagina = manuale.readAll().toStdString();
    for (const char* opzione :
         {"utente", "sistema", "libreria", "mostra", "verifica", "togli", "help", "version"})
        EXPECT_THAT(pagina, HasSubstr(std::string("\\-\\-") + opzione));
    for (int codice = 0; codice <= 7; ++codice)
        EXPECT_THAT(pagina, HasSubstr(".B " + std::to_string(codice) + "\n"));
}
