#include "data/istruzionisoggetti.h"
#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

TEST(IstruzioniSoggetti, perOgniCampo)
{
    const std::pair<CampoSoggetto, QString> casi[] = {
        {CampoSoggetto::codice, u"Codice=?"_s},
        {CampoSoggetto::partitaIva, u"PartitaIva=?"_s},
        {CampoSoggetto::ragioneSociale, u"RagioneSociale like ? escape '!'"_s},
        {CampoSoggetto::localita, u"Localita like ? escape '!'"_s},
        {CampoSoggetto::provincia, u"Provincia like ? escape '!'"_s},
    };
    for (const auto& [campo, condizione] : casi) {
        EXPECT_EQ(istruzioni::ricercaSoggetti(u"Clien"_s, campo),
                  u"select Codice, RagioneSociale, Localita, Provincia from Clien where "_s + condizione +
                      u" order by RagioneSociale, Codice;"_s);
    }
}

TEST(IstruzioniSoggetti, ilNomeDiTabellaEUnIdentificatore)
{
    for (const QString& nome : {u"forni"_s, u"_T2"_s, u"ekelvorqzt_tabge00f"_s})
        EXPECT_NO_THROW(istruzioni::ricercaSoggetti(nome, CampoSoggetto::codice)) << nome.toStdString();
    for (const QString& nome :
         {QString(), u" "_s, u"clien forni"_s, u"clien;"_s, u"clien\n"_s, u"2clien"_s, u"cli-en"_s,
          u"`clien`"_s, u"clien where 1=1 --"_s, u"città"_s, u"clien'"_s, QString(QChar(u'\0'))}) {
        try {
            istruzioni::ricercaSoggetti(nome, CampoSoggetto::codice);
            ADD_FAILURE() << "accettato: " << nome.toStdString();
        } catch (const Errore& errore) {
            EXPECT_EQ(errore.testo(), u"Il nome di tabella \""_s + nome + u"\" non è valido."_s);
        }
    }
}

TEST(IstruzioniSoggetti, ilModelloProteggeICaratteriSpeciali)
{
    EXPECT_EQ(istruzioni::modelloSoggetti(u"rossi"_s, false), u"rossi%"_s);
    EXPECT_EQ(istruzioni::modelloSoggetti(u"rossi"_s, true), u"%rossi%"_s);
    EXPECT_EQ(istruzioni::modelloSoggetti(u"5%_!\\'"_s, true), u"%5!%!_!!\\'%"_s);
    EXPECT_EQ(istruzioni::modelloSoggetti(QString(), false), u"%"_s);
}
