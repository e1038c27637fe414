// An object made from the name of its class, by the descriptor that giacenza-registra wrote; with the library
// itself.

#include "component/registroprova.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

using namespace giacenza::prove;

namespace {

class CreaClasse : public RegistroProva
{
protected:
    ~CreaClasse() override { giacenza_rilascia(mOggetto); }

    /// "code: text" of the creation.
    QString crea(const char* classe = GIACENZA_CLASSE)
    {
        const int32_t codice = giacenza_crea_classe(classe, &mOggetto);
        EXPECT_EQ(codice == GIACENZA_BENE, mOggetto != 0);
        return u"%1: %2"_s.arg(codice).arg(QString::fromUtf8(giacenza_errore_testo()));
    }
    int32_t scrivi(uint32_t id, const QByteArray& testo) const
    {
        const giacenza_valore valore = {GIACENZA_TESTO, 0, testo.constData()};
        return giacenza_invoca(mOggetto, id, GIACENZA_SCRIVI, &valore, 1, nullptr);
    }
    static QByteArray database(giacenza_oggetto di)
    {
        giacenza_valore valore = {};
        EXPECT_EQ(giacenza_invoca(di, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_LEGGI, nullptr, 0, &valore),
                  GIACENZA_BENE);
        QByteArray letto = valore.testo;
        giacenza_libera(&valore);
        return letto;
    }
    int32_t apri() const
    {
        return giacenza_invoca(mOggetto, GIACENZA_ID_NUOVA_GIACENZA, GIACENZA_METODO, nullptr, 0, nullptr);
    }
    void registrata(const QString& quale) const
    {
        const Esito esito = registra({u"--libreria"_s, quale});
        ASSERT_EQ(esito.codice, 0) << esito.errori.toStdString();
    }
    QByteArray archivio() const
    {
        const QString file = mCasa.filePath(u"depo.db"_s);
        QProcess sqlite;
        sqlite.setStandardInputFile(QStringLiteral(SCHEMA));
        sqlite.start(u"sqlite3"_s, {file});
        EXPECT_TRUE(sqlite.waitForFinished());
        EXPECT_EQ(sqlite.exitCode(), 0);
        return "DRIVER={SQLite3};Database=" + QFile::encodeName(file);
    }

    giacenza_oggetto mOggetto = 0;
};

void conta(giacenza_oggetto oggetto, void* utente)
{
    static_cast<std::vector<giacenza_oggetto>*>(utente)->push_back(oggetto);
}

} // namespace

TEST_F(CreaClasse, dallaStessaLibreria)
{
    registrata(libreria());
    EXPECT_EQ(crea("GIACENZA.cgiacenza"), u"0: "_s);
    giacenza_oggetto nostro = 0;
    ASSERT_EQ(giacenza_crea(&nostro), GIACENZA_BENE);
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, "uno"), GIACENZA_BENE);
    EXPECT_EQ(database(nostro), "uno") << "one set of settings: the library is this one";
    EXPECT_EQ(giacenza_rilascia(nostro), GIACENZA_BENE);
}

TEST_F(CreaClasse, daUnAltraLibreriaConLeSueImpostazioni)
{
    registrata(copia(u"altra"_s));
    ASSERT_EQ(crea(), u"0: "_s);
    giacenza_oggetto nostro = 0;
    ASSERT_EQ(giacenza_crea(&nostro), GIACENZA_BENE);
    EXPECT_NE(nostro, mOggetto);
    const giacenza_valore uno = {GIACENZA_TESTO, 0, "uno"};
    EXPECT_EQ(giacenza_invoca(nostro, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, &uno, 1, nullptr),
              GIACENZA_BENE);
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, "depòsito"), GIACENZA_BENE);
    EXPECT_EQ(database(mOggetto), "depòsito");
    EXPECT_EQ(database(nostro), "uno");
    EXPECT_EQ(giacenza_rilascia(nostro), GIACENZA_BENE);
}

TEST_F(CreaClasse, iGuastiDellAltraLibreriaPassanoComeSono)
{
    registrata(copia(u"altra"_s));
    ASSERT_EQ(crea(), u"0: "_s);
    EXPECT_EQ(giacenza_invoca(mOggetto, 0x6003000A, GIACENZA_METODO, nullptr, 0, nullptr),
              GIACENZA_MEMBRO_IGNOTO);
    EXPECT_STREQ(giacenza_errore_testo(), "La classe non ha un membro con il numero 0x6003000a.");
    EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_TIPO_RESO, conta, nullptr), GIACENZA_MODO_SBAGLIATO);
    ASSERT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE,
                     "DRIVER={SQLite3};Database=" + QFile::encodeName(mCasa.filePath(u"manca.db"_s))),
              GIACENZA_BENE);
    EXPECT_EQ(apri(), GIACENZA_DATABASE);
    EXPECT_STREQ(giacenza_errore_sqlstate(), "08001");
    EXPECT_EQ(QString::fromUtf8(giacenza_errore_testo()),
              u"Il file dell'archivio non c'è: %1"_s.arg(mCasa.filePath(u"manca.db"_s)));
}

TEST_F(CreaClasse, laSchermataDellAltraLibreria)
{
    registrata(copia(u"altra"_s));
    ASSERT_EQ(crea(), u"0: "_s);
    std::vector<giacenza_oggetto> fini;
    ASSERT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, conta, &fini), GIACENZA_BENE);
    ASSERT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, archivio()), GIACENZA_BENE);
    ASSERT_EQ(apri(), GIACENZA_BENE) << giacenza_errore_testo();
    QWidget* schermata = nullptr;
    for (QWidget* finestra : QApplication::topLevelWidgets())
        if (finestra->isVisible())
            schermata = finestra;
    ASSERT_NE(schermata, nullptr);
    schermata->close();
    EXPECT_THAT(fini, testing::ElementsAre(mOggetto));
    EXPECT_EQ(giacenza_elabora_eventi(0), GIACENZA_BENE);
    const giacenza_oggetto prima = mOggetto;
    EXPECT_EQ(giacenza_rilascia(prima), GIACENZA_BENE);
    EXPECT_EQ(giacenza_rilascia(prima), GIACENZA_OGGETTO_IGNOTO);
}

TEST_F(CreaClasse, cioCheNonSiPuoCreare)
{
    const QString dove = cartelle();
    EXPECT_EQ(crea(),
              u"30: La classe \"giacenza.cGiacenza\" non è registrata: la registra giacenza-registra. "
              "Cercata in: %1."_s.arg(dove));
    EXPECT_EQ(crea("altra.Classe"), u"30: La classe \"altra.Classe\" non è registrata: la registra "
                                    "giacenza-registra. Cercata in: %1."_s.arg(dove));
    EXPECT_EQ(crea("../x"), u"31: \"../x\" non è il nome di una classe."_s);
    EXPECT_EQ(crea(nullptr), u"9: Il puntatore \"classe\" è nullo."_s);
    EXPECT_EQ(giacenza_crea_classe(GIACENZA_CLASSE, nullptr), GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(crea("\xE0"), u"10: Il testo \"classe\" non è in UTF-8."_s);
}

TEST_F(CreaClasse, ilDescrittoreInvecchiato)
{
    const QString file = copia(u"vecchia"_s);
    const QString diNuovo = u" Registrare di nuovo la classe con giacenza-registra."_s;
    registrata(file);
    cambia("\"versione\": \"" VERSIONE "\"", "\"versione\": \"7.0.0\"");
    EXPECT_EQ(crea(), u"33: La libreria \"%1\" è della versione %2, il descrittore \"%3\" della 7.0.0."_s.arg(
                          file, QStringLiteral(VERSIONE), descrittore()) +
                          diNuovo);
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(crea(), u"32: La libreria \"%1\", indicata dal descrittore \"%2\", non c'è più."_s.arg(
                          file, descrittore()) +
                          diNuovo);
    cambia("{", "");
    EXPECT_TRUE(crea().startsWith(u"31: Il descrittore \"%1\" non è in ordine: "_s.arg(descrittore())));
}

TEST_F(CreaClasse, altreVersioniDellaLibreria)
{
    registrata(QStringLiteral(FINTA_NOVE));
    EXPECT_EQ(crea(), u"33: La libreria \"%1\" è della versione 9.0.0, il programma della %2."_s.arg(
                          QStringLiteral(FINTA_NOVE), QStringLiteral(VERSIONE)));
    registrata(QStringLiteral(FINTA_ABI_DUE));
    EXPECT_EQ(crea(), u"33: La libreria \"%1\" ha l'interfaccia binaria 2, il programma la 1."_s.arg(
                          QStringLiteral(FINTA_ABI_DUE)));
}
