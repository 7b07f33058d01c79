// SPDX-License-Identifier: GPL-3.0-or-later
// What the payer screen tells the main form; its other ways are played as scenarios.
#include "parties/frmKarfarma.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

namespace zrv {
namespace {

class PayerScreen : public StoreTest {
protected:
    PayerScreen()
    {
        program.StoreConnectionString = connectionString();
        program.showPayer = [this](const QString &text) { shown += text; };
        execute(u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe,MMoadiType,SMoadiType,MohasebeType,Family,ShobeName,Tin,"
                "PostCode,TelNo,Address,MelliCode1,EmzaName1,EmzaFamily1,EmzaSemat1) VALUES ('123456789012','2','2',"
                "'6','1','شرکت','شعبه دوم','412345678901','1234567890','1','2','3','4','5','6')"_s);
        screen.load();
        screen.activate();
    }

    QuietPlatform platform;
    Program program{platform};
    QStringList shown;
    frmKarfarma screen{program};
};

TEST_F(PayerScreen, SavedPayerIsNamedInTheStatusBarWithABlankBehind)
{
    ASSERT_TRUE(screen.userClick(screen.cmdDataOk));
    EXPECT_EQ(shown, QStringList(u" شرکت - شعبه شعبه دوم "_s));
}

TEST_F(PayerScreen, SaveThatTheStoreRefusesNamesNobody)
{
    execute(u"ALTER TABLE ZRVtbKarfarma DROP COLUMN Address"_s);
    ASSERT_TRUE(screen.userClick(screen.cmdDataOk));
    EXPECT_EQ(shown, QStringList());
}

TEST_F(PayerScreen, SaveThatARuleRefusesNamesNobody)
{
    screen.txtTelNo.setText({});
    ASSERT_TRUE(screen.userClick(screen.cmdDataOk));
    EXPECT_EQ(shown, QStringList());
    EXPECT_TRUE(screen.txtTelNo.hasFocus());
}

} // namespace
} // namespace zrv
