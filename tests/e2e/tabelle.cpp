#include "e2e/tabelle.h"

#include "database/connessione.h"
#include "database/decimali.h"
#include "database/recordset.h"
#include "support/stampa.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

Tabella leggiTabella(Connessione& connessione, const QString& nome, const QStringList& chiave)
{
    Recordset righe;
    righe.apri(connessione, u"select * from "_s + nome);
    Tabella tabella;
    for (; !righe.eof(); righe.successivo()) {
        Riga riga;
        for (int i = 0; i < righe.colonne(); ++i) {
            QString valore = righe.valore(i).value_or(u"NULL"_s);
            while (eNumero(valore) && valore.contains(u'.') &&
                   (valore.endsWith(u'0') || valore.endsWith(u'.')))
                valore.chop(1);
            riga[righe.nomeColonna(i).toLower()] = valore;
        }
        QStringList parti;
        for (const QString& colonna : chiave)
            parti << riga.at(colonna);
        tabella[parti.join(u'/')] = riga;
    }
    return tabella;
}

void confronta(const Tabella& trovata, const Tabella& attesa, const char* quando)
{
    EXPECT_EQ(trovata.size(), attesa.size()) << quando;
    for (const auto& [chiave, riga] : attesa) {
        ASSERT_TRUE(trovata.contains(chiave)) << quando << ": manca " << chiave.toStdString();
        for (const auto& [colonna, valore] : riga)
            EXPECT_EQ(trovata.at(chiave).at(colonna), valore)
                << quando << ": " << chiave.toStdString() << ' ' << colonna.toStdString();
    }
}

} // namespace giacenza::prove
