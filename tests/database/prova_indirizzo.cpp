#include "database/indirizzo.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

TEST(Indirizzo, suUnaRiga)
{
    struct Caso
    {
        QStringList parti;
        QString provincia;
        QString atteso;
    };
    const Caso casi[] = {
        {{u"Via Roma 1"_s, u"Milano"_s}, u"MI"_s, u"Via Roma 1 Milano (MI)"_s},
        {{QString(), u"Milano"_s, u" "_s}, {}, u"Milano"_s},
        {{u"Via Roma 1"_s, {}}, u" "_s, u"Via Roma 1"_s},
        {{{}, {}}, u"MI"_s, u"(MI)"_s},
        {{{}, {}}, {}, {}},
    };
    for (const Caso& caso : casi)
        EXPECT_EQ(inUnaRiga(caso.parti, caso.provincia), caso.atteso);
}
