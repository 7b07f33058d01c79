// SPDX-License-Identifier: GPL-3.0-or-later

// The screen frmCreatTextFiles: its fields, its run, its refusals.

#include "core/forms/color.h"
#include "tests/files/month_fixture.h"

#include <QDir>
#include <QFileInfo>

namespace zrv {
namespace {

const QString Waiting = u"در حال ايجاد فايل ، لطفا منتظر بمانيد ...  "_s;
const QString Refused = u" اخطار  "_s;

/// Writes down what a label showed.
class LabelWatch : public FormView {
public:
    LabelWatch(Form &form, const Label &label)
        : m_form(form)
        , m_label(label)
    {
        form.setView(this);
    }
    ~LabelWatch() override { m_form.setView(nullptr); }

    QStringList shown;
    std::function<void()> onChange = [] {};

    void controlChanged(Control &control, Aspect aspect) override
    {
        if (&control != &m_label || aspect != Aspect::Caption)
            return;
        shown << m_label.caption();
        onChange();
    }
    void focusMoved(Control *) override {}
    void captionChanged() override {}
    void closed() override {}

private:
    Form &m_form;
    const Label &m_label;
};

class CreateFiles : public MonthTest {
protected:
    void expectOneBox(int style, const QString &title, const QString &text) const
    {
        ASSERT_EQ(platform.boxes.size(), 1u);
        EXPECT_EQ(platform.boxes[0].style, style);
        EXPECT_EQ(platform.boxes[0].title, title);
        EXPECT_EQ(platform.boxes[0].text, text);
        EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
    }
};

TEST_F(CreateFiles, OpensWithTheCurrentYearAndTheTwelveMonths)
{
    open();
    EXPECT_EQ(screen->txtTaxYear.text(), u"1389"_s);
    ASSERT_EQ(screen->dcbTaxMonth.items().size(), 12u);
    EXPECT_EQ(screen->dcbTaxMonth.items()[1].code, u"02"_s);
    EXPECT_EQ(screen->dcbTaxMonth.items()[1].shown, u"ارديبهشت"_s);
    EXPECT_EQ(screen->txtTaxYear.backColor(), color::KeyField);
    EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
}

TEST_F(CreateFiles, ChoosingAMonthShowsBothPathsAndSetsTheCountToZero)
{
    open();
    screen->LabelHogogRecordsCount.setCaption(u"7"_s);
    chooseMonth(u"02"_s);
    EXPECT_EQ(screen->LabelHogogPath.caption(), whPath());
    EXPECT_EQ(screen->LabelHogogPath.toolTip(), whPath());
    EXPECT_EQ(screen->LabelKholPath.caption(), wkPath());
    EXPECT_EQ(screen->LabelKholPath.toolTip(), wkPath());
    EXPECT_EQ(screen->LabelHogogRecordsCount.caption(), u"0"_s);
}

TEST_F(CreateFiles, LeavingTheMonthSetsTheCountToZeroToo)
{
    open();
    chooseMonth(u"02"_s);
    screen->LabelHogogRecordsCount.setCaption(u"7"_s);
    screen->userFocus(screen->cmdExit);
    EXPECT_EQ(screen->LabelHogogRecordsCount.caption(), u"0"_s);
}

TEST_F(CreateFiles, YearOfTwoDigitsIsCompletedOnLeavingAndThePathsMadeAnew)
{
    open();
    chooseMonth(u"02"_s);
    screen->userFocus(screen->txtTaxYear);
    screen->txtTaxYear.setText(u"88"_s);
    screen->userFocus(screen->cmdExit);
    EXPECT_EQ(screen->txtTaxYear.text(), u"1388"_s);
    EXPECT_EQ(screen->LabelHogogPath.caption(), path(u"ERSAL/138802/WH138802.TXT"));
}

TEST_F(CreateFiles, YearAloneShowsNoPaths)
{
    open();
    screen->userFocus(screen->txtTaxYear);
    screen->userFocus(screen->cmdExit);
    EXPECT_EQ(screen->LabelHogogPath.caption(), QString());
}

TEST_F(CreateFiles, EmptiedYearBecomesTheCurrentYearOnLeavingAndOnEntering)
{
    open();
    screen->userFocus(screen->txtTaxYear);
    screen->txtTaxYear.setText(QString());
    screen->userFocus(screen->cmdExit);
    EXPECT_EQ(screen->txtTaxYear.text(), u"1389"_s);
    screen->txtTaxYear.setText(QString());
    screen->userFocus(screen->txtTaxYear);
    EXPECT_EQ(screen->txtTaxYear.text(), u"1389"_s);
}

TEST_F(CreateFiles, EnterMovesOn)
{
    open();
    screen->userFocus(screen->txtTaxYear);
    screen->userKey(Key::Enter);
    EXPECT_EQ(screen->activeControl(), &screen->dcbTaxMonth);
}

TEST_F(CreateFiles, EmptyMonthIsRefusedAndGetsTheFocus)
{
    open();
    EXPECT_TRUE(screen->userClick(screen->cmdCreatTextFiles));
    expectOneBox(0x90010, Refused, u"  مقداردهي مواردي که با رنگ زمينه متمايز گرديده اند الزامي ميباشد "_s);
    EXPECT_EQ(screen->activeControl(), &screen->dcbTaxMonth);
    EXPECT_EQ(screen->dcbTaxMonth.backColor(), color::RequiredEmpty);
    EXPECT_FALSE(QFileInfo::exists(path(u"ERSAL")));
}

TEST_F(CreateFiles, EmptyYearIsRefusedToo)
{
    open();
    chooseMonth(u"02"_s);
    screen->userFocus(screen->cmdCreatTextFiles);
    screen->txtTaxYear.setText(QString());
    screen->userClick(screen->cmdCreatTextFiles);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(screen->txtTaxYear.backColor(), color::RequiredEmpty);
    // The focus comes to the field, whose enter rule fills it again.
    EXPECT_EQ(screen->activeControl(), &screen->txtTaxYear);
    EXPECT_EQ(screen->txtTaxYear.text(), u"1389"_s);
}

TEST_F(CreateFiles, MonthWithoutASummaryListMakesNothingNotEvenTheFolders)
{
    rows.addPayee();
    rows.summaries.clear();
    run();
    expectOneBox(0x90010, Refused, u"  براي اين ماه از سال انتخاب شده ، خلاصه ليست حقوق ايجاد نشده است "_s);
    EXPECT_FALSE(QFileInfo::exists(path(u"ERSAL")));
}

TEST_F(CreateFiles, RefusalAfterAGoodRunLeavesThatRunsFiles)
{
    rows.addPayee();
    run();
    const QByteArray wh = bytes(whPath());
    chooseMonth(u"03"_s);
    screen->userClick(screen->cmdCreatTextFiles);
    EXPECT_EQ(bytes(whPath()), wh);
    EXPECT_FALSE(QFileInfo::exists(path(u"ERSAL/138903")));
}

TEST_F(CreateFiles, StoreWithoutAPayerGetsItsWkFileAndNoWhFile)
{
    rows.addPayee();
    rows.payers.clear();
    run();
    expectOneBox(
        0x90010, Refused,
        u" پيش نياز ارسال اطلاعات تعريف پرداخت کننده حقوق ميباشد . نسبت به تعريف پرداخت کننده حقوق اقدام نماييد"_s);
    EXPECT_TRUE(QFileInfo::exists(wkPath()));
    EXPECT_FALSE(QFileInfo::exists(whPath()));
}

TEST_F(CreateFiles, StoreWithTwoPayersGetsItsWkFileAndNoWhFile)
{
    rows.addPayee();
    rows.payers.push_back(rows.payers[0]);
    rows.payers[1][u"CodeShobe"_s] = u"2"_s;
    run();
    expectOneBox(0x90010, Refused, u" تعريف بيش از يک پرداخت کننده حقوق مجاز نميباشد "_s);
    EXPECT_TRUE(QFileInfo::exists(wkPath()));
    EXPECT_FALSE(QFileInfo::exists(whPath()));
}

TEST_F(CreateFiles, MonthWithoutSalaryRowsIsRefusedWithItsName)
{
    run();
    expectOneBox(0x90010, Refused,
                 u" اطلاعات مربوط به ليست حقوق "_s + u"ارديبهشت"_s
                     + u" ماه سال مورد نظر ايجاد نشده است . ابتدا نسبت به ورود اطلاعات مذکور اقدام نماييد"_s);
    EXPECT_TRUE(QFileInfo::exists(wkPath()));
    EXPECT_FALSE(QFileInfo::exists(whPath()));
}

TEST_F(CreateFiles, MonthInWhichNoPayeeIsCompleteIsRefusedLikeAnEmptyOne)
{
    rows.addPayee({{u"Semat"_s, u"999"_s}});
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_TRUE(platform.boxes[0].text.startsWith(u" اطلاعات مربوط به ليست حقوق "_s));
    EXPECT_FALSE(QFileInfo::exists(whPath()));
}

TEST_F(CreateFiles, PayeeWhoseRastehLeftItsListStopsTheRunAndTheBoxCountsTwelveAndEleven)
{
    rows.addPayees(11);
    rows.addPayee({{u"Rasteh"_s, u"99"_s}});
    run();
    const QString text =
        u"کاربر گرامي،شما احتمالا اقدام به Import مستقيم اطلاعات به بانک اطلاعاتي Access برنامه جهت توليد فايلهاي متني نموده ايد."
        "\r\n"
        "در صورت استفاده از اين روش براي ايجاد فايلهاي متني مقدار دهي کليه فيلد هاي الزامي جدول دريافت کنندگان حقوق از قبيل : کد نوع استخدام،کد سمت يا شغل،کد رسته شغلي،کد مدرک تحصيلي،کد مليت،کد نوع معافيت مازاد بر ماده 84 و کد نوع بيمه و ساير فيلدهاي الزامي قيد شده در دفترچه راهنماي تهيه فايل الکترونيکي اجتناب ناپذير ميباشد.با در نظر گرفتن محتواي فعلي بانک اطلاعاتي شما تعداد اطلاعات قابل انتقال از بانک اطلاعاتي به فايل متني به شرح ذيل ميباشد: "
        "\r\n"
        " تعداد کارکنان ليست حقوق ماه و سال انتخاب شده برابر با:(12) و تعداد کارکناني که اطلاعات آنها حائز شرايط لازم جهت ايحاد فايل متني ميباشد برابر با:(11)ميباشد"
        "\r\n"
        "جهت ارسال اطلاعات کليه کارکنان موجود در ليست حقوق به فايل متني اقدام لازم جهت تکميل کليه فيلدهاي الزامي کارکنان در فرم تعريف کارکنان را معمول فرماييد"
        "\r\n"
        "جهت اطلاع از معتبر بودن کدهاي ملي پرداخت کنندگان حقوق،از دکمه (کنترل و نمايش محتوي فايلهاي الکترونيکي) واقع در فرم اصلي برنامه استفاده نماييد"_s;
    expectOneBox(0x190010, Refused, text);
    EXPECT_TRUE(QFileInfo::exists(wkPath()));
    EXPECT_FALSE(QFileInfo::exists(whPath()));
}

/// Each of the seven columns whose code must stand in its list.
class IncompletePayee : public CreateFiles, public testing::WithParamInterface<const char *> {};

TEST_P(IncompletePayee, StopsTheRunWhetherTheCodeIsUnknownEmptyOrMissing)
{
    const QString column = QString::fromUtf8(GetParam());
    rows.addPayee();
    rows.addPayee({{column, u"99"_s}});
    rows.addPayee({{column, QString()}});
    rows.addPayee({{column, Value()}});
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"برابر با:(4) و"_s));
    EXPECT_TRUE(platform.boxes[0].text.contains(u"برابر با:(1)ميباشد"_s));
}

INSTANTIATE_TEST_SUITE_P(Columns, IncompletePayee,
                         testing::Values("Semat", "KeshvarCode", "BimehType", "Madrak", "Rasteh", "ShakhsMoafCode",
                                         "EstekhdamType"));

TEST_F(CreateFiles, IncompleteListLeavesTheOldFileAndNothingBesideIt)
{
    rows.addPayees(2000);
    rows.addPayee({{u"Rasteh"_s, u"99"_s}});
    open();
    ASSERT_TRUE(QDir().mkpath(path(u"ERSAL/138902")));
    write(whPath(), "old");
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].style, 0x190010);
    EXPECT_EQ(bytes(whPath()), "old");
    EXPECT_EQ(QDir(path(u"ERSAL/138902")).entryList(QDir::Files), (QStringList{u"WH138902.TXT"_s, u"WK138902.TXT"_s}));
    EXPECT_EQ(screen->LabelHogogRecordsCount.caption(), u"0"_s);
    EXPECT_EQ(screen->LabelWaitingMessage.caption(), Waiting);
}

TEST_F(CreateFiles, NationalWithoutACountryDropsOutAsAForeignerDoes)
{
    rows.addPayee();
    rows.addPayee({{u"MelliatCode"_s, u"1"_s}, {u"KeshvarCode"_s, QString()}});
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].style, 0x190010);
    EXPECT_FALSE(QFileInfo::exists(whPath()));
}

TEST_F(CreateFiles, GoodRunTellsOfBothFilesAndTheCount)
{
    rows.addPayees(3);
    run();
    expectOneBox(0x90040, u" اطلاع  "_s,
                 u"  فايل متني خلاصه ليست با موفقيت ايجاد گرديد "
                 "\r\n"
                 "فايل متني ليست حقوق با موفقيت ايجاد گرديد"
                 "\r\n"
                 " تعداد حقوق بگيران منتقل شده به فايل ليست حقوق ماه انتخاب شده : 3"_s);
    EXPECT_EQ(screen->LabelHogogRecordsCount.caption(), u"3"_s);
}

TEST_F(CreateFiles, SecondRunTellsItsOwnSuccessAlone)
{
    rows.addPayees(3);
    run();
    run();
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1].text, platform.boxes[0].text);
}

TEST_F(CreateFiles, WritingTwiceForAMonthReplacesBothFilesWithoutAQuestion)
{
    rows.addPayee();
    run();
    const QByteArray wh = bytes(whPath());
    const QByteArray wk = bytes(wkPath());
    write(whPath(), "an older and much longer file" + QByteArray(10000, 'x'));
    write(wkPath(), "old");
    run();
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(bytes(whPath()), wh);
    EXPECT_EQ(bytes(wkPath()), wk);
}

TEST_F(CreateFiles, ListOfTwentyShowsItsProgressAtTwentyAndAgainAtTheEnd)
{
    rows.addPayees(20);
    open();
    const LabelWatch watch(*screen, screen->LabelWaitingMessage);
    int drawnWithTwenty = 0;
    platform.onYield = [&] {
        drawnWithTwenty += screen->LabelWaitingMessage.caption() == Waiting + u"( تعداد = 20)"_s;
    };
    run();
    EXPECT_EQ(drawnWithTwenty, 2);
    EXPECT_EQ(screen->LabelWaitingMessage.caption(), Waiting + u"( تعداد = 20)"_s);
}

TEST_F(CreateFiles, ProgressCountsByTwentyAndEndsWithTheLastCount)
{
    rows.addPayees(45);
    open();
    const LabelWatch watch(*screen, screen->LabelWaitingMessage);
    run();
    EXPECT_EQ(watch.shown,
              (QStringList{Waiting + u"( تعداد = 20)"_s, Waiting + u"( تعداد = 40)"_s, Waiting + u"( تعداد = 45)"_s}));
}

TEST_F(CreateFiles, PanelIsShownWhileTheRowsAreWrittenAndHiddenForTheBox)
{
    rows.addPayees(20);
    open();
    int drawnPanels = 0;
    platform.onYield = [&] { drawnPanels += screen->PPICWaitingMessage.isVisible(); };
    run();
    EXPECT_EQ(drawnPanels, 3);
    EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
}

TEST_F(CreateFiles, SecondRunsPanelBeginsWithoutTheFirstRunsCount)
{
    rows.addPayees(20);
    run();
    const LabelWatch watch(*screen, screen->LabelWaitingMessage);
    run();
    ASSERT_FALSE(watch.shown.isEmpty());
    EXPECT_EQ(watch.shown.first(), Waiting);
}

TEST_F(CreateFiles, ClickDuringARunDoesNothing)
{
    rows.addPayees(20);
    open();
    int refusedClicks = 0;
    platform.onYield = [&] {
        refusedClicks += !screen->userClick(screen->cmdCreatTextFiles);
        refusedClicks += !screen->userClick(screen->cmdExit);
        refusedClicks += !screen->userClose();
    };
    run();
    EXPECT_EQ(refusedClicks, 9);
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_TRUE(screen->isOpen());
}

TEST_F(CreateFiles, ShowingTheFilesTellsFirstAndOpensTheMonthsFolder)
{
    open();
    chooseMonth(u"02"_s);
    screen->userClick(screen->cmdShowFiles);
    expectOneBox(
        0x180040, u" اطلاع  "_s,
        u" کاربر محترم،با بستن اين پنجره 2 عدد فايل بر روي صفحه نمايش نمايان ميگردد.لطفا فايلهاي مذکور را بر روي CD رايت و به همراه دو برگ نسخه چاپي خلاصه ليست حقوق به اداره امور مالياتي مربوطه تحويل فرماييد.  "_s);
    EXPECT_EQ(platform.dialogueFolders, std::vector<QString>{path(u"ERSAL/138902")});
}

TEST_F(CreateFiles, CheckScreenGetsBothPaths)
{
    struct CheckScreen : Screen {
        explicit CheckScreen(Program &run)
            : Screen(run, u"frmReadTextFiles"_s)
        {
        }
    };
    bool made = false;
    program.catalogue.add(u"frmReadTextFiles"_s, [&](Program &run) {
        made = true;
        EXPECT_EQ(run.HogogPath, whPath());
        EXPECT_EQ(run.KholPath, wkPath());
        return std::make_unique<CheckScreen>(run);
    });
    open();
    chooseMonth(u"02"_s);
    screen->userClick(screen->cmdTextFilesConfig);
    EXPECT_TRUE(made);
}

TEST_F(CreateFiles, ExitCloses)
{
    open();
    screen->userClick(screen->cmdExit);
    EXPECT_FALSE(screen->isOpen());
}

TEST_F(CreateFiles, QuoteInTheYearReachesTheErrorBoxAndNoFile)
{
    rows.addPayee();
    open();
    chooseMonth(u"02"_s);
    screen->txtTaxYear.setText(u"1389' OR '1'='1"_s);
    screen->userClick(screen->cmdCreatTextFiles);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, u"اخطار"_s);
    EXPECT_FALSE(QFileInfo::exists(path(u"ERSAL")));
}

TEST_F(CreateFiles, MissingStoreIsTheErrorBoxOnLoad)
{
    openScreen();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, u"اخطار"_s);
    EXPECT_TRUE(screen->isOpen());
}

} // namespace
} // namespace zrv
