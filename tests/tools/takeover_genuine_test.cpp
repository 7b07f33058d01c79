// SPDX-License-Identifier: GPL-3.0-or-later
// Files that another program wrote. They are no part of this tree: they lie beside it, or in the folder that
// ZRV_JET_FILES names, with what must be read in expected/STORE/TABLE.tsv and damage.py, which makes damaged variants of
// a file. Without them there is nothing to test.

#include "tests/tools/takeover_fixture.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <sys/resource.h>

namespace zrv::storetool {
namespace {

class GenuineTest : public TakeoverTest {
protected:
    void SetUp() override
    {
        if (!QFile::exists(m_files))
            GTEST_SKIP() << m_files.toStdString() << " is not here";
    }

    [[nodiscard]] QString file(const QString &name) const { return m_files + u'/' + name; }
    [[nodiscard]] QStringList stores() const
    {
        return QDir(file(u"expected"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }

    /// The lines of each table that a file's store must have.
    [[nodiscard]] std::map<QString, QStringList> expected(const QString &store)
    {
        std::map<QString, QStringList> tables;
        const QDir folder(file(u"expected/"_s + store));
        for (const QString &name : folder.entryList({u"*.tsv"_s})) {
            QStringList lines = QString::fromUtf8(read(folder.filePath(name))).split(u'\n');
            if (lines.last().isEmpty())
                lines.removeLast();
            tables[name.chopped(4)] = lines;
        }
        return tables;
    }
    /// The tables of a new store that aren't as they must be.
    [[nodiscard]] QStringList wrongTables(const QString &path, const std::map<QString, QStringList> &tables)
    {
        QStringList wrong;
        for (const auto &[table, lines] : tables) {
            if (linesOf(path, table) != lines)
                wrong.append(table);
        }
        return wrong;
    }

private:
    QString m_files = qEnvironmentVariable("ZRV_JET_FILES", QStringLiteral(ZRV_SOURCE_DIR "/../shared/jet"));
};

TEST_F(GenuineTest, EveryStoreIsReadToTheLastCell)
{
    ASSERT_GE(stores().size(), 5);
    for (const QString &store : stores()) {
        QDir(in(u"new"_s)).removeRecursively();
        EXPECT_EQ(takenOver(file(store + u".mdb"_s)).last(), u"doubts: 0"_s) << store.toStdString();
        EXPECT_EQ(wrongTables(newStore(), expected(store)), QStringList()) << store.toStdString();
    }
}

TEST_F(GenuineTest, RowsThatWereMovedAndDeletedAreNotRaisedFromTheDead)
{
    (void)takenOver(file(u"orphan_store.mdb"_s));
    EXPECT_EQ(Sqlite(newStore()).value(u"SELECT count(*) FROM ZRVtbKarkonan"_s), u"23"_s);
}

TEST_F(GenuineTest, AFileWithoutTheTablesIsRefused)
{
    EXPECT_TRUE(takenOver(file(u"special_text.mdb"_s)).last().endsWith(u"[missing-table]"));
}

/// Runs the program with little memory and little time.
Outcome boundedTakeover(const QString &file, const QString &folder)
{
    QProcess process;
    process.setChildProcessModifier([] {
#ifndef __SANITIZE_ADDRESS__ // it takes terabytes of addresses
        const rlimit memory = {rlim_t(512) << 20, rlim_t(512) << 20};
        ::setrlimit(RLIMIT_AS, &memory);
#endif
        const rlimit seconds = {5, 5};
        ::setrlimit(RLIMIT_CPU, &seconds);
    });
    process.start(QStringLiteral(ZRVSTORE), {u"takeover"_s, file, folder});
    EXPECT_TRUE(process.waitForFinished(60'000)) << file.toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << file.toStdString();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// What becomes of the damaged variants of one file.
class DamagedTest : public GenuineTest, public testing::WithParamInterface<const char *> {
protected:
    enum class End { Refused, RightWithDoubts, WrongWithDoubts, Right, WrongUnnoticed };

    QStringList makeVariants(const QString &store)
    {
        const QString python = QStandardPaths::findExecutable(u"python3"_s);
        EXPECT_EQ(QProcess::execute(python, {file(u"damage.py"_s), file(store + u".mdb"_s), in(store), store}), 0);
        return QDir(in(store)).entryList({u"*.mdb"_s});
    }

    End endOf(const QString &variant)
    {
        QDir(in(u"new"_s)).removeRecursively();
        const Outcome outcome = boundedTakeover(variant, in(u"new"_s));
        if (outcome.exitCode != 0 && outcome.exitCode != 1) {
            static const QRegularExpression message(u"^zrvstore: [^\n]+ \\[[a-z-]+\\]\n$"_s);
            EXPECT_EQ(outcome.exitCode, 2) << variant.toStdString();
            EXPECT_TRUE(message.match(outcome.err).hasMatch()) << outcome.err.toStdString();
            EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden), QStringList());
            return End::Refused;
        }
        EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"DBZorvan.mdb"_s});
        const QStringList wrong = wrongTables(newStore(), m_tables);
        if (outcome.exitCode == 1)
            return wrong.isEmpty() ? End::RightWithDoubts : End::WrongWithDoubts;
        return wrong.isEmpty() ? End::Right : End::WrongUnnoticed;
    }

    /// Where nothing was told, letters were flipped and nothing else: each line is as long as ever.
    void expectFlippedLetters(const QString &variant)
    {
        for (const auto &[table, right] : m_tables) {
            const QStringList lines = linesOf(newStore(), table);
            ASSERT_EQ(lines.size(), right.size()) << variant.toStdString();
            for (qsizetype i = 0; i < lines.size(); ++i)
                EXPECT_EQ(lines[i].size(), right[i].size()) << variant.toStdString();
        }
    }

    std::map<QString, QStringList> m_tables;
};

TEST_P(DamagedTest, IsRefusedOrToldOrRight)
{
    const QString store = QString::fromLatin1(GetParam());
    m_tables = expected(store);
    const QStringList variants = makeVariants(store);
    EXPECT_GT(variants.size(), 300);
    std::map<End, int> ends;
    for (const QString &variant : variants) {
        const End end = endOf(in(store + u'/' + variant));
        ++ends[end];
        if (end == End::WrongUnnoticed)
            expectFlippedLetters(variant);
    }
    EXPECT_LE(ends[End::WrongUnnoticed], 2);
    RecordProperty("refused", ends[End::Refused]);
    RecordProperty("rightWithDoubts", ends[End::RightWithDoubts]);
    RecordProperty("wrongWithDoubts", ends[End::WrongWithDoubts]);
    RecordProperty("right", ends[End::Right]);
    RecordProperty("wrongUnnoticed", ends[End::WrongUnnoticed]);
}

INSTANTIATE_TEST_SUITE_P(Stores, DamagedTest, testing::Values("old_store", "current_store"),
                         [](const auto &store) { return std::string(store.param); });

/// What mdb-export reads of a table, where that is installed; it writes NULL as it does the empty text.
QStringList secondOpinion(const QString &program, const QString &file, const QString &table)
{
    QProcess process;
    process.start(program, {u"-Q"_s, u"-d"_s, u"\t"_s, u"-R"_s, u"\x1E"_s, file, table});
    EXPECT_TRUE(process.waitForFinished(60'000));
    QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(QChar(0x1E));
    lines.removeLast();
    return lines;
}

TEST_F(GenuineTest, AnotherReaderReadsTheSoundFilesAlike)
{
    const QString program = QStandardPaths::findExecutable(u"mdb-export"_s);
    if (program.isEmpty())
        GTEST_SKIP() << "mdb-export is not installed";
    for (const QString &store : stores()) {
        QDir(in(u"new"_s)).removeRecursively();
        (void)takenOver(file(store + u".mdb"_s));
        for (const auto &[table, lines] : expected(store)) {
            // It takes rows that were moved and deleted for rows.
            if (store == u"orphan_store" && table == u"ZRVtbKarkonan")
                continue;
            QStringList ours = linesOf(newStore(), table);
            for (QString &line : ours)
                line.remove(u"\\N"_s).replace(u"\\\\"_s, u"\\"_s);
            QStringList theirs = secondOpinion(program, file(store + u".mdb"_s), table);
            EXPECT_EQ(ours.size(), theirs.size());
            ours.sort();
            theirs.sort();
            EXPECT_EQ(ours, theirs) << store.toStdString() << ' ' << table.toStdString();
        }
    }
}

} // namespace
} // namespace zrv::storetool
