// SPDX-License-Identifier: GPL-3.0-or-later
// The salary list where playing it as a scenario would be clumsy: figures that are thrown, columns that are stepped
// through, a store that another program holds. Its other ways are scenarios.
#include "core/basic/val.h"
#include "lists/frmHogog1.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

#include <map>
#include <random>
#include <sqlite3.h>

namespace zrv {
namespace {

class SalaryPlatform : public QuietPlatform {
public:
    QStringList boxes; ///< style and title
    Answer messageBox(int style, const QString &title, const QString &) override
    {
        boxes += QString::number(style, 16) + u' ' + title;
        return style & box::YesNo ? Answer::Yes : Answer::Ok;
    }
    std::function<void()> onYield = [] {};
    void yield() override { onYield(); }
};

class SalaryScreen : public StoreTest {
protected:
    SalaryScreen()
    {
        program.StoreConnectionString = connectionString();
        program.PayerTFN = u"123456789012"_s;
        addPayee(u"0012345679"_s, u"گلستاني"_s, u"0"_s);
        addPayee(u"1234567891"_s, u"احمدي"_s, u"1"_s);
        addPayee(u"P123456"_s, u"پوياني"_s, u"7"_s);
    }

    void addPayee(const QString &code, const QString &family, const QString &exemption) const
    {
        execute(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,ShakhsMoafCode) VALUES ('123456789012','"_s
                + code + u"','مريم','"_s + family + u"','"_s + exemption + u"')"_s);
    }

    void openMonth(const QString &month = u"03"_s)
    {
        screen.load();
        screen.activate();
        screen.txtTaxYear.setText(u"1389"_s);
        screen.dcbTaxMonth.setBoundText(month);
        ASSERT_TRUE(screen.userClick(screen.cmdKeyOk));
    }

    void openPayee(const QString &code)
    {
        screen.dcbMelliCode.setBoundText(code);
        ASSERT_TRUE(screen.userClick(screen.cmdKeyOk1));
        ASSERT_TRUE(screen.cmdDataOk.isReachable());
    }

    Edit &field(const SalaryColumn &column)
    {
        const QString name = (column.origin == Origin::Status ? u"dcb"_s : u"txt"_s) + column.name;
        return *dynamic_cast<Edit *>(screen.find(name));
    }

    void type(Edit &edit, const QString &digits)
    {
        ASSERT_TRUE(screen.userFocus(edit));
        for (const QChar digit : digits)
            screen.userLetter(digit);
    }

    /// Fills what the open payee is asked for, and saves.
    void completedBy(const QString &salary)
    {
        for (const SalaryColumn &column : SalaryColumns)
            if (column.required && column.origin == Origin::Entered && field(column).isReachable())
                type(field(column), column.name == u"NJariHogog" ? salary : u"0"_s);
        ASSERT_TRUE(screen.userClick(screen.cmdDataOk));
    }

    /// What the row of the open payee would hold, column by column.
    std::map<QString, QString> figures()
    {
        std::map<QString, QString> all;
        for (const SalaryColumn &column : SalaryColumns) {
            if (column.origin == Origin::Key)
                continue;
            const auto *const list = dynamic_cast<Combo *>(&field(column));
            all[column.name.toString()] = list ? list->boundText() : storedAmount(field(column).text());
        }
        return all;
    }

    SalaryPlatform platform;
    Program program{platform};
    frmHogog1 screen{program};
};

/// Another program that is about to write: the store can be read, and not written.
class Writer {
public:
    explicit Writer(const QString &path)
    {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(m_database, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~Writer() { sqlite3_close(m_database); }
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

private:
    sqlite3 *m_database = nullptr;
};

// Figures ----------------------------------------------------------------------------------------------------

class SalaryFigures : public SalaryScreen, public testing::WithParamInterface<const char *> {
protected:
    /// Types or chooses something in any field that is open.
    void editAnything()
    {
        const SalaryColumn &column = SalaryColumns[SalaryKeyColumns + below(MonthFields)];
        Edit &edit = field(column);
        if (!edit.isReachable() || edit.isLocked())
            return;
        if (auto *const list = dynamic_cast<Combo *>(&edit))
            ASSERT_TRUE(screen.userChoose(*list, static_cast<int>(below(list->items().size()))));
        else
            type(edit, QString::number(below(10) ? below(100'000'000) : below(20'000'000'000)).right(11));
    }

    void completeRequired()
    {
        for (const SalaryColumn &column : SalaryColumns)
            if (column.required && column.origin == Origin::Entered && field(column).isReachable()
                && field(column).text().isEmpty())
                type(field(column), u"0"_s);
        // An exemption that its total has fallen below would be refused when it is opened again.
        if (wholeVal(storedAmount(screen.txtNJariMoafiate91.text()))
            > wholeVal(storedAmount(screen.txtNTotalDaramad.text())))
            type(screen.txtNJariMoafiate91, u"0"_s);
    }

    std::size_t below(std::size_t sides) { return std::uniform_int_distribution<std::size_t>(0, sides - 1)(m_chance); }

private:
    std::mt19937 m_chance{20100524};
};

TEST_P(SalaryFigures, RandomEditsSavedAndOpenedAgainShowTheSameFigures)
{
    const QString code = QString::fromLatin1(GetParam());
    openMonth();
    for (int round = 0; round < 40; ++round) {
        openPayee(code);
        for (std::size_t edits = below(25); edits > 0; --edits)
            editAnything();
        completeRequired();
        const auto typed = figures();
        platform.boxes.clear();
        ASSERT_TRUE(screen.userClick(screen.cmdDataOk));
        ASSERT_EQ(platform.boxes, QStringList()) << round;
        ASSERT_EQ(rows(u"SELECT count(*) FROM ZRVtbHogog"_s), QStringList(u"1"_s));
        openPayee(code);
        ASSERT_EQ(platform.boxes, QStringList()) << round;
        ASSERT_EQ(figures(), typed) << round;
        for (const auto &[column, value] : typed)
            ASSERT_EQ(this->value(u"SELECT "_s + column + u" FROM ZRVtbHogog"_s).toText(), value)
                << column.toStdString();
        ASSERT_TRUE(screen.userClick(screen.cmdDataReturn));
    }
}

INSTANTIATE_TEST_SUITE_P(Classes, SalaryFigures, testing::Values("0012345679", "1234567891", "P123456"),
                         [](const auto &code) { return std::string(code.param); });

TEST_F(SalaryScreen, BearsItsTitle)
{
    screen.load();
    EXPECT_EQ(screen.caption(), u"ورود و ويرايش اطلاعات حقوق و مزاياي ماهانه دريافت کنندگان حقوق"_s);
}

TEST_F(SalaryScreen, TypedAmountKeepsTheCaretBehindItsLastDigit)
{
    openMonth();
    openPayee(u"0012345679"_s);
    TextBox &amount = screen.txtNJariHogog;
    type(amount, u"1234"_s);
    ASSERT_EQ(amount.text(), u"1,234"_s);
    amount.select(1, 0);
    screen.userLetter(u'5');
    EXPECT_EQ(amount.text(), u"15,234"_s);
    EXPECT_EQ(amount.selStart(), amount.text().size());
    EXPECT_EQ(amount.selLength(), 0);
}

TEST_F(SalaryScreen, AmountThatIsComeToOrLoadedIsSelectedSoThatTypingReplacesIt)
{
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NJariHogog,JariEzafeKar) VALUES "
            "('123456789012','0012345679','1389','03','5000','600')"_s);
    openMonth();
    openPayee(u"0012345679"_s);
    EXPECT_EQ(screen.txtNJariHogog.selLength(), 5);
    screen.userLetter(u'7');
    EXPECT_EQ(screen.txtNJariHogog.text(), u"7"_s);
    screen.userKey(Key::Enter);
    ASSERT_TRUE(screen.txtJariEzafeKar.hasFocus());
    screen.userLetter(u'8');
    EXPECT_EQ(screen.txtJariEzafeKar.text(), u"8"_s);
    EXPECT_EQ(screen.txtNTotalDaramad.text(), u"15"_s);
}

// The list of payees -----------------------------------------------------------------------------------------

TEST_F(SalaryScreen, WalkGoesOnFromThePayeeThatWasChosen)
{
    openMonth();
    ASSERT_EQ(screen.dcbMelliCode.items().size(), 3u);
    openPayee(u"P123456"_s);
    completedBy(u"1"_s);
    EXPECT_EQ(screen.dcbMelliCode.boundText(), u"0012345679"_s);
}

TEST_F(SalaryScreen, PayeeOfTwoPayersIsPassedTwiceAndLeftBehind)
{
    execute(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,ShakhsMoafCode) VALUES "
            "('999999999999','1234567891','مريم','احمدي','1')"_s);
    openMonth();
    QStringList passed;
    for (int turn = 0; turn < 4; ++turn) {
        if (turn == 0)
            screen.dcbMelliCode.chooseRow(0);
        passed += screen.dcbMelliCode.boundText();
        ASSERT_TRUE(screen.userClick(screen.cmdKeyOk1));
        completedBy(u"1"_s);
    }
    EXPECT_EQ(passed, QStringList({u"1234567891"_s, u"1234567891"_s, u"P123456"_s, u"0012345679"_s}));
    EXPECT_EQ(screen.dcbMelliCode.text(), QString());
}

/// The payee search of a user who picks this code and is back at once.
class AnsweringSearch : public Screen {
public:
    AnsweringSearch(Program &program, const QString &code)
        : Screen(program, u"frmSrcKarkonan"_s)
    {
        program.SelectedMelliCode = code;
    }
};

TEST_F(SalaryScreen, SearchThatHandsMinusOneBackChangesNothing)
{
    QString handedBack = u"P123456"_s;
    program.catalogue.add(u"frmSrcKarkonan"_s, [&](Program &of) {
        EXPECT_EQ(of.SearchCallerName, u"frmHogog"_s);
        return std::make_unique<AnsweringSearch>(of, handedBack);
    });
    openMonth();
    ASSERT_TRUE(screen.userClick(screen.cmdSearchMoadi));
    ASSERT_EQ(screen.dcbMelliCode.boundText(), u"P123456"_s);
    platform.boxes.clear();
    for (const auto &none : {u"-1"_s, QString()}) {
        handedBack = none;
        ASSERT_TRUE(screen.userClick(screen.cmdSearchMoadi));
        EXPECT_EQ(screen.dcbMelliCode.boundText(), u"P123456"_s);
        EXPECT_EQ(screen.textMelliCode.text(), u"P123456"_s);
        EXPECT_EQ(platform.boxes, QStringList());
    }
}

// The grid ---------------------------------------------------------------------------------------------------

TEST_F(SalaryScreen, CarryShowsAndDrawsTheWaitPictureBeforeItCopies)
{
    openMonth();
    openPayee(u"P123456"_s);
    completedBy(u"5"_s);
    ASSERT_TRUE(screen.userClick(screen.cmdKeyReturn1));
    int drawn = 0;
    platform.onYield = [&] {
        ++drawn;
        EXPECT_TRUE(screen.LabelWaitingMessage.isShown());
        EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbHogog WHERE TaxMonth='04'"_s), QStringList());
        EXPECT_FALSE(screen.userClick(screen.cmdExit)) << "a click while it runs is dropped";
    };
    openMonth(u"04"_s);
    EXPECT_EQ(drawn, 1);
    EXPECT_FALSE(screen.PPICWaitingMessage.isVisible());
    EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbHogog WHERE TaxMonth='04'"_s), QStringList{u"P123456"_s});
}

TEST_F(SalaryScreen, ArrowsStepThroughTheShownColumnsAndWrapRound)
{
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth) VALUES ('123456789012','1','1389','03')"_s);
    openMonth();
    Grid &grid = screen.browse.grid;
    ASSERT_TRUE(screen.userFocus(grid));
    ASSERT_EQ(grid.currentColumn(), 0);
    // From right to left: the left arrow goes on.
    std::vector<int> passed;
    for (int step = 0; step < 4; ++step) {
        screen.userKey(Key::Left);
        passed.push_back(grid.currentColumn());
    }
    EXPECT_EQ(passed, (std::vector{1, 2, 4, 5})) << "the hidden column is stepped over";
    for (int step = 0; step < 5; ++step)
        screen.userKey(Key::Right);
    EXPECT_EQ(grid.currentColumn(), 36);
    screen.userKey(Key::Left);
    EXPECT_EQ(grid.currentColumn(), 0);
    EXPECT_EQ(grid.currentRow(), 0);
}

TEST_F(SalaryScreen, RowsOfAnotherPayerAreNotInTheList)
{
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth) VALUES ('999999999999','1','1389','03')"_s);
    openMonth();
    EXPECT_EQ(screen.browse.rowCount(), 0);
}

// A store that can't be written ------------------------------------------------------------------------------

TEST_F(SalaryScreen, FailedUpdateIsToldAndTheScreenGoesOnAsAfterSuccess)
{
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NJariHogog,MaskanStatus,OtomobilStatus) VALUES "
            "('123456789012','P123456','1389','03','5','1','1')"_s);
    openMonth();
    openPayee(u"P123456"_s);
    const Writer other(path());
    platform.boxes.clear();
    completedBy(u"77"_s);
    EXPECT_EQ(platform.boxes, QStringList(u"30 Update"_s));
    EXPECT_TRUE(screen.dcbMelliCode.hasFocus());
    EXPECT_EQ(screen.dcbMelliCode.boundText(), u"0012345679"_s);
    EXPECT_FALSE(screen.cmdDataOk.isReachable());
    EXPECT_EQ(value(u"SELECT NJariHogog FROM ZRVtbHogog"_s).toText(), u"5"_s);
}

TEST_F(SalaryScreen, FailedDeletionIsToldAndTheScreenGoesOnAsAfterSuccess)
{
    execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NJariHogog,MaskanStatus,OtomobilStatus) VALUES "
            "('123456789012','P123456','1389','03','5','1','1')"_s);
    openMonth();
    openPayee(u"P123456"_s);
    const Writer other(path());
    platform.boxes.clear();
    ASSERT_TRUE(screen.userClick(screen.cmdDelete));
    EXPECT_EQ(platform.boxes, QStringList({u"24                        حذف "_s, u"30 Delete"_s}));
    EXPECT_TRUE(screen.dcbMelliCode.hasFocus());
    EXPECT_FALSE(screen.cmdDataOk.isReachable());
    EXPECT_EQ(screen.browse.rowCount(), 1);
}

TEST_F(SalaryScreen, FailedInsertKeepsThePayeeOpen)
{
    openMonth();
    openPayee(u"P123456"_s);
    const Writer other(path());
    platform.boxes.clear();
    completedBy(u"77"_s);
    EXPECT_EQ(platform.boxes, QStringList(u"0 "_s));
    EXPECT_TRUE(screen.cmdDataOk.isReachable());
    EXPECT_EQ(screen.txtNJariHogog.text(), u"77"_s);
}

TEST_F(SalaryScreen, StoreThatIsGoneLeavesTheStageAsItWas)
{
    openMonth();
    screen.dcbMelliCode.setBoundText(u"P123456"_s);
    platform.boxes.clear();
    program.StoreConnectionString = u"Data Source = "_s + m_folder.filePath(u"missing.mdb"_s);
    ASSERT_TRUE(screen.userClick(screen.cmdKeyOk1));
    EXPECT_EQ(platform.boxes, QStringList(u"0 "_s));
    EXPECT_TRUE(screen.cmdKeyOk1.isReachable());
    EXPECT_FALSE(screen.cmdDataOk.isReachable());
}

} // namespace
} // namespace zrv
