// SPDX-License-Identifier: GPL-3.0-or-later

// The copy that each of the small repairs begins with.

#include "core/basic/run_time_error.h"
#include "core/store/store_backups.h"
#include "tests/upkeep/upkeep_fixture.h"
#include "upkeep/frmUpgrades.h"

namespace zrv {
namespace {

struct Repair {
    const char *name;
    int choice;
    bool endsTheProgram;
};

constexpr Repair Repairs[] = {
    {"BranchCodeOfTwoDigits", 0, false},
    {"WidthOfTheBranchCode", 1, false},
    {"FileNumber", 2, true},
    {"BranchCode", 3, true},
    {"WidthOfTheChequeNumber", 4, false},
};

void PrintTo(const Repair &repair, std::ostream *out)
{
    *out << repair.name;
}

class RepairTest : public UpkeepTest, public testing::WithParamInterface<Repair> {
protected:
    void SetUp() override
    {
        makeSample({u"--payees"_s, u"3"_s, u"--months"_s, u"1"_s});
        // As early stores have them, so that each of the repairs has something to do.
        sql(u"UPDATE ZRVtbKarfarma Set CodeShobe = '01'"_s);
        sql(u"ALTER TABLE ZRVtbKarfarma ALTER COLUMN CodeShobe TEXT(2)"_s);
        sql(u"ALTER TABLE ZRVtbKholList ALTER COLUMN ChequeSeriNo TEXT(6)"_s);
        m_before = bytes();
        screen.load();
        screen.activate();
        const QString option = u"optUpgrades("_s + QString::number(GetParam().choice) + u')';
        ASSERT_TRUE(screen.userCheck(*screen.find(option), true));
        screen.txtNewTFN.setText(u"123456789012"_s);
        screen.txtNewCodeShobe.setText(u"7"_s);
    }

    [[nodiscard]] QString store() const { return path(u"DBZorvan.mdb"_s); }
    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(store());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    [[nodiscard]] bool hasQuestion() const
    {
        return !platform.boxes.empty() && platform.boxes[0].style == 36
               && platform.boxes[0].text.contains(backupFolder(store()));
    }
    /// From now on no copy can be made.
    void takeTheFolder() const
    {
        QFile file(backupFolder(store()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void repair()
    {
        if (GetParam().endsTheProgram) {
            EXPECT_THROW(screen.userClick(screen.cmdUpgrades), ProgramEnd);
        } else {
            EXPECT_TRUE(screen.userClick(screen.cmdUpgrades));
        }
    }

    frmUpgrades screen{program};
    QByteArray m_before;
};

TEST_P(RepairTest, BeginsWithADatedCopyOfTheStoreAsItWas)
{
    const QString before = dump();
    repair();
    EXPECT_NE(bytes(), m_before);
    ASSERT_EQ(backupNames(store()), QStringList{u"DBZorvan-13890303-103000.mdb"_s});
    EXPECT_EQ(dumpOf(path(u"Backups/DBZorvan-13890303-103000.mdb"_s)), before);
    EXPECT_EQ(platform.boxes.size(), 1u) << "of what was done alone";
}

TEST_P(RepairTest, WithoutACopyNoLeavesTheStoreAsItIs)
{
    takeTheFolder();
    platform.answers = {Answer::No};
    EXPECT_TRUE(screen.userClick(screen.cmdUpgrades));
    EXPECT_TRUE(hasQuestion());
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(bytes(), m_before);
}

TEST_P(RepairTest, WithoutACopyYesGoesOn)
{
    takeTheFolder();
    platform.answers = {Answer::Yes};
    repair();
    EXPECT_TRUE(hasQuestion());
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_NE(bytes(), m_before);
}

INSTANTIATE_TEST_SUITE_P(Repairs, RepairTest, testing::ValuesIn(Repairs),
                         [](const auto &repair) { return std::string(repair.param.name); });

class RefusedRepair : public RepairTest {};

TEST_P(RefusedRepair, MakesNoCopy)
{
    screen.txtNewTFN.setText(u"1"_s);
    screen.txtNewCodeShobe.setText({});
    EXPECT_TRUE(screen.userClick(screen.cmdUpgrades));
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(backupNames(store()), QStringList());
    EXPECT_EQ(bytes(), m_before);
}

INSTANTIATE_TEST_SUITE_P(Repairs, RefusedRepair, testing::Values(Repairs[2], Repairs[3]),
                         [](const auto &repair) { return std::string(repair.param.name); });

} // namespace
} // namespace zrv
