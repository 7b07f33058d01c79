// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"
#include "core/store/recordset.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

#ifndef ZRVSTORE
#define ZRVSTORE "zrvstore" // the one on the path, where a test isn't told of another
#endif

namespace zrv {

using namespace Qt::Literals::StringLiterals;

struct ShownBox {
    int style;
    QString title;
    QString text;
};

/// Keeps the boxes and the settings; a question gets the next answer that lies ready, else Yes.
class UpkeepPlatform : public QuietPlatform {
public:
    explicit UpkeepPlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }

    std::vector<ShownBox> boxes;
    std::deque<Answer> answers;
    QMap<QString, QString> settings;
    std::function<void()> onYield = [] {};
    std::function<void(Form &)> onModal = [](Form &) {};

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes.push_back({style, title, text});
        if ((style & 0xF) != box::YesNo)
            return Answer::Ok;
        const Answer answer = answers.empty() ? Answer::Yes : answers.front();
        if (!answers.empty())
            answers.pop_front();
        return answer;
    }
    void runModal(Form &form) override { onModal(form); }
    QString programFolder() override { return m_folder; }
    QString programFile() override { return m_folder + u"/ZRVClient"_s; }
    QString desktopFolder() override { return m_folder + u"/Desktop"_s; }
    QString setting(const QString &section, const QString &key, const QString &fallback) override
    {
        return settings.value(section + u'/' + key, fallback);
    }
    void saveSetting(const QString &section, const QString &key, const QString &value) override
    {
        settings[section + u'/' + key] = value;
    }
    void yield() override { onYield(); }

private:
    QString m_folder;
};

/// A program's folder with a store.
class UpkeepTest : public testing::Test {
protected:
    UpkeepTest()
    {
        program.StoreConnectionString = connectionTo(folder.path());
        program.ProgramVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s;
    }

    static QString connectionTo(const QString &storeFolder)
    {
        return u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + storeFolder
               + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    void makeSample(const QStringList &options) const
    {
        const QStringList words = QStringList{u"sample"_s, folder.path()} + options;
        ASSERT_EQ(QProcess::execute(QStringLiteral(ZRVSTORE), words), 0);
    }
    void makeOldStore() const { makeSample({u"--old"_s, u"--months"_s, u"2"_s, u"--year"_s, u"1388"_s}); }

    void sql(const QString &statement) { Connection(program.StoreConnectionString).execute(statement); }

    /// The rows of a SELECT, columns joined by bars.
    [[nodiscard]] QStringList rows(const QString &select) const
    {
        return rowsOf(program.StoreConnectionString, select);
    }

    static QStringList rowsOf(const QString &connection, const QString &select)
    {
        QStringList lines;
        for (Recordset set(Connection(connection), select); !set.eof(); set.moveNext()) {
            QStringList cells;
            for (int column = 0; column < set.columnCount(); ++column)
                cells += set.value(column).isNull() ? u"NULL"_s : set.value(column).toText();
            lines += cells.join(u'|');
        }
        return lines;
    }

    /// Every row of every table, below a line that names its columns.
    [[nodiscard]] static QString dump(const QString &connection)
    {
        QStringList lines;
        for (const char16_t *table : {u"ZRVtbKarfarma", u"ZRVtbKarkonan", u"ZRVtbHogog", u"ZRVtbKholList",
                                      u"ZRVtbCoding", u"User_Defination"}) {
            const QString select = u"SELECT * FROM "_s + QString::fromUtf16(table);
            const Recordset set(Connection(connection), select);
            QStringList columns;
            for (int column = 0; column < set.columnCount(); ++column)
                columns += set.columnName(column);
            lines += u"== "_s + QString::fromUtf16(table) + u": "_s + columns.join(u'|');
            lines += rowsOf(connection, select);
        }
        return lines.join(u'\n') + u'\n';
    }
    [[nodiscard]] QString dump() const { return dump(program.StoreConnectionString); }
    /// The tables of a copy, put into a folder of their own as the store.
    [[nodiscard]] static QString dumpOf(const QString &copy)
    {
        const QTemporaryDir restored;
        EXPECT_TRUE(QFile::copy(copy, restored.filePath(u"DBZorvan.mdb"_s))) << copy.toStdString();
        return dump(connectionTo(restored.path()));
    }

    /// In memory where the system has a place for it: an upgrade is some hundred flushed statements.
    const QTemporaryDir folder{(QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath()) + u"/zrv-XXXXXX"_s};
    UpkeepPlatform platform{folder.path()};
    Program program{platform};
};

} // namespace zrv
