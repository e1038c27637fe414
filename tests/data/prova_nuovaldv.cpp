#include "data/nuovaldvdiprova.h"

#include <thread>

using namespace giacenza;
using namespace giacenza::prove;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class NuovaLdv : public NuovaLdvDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, NuovaLdv, testing::Values("sqlite", "mariadb", senzaColonna),
                         nomeBase<testing::TestParamInfo<std::string>>);

QStringList ripulita(QStringList riga)
{
    for (QString& valore : riga)
        if (valore.contains(u'.') && eNumero(valore)) {
            while (valore.endsWith(u'0'))
                valore.chop(1);
            if (valore.endsWith(u'.'))
                valore.chop(1);
        }
    return riga;
}

TEST_P(NuovaLdv, LaRiconsegnaCopiaLaLdv)
{
    Contesto contesto = contestoDiProva();
    contesto.porto = 3;
    const LdvEmessa emessa = emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contesto);
    EXPECT_EQ(emessa.numero, u"4716"_s);
    EXPECT_EQ(emessa.anno, 2026);
    EXPECT_EQ(emessa.filiale, u"MI"_s);
    EXPECT_EQ(emessa.mittente, QString());
    ASSERT_THAT(nuove(), SizeIs(1));
    EXPECT_EQ(
        ripulita(nuove().front()),
        QStringList({u"MI"_s,
                     u"4716"_s,
                     u"2026"_s,
                     u"2026-11-21"_s,
                     u"1001"_s,
                     u"A"_s,
                     u"Utensileria del Lago"_s,
                     u"Corso Italia 44"_s,
                     u"22100"_s,
                     u"Como"_s,
                     u"CO"_s,
                     u"R"_s,
                     u"V01"_s,
                     u"L05"_s,
                     u"MINUTERIA"_s,
                     u"ORD-881"_s,
                     u"2026-11-10"_s,
                     u"3"_s,
                     u"3"_s,
                     u"45.5"_s,
                     u"0.25"_s,
                     u"120"_s,
                     u"0"_s,
                     u"Riconsegna a Destinatario, giacenza 40/2026, LDV originale 4711\r\nSolo al mattino"_s,
                     u"850"_s,
                     u"NULL"_s,
                     u"40"_s,
                     u"2026"_s,
                     u"NULL"_s}));
    EXPECT_EQ(tutto(), mPrima) << "one row and nothing else";
}

TEST_P(NuovaLdv, IlResoVaAlMittenteSenzaContrassegno)
{
    Contesto contesto = contestoDiProva();
    contesto.lavoro = u"Reso a Mittente"_s;
    contesto.resoAMittente = true;
    EXPECT_EQ(emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contesto).mittente,
              u"Utensileria del Lago\nCorso Italia 44\n22100 Como (CO)"_s);
    ASSERT_THAT(nuove(), SizeIs(1));
    const QStringList riga = ripulita(nuove().front());
    EXPECT_EQ(riga.mid(6, 5),
              QStringList({u"Ferramenta Lombarda S.r.l."_s, u"Via Po 1"_s, u"20900"_s, u"Monza"_s, u"MB"_s}));
    EXPECT_EQ(riga[17], u"2"_s) << "no terms chosen: the original's";
    EXPECT_EQ(riga.mid(21, 2), QStringList({u"0"_s, u"0"_s}));
    EXPECT_TRUE(riga[23].startsWith(u"Reso a Mittente, giacenza 40/2026, LDV originale 4711"_s));

    mBase.esegui(u"delete from clien where Codice=1001;"_s);
    EXPECT_EQ(motivo(LdvDiProva(mConnessione, u"4711"_s), contesto),
              u"Il mittente, cliente 1001, non è in archivio: nessuna lettera di vettura è stata emessa."_s);
    EXPECT_THAT(nuove(), SizeIs(1));
}

TEST_P(NuovaLdv, DaUnaLdvQuasiVuota)
{
    Contesto senzaGiacenza = contestoDiProva();
    senzaGiacenza.numeroGiacenza.clear();
    emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4712"_s), senzaGiacenza);
    ASSERT_THAT(nuove(), SizeIs(1));
    const QStringList riga = nuove().front();
    EXPECT_EQ(riga[6], u"NULL"_s);
    EXPECT_EQ(riga[23], u"Riconsegna a Destinatario, LDV originale 4712"_s)
        << "it is linked to no held shipment";
    EXPECT_EQ(riga[26], u"NULL"_s);
}

TEST_P(NuovaLdv, ConIlControlloSiRicontaDentro)
{
    mBase.esegui(
        u"update giace00f set GIDTBF=null; update letve00f set LERFGI=null, LEANGI=null where lenrlv='4714';"_s
            .replace(u"; "_s, u";\n"_s));
    Contesto contesto = contestoDiProva();
    contesto.controlloGiacenza = true;
    const LdvDiProva ldv(mConnessione, u"4711"_s);
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contesto).numero, u"4716"_s) << "the first waybill alone";
    EXPECT_EQ(motivo(ldv, contesto),
              u"Per la giacenza 40/2026 un'altra postazione ha emesso nel frattempo una lettera di vettura: "
              "nessun'altra è stata emessa. Riaprire la schermata e ripetere, se serve."_s);
    contesto.riconsegne = 1;
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contesto).numero, u"4717"_s) << "the operator knew of it";
    // A host's column may hold the time of day too.
    if (GetParam() != "sqlite")
        mBase.esegui(u"alter table giace00f modify GIDTBF datetime;"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20 00:00:00';"_s);
    contesto.riconsegne = 2;
    EXPECT_EQ(
        motivo(ldv, contesto),
        u"La giacenza 40/2026 è stata chiusa nel frattempo: nessuna lettera di vettura è stata emessa."_s);
    mBase.esegui(u"delete from giace00f;"_s);
    EXPECT_EQ(motivo(ldv, contesto),
              u"La giacenza 40/2026 non è più in archivio: nessuna lettera di vettura è stata emessa."_s);
    EXPECT_THAT(nuove(), SizeIs(2));
}

TEST_P(NuovaLdv, DuePostazioniSullaStessaGiacenzaUnaSolaEmette)
{
    mBase.esegui(u"update giace00f set GIDTBF=null;"_s);
    mBase.esegui(u"update letve00f set LERFGI=null, LEANGI=null where lenrlv='4714';"_s);
    std::atomic<int> emesse = 0;
    std::atomic<int> battute = 0;
    std::vector<std::thread> postazioni;
    for (int i = 0; i < 4; ++i)
        postazioni.emplace_back([&] {
            try {
                Connessione connessione = mBase.connessione();
                Contesto contesto = contestoDiProva();
                contesto.controlloGiacenza = true;
                emettiLdv(connessione, LdvDiProva(connessione, u"4711"_s), contesto);
                ++emesse;
            } catch (const Errore&) {
                ++battute;
            }
        });
    for (std::thread& postazione : postazioni)
        postazione.join();
    EXPECT_EQ(emesse, 1);
    EXPECT_EQ(battute, 3);
    EXPECT_THAT(nuove(), SizeIs(1));
}

TEST_P(NuovaLdv, UnGuastoInOgniPuntoNonLasciaNiente)
{
    const LdvDiProva ldv(mConnessione, u"4711"_s);
    for (const char16_t* punto : {u"update ekelvorqzt", u"select coalesce", u"insert into letve00f"}) {
        impostaTraccia([&](EventoDati evento, const QString& testo) {
            if (evento == EventoDati::istruzione &&
                testo.startsWith(QString::fromUtf16(punto), Qt::CaseInsensitive))
                throw ErroreDatabase(u"08S01"_s, 1, u"guasto di prova"_s, testo);
        });
        EXPECT_EQ(motivo(ldv, contestoDiProva()), u"guasto di prova"_s);
        impostaTraccia({});
        mConnessione.apri(mBase.accesso());
        EXPECT_THAT(nuove(), IsEmpty());
    }
    impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::conferma)
            throw ErroreDatabase(u"08S01"_s, 1, u"guasto di prova"_s, testo);
    });
    EXPECT_EQ(motivo(ldv, contestoDiProva()), u"Non si sa se la lettera di vettura 4716/2026 è stata emessa: "
                                              u"la connessione è caduta mentre l'archivio la "
                                              "confermava. Cercarla prima di ripetere."_s);
    impostaTraccia({});
    EXPECT_THAT(nuove(), IsEmpty());
    EXPECT_EQ(tutto(), mPrima);
}

TEST_P(NuovaLdv, UnRecordVuotoSiRifiuta)
{
    EXPECT_EQ(
        motivo(LdvDiProva(mConnessione, u"9999"_s), contestoDiProva()),
        u"La lettera di vettura da cui partire non è stata trovata in archivio: nessuna lettera di vettura è "
        "stata emessa."_s);
    EXPECT_EQ(
        motivo(LdvDiProva(), contestoDiProva()),
        u"La lettera di vettura da cui partire non si è potuta leggere dall'archivio: nessuna lettera di "
        "vettura è stata emessa."_s);
    EXPECT_THAT(nuove(), IsEmpty());
}

TEST_P(NuovaLdv, UnaLdvDiUnAltraGiacenzaSiRifiuta)
{
    Contesto contesto = contestoDiProva();
    contesto.numeroGiacenza = u"41"_s;
    const QString rifiuto =
        u"La lettera di vettura %1 non è della giacenza %2/%3: nessuna lettera di vettura è stata emessa."_s;
    EXPECT_EQ(motivo(LdvDiProva(mConnessione, u"4711"_s), contesto),
              rifiuto.arg(u"4711"_s, u"41"_s, u"2026"_s));
    contesto = contestoDiProva();
    contesto.annoGiacenza = 2025;
    EXPECT_EQ(motivo(LdvDiProva(mConnessione, u"4711"_s), contesto),
              rifiuto.arg(u"4711"_s, u"40"_s, u"2025"_s));
    EXPECT_EQ(motivo(LdvDiProva(mConnessione, u"4712"_s), contestoDiProva()),
              rifiuto.arg(u"4712"_s, u"40"_s, u"2026"_s))
        << "it is held under no number";
    EXPECT_THAT(nuove(), IsEmpty());
}

TEST_P(NuovaLdv, LeNoteDellOriginaleCedonoIlPostoAQuelleNuove)
{
    // SQLite holds no text to the width of its column, and the schema's own column holds any.
    const bool stretta = GetParam() != "sqlite";
    if (stretta)
        mBase.esegui(u"alter table letve00f modify lenote varchar(100);"_s);
    mBase.esegui(u"update letve00f set lenote='%1' where lenrlv='4711';"_s.arg(QString(90, u'è')));
    mConnessione.chiudi();
    mConnessione.apri(mBase.accesso());
    emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva());
    ASSERT_THAT(nuove(), SizeIs(1));
    const QString nuove100 = u"Riconsegna a Destinatario, giacenza 40/2026, LDV originale 4711\r\n"_s;
    EXPECT_EQ(nuove().front()[23],
              stretta ? nuove100 + QString(34, u'è') + u'…' : nuove100 + QString(90, u'è'));
}

TEST_P(NuovaLdv, LeNoteCheEntranoAppenaRestanoIntere)
{
    if (GetParam() != "sqlite")
        mBase.esegui(u"alter table letve00f modify lenote varchar(100);"_s);
    const QString note = QString(35, u'è');
    mBase.esegui(u"update letve00f set lenote='%1' where lenrlv='4711';"_s.arg(note));
    mConnessione.chiudi();
    mConnessione.apri(mBase.accesso());
    emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva());
    ASSERT_THAT(nuove(), SizeIs(1));
    const QString tutte = u"Riconsegna a Destinatario, giacenza 40/2026, LDV originale 4711\r\n"_s + note;
    EXPECT_EQ(tutte.size(), 100);
    EXPECT_EQ(nuove().front()[23], tutte);
}

} // namespace
