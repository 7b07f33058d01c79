// SPDX-License-Identifier: GPL-3.0-or-later
// Files that another program wrote. They are no part of this tree: ZRV_JET_FILES names the folder that holds them, with
// what must be read in expected/STORE/TABLE.tsv and damage.py, which makes damaged variants of a file.

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
        if (m_files.isEmpty())
            GTEST_SKIP() << "ZRV_JET_FILES names no folder";
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
    QString m_files = qEnvironmentVariable("ZRV_JET_FILES");
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
        const rlimit memory = {rlim_t(512) << 20, rlim_t(512) << 20};
        ::setrlimit(RLIMIT_AS, &memory);
        const rlimit seconds = {5, 5};
        ::setrlimit(RLIMIT_CPU, &seconds);
    });
    process.start(QStringLiteral(ZRVSTORE), {u"takeover"_s, file, folder});
    EXPECT_TRUE(process.waitForFinished(60'000)) << file.toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << file.toStdString();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

TEST_F(GenuineTest, DamagedVariantsAreRefusedOrToldOrRight)
{
    const QString python = QStandardPaths::findExecutable(u"python3"_s);
    ASSERT_FALSE(python.isEmpty());
    int unnoticed = 0;
    for (const QString &store : {u"old_store"_s, u"current_store"_s}) {
        ASSERT_EQ(QProcess::execute(python, {file(u"damage.py"_s), file(store + u".mdb"_s), in(store), store}), 0);
        const std::map<QString, QStringList> tables = expected(store);
        const QStringList variants = QDir(in(store)).entryList({u"*.mdb"_s});
        EXPECT_GT(variants.size(), 300);
        for (const QString &variant : variants) {
            QDir(in(u"new"_s)).removeRecursively();
            const Outcome outcome = boundedTakeover(in(store + u'/' + variant), in(u"new"_s));
            EXPECT_GE(outcome.exitCode, 0) << variant.toStdString();
            if (outcome.exitCode >= 2) {
                static const QRegularExpression message(u"^zrvstore: [^\n]+ \\[[a-z-]+\\]\n$"_s);
                EXPECT_TRUE(message.match(outcome.err).hasMatch()) << outcome.err.toStdString();
                EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden), QStringList());
                continue;
            }
            const QStringList wrong = wrongTables(newStore(), tables);
            if (outcome.exitCode == 1 || wrong.isEmpty())
                continue;
            // Where nothing was told, letters were flipped and nothing else: a few of a table's lines, as long as ever.
            ++unnoticed;
            for (const QString &table : wrong) {
                const QStringList &right = tables.at(table);
                const QStringList lines = linesOf(newStore(), table);
                ASSERT_EQ(lines.size(), right.size()) << variant.toStdString();
                for (qsizetype i = 0; i < lines.size(); ++i)
                    EXPECT_EQ(lines[i].size(), right[i].size()) << variant.toStdString();
            }
        }
    }
    EXPECT_LE(unnoticed, 6);
}

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
