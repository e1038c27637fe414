#include "backends/basi.h"

#include <clocale>

using namespace giacenza;
using namespace giacenza::prove;

namespace {

/// Texts that drivers are known to spoil: by length, by encoding, by what they mean to somebody.
QStringList testiDifficili()
{
    QStringList testi{
        QString(),
        QStringLiteral("semplice"),
        QStringLiteral(" spazi in coda  "),
        QStringLiteral("l'apostrofo dell'autista"),
        QStringLiteral("\"virgolette\" e `accenti`"),
        QStringLiteral("barra in fondo \\"),
        QStringLiteral("\\' \\\\ \\n \\0 \\Z"),
        QStringLiteral("chi? {fn now()} {d '2024-01-01'} :nome @nome $1 %s ; -- /* # */"),
        QStringLiteral("perché così? È già lì: 12 €"),
        QStringLiteral("😀🚚 e 你好 e \u0301"),
        QStringLiteral("riga una\r\nriga due\ttabulata\n"),
    };
    QString controlli;
    for (char16_t c = 1; c < 0x20; ++c)
        controlli += QChar(c);
    testi += controlli + QChar(0x7f) + QChar(0x85) + QChar(0xfeff);
    // Around the sizes at which a value no longer fits the first read, with characters of 1 to 4 bytes.
    for (int quanti : {250, 254, 255, 256, 257, 300, 511, 512, 1023, 1024, 4095, 4096, 65535, 65536}) {
        testi += QString(quanti, u'x');
        testi += QString(quanti - 1, u'x') + QStringLiteral("😀");
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
        recordset.apri(
            mConnessione,
            scegli(QStringLiteral("select testo, octet_length(testo) from prova where id=1"),
                   QStringLiteral("select testo, length(cast(testo as blob)) from prova where id=1")));
        EXPECT_EQ(recordset.valore(0), testo);
        EXPECT_EQ(recordset.valore(1), QString::number(testo.toUtf8().size()));
    }

    Connessione mConnessione = mBase.connessione();
};

TEST_P(Valori, legatiTornanoInteri)
{
    for (const QString& testo : testiDifficili()) {
        mConnessione.esegui(QStringLiteral("delete from prova"));
        Recordset tabella;
        tabella.apriTabella(mConnessione, QStringLiteral("prova"));
        tabella.aggiungi();
        tabella.imposta(QStringLiteral("id"), QStringLiteral("1"));
        tabella.imposta(QStringLiteral("testo"), testo);
        tabella.aggiorna();
        attendi(testo);
    }
}

TEST_P(Valori, incollatiTornanoInteri)
{
    for (const QString& testo : testiDifficili()) {
        mConnessione.esegui(QStringLiteral("delete from prova"));
        QString raddoppiato = testo;
        raddoppiato.replace(u'\'', QStringLiteral("''"));
        mConnessione.esegui(
            QStringLiteral("insert into prova (id, testo) values (1, '%1');").arg(raddoppiato));
        attendi(testo);
    }
}

TEST_P(Valori, legatiAUnaRicercaTrovano)
{
    Comando inserisci(mConnessione, QStringLiteral("insert into prova (id, testo) values (?, ?)"));
    const QStringList testi = testiDifficili();
    for (qsizetype i = 0; i < testi.size(); ++i)
        inserisci.esegui(std::vector<Valore>{QString::number(i), testi[i]});
    for (qsizetype i = 0; i < testi.size(); ++i) {
        Recordset recordset;
        recordset.apri(mConnessione, QStringLiteral("select id from prova where testo=?"),
                       Recordset::Cursore::chiave, std::vector<Valore>{testi[i]});
        ASSERT_FALSE(recordset.eof()) << testing::PrintToString(testi[i]);
        EXPECT_EQ(recordset.valore(0), QString::number(i));
    }
}

TEST_P(Valori, diDieciMegabyteTornanoInteri)
{
    QString testo;
    while (testo.size() < 10'000'000)
        testo += QStringLiteral("Merce in giacenza è qui 😀, riga %1\r\n").arg(testo.size());
    Comando inserisci(mConnessione, QStringLiteral("insert into prova (id, testo) values (?, ?)"));
    inserisci.esegui(std::vector<Valore>{QStringLiteral("1"), testo});
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select testo, id from prova"));
    EXPECT_TRUE(recordset.valore(0) == testo) << "di " << recordset.valore(0)->size() << " caratteri";
    EXPECT_EQ(recordset.valore(1), QStringLiteral("1"));
}

TEST_P(Valori, conUnCarattereNulloSonoRifiutati)
{
    Comando inserisci(mConnessione, QStringLiteral("insert into prova (id, testo) values (?, ?)"));
    const QString testo = QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    EXPECT_EQ(erroreDi([&] {
                  inserisci.esegui(std::vector<Valore>{QStringLiteral("1"), testo});
              }).sqlstate(),
              QStringLiteral("22021"));
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("0"));
}

TEST_P(Valori, nulloEVuotoSonoDiversi)
{
    mConnessione.esegui(QStringLiteral("insert into prova (id, testo) values (1, null), (2, '')"));
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select testo, giorno from prova order by id"));
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
    mConnessione.esegui(QStringLiteral("insert into prova (id, n, importo, giorno) values "
                                       "(1, -12, 1234567890123.45, '2024-02-29')"));
    Recordset recordset;
    recordset.apri(mConnessione,
                   QStringLiteral("select n, importo, giorno, 9223372036854775807, n*1.5 from prova"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("-12"));
    EXPECT_EQ(recordset.valore(1), QStringLiteral("1234567890123.45"));
    EXPECT_EQ(recordset.valore(2), QStringLiteral("2024-02-29"));
    EXPECT_EQ(recordset.valore(3), QStringLiteral("9223372036854775807"));
    EXPECT_EQ(recordset.valore(4), QStringLiteral("-18.0"));
}

TEST_P(Valori, numeriEDateLegatiComeTestoDiventanoDelTipoDellaColonna)
{
    Comando inserisci(mConnessione,
                      QStringLiteral("insert into prova (id, n, importo, giorno) values (?, ?, ?, ?)"));
    EXPECT_EQ(inserisci.esegui(std::vector<Valore>{QStringLiteral("1"), QStringLiteral("-12"),
                                                   QStringLiteral("0.25"), QStringLiteral("2024-02-29")}),
              1);
    EXPECT_EQ(
        inserisci.esegui(std::vector<Valore>{QStringLiteral("2"), std::nullopt, std::nullopt, std::nullopt}),
        1);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id from prova where n=-12 and importo=0.25 and "
                                                "giorno='2024-02-29' and n<0 and importo*2=0.5"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("1"));
    recordset.apri(mConnessione,
                   QStringLiteral("select id from prova where n is null and importo is null and "
                                  "giorno is null"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2"));
}

TEST_P(Valori, inByteSonoQuelliDelTesto)
{
    mConnessione.esegui(QStringLiteral("insert into prova (id, testo) values (1, 'caffè 😀')"));
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select testo from prova"));
    EXPECT_EQ(recordset.utf8(0)->toByteArray(), QByteArray("caffè 😀"));
}

TEST_P(Valori, annoEdUnsignedCiSonoSuOgniBase)
{
    mConnessione.esegui(
        QStringLiteral("insert into prova (id, testo, giorno) values (1, '0123', '2024-02-29'), "
                       "(2, '9', null)"));
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select year(giorno), CAST(testo as unsigned) from prova "
                                                "order by CAST(testo as unsigned);"));
    EXPECT_EQ(recordset.valore(0), std::nullopt);
    EXPECT_EQ(recordset.valore(1), QStringLiteral("9"));
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2024"));
    EXPECT_EQ(recordset.valore(1), QStringLiteral("123"));
    recordset.apri(mConnessione, QStringLiteral("select id from prova where year(giorno)=2024"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("1"));
}

TEST_P(Valori, lAnnoDiCioCheNonEUnGiornoENullo)
{
    Recordset recordset;
    recordset.apri(
        mConnessione,
        QStringLiteral("select year('2024-02-29'), year('2024-12-31 23:59:59'), year('0999-01-01'), "
                       "year('2023-02-29'), year('2024-13-01'), year('abc'), year(null)"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2024"));
    EXPECT_EQ(recordset.valore(1), QStringLiteral("2024"));
    EXPECT_EQ(recordset.valore(2), QStringLiteral("999"));
    for (int colonna = 3; colonna < recordset.colonne(); ++colonna)
        EXPECT_EQ(recordset.valore(colonna), std::nullopt) << colonna;
}

TEST(Locale, eQuellaChiesta)
{
    EXPECT_EQ(QString::fromLatin1(std::setlocale(LC_ALL, nullptr)),
              qEnvironmentVariable("LC_ALL", QString::fromLatin1(std::setlocale(LC_ALL, nullptr))));
}

SU_OGNI_BASE(Valori);
