// Late binding, with forms of the test's own.

#include "component/componentediprova.h"

#include "support/stampa.h"

#include <giacenza/Chiamata.h>

#include <QSignalSpy>

#include <gmock/gmock.h>

#include <thread>

using namespace giacenza::prove;
using namespace giacenza;

namespace {

constexpr quint32 idFine = 1;

class Chiamata : public ComponenteDiProva
{
protected:
    QVariant su(const QString& nome, Modo modo, const QVariantList& argomenti = {})
    {
        return chiama(*mClasse, nome, modo, argomenti);
    }

    /// "code: text" of a call that cannot be made.
    template<class Azione>
    static QString errore(const Azione& azione)
    {
        try {
            azione();
        } catch (const ErroreChiamata& errore) {
            return u"%1: %2"_s.arg(errore.codice()).arg(errore.testo());
        }
        return u"riuscita"_s;
    }

    QString erroreSu(const QString& nome, Modo modo, const QVariantList& argomenti = {})
    {
        return errore([&] { su(nome, modo, argomenti); });
    }
};

class SenzaRete : public SchermataFinta<nomeGestione>
{
public:
    void carica() { throw ErroreDatabase(u"08S01"_s, 2002, u"rete à"_s, u"select 1"_s); }
};

} // namespace

TEST_F(Chiamata, perNomeInOgniForma)
{
    for (const QString& nome : {u"PercorsoDatabase"_s, u"percorsodatabase"_s, u"PERCORSODATABASE"_s}) {
        su(nome, Modo::scrivi, {nome + u";à"_s});
        EXPECT_EQ(su(nome, Modo::leggi), QVariant(nome + u";à"_s));
        EXPECT_EQ(impostazioni().percorsoDatabase, nome + u";à"_s);
    }
    EXPECT_EQ(idMembro(u"nuovagiacenzaext"_s), 0x60030006U);
    EXPECT_EQ(idMembro(u"FINE"_s), idFine);
}

TEST_F(Chiamata, ogniMembroPerNumero)
{
    chiama(*mClasse, 0x68030003, Modo::scrivi, {u"uno"_s});
    chiama(*mClasse, 0x68030002, Modo::scrivi, {u"due"_s});
    chiama(*mClasse, 0x68030001, Modo::scrivi, {u"tre"_s});
    chiama(*mClasse, 0x68030000, Modo::scrivi, {2});
    EXPECT_EQ(chiama(*mClasse, 0x68030003, Modo::leggi), QVariant(u"uno"_s));
    EXPECT_EQ(chiama(*mClasse, 0x68030002, Modo::leggi), QVariant(u"due"_s));
    EXPECT_EQ(impostazioni().percorsoLogoIntestazione, u"tre"_s);
    EXPECT_EQ(impostazioni().movimento, Movimento::reso);
    chiama(*mClasse, 0x60030005, Modo::metodo);
    chiama(*mClasse, 0x60030006, Modo::metodo, {u"1"_s, u"01/02/2024"_s, u"MI"_s, u"77"_s});
    chiama(*mClasse, 0x60030008, Modo::metodo);
    EXPECT_EQ(chiama(*mClasse, 0x6003000B, Modo::metodo), QVariant());
    const QStringList valori = {u"frmGiacenza.NLettVett=1"_s, u"frmGiacenza.DataLdv=01/02/2024"_s,
                                u"frmGiacenza.Filiale=MI"_s, u"frmGiacenza.CodiceCliente=77"_s};
    const QStringList aperta = {creata, mostrata};
    EXPECT_EQ(accaduto(), eventi(frmGiacenza, aperta) + valori + eventi(frmRiconsegna, aperta) +
                              eventi(frmGestGia, aperta));
    EXPECT_EQ(chiama(*mClasse, 0x6003000C, Modo::metodo, {u"azione"_s}), QVariant());
}

TEST_F(Chiamata, iNumeriCheMancano)
{
    for (const quint32 id : {0x60030007U, 0x60030009U, 0x6003000AU, 0x6003000DU, 0x60030004U, 0x68030004U,
                             0x6802FFFFU, 0U, 2U, 0xFFFFFFFFU})
        for (const Modo modo : {Modo::leggi, Modo::scrivi, Modo::metodo})
            EXPECT_EQ(errore([&] { chiama(*mClasse, id, modo, {u"x"_s}); }),
                      u"1: La classe non ha un membro con il numero 0x%1."_s.arg(id, 8, 16, QChar(u'0')));
}

TEST_F(Chiamata, iNomiCheMancano)
{
    for (const QString& nome :
         {u"Percorso"_s, u"setTipoReso"_s, u""_s, u"PercorsoDatabase "_s, u"deleteLater"_s}) {
        EXPECT_EQ(erroreSu(nome, Modo::metodo), u"1: La classe non ha il membro \"%1\"."_s.arg(nome));
        EXPECT_EQ(errore([&] { idMembro(nome); }), u"1: La classe non ha il membro \"%1\"."_s.arg(nome));
    }
}

TEST_F(Chiamata, leSoleLettereDelNomeHannoDueForme)
{
    // The long s and the Kelvin sign fold to letters of these names, for who folds all that Unicode folds.
    for (const QString& nome : {u"PercorſoDatabase"_s, u"E\u017Fegui"_s, u"TipoReſo"_s})
        EXPECT_EQ(errore([&] { idMembro(nome); }), u"1: La classe non ha il membro \"%1\"."_s.arg(nome));
    EXPECT_EQ(errore([&] { idMembro(u"fine\0"_s); }), u"1: La classe non ha il membro \"fine\0\"."_s);
}

TEST_F(Chiamata, unNomeLungoSiAccorcia)
{
    EXPECT_EQ(errore([&] { idMembro(QString(100'000, u'x')); }),
              u"1: La classe non ha il membro \"%1\"."_s.arg(QString(120, u'x')));
}

TEST_F(Chiamata, unModoCheNonCE)
{
    for (const int modo : {0, 5, -1})
        EXPECT_EQ(erroreSu(u"TipoReso"_s, static_cast<Modo>(modo)),
                  u"2: Modo di chiamata sconosciuto: %1."_s.arg(modo));
}

TEST_F(Chiamata, ilModoSbagliato)
{
    EXPECT_EQ(erroreSu(u"NuovaGiacenza"_s, Modo::leggi),
              u"2: \"NuovaGiacenza\" è un metodo: non si può leggere."_s);
    EXPECT_EQ(erroreSu(u"Esegui"_s, Modo::scrivi, {u"x"_s}),
              u"2: \"Esegui\" è un metodo: non si può scrivere."_s);
    EXPECT_EQ(erroreSu(u"PercorsoDatabase"_s, Modo::metodo),
              u"2: \"PercorsoDatabase\" è una proprietà: non si può chiamare."_s);
    EXPECT_EQ(erroreSu(u"TipoReso"_s, Modo::metodo, {1}),
              u"2: \"TipoReso\" è una proprietà: non si può chiamare."_s);
    EXPECT_EQ(erroreSu(u"fine"_s, Modo::metodo), u"2: \"fine\" è un evento: non si può chiamare."_s);
    EXPECT_EQ(erroreSu(u"fine"_s, Modo::evento), u"2: \"fine\" è un evento: non si può chiamare."_s);
    EXPECT_EQ(erroreSu(u"fine"_s, Modo::leggi), u"2: \"fine\" è un evento: non si può leggere."_s);
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Chiamata, cioCheSiScriveSoltantoNonSiLegge)
{
    EXPECT_EQ(erroreSu(u"TipoReso"_s, Modo::leggi), u"3: La proprietà \"TipoReso\" si scrive soltanto."_s);
    EXPECT_EQ(erroreSu(u"percorsologointestazione"_s, Modo::leggi),
              u"3: La proprietà \"PercorsoLogoIntestazione\" si scrive soltanto."_s);
}

TEST_F(Chiamata, ilNumeroDegliArgomenti)
{
    const QString testa = u"4: Numero di argomenti sbagliato per "_s;
    const QString t = u"x"_s;
    EXPECT_EQ(erroreSu(u"PercorsoDatabase"_s, Modo::leggi, {t}),
              testa + u"\"PercorsoDatabase\": ne vuole 0, ne ha avuti 1."_s);
    EXPECT_EQ(erroreSu(u"PercorsoDatabase"_s, Modo::scrivi),
              testa + u"\"PercorsoDatabase\": ne vuole 1, ne ha avuti 0."_s);
    EXPECT_EQ(erroreSu(u"NuovaGiacenza"_s, Modo::metodo, {t}),
              testa + u"\"NuovaGiacenza\": ne vuole 0, ne ha avuti 1."_s);
    EXPECT_EQ(erroreSu(u"NuovaGiacenzaEXT"_s, Modo::metodo, {t, t, t}),
              testa + u"\"NuovaGiacenzaEXT\": ne vuole 4, ne ha avuti 3."_s);
    EXPECT_EQ(erroreSu(u"NuovaGiacenzaEXT"_s, Modo::metodo, {t, t, t, t, t}),
              testa + u"\"NuovaGiacenzaEXT\": ne vuole 4, ne ha avuti 5."_s);
    EXPECT_EQ(erroreSu(u"Esegui"_s, Modo::metodo),
              testa + u"\"Esegui\": ne vuole da 1 a 2, ne ha avuti 0."_s);
    EXPECT_EQ(erroreSu(u"Esegui"_s, Modo::metodo, {t, t, t}),
              testa + u"\"Esegui\": ne vuole da 1 a 2, ne ha avuti 3."_s);
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Chiamata, nessunTipoSiConverte)
{
    impostazioni().percorsoDatabase = u"prima"_s;
    for (const QVariant& altro : {QVariant(), QVariant(5), QVariant(true), QVariant("byte"_ba),
                                  QVariant(QChar(u'c')), QVariant(QStringList{u"x"_s})})
        EXPECT_EQ(erroreSu(u"PercorsoDatabase"_s, Modo::scrivi, {altro}),
                  u"5: L'argomento 1 di \"PercorsoDatabase\" (percorso) dev'essere un testo."_s);
    EXPECT_EQ(impostazioni().percorsoDatabase, u"prima"_s);
    for (const QVariant& altro :
         {QVariant(), QVariant(u"2"_s), QVariant(true), QVariant(2U), QVariant(2LL), QVariant(2.0)})
        EXPECT_EQ(erroreSu(u"TipoReso"_s, Modo::scrivi, {altro}),
                  u"5: L'argomento 1 di \"TipoReso\" (tipo) dev'essere un intero."_s);
    EXPECT_EQ(impostazioni().movimento, Movimento::nessuno);
    EXPECT_EQ(erroreSu(u"NuovaGiacenzaEXT"_s, Modo::metodo, {u"1"_s, QDate(2024, 2, 1), u"MI"_s, u"77"_s}),
              u"5: L'argomento 2 di \"NuovaGiacenzaEXT\" (strDataLdv) dev'essere un testo."_s);
    EXPECT_EQ(erroreSu(u"NuovaGiacenzaEXT"_s, Modo::metodo, {u"1"_s, u"2"_s, u"MI"_s, 77}),
              u"5: L'argomento 4 di \"NuovaGiacenzaEXT\" (strCliente) dev'essere un testo."_s);
    EXPECT_EQ(erroreSu(u"Esegui"_s, Modo::metodo, {5}),
              u"5: L'argomento 1 di \"Esegui\" (Azione) dev'essere un testo."_s);
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Chiamata, tipoResoPrendeOgniIntero)
{
    for (const int altro : {1, 0, 3, -1, 2147483647, -2147483647 - 1}) {
        su(u"TipoReso"_s, Modo::scrivi, {2});
        EXPECT_EQ(etichettaReso(impostazioni().movimento), u"Reso a Mittente"_s);
        su(u"TipoReso"_s, Modo::scrivi, {altro});
        EXPECT_EQ(etichettaReso(impostazioni().movimento), u"Riconsegna a Destinatario"_s) << altro;
    }
    su(u"TipoReso"_s, Modo::scrivi, {QVariant::fromValue(cGiacenza::ResoMittente)});
    EXPECT_EQ(etichettaReso(impostazioni().movimento), u"Reso a Mittente"_s);
}

TEST_F(Chiamata, eseguiPrendeTuttoENonFaNulla)
{
    for (const QVariant& arg :
         {QVariant(), QVariant(5), QVariant(u"x"_s), QVariant(true), QVariant(QVariantList{1, 2})})
        EXPECT_EQ(su(u"Esegui"_s, Modo::metodo, {u"NuovaGiacenza"_s, arg}), QVariant());
    EXPECT_EQ(su(u"Esegui"_s, Modo::metodo, {QString()}), QVariant());
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Chiamata, gliArgomentiTornanoComErano)
{
    const QVariantList dati = {u"1"_s, u"01/02/2024"_s, u"MI"_s, u"77"_s};
    QVariantList miei = dati;
    su(u"NuovaGiacenzaEXT"_s, Modo::metodo, miei);
    EXPECT_EQ(miei, dati);
    miei = {u"azione"_s, 5};
    su(u"Esegui"_s, Modo::metodo, miei);
    EXPECT_EQ(miei, (QVariantList{u"azione"_s, 5}));
}

TEST_F(Chiamata, ilFallimentoDellaChiamataPassaComE)
{
    mForme->registra<SenzaRete>(frmGestGia);
    try {
        su(u"ConsultaGiacenza"_s, Modo::metodo);
        FAIL() << "riuscita";
    } catch (const ErroreDatabase& errore) {
        EXPECT_EQ(errore.sqlstate(), u"08S01"_s);
        EXPECT_EQ(errore.codiceNativo(), 2002);
        EXPECT_EQ(errore.testo(), u"rete à"_s);
        EXPECT_EQ(errore.istruzione(), u"select 1"_s);
    }
    EXPECT_EQ(mForme->caricata(frmGestGia), nullptr);
}

TEST_F(Chiamata, daUnAltroThread)
{
    QStringList errori;
    std::thread([&] {
        errori << erroreSu(u"PercorsoDatabase"_s, Modo::leggi) << erroreSu(u"NuovaGiacenza"_s, Modo::metodo);
        cGiacenza sua;
        chiama(sua, u"PercorsoDatabase"_s, Modo::scrivi, {u"suo"_s});
        errori << chiama(sua, u"PercorsoDatabase"_s, Modo::leggi).toString();
        for (const QString& apertura : {u"NuovaGiacenza"_s, u"MostraRiconsegna"_s, u"ConsultaGiacenza"_s})
            errori << errore([&] { chiama(sua, apertura, Modo::metodo); });
        errori << errore([&] {
            chiama(sua, u"NuovaGiacenzaEXT"_s, Modo::metodo, {u""_s, u""_s, u""_s, u""_s});
        });
        errori << errore([&] { sua.NuovaGiacenza(); });
    }).join();
    const QString schermata = u"6: Una schermata si apre nel thread dell'interfaccia grafica."_s;
    EXPECT_EQ(errori, (QStringList{u"6: L'oggetto si usa nel thread che lo ha creato."_s,
                                   u"6: L'oggetto si usa nel thread che lo ha creato."_s, u"suo"_s, schermata,
                                   schermata, schermata, schermata, schermata}));
    EXPECT_EQ(impostazioni().percorsoDatabase, QString());
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Chiamata, lErroreEAncheUnErroreDelComponente)
{
    try {
        su(u"Ignoto"_s, Modo::metodo);
        FAIL();
    } catch (const Errore& errore) {
        EXPECT_STREQ(errore.what(), "La classe non ha il membro \"Ignoto\".");
    }
}
