// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever moment the program is killed at while it changes the monthly lists, the store is sound and each month is
// whole or absent. What else changes the lists joins with a line in Cases.
#include "lists/frmHogog1.h"
#include "lists/month_copy.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/tools/killed_process.h"
#include "tests/tools/tool_fixture.h"

#include <QElapsedTimer>

#include <random>
#include <stdexcept>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;
using storetool::Sqlite;

constexpr int Kills = 60;
constexpr int MostKills = 300; ///< on a machine so busy that few of them hit what they should
constexpr int Enough = Kills / 10;
constexpr sample::Plan People = {.payees = 300, .months = 2, .year = 1389, .rng = 12};

/// A platform on which no box may come up: the work has failed when one does. Questions are answered with Yes.
class NoBoxes : public QuietPlatform {
public:
    Answer messageBox(int style, const QString &, const QString &text) override
    {
        if ((style & box::YesNo) == 0)
            throw std::runtime_error(text.toStdString());
        return Answer::Yes;
    }
};

/// What a killed program was doing: months of 1390 and on are made by it, the two of 1389 are there before.
struct Case {
    const char *name;
    void (*work)(Program &program, int turn);
};

void copyMonths(Program &program, int turn)
{
    const QString month = QString::number(100 + turn % 12 + 1).mid(1);
    CopyMonth(program, {u"1389"_s, u"02"_s}, {QString::number(1390 + turn / 12), month});
}

/// A user of the salary list: has the year's last month carried into the next, and changes payees of it.
void carryAndSave(Program &program, int turn)
{
    const ListMonth month{QString::number(1390 + turn / 12), QString::number(100 + turn % 12 + 1).mid(1)};
    if (month.month == u"01") {
        CopyMonth(program, {u"1389"_s, u"02"_s}, month);
        return;
    }
    // The list tells of each carried month, and of rows that it doesn't open.
    class Consenting : public QuietPlatform {
        Answer messageBox(int style, const QString &, const QString &) override
        {
            return style & box::YesNo ? Answer::Yes : Answer::Ok;
        }
    } platform;
    Program run(platform);
    run.StoreConnectionString = program.StoreConnectionString;
    run.PayerTFN = program.PayerTFN;
    frmHogog1 screen(run);
    screen.load();
    screen.activate();
    screen.txtTaxYear.setText(month.year);
    screen.dcbTaxMonth.setBoundText(month.month);
    screen.userClick(screen.cmdKeyOk);
    for (int row = 0; row < 3; ++row) {
        screen.userRow(screen.browse.grid, row, 0);
        screen.userKey(Key::Enter);
        screen.txtNJariHogog.setText(QString::number(9'000'000 + turn));
        screen.userClick(screen.cmdDataOk);
    }
}

void PrintTo(const Case &each, std::ostream *out)
{
    *out << each.name;
}

const Case Cases[] = {
    {"CopyMonth", copyMonths},
    {"CarryAndSave", carryAndSave},
};

class KilledWork : public storetool::ToolTest, public testing::WithParamInterface<Case> {
protected:
    KilledWork()
    {
        program.StoreConnectionString = u"Data Source = "_s + store;
        program.PayerTFN = Sqlite(store).value(u"SELECT TFN FROM ZRVtbKarfarma"_s);
    }

    /// The months that were made, each of as many rows as go into it; their number.
    int expectWholeMonths()
    {
        const QStringList months = Sqlite(store).run(
            u"SELECT TaxYear,TaxMonth,count(*),sum(FinalTax) FROM ZRVtbHogog WHERE TaxYear>='1390' GROUP BY 1,2"_s);
        for (const QString &line : months) {
            const QStringList month = line.split(u'|');
            const Recordset whole = CountTransferable(program, {u"1389"_s, u"02"_s}, {month[0], month[1]});
            EXPECT_EQ(month[2], whole.value(u"KarkonanNo").toText()) << line.toStdString();
            EXPECT_EQ(month[3].toDouble(), whole.value(u"SUMFinalTax").toText().toDouble()) << line.toStdString();
        }
        EXPECT_EQ(Sqlite(store).value(u"SELECT count(*) FROM ZRVtbHogog WHERE "
                                      "NTotalDaramad+0<>NJariHogog+JariEzafeKar+NJariSayerPardakhtiha"_s),
                  u"0"_s)
            << "the figures of a row belong together";
        return int(months.size());
    }

    void removeMonths() { Sqlite(store).run(u"DELETE FROM ZRVtbHogog WHERE TaxYear>='1390'"_s); }

    /// How long the work takes now, in microseconds.
    int duration()
    {
        constexpr int Turns = 3;
        QElapsedTimer timer;
        timer.start();
        for (int turn = 0; turn < Turns; ++turn)
            GetParam().work(program, turn);
        const auto each = int(timer.nsecsElapsed() / 1000 / Turns);
        removeMonths();
        return each;
    }

    const QString store = sampleStore(People);
    NoBoxes platform;
    Program program{platform};
};

TEST_P(KilledWork, LeavesEachMonthWholeOrAbsent)
{
    const QStringList before = Sqlite(store).run(u"SELECT * FROM ZRVtbHogog"_s);
    std::mt19937 random(4);
    int duringAStatement = 0;
    int made = 0;
    for (int kill = 0; kill < Kills || (kill < MostKills && std::min(duringAStatement, made) < Enough); ++kill) {
        const int moment = int(random() % std::uint32_t(duration() * 6));
        ASSERT_TRUE(killDuring([this](int turn) { GetParam().work(program, turn); }, moment));
        duringAStatement += QFile::exists(store + u"-journal"_s);
        ASSERT_EQ(storetool::verified(store).last(), u"findings: 0"_s) << "after kill " << kill;
        made += expectWholeMonths();
        removeMonths();
        ASSERT_EQ(Sqlite(store).run(u"SELECT * FROM ZRVtbHogog"_s), before);
    }
    EXPECT_GE(duringAStatement, Enough) << "too few of the kills hit a statement for this to show anything";
    EXPECT_GE(made, Enough) << "too little was finished for this to show anything";
    RecordProperty("during_a_statement", duringAStatement);
    RecordProperty("months_made", made);
}

INSTANTIATE_TEST_SUITE_P(Lists, KilledWork, testing::ValuesIn(Cases),
                         [](const auto &killed) { return std::string(killed.param.name); });

} // namespace
} // namespace zrv
