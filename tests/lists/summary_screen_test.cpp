// SPDX-License-Identifier: GPL-3.0-or-later
// What the summary list's screen does where no user's way leads; its other ways are played as scenarios.
#include "lists/frmKholList.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

#include <QFile>

namespace zrv {
namespace {

struct BoxKeeper : QuietPlatform {
    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes += QString::number(style, 16) + u"|"_s + title + u"|"_s + text;
        return (style & box::YesNo) != 0 ? Answer::Yes : Answer::Ok;
    }
    QStringList boxes;
};

/// Keeps what a label has been called.
struct CaptionKeeper : FormView {
    explicit CaptionKeeper(const Label &watched)
        : label(watched)
    {
    }
    void controlChanged(Control &control, Aspect aspect) override
    {
        if (&control == &label && aspect == Aspect::Caption)
            captions += label.caption();
    }
    void focusMoved(Control *) override {}
    void captionChanged() override {}
    void closed() override {}

    const Label &label;
    QStringList captions;
};

class SummaryScreen : public StoreTest {
protected:
    SummaryScreen() { program.StoreConnectionString = connectionString(); }

    void addPayer() const { execute(u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe) VALUES ('123456789012','1')"_s); }

    void addSalary(const QString &month, const QString &finalTax) const
    {
        execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NTotalDaramad,GTotalDaramad,PJariHogog,"
                "FinalDaramadeMashmol,FinalTax) VALUES ('123456789012','1234567891','1389','%1','5','0','0','3','%2')"_s
                    .arg(month, finalTax));
    }

    void open()
    {
        screen.load();
        screen.activate();
    }

    void openMonth(const QString &month)
    {
        open();
        screen.dcbTaxMonth.setBoundText(month);
        screen.cmdKeyOk_Click();
        ASSERT_TRUE(screen.txtKharejiNo.isReachable());
    }

    BoxKeeper platform;
    Program program{platform};
    frmKholList screen{program};
};

TEST_F(SummaryScreen, BearsItsTitle)
{
    open();
    EXPECT_EQ(screen.caption(), u"ورود  و  ويرايش  خلاصه  ليست  ماهانه"_s);
}

TEST_F(SummaryScreen, StoreWithoutAPayerIsToldAndTheScreenStaysOpen)
{
    open();
    EXPECT_EQ(platform.boxes, QStringList(u"90010| تــوجه  | مشخصات پرداخت کننده حقوق وارد سيستم نگرديده اند "_s));
    EXPECT_TRUE(screen.isOpen());
    EXPECT_EQ(screen.TextTFN.text(), QString());
    EXPECT_EQ(screen.txtTaxYear.text(), u"1389"_s);
}

TEST_F(SummaryScreen, MonthWithRowsWhoseSumsAreAllNullIsOpened)
{
    addPayer();
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth) VALUES ('123456789012','1','1389','02')"_s);
    openMonth(u"02"_s);
    EXPECT_EQ(screen.txtKarkonanNo.text(), u"1"_s);
    EXPECT_EQ(screen.txtJariSumHogog.text(), QString());
    EXPECT_EQ(screen.txtMablagPardakhti.text(), QString());
    EXPECT_EQ(platform.boxes, QStringList());
}

TEST_F(SummaryScreen, ReturnedBankIsChosenByItsNumberAndTheFocusGoesOn)
{
    addPayer();
    addSalary(u"02"_s, u"7"_s);
    openMonth(u"02"_s);
    screen.dcbNahveyePardakht.setBoundText(u"2"_s);
    screen.cmdSearchBankName.setFocus();
    screen.takeBank(u"07"_s);
    EXPECT_EQ(screen.cmbBankName.boundText(), u"7"_s);
    EXPECT_TRUE(screen.txtShobeName.hasFocus());
}

TEST_F(SummaryScreen, ReturnedMinusOneClearsTheBankAndABlankLeavesIt)
{
    addPayer();
    addSalary(u"02"_s, u"7"_s);
    openMonth(u"02"_s);
    screen.dcbNahveyePardakht.setBoundText(u"2"_s);
    screen.cmbBankName.setBoundText(u"5"_s);
    screen.cmdSearchBankName.setFocus();
    execute(u"INSERT INTO ZRVtbCoding VALUES ('8','ليست نام بانکها','18','بانک نو')"_s);
    screen.takeBank(u" "_s);
    EXPECT_EQ(screen.cmbBankName.boundText(), u"5"_s);
    EXPECT_EQ(screen.cmbBankName.items().size(), 18U);
    screen.takeBank(u"-1"_s);
    EXPECT_EQ(screen.cmbBankName.listIndex(), -1);
    EXPECT_EQ(screen.cmbBankName.items().size(), 19U);
    EXPECT_TRUE(screen.cmdSearchBankName.hasFocus());
}

TEST_F(SummaryScreen, SumThatIsLongerThanItsFieldIsLeftWholeAndRefusedByTheStore)
{
    addPayer();
    addSalary(u"02"_s, u"1"_s);
    openMonth(u"02"_s);
    screen.userFocus(screen.txtJariJarimeDo);
    for (int digit = 0; digit < 15; ++digit)
        screen.userLetter(u'9');
    EXPECT_EQ(screen.txtMablagPardakhti.text(), u"1,000,000,000,000,000"_s);
    screen.userFocus(screen.RoznameDate.year);
    for (const QChar digit : u"13890303"_s)
        screen.userLetter(digit);
    ASSERT_TRUE(screen.userClick(screen.cmdDataOk));
    ASSERT_EQ(platform.boxes.size(), 1);
    EXPECT_TRUE(platform.boxes.front().startsWith(u"30|Add|"_s)) << qPrintable(platform.boxes.front());
    EXPECT_EQ(rows(u"SELECT TFN FROM ZRVtbKholList"_s), QStringList());
}

TEST_F(SummaryScreen, FailedDeletionIsToldAndTheScreenGoesOnAsAfterSuccess)
{
    addPayer();
    addSalary(u"02"_s, u"7"_s);
    execute(u"INSERT INTO ZRVtbKholList (TFN,KholListType,TaxYear,TaxMonth) VALUES ('123456789012','1','1389','02')"_s);
    openMonth(u"02"_s);
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(screen.userClick(screen.cmdDelete));
    ASSERT_EQ(platform.boxes.size(), 3);
    EXPECT_TRUE(platform.boxes[1].startsWith(u"30|Delete|"_s)) << qPrintable(platform.boxes[1]);
    EXPECT_TRUE(platform.boxes[2].startsWith(u"0||Unknown Error : "_s)) << "the grid can't be filled either";
    EXPECT_TRUE(screen.txtTaxYear.hasFocus());
    EXPECT_FALSE(screen.cmdDelete.isEnabled());
    EXPECT_FALSE(screen.txtKharejiNo.isReachable());
}

TEST_F(SummaryScreen, RowsAreNamedByTheKindWhichIsMonthlyAgainAtOnce)
{
    execute(u"INSERT INTO ZRVtbCoding VALUES ('14','نوع','2','پاداش')"_s);
    addPayer();
    open();
    CaptionKeeper view(screen.lblSumMashmol);
    screen.setView(&view);
    screen.dcbKholListType.setBoundText(u"2"_s);
    screen.setView(nullptr);
    EXPECT_EQ(screen.dcbKholListType.boundText(), u"1"_s);
    EXPECT_EQ(view.captions, (QStringList{u"جمع مزاياي غير نقدي يا پاداش مشمول ماليات : "_s,
                                          u"جمع حقوق و مزايـاي نقدي ، غير نقدي ، عيدي و پاداش مشمول ماليات : "_s}));
}

TEST_F(SummaryScreen, KindThatItsListLacksIsLeftEmptyAndAskedFor)
{
    execute(u"DELETE FROM ZRVtbCoding WHERE MCode='14'"_s);
    addPayer();
    addSalary(u"02"_s, u"7"_s);
    open();
    screen.dcbTaxMonth.setBoundText(u"02"_s);
    screen.cmdKeyOk_Click();
    EXPECT_EQ(screen.dcbKholListType.backColor(), color::RequiredEmpty);
    EXPECT_FALSE(screen.txtKharejiNo.isReachable());
    EXPECT_EQ(platform.boxes.size(), 1);
}

} // namespace
} // namespace zrv
