#include "host/avvio/istanzaunica.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace deposito;
using namespace Qt::StringLiterals;

namespace {

TEST(IstanzaUnica, IlSecondoAvvioChiamaIlPrimo)
{
    QTemporaryDir cartella;
    const QString ini = cartella.filePath(u"giacenza.ini"_s);
    IstanzaUnica prima(ini);
    EXPECT_FALSE(prima.chiama()) << "nobody is there yet";
    ASSERT_TRUE(prima.ascolta());
    QSignalSpy chiamata(&prima, &IstanzaUnica::chiamata);
    IstanzaUnica seconda(ini);
    EXPECT_TRUE(seconda.chiama());
    EXPECT_TRUE(QTest::qWaitFor([&] { return chiamata.count() == 1; }));
    EXPECT_FALSE(seconda.ascolta()) << "the place is taken";
    EXPECT_TRUE(IstanzaUnica(ini).chiama());
    EXPECT_TRUE(QTest::qWaitFor([&] { return chiamata.count() == 3; })) << "and the first one still hears";
}

TEST(IstanzaUnica, ConAltreImpostazioniEUnAltroProgramma)
{
    QTemporaryDir cartella;
    IstanzaUnica prima(cartella.filePath(u"uno.ini"_s));
    ASSERT_TRUE(prima.ascolta());
    EXPECT_FALSE(IstanzaUnica(cartella.filePath(u"due.ini"_s)).chiama());
}

TEST(IstanzaUnica, UnAltroArchivioEUnAltroNomeUnAltraParolaNo)
{
    QTemporaryDir cartella;
    const QString ini = cartella.filePath(u"giacenza.ini"_s);
    IstanzaUnica prima(ini, u"SERVER=s;UID=u;PWD=;DATABASE=b"_s);
    ASSERT_TRUE(prima.ascolta());
    EXPECT_TRUE(prima.ascolta()) << "it does already";
    EXPECT_FALSE(prima.cambia(u"SERVER=s;UID=u;PWD={se;greta};DATABASE=b"_s));
    EXPECT_TRUE(IstanzaUnica(ini, u"SERVER=s;UID=u;PWD=x;DATABASE=b"_s).chiama());
    ASSERT_TRUE(prima.cambia(u"SERVER=s;UID=u;PWD=;DATABASE=c"_s));
    EXPECT_FALSE(IstanzaUnica(ini, u"SERVER=s;UID=u;PWD=x;DATABASE=b"_s).chiama());
    ASSERT_TRUE(prima.ascolta());
    EXPECT_TRUE(IstanzaUnica(ini, u"SERVER=s;UID=u;PWD=x;DATABASE=c"_s).chiama());
    prima.taci();
    EXPECT_FALSE(IstanzaUnica(ini, u"SERVER=s;UID=u;PWD=x;DATABASE=c"_s).chiama());
}

} // namespace
