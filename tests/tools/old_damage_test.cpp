// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is done to the bytes of an old store, it is read right, or refused, or what is wrong with it is told. All
// that can pass is a letter that became another, and a digit that went over to the number next to it.

#include "tests/tools/takeover_fixture.h"
#include "tools/jet/refused.h"
#include "tools/sample/dice.h"
#include "tools/zrvstore/field_rules.h"
#include "tools/zrvstore/old_rows.h"
#include "tools/zrvstore/old_store.h"

#include <algorithm>

namespace zrv::storetool {
namespace {

/// What became of a file.
struct Reading {
    bool isRefused = false;
    qint64 doubts = 0;
    std::vector<std::vector<OldRow>> tables;
};

Reading readingOf(const QByteArray &bytes)
{
    Reading reading;
    TakeoverReport report([](const QString &) {}, 1);
    try {
        const OldStore old({bytes.begin(), bytes.end()}, report);
        for (const OldTable &table : old.tables()) {
            if (report.faults() == 0)
                checkOldRows(table, false, report);
        }
        reading.isRefused = report.faults() > 0;
        reading.doubts = report.findings().finish();
        for (const OldTable &table : old.tables()) {
            std::vector<OldRow> &rows = reading.tables.emplace_back();
            for (std::size_t row = 0; row < table.rows.size() && !reading.isRefused; ++row)
                rows.push_back(table.values(table.rows[row]));
        }
    } catch (const jet::Refused &) {
        reading.isRefused = true;
    }
    return reading;
}

/// One letter of a text became another, or a NULL an empty text, which nothing in the file tells apart.
bool isFlip(const std::optional<QString> &before, const std::optional<QString> &after)
{
    if (!before || !after)
        return before.value_or(QString()).isEmpty() && after.value_or(QString()).isEmpty();
    if (before->size() != after->size())
        return false;
    int others = 0;
    for (qsizetype i = 0; i < before->size(); ++i)
        others += before->at(i) != after->at(i);
    return others <= 1;
}

/// The end of one number became the head of the next: where a value ends is told by an offset alone.
bool isMovedEnd(const OldRow &before, const OldRow &after)
{
    const auto joined = [](const OldRow &row) {
        QString text;
        for (const std::optional<QString> &cell : row)
            text += cell.value_or(QString());
        return text;
    };
    const auto differs = [&](std::size_t cell) { return before[cell] != after[cell]; };
    const auto isNumber = [](const std::optional<QString> &cell) {
        return isDigits(cell.value_or(QString()).toStdString());
    };
    std::vector<std::size_t> others;
    for (std::size_t cell = 0; cell < before.size(); ++cell) {
        if (differs(cell))
            others.push_back(cell);
    }
    return joined(before) == joined(after) && others.size() == 2 && others[1] == others[0] + 1
           && isNumber(after[others[0]]) && isNumber(after[others[1]]);
}

int otherCells(const OldRow &before, const OldRow &after)
{
    int others = 0;
    for (std::size_t cell = 0; cell < before.size(); ++cell)
        others += before[cell] != after[cell];
    return others;
}

/// At most one row differs, in one letter or in the place where one number ends.
bool differsByAFlip(const Reading &before, const Reading &after)
{
    if (before.tables.size() != after.tables.size())
        return false;
    int otherRows = 0;
    for (std::size_t table = 0; table < before.tables.size(); ++table) {
        if (before.tables[table].size() != after.tables[table].size())
            return false;
        for (std::size_t row = 0; row < before.tables[table].size(); ++row) {
            const OldRow &one = before.tables[table][row];
            const OldRow &other = after.tables[table][row];
            if (one == other)
                continue;
            const bool isOneCell =
                one.size() == other.size() && otherCells(one, other) == 1 && std::ranges::equal(one, other, isFlip);
            if (++otherRows > 1 || !(isOneCell || isMovedEnd(one, other)))
                return false;
        }
    }
    return true;
}

class OldDamageTest : public testing::Test {
protected:
    OldDamageTest()
        : m_file(jetFile(oldStore(Age::Upgraded, 4, 2),
                         {.isCompressed = true, .movedEach = 5, .deletedEach = 4, .orphanEach = 7}))
        , m_sound(readingOf(m_file))
    {
        EXPECT_FALSE(m_sound.isRefused);
        EXPECT_EQ(m_sound.doubts, 0);
    }

    void expectNoSilentHarm(const QByteArray &file, const QString &what)
    {
        const Reading reading = readingOf(file);
        ++m_seen;
        m_refused += reading.isRefused;
        if (!reading.isRefused && reading.doubts == 0) {
            EXPECT_TRUE(differsByAFlip(m_sound, reading)) << what.toStdString();
        }
    }

    QByteArray m_file;
    Reading m_sound;
    int m_seen = 0;
    int m_refused = 0;
};

TEST_F(OldDamageTest, AFileThatIsCutOffAnywhere)
{
    for (qsizetype size = 0; size < m_file.size(); size += 509) {
        expectNoSilentHarm(m_file.first(size), u"cut at "_s + QString::number(size));
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(m_refused, m_seen * 9 / 10);
}

TEST_F(OldDamageTest, EachBitOfTheCatalogueTheDefinitionsAndTheMaps)
{
    for (qsizetype page = 0; page < m_file.size() / 4096; ++page) {
        const bool isDefinition = m_file[page * 4096] == 2;
        const bool isMap = m_file[page * 4096] == 1 && m_file[page * 4096 + 12] == 1;
        for (int i = 0; i < 4096 && (isDefinition || isMap); ++i) {
            // What isn't read has no bit worth a try: most of a page of a map, and the rest of a definition.
            const int at = isMap && i >= 20 ? 4096 - (i - 20) : i;
            if ((isMap && i >= 100) || (isDefinition && m_file[page * 4096 + at] == 0 && i > 16 && i % 16 != 0))
                continue;
            QByteArray file = m_file;
            file[page * 4096 + (at & 4095)] ^= char(1 << (i % 8));
            expectNoSilentHarm(file, u"page %1 byte %2"_s.arg(page).arg(at));
            ASSERT_FALSE(HasFailure());
        }
    }
    EXPECT_GT(m_seen, 2'000);
    EXPECT_GT(m_refused, m_seen / 3);
}

TEST_F(OldDamageTest, AnyBitAnywhere)
{
    for (quint64 turn = 0; turn < 4'000; ++turn) {
        QByteArray file = m_file;
        const int at = sample::Dice(5, "byte", turn).below(int(file.size()));
        file[at] ^= char(1 << sample::Dice(5, "bit", turn).below(8));
        expectNoSilentHarm(file, u"byte "_s + QString::number(at));
    }
    EXPECT_GT(m_refused, 250);
}

TEST_F(OldDamageTest, NumbersOfEveryKindInTheHeadsOfPagesAndInRows)
{
    constexpr int Numbers[] = {0, 1, 0x0FFF, 0x1FFF, 0x4000, 0x7FFF, 0x8000, 0xC000, 0xFFFF};
    for (quint64 turn = 0; turn < 2'000; ++turn) {
        QByteArray file = m_file;
        const int page = sample::Dice(6, "page", turn).below(int(file.size() / 4096));
        const int at = sample::Dice(6, "at", turn).below(turn % 2 == 0 ? 60 : 4'095);
        const int number = Numbers[sample::Dice(6, "number", turn).below(int(std::size(Numbers)))];
        file[page * 4096 + at] = char(number);
        file[page * 4096 + at + 1] = char(number >> 8);
        const Reading reading = readingOf(file);
        if (!reading.isRefused && reading.doubts == 0 && !differsByAFlip(m_sound, reading)) {
            // Two bytes make two letters of a compressed text, or one of another.
            EXPECT_EQ(file[page * 4096], 1) << "page " << page << " byte " << at;
            EXPECT_GT(at, 60) << "page " << page;
        }
    }
}

TEST_F(OldDamageTest, NoiseForPages)
{
    for (quint64 turn = 0; turn < 600; ++turn) {
        QByteArray file = m_file;
        const int page = sample::Dice(7, "page", turn).below(int(file.size() / 4096));
        for (int i = turn % 3 == 0 ? 0 : 14; i < 4096; ++i)
            file[page * 4096 + i] = char(sample::Dice(7, "noise", turn * 4096 + quint64(i)).below(256));
        expectNoSilentHarm(file, u"page "_s + QString::number(page));
    }
    EXPECT_GT(m_refused, 300);
}

} // namespace
} // namespace zrv::storetool
