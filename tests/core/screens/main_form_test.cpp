// SPDX-License-Identifier: GPL-3.0-or-later
// The main form where a scenario can't look: beneath the screen that it opens by itself, at an item that nothing
// switches on, at the values of the run and at the keyboard.
#include "core/frmMain.h"
#include "tests/core/screens/keyboards.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

#include <vector>

namespace zrv {
namespace {

const QString UpgradeScreen = u"frmUpgradeDatabaseStructureAndUpdateUserRecords"_s;

class MainPlatform : public Keyboards {
public:
    QStringList boxes; ///< style, title and text
    Answer answer = Answer::No;
    std::function<void(Form &)> onScreen = [](Form &) {};

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes += QString::number(style, 16) + u'|' + title + u'|' + text;
        return style & box::YesNo ? answer : Answer::Ok;
    }
    void runModal(Form &form) override { onScreen(form); }
    QString setting(const QString &, const QString &, const QString &) override { return u"( نسخه ) "_s; }
};

class MainForm : public StoreTest {
protected:
    MainForm()
    {
        program.StoreConnectionString = connectionString();
        program.ProgramVersion = u"( نسخه ) "_s;
        program.catalogue.add(UpgradeScreen, [](Program &of) { return std::make_unique<Screen>(of, UpgradeScreen); });
        platform.onScreen = [this](Form &form) { opened += form.name(); };
    }

    void addPayer(const QString &types) const
    {
        execute(u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe,Name,Family,ShobeName,MMoadiType,SMoadiType,MohasebeType) "
                "VALUES ('123456789012','37','نام','فاميل','دفتر مرکزي',"_s
                + types + u")"_s);
    }

    void open()
    {
        screen.load();
        screen.activate();
    }

    MainPlatform platform;
    Program program{platform};
    frmMain screen{program};
    QStringList opened;
};

// A store that is too old ------------------------------------------------------------------------------------

TEST_F(MainForm, StoreThatIsTooOldLeavesTheExitAndTwoMenusBeneathTheUpgrade)
{
    addPayer(u"'1','2','3'"_s);
    open();
    const std::vector<Control *> off{&screen.cmdKarfarma,       &screen.cmdReadTextFiles,  &screen.cmdCodin_Semat,
                                     &screen.cmdCreatTextFiles, &screen.cmdHogog,          &screen.cmdKholList,
                                     &screen.cmdKarkonan,       &screen.cmdSrcMoadi,       &screen.cmdUsres,
                                     &screen.mnuAmaliat,        &screen.mnuBaseInformation};
    const std::vector<Control *> on{&screen.cmdExit, &screen.mnuAdmin, &screen.mnuHelp};
    for (const Control *control : off)
        ASSERT_TRUE(control->isEnabled()) << control->name().toStdString();
    execute(u"ALTER TABLE ZRVtbKarfarma DROP COLUMN ShobeName"_s);

    // The activation that follows the closing of the upgrade would find the same store again.
    platform.onScreen = [&](Form &form) {
        opened += form.name();
        EXPECT_EQ(platform.boxes,
                  QStringList(u"190010|توجه|نسخه اجرا شده برنامه با ديتابيس موجود سازگاري ندارد.لطفا نسبت به "
                              "بروزرساني پايگاه اطلاعاتي از طريق فرمي که نمايش داده خواهد شد، اقدام نماييد"_s));
        for (const Control *control : off)
            EXPECT_FALSE(control->isEnabled()) << control->name().toStdString();
        for (const Control *control : on)
            EXPECT_TRUE(control->isEnabled()) << control->name().toStdString();
        throw ProgramEnd{};
    };
    EXPECT_THROW(screen.activate(), ProgramEnd);
    EXPECT_EQ(opened, QStringList(UpgradeScreen));
}

// The item of the upgrade ------------------------------------------------------------------------------------

TEST_F(MainForm, ItemOfTheUpgradeWarnsAndOpensItOnYesAlone)
{
    addPayer(u"'1','2','3'"_s);
    open();
    ASSERT_FALSE(screen.mnusubUpgradeDatabaseStructure.isEnabled());
    screen.mnusubUpgradeDatabaseStructure.setEnabled(true);
    const QStringList warning(
        u"100024|اخطار!!!!!! |اخطار!!!!!! : اجراي اين گزينه فقط براي آن دسته از کاربراني که از نسخه هاي قبل از : "
        "( نسخه ) استفاده مينمايند ضروري بوده(اين دسته از کاربران نيز فقط يک بار نياز به اجرا دارند) و اجراي آن در "
        "اطلاعات ساير کاربران اخلال ايجاد مينمايد. \r\nآيا مايل به ادامه عمليات ميباشيد ؟"_s);
    ASSERT_TRUE(screen.userClick(screen.mnusubUpgradeDatabaseStructure));
    EXPECT_EQ(platform.boxes, warning);
    EXPECT_EQ(opened, QStringList());

    platform.boxes.clear();
    platform.answer = Answer::Yes;
    ASSERT_TRUE(screen.userClick(screen.mnusubUpgradeDatabaseStructure));
    EXPECT_EQ(platform.boxes, warning);
    EXPECT_EQ(opened, QStringList(UpgradeScreen));
}

// The values of the run --------------------------------------------------------------------------------------

TEST_F(MainForm, PayerLeavesNumberBranchAndThreeTypesBehind)
{
    addPayer(u"'4','5','6'"_s);
    open();
    EXPECT_EQ(program.PayerTFN, u"123456789012"_s);
    EXPECT_EQ(program.PayerCodeShobe, u"37"_s);
    EXPECT_EQ(program.PayerMMoadiType, 4);
    EXPECT_EQ(program.PayerSMoadiType, 5);
    EXPECT_EQ(program.PayerMohasebeType, 6);
}

TEST_F(MainForm, TypesThatThePayerLacksAreZero)
{
    addPayer(u"NULL,NULL,NULL"_s);
    program.PayerMMoadiType = program.PayerSMoadiType = program.PayerMohasebeType = 9;
    open();
    EXPECT_EQ(program.PayerMMoadiType, 0);
    EXPECT_EQ(program.PayerSMoadiType, 0);
    EXPECT_EQ(program.PayerMohasebeType, 0);
    EXPECT_EQ(platform.boxes, QStringList());
}

// The keyboard -----------------------------------------------------------------------------------------------

TEST_F(MainForm, KeyboardIsPersianFromTheLoadToTheLeavingAndLatinEvenAfterNo)
{
    addPayer(u"'1','2','3'"_s);
    screen.load();
    EXPECT_EQ(platform.current, layout::Persian);
    screen.activate();
    EXPECT_EQ(platform.current, layout::Persian);
    ASSERT_TRUE(screen.userClick(screen.cmdExit));
    EXPECT_EQ(platform.boxes, QStringList(u"4||آيا ميخواهيد از سيستم خارج شويد؟    "_s));
    EXPECT_TRUE(screen.isOpen());
    EXPECT_EQ(platform.current, layout::UsEnglish);
}

TEST_F(MainForm, KeyboardIsLatinWhenTheProgramEnds)
{
    addPayer(u"'1','2','3'"_s);
    open();
    platform.answer = Answer::Yes;
    EXPECT_THROW(screen.userKey(Key::Escape), ProgramEnd);
    EXPECT_EQ(platform.current, layout::UsEnglish);
}

} // namespace
} // namespace zrv
