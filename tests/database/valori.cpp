#include "database/basi.h"

#include <clocale>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

/// Texts that drivers are known to spoil: by length, by encoding, by what they mean to somebody.
QStringList testiDifficili()
{
    QStringList testi{
        QString(),
        u"semplice"_s,
        u" spazi in coda  "_s,
        u"l'apostrofo dell'autista"_s,
        u"\"virgolette\" e `accenti`"_s,
        u"barra in fondo \\"_s,
        u"\\' \\\\ \\n \\0 \\Z"_s,
        u"chi? {fn now()} {d '2024-01-01'} :nome @nome $1 %s ; -- /* # */"_s,
        u"perché così? È già lì: 12 €"_s,
        u"😀🚚 e 你好 e \u0301"_s,
        u"riga una\r\nriga due\ttabulata\n"_s,
    };
    QString controlli;
    for (char16_t c = 1; c < 0x20; ++c)
        controlli += QChar(c);
    testi += controlli + QChar(0x7f) + QChar(0x85) + QChar(0xfeff);
    // Around the sizes at which a value no longer fits the first read, with characters of 1 to 4 bytes.
    for (int quanti : {250, 254, 255, 256, 257, 300, 511, 512, 1023, 1024, 4095, 4096, 65535, 65536}) {
        testi += QString(quanti, u'x');
        testi += QString(quanti - 1, u'x') + u"😀"_s;
        testi += QString(quanti, u'è');
    }
    return testi;
}

} // namespace

class Valori : public Basi
{
protected:
    Valori() { creaTabella(); }

    /// The text of row 1 and its length in bytes as the database counts them.
    void attendi(const QString& testo)
    {
        Recordset recordset;
        recordset.apri(mConnessione,
                       scegli(u"select testo, octet_length(testo) from prova where id=1"_s,
                              u"select testo, length(cast(testo as blob)) from prova where id=1"_s));
        EXPECT_EQ(recordset.valore(0), testo);
        EXPECT_EQ(recordset.valore(1), QString::number(testo.toUtf8().size()));
    }

    Connessione mConnessione = mBase.connessione();
};

TEST_P(Valori, legatiTornanoInteri)
{
    for (const QString& testo : testiDifficili()) {
        mConnessione.esegui(u"delete from prova"_s);
        NuovaRiga riga(mConnessione, u"prova"_s);
        riga.imposta(u"id"_s, u"1"_s);
        riga.imposta(u"testo"_s, testo);
        riga.aggiungi();
        attendi(testo);
    }
}

TEST_P(Valori, incollatiTornanoInteri)
{
    for (const QString& testo : testiDifficili()) {
        mConnessione.esegui(u"delete from prova"_s);
        QString raddoppiato = testo;
        raddoppiato.replace(u'\'', u"''"_s);
        mConnessione.esegui(u"insert into prova (id, testo) values (1, '%1');"_s.arg(raddoppiato));
        attendi(testo);
    }
}

TEST_P(Valori, legatiAUnaRicercaTrovano)
{
    Comando inserisci(mConnessione, u"insert into prova (id, testo) values (?, ?)"_s);
    const QStringList testi = testiDifficili();
    for (qsizetype i = 0; i < testi.size(); ++i)
        inserisci.esegui(std::vector<Valore>{QString::number(i), testi[i]});
    for (qsizetype i = 0; i < testi.size(); ++i) {
        Recordset recordset;
        recordset.apri(mConnessione, u"select id from prova where testo=?"_s, Recordset::Cursore::chiave,
                       std::vector<Valore>{testi[i]});
        ASSERT_FALSE(recordset.eof()) << testing::PrintToString(testi[i]);
        EXPECT_EQ(recordset.valore(0), QString::number(i));
    }
}

TEST_P(Valori, diDieciMegabyteTornanoInteri)
{
    QString testo;
    while (testo.size() < 10'000'000)
        testo += u"Merce in giacenza è qui 😀, riga %1\r\n"_s.arg(testo.size());
    Comando inserisci(mConnessione, u"insert into prova (id, testo) values (?, ?)"_s);
    inserisci.esegui(std::vector<Valore>{u"1"_s, testo});
    Recordset recordset;
    recordset.apri(mConnessione, u"select testo, id from prova"_s);
    EXPECT_TRUE(recordset.valore(0) == testo) << "di " << recordset.valore(0)->size() << " caratteri";
    EXPECT_EQ(recordset.valore(1), u"1"_s);
}

/// The first row is read value by value, the others as the driver fills them in; a value that does not fit
/// there is read anew.
TEST_P(Valori, diOgniLunghezzaTornanoInteriAncheInRigheSuccessive)
{
    QStringList attesi;
    for (const int lunghezza : {3, 0, 254, 255, 256, 257, 511, 70'000, 5, 300, -1, 7}) {
        attesi += lunghezza < 0 ? u"NULL"_s : u"è"_s.repeated(lunghezza / 2) + QString(lunghezza % 2, u'x');
        const QString id = QString::number(attesi.size());
        Comando(mConnessione, u"insert into prova (id, testo) values (?, ?)"_s)
            .esegui(std::vector<Valore>{id, lunghezza < 0 ? Valore() : Valore(attesi.back())});
    }
    for (const auto cursore : {Recordset::Cursore::chiave, Recordset::Cursore::soloAvanti}) {
        Recordset righe;
        righe.apri(mConnessione, u"select testo, id, testo from prova order by id"_s, cursore);
        QStringList lette;
        for (; !righe.eof(); righe.successivo()) {
            lette += righe.valore(0).value_or(u"NULL"_s);
            EXPECT_EQ(righe.valore(1), QString::number(lette.size()));
            EXPECT_EQ(righe.valore(2), righe.valore(0));
        }
        EXPECT_EQ(lette, attesi);
    }
}

TEST_P(Valori, conUnCarattereNulloSonoRifiutati)
{
    Comando inserisci(mConnessione, u"insert into prova (id, testo) values (?, ?)"_s);
    const QString testo = u"a"_s + QChar(0) + u"b"_s;
    EXPECT_EQ(erroreDi([&] { inserisci.esegui(std::vector<Valore>{u"1"_s, testo}); }).sqlstate(), u"22021"_s);
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"0"_s);
}

TEST_P(Valori, conMezzoCarattereSonoRifiutati)
{
    Comando inserisci(mConnessione, u"insert into prova (id, testo) values (?, ?)"_s);
    const QString testo = u"a"_s + QChar(0xd83d) + u"b"_s;
    EXPECT_EQ(erroreDi([&] { inserisci.esegui(std::vector<Valore>{u"1"_s, testo}); }).sqlstate(), u"22021"_s);
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"0"_s);
}

TEST_P(Valori, nulloEVuotoSonoDiversi)
{
    mConnessione.esegui(u"insert into prova (id, testo) values (1, null), (2, '')"_s);
    Recordset recordset;
    recordset.apri(mConnessione, u"select testo, giorno from prova order by id"_s);
    EXPECT_EQ(recordset.valore(0), std::nullopt);
    EXPECT_EQ(recordset.utf8(0), std::nullopt);
    EXPECT_EQ(recordset.valore(1), std::nullopt);
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), QString());
    ASSERT_TRUE(recordset.utf8(0).has_value());
    EXPECT_EQ(recordset.utf8(0)->size(), 0);
}

TEST_P(Valori, numeriEDateSonoTesti)
{
    mConnessione.esegui(u"insert into prova (id, n, importo, giorno) values "
                        "(1, -12, 1234567890123.45, '2024-02-29')"_s);
    Recordset recordset;
    recordset.apri(mConnessione, u"select n, importo, giorno, 9223372036854775807, n*1.5 from prova"_s);
    EXPECT_EQ(recordset.valore(0), u"-12"_s);
    EXPECT_EQ(recordset.valore(1), u"1234567890123.45"_s);
    EXPECT_EQ(recordset.valore(2), u"2024-02-29"_s);
    EXPECT_EQ(recordset.valore(3), u"9223372036854775807"_s);
    EXPECT_EQ(recordset.valore(4), u"-18.0"_s);
}

TEST_P(Valori, numeriEDateLegatiComeTestoDiventanoDelTipoDellaColonna)
{
    Comando inserisci(mConnessione, u"insert into prova (id, n, importo, giorno) values (?, ?, ?, ?)"_s);
    EXPECT_EQ(inserisci.esegui(std::vector<Valore>{u"1"_s, u"-12"_s, u"0.25"_s, u"2024-02-29"_s}), 1);
    EXPECT_EQ(inserisci.esegui(std::vector<Valore>{u"2"_s, std::nullopt, std::nullopt, std::nullopt}), 1);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id from prova where n=-12 and importo=0.25 and "
                                 "giorno='2024-02-29' and n<0 and importo*2=0.5"_s);
    EXPECT_EQ(recordset.valore(0), u"1"_s);
    recordset.apri(mConnessione, u"select id from prova where n is null and importo is null and "
                                 "giorno is null"_s);
    EXPECT_EQ(recordset.valore(0), u"2"_s);
}

TEST_P(Valori, inByteSonoQuelliDelTesto)
{
    mConnessione.esegui(u"insert into prova (id, testo) values (1, 'caffè 😀')"_s);
    Recordset recordset;
    recordset.apri(mConnessione, u"select testo from prova"_s);
    EXPECT_EQ(recordset.utf8(0)->toByteArray(), QByteArray("caffè 😀"));
}

TEST_P(Valori, annoEdUnsignedCiSonoSuOgniBase)
{
    mConnessione.esegui(u"insert into prova (id, testo, giorno) values (1, '0123', '2024-02-29'), "
                        "(2, '9', null)"_s);
    Recordset recordset;
    recordset.apri(mConnessione, u"select year(giorno), CAST(testo as unsigned) from prova "
                                 "order by CAST(testo as unsigned);"_s);
    EXPECT_EQ(recordset.valore(0), std::nullopt);
    EXPECT_EQ(recordset.valore(1), u"9"_s);
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), u"2024"_s);
    EXPECT_EQ(recordset.valore(1), u"123"_s);
    recordset.apri(mConnessione, u"select id from prova where year(giorno)=2024"_s);
    EXPECT_EQ(recordset.valore(0), u"1"_s);
}

TEST_P(Valori, lAnnoDiCioCheNonEUnGiornoENullo)
{
    Recordset recordset;
    recordset.apri(mConnessione,
                   u"select year('2024-02-29'), year('2024-12-31 23:59:59'), year('0999-01-01'), "
                   "year('2023-02-29'), year('2024-13-01'), year('abc'), year(null)"_s);
    EXPECT_EQ(recordset.valore(0), u"2024"_s);
    EXPECT_EQ(recordset.valore(1), u"2024"_s);
    EXPECT_EQ(recordset.valore(2), u"999"_s);
    for (int colonna = 3; colonna < recordset.colonne(); ++colonna)
        EXPECT_EQ(recordset.valore(colonna), std::nullopt) << colonna;
}

TEST(Locale, eQuellaChiesta)
{
    EXPECT_EQ(QString::fromLatin1(std::setlocale(LC_ALL, nullptr)),
              qEnvironmentVariable("LC_ALL", QString::fromLatin1(std::setlocale(LC_ALL, nullptr))));
}

SU_OGNI_BASE(Valori);
