// SPDX-License-Identifier: GPL-3.0-or-later
// What the user sees while the yearly transfer copies; its other ways are played as scenarios.
#include "lists/frmTransferData.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

#include <functional>

namespace zrv {
namespace {

/// Says Yes, and runs what a test wants when the screen has itself drawn.
class DrawingPlatform : public QuietPlatform {
public:
    std::function<void()> onYield = [] {};

    Answer messageBox(int style, const QString &, const QString &) override
    {
        return (style & box::YesNo) != 0 ? Answer::Yes : Answer::Ok;
    }
    void yield() override { onYield(); }
};

TEST_F(StoreTest, TransferShowsAndDrawsTheWaitPictureBeforeItCopies)
{
    execute(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family) VALUES ('123456789012','1','نام','فاميل')"_s);
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth) VALUES ('123456789012','1','1389','12')"_s);
    DrawingPlatform platform;
    Program program(platform);
    program.StoreConnectionString = connectionString();
    program.PayerTFN = u"123456789012"_s;
    frmTransferData screen(program);
    screen.load();
    screen.activate();
    EXPECT_EQ(screen.caption(), u"فرم انتقال اطلاعات ليست حقوق از يک سال به سال ديگر"_s);
    screen.dcbSourceYear.setBoundText(u"1389"_s);
    screen.dcbSourceMonth.setBoundText(u"12"_s);
    screen.txtDestinationYear.setText(u"1390"_s);
    screen.dcbDestinationMonth.setBoundText(u"01"_s);
    ASSERT_TRUE(screen.userClick(screen.cmdDisplayInformation));

    int drawn = 0;
    platform.onYield = [&] {
        ++drawn;
        EXPECT_TRUE(screen.LabelWaitingMessage.isShown());
        EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbHogog WHERE TaxYear='1390'"_s), QStringList());
        EXPECT_FALSE(screen.userClick(screen.cmdTransferData)) << "a second click while it runs is dropped";
    };
    ASSERT_TRUE(screen.userClick(screen.cmdTransferData));
    EXPECT_EQ(drawn, 1);
    EXPECT_FALSE(screen.PPICWaitingMessage.isVisible());
    EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbHogog WHERE TaxYear='1390'"_s), QStringList{u"1"_s});
}

} // namespace
} // namespace zrv
