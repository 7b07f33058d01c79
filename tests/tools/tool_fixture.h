// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/print_text.h"
#include "tools/terminal/failure.h"
#include "tools/zrvstore/create.h"
#include "tools/zrvstore/store_folder.h"
#include "tools/zrvstore/verify.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <sqlite3.h>

#ifndef ZRVSTORE
#define ZRVSTORE "zrvstore" // the one on the path, where a test isn't told of another
#endif

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

/// A file opened with SQLite alone, so that tests look at stores with other eyes than the code under test.
class Sqlite {
public:
    explicit Sqlite(const QString &path)
    {
        EXPECT_EQ(sqlite3_open_v2(QFile::encodeName(path).constData(), &m_database, SQLITE_OPEN_READWRITE, nullptr),
                  SQLITE_OK);
    }
    ~Sqlite() { sqlite3_close(m_database); }
    Sqlite(const Sqlite &) = delete;
    Sqlite &operator=(const Sqlite &) = delete;

    /// Runs statements and gives their rows, columns joined with "|".
    QStringList run(const QString &sql)
    {
        QStringList rows;
        char *error = nullptr;
        const auto collect = [](void *list, int count, char **values, char **) {
            QStringList columns;
            for (int i = 0; i < count; ++i)
                columns.append(QString::fromUtf8(values[i]));
            static_cast<QStringList *>(list)->append(columns.join(u'|'));
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(m_database, sql.toUtf8().constData(), collect, &rows, &error), SQLITE_OK)
            << sql.toStdString() << ": " << (error ? error : "");
        sqlite3_free(error);
        return rows;
    }
    QString value(const QString &sql) { return run(sql).value(0); }

private:
    sqlite3 *m_database = nullptr;
};

/// The lines that verify writes, its answer last.
inline QStringList verified(const QString &path, int mostOfAKind = 0)
{
    QStringList lines;
    try {
        const qint64 count = verifyStore(
            path, [&](const QString &line) { lines.append(line); }, mostOfAKind);
        lines.append(u"findings: "_s + QString::number(count));
    } catch (const Failure &failure) {
        lines.append(u"failure: "_s + failure.reason());
    }
    return lines;
}

/// Why an action was refused, or "done".
inline QString refusalOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const Failure &failure) {
        return failure.reason();
    }
    return u"done"_s;
}

struct Outcome {
    int exitCode;
    QString out;
    QString err;
};

/// Runs the program itself; with a path its output goes there.
inline Outcome zrvstore(const QStringList &words, const QString &output = {})
{
    QProcess process;
    if (!output.isEmpty())
        process.setStandardOutputFile(output);
    process.start(QStringLiteral(ZRVSTORE), words);
    EXPECT_TRUE(process.waitForFinished(60'000)) << "zrvstore " << words.join(u' ').toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// A folder for each test, with room for stores.
class ToolTest : public testing::Test {
protected:
    [[nodiscard]] QString in(const QString &name) const { return m_folder.filePath(name); }

    /// A sample store; its path.
    QString sampleStore(const sample::Plan &plan = {}, const QString &folder = u"store"_s)
    {
        createSample(in(folder), plan);
        return storeIn(in(folder));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace zrv::storetool
