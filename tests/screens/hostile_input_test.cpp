// SPDX-License-Identifier: GPL-3.0-or-later
// Hostile texts, typed and pasted into every text field of every screen: nothing breaks, no statement is broken, and
// what reaches the store is what the field admits. A new screen joins with a line in field_stages.cpp.
#include "core/basic/ansi.h"
#include "core/public/filter_key.h"
#include "core/store/new_store.h"
#include "core/store/recordset.h"
#include "core/store/schema.h"
#include "tests/print_text.h"
#include "tests/screens/field_stages.h"
#include "tests/screens/hostile_texts.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int TextsPerField = 1000;
constexpr int TextsPerAcceptance = 100; ///< of the texts, one in so many is also accepted with its button

struct Row {
    QString table;
    QStringList columns;
    QStringList values;

    friend bool operator==(const Row &, const Row &) = default;
};

/// True if a field that bears this tag may hold the letter.
bool admits(const QString &tag, QChar letter)
{
    const int code = ansiCode(letter);
    return code >= ' ' && FilterKey(tag, code) == code;
}

/// What a user has entered of a text: of a number all but the separators, which the screen puts in by itself.
QString entered(const QString &text, const QString &tag)
{
    return tag.contains(u"+DigitOnly"_s) ? QString(text).remove(u',') : text;
}

/// True for letters that got in with a row of the field's list, which typing completes to.
bool isOfItsList(const Edit &field, QChar letter)
{
    const auto *const combo = dynamic_cast<const Combo *>(&field);
    return combo && std::any_of(combo->items().begin(), combo->items().end(), [letter](const ListItem &item) {
               return item.shown.contains(letter);
           });
}

class HostileInput : public testing::TestWithParam<Stage> {
protected:
    HostileInput()
    {
        createStore(path());
        m_program.StoreConnectionString = u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + m_folder.path()
                                          + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
        for (const char16_t *statement : GetParam().statements)
            Connection(m_program.StoreConnectionString).execute(QString::fromUtf16(statement));
        m_pristine = bytes();
        m_rows = rows();
        const std::unique_ptr<Screen> asMade = GetParam().make(m_program);
        for (const Control *control : asMade->controls())
            m_tags[control->name()] = control->tag();
    }

    QString path() const { return m_folder.filePath(u"DBZorvan.mdb"_s); }

    QByteArray bytes() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void restoreStore() const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(m_pristine), m_pristine.size());
    }

    /// The fields that a user can type in at the stage.
    QStringList fieldNames()
    {
        const std::unique_ptr<Screen> screen = openAt(GetParam(), m_program);
        QStringList names;
        for (const Edit *field : openFields(*screen))
            names += field->name();
        return names;
    }

    std::vector<Row> rows() const
    {
        std::vector<Row> all;
        const Connection connection(m_program.StoreConnectionString);
        for (const TableShape &table : storeSchema())
            for (Recordset set(connection, u"SELECT * FROM "_s + table.name); !set.eof(); set.moveNext()) {
                Row row{table.name, {}, {}};
                for (int column = 0; column < set.columnCount(); ++column) {
                    row.columns += set.columnName(column);
                    row.values += set.value(column).toText();
                }
                all.push_back(std::move(row));
            }
        return all;
    }

    static void expectAdmitted(const Edit &field, const QString &tag, const QString &tried)
    {
        if (field.maxLength() > 0) {
            ASSERT_LE(entered(field.text(), tag).size(), field.maxLength()) << tried.toStdString();
        }
        if (tag.isEmpty())
            return;
        for (const QChar letter : entered(field.text(), tag))
            ASSERT_TRUE(admits(tag, letter) || isOfItsList(field, letter))
                << field.name().toStdString() << " holds U+" << std::hex << int(letter.unicode());
    }

    /// Types a text, or pastes it, into a field as a user does.
    static void enter(Screen &screen, Edit &field, const QString &text, bool paste)
    {
        ASSERT_TRUE(screen.userFocus(field));
        field.selectAll();
        if (paste) {
            screen.userPaste(text);
            return;
        }
        for (const QChar letter : text)
            if (field.hasFocus())
                screen.userLetter(letter);
    }

    /// The row that accepting wrote, if any: one at most, each value short enough and of letters that its field
    /// admits.
    int expectOneAdmittedRow(const Screen &screen) const
    {
        int written = 0;
        for (const Row &row : rows()) {
            if (std::find(m_rows.begin(), m_rows.end(), row) != m_rows.end())
                continue;
            ++written;
            for (qsizetype column = 0; column < row.columns.size(); ++column)
                expectStored(screen, row.columns[column], row.values[column]);
        }
        EXPECT_LE(written, 1);
        EXPECT_LE(rows().size(), m_rows.size() + 1);
        EXPECT_GE(rows().size(), m_rows.size());
        return written;
    }

    void expectStored(const Screen &screen, const QString &column, const QString &value) const
    {
        QString name = u"txt"_s + column;
        for (const Stage::StoredIn &other : GetParam().storedIn)
            if (QString::fromUtf16(other.column) == column)
                name = QString::fromUtf16(other.field);
        if (const auto *const field = dynamic_cast<const TextBox *>(screen.find(name))) {
            const QString taken = entered(value, m_tags.value(name));
            if (field->maxLength() > 0) {
                EXPECT_LE(taken.size(), field->maxLength()) << column.toStdString();
            }
            for (const QChar letter : taken)
                EXPECT_TRUE(admits(m_tags.value(name), letter))
                    << column.toStdString() << " was stored with U+" << std::hex << int(letter.unicode());
        }
        if (const auto *const list = dynamic_cast<const Combo *>(screen.find(QString(u"dcb"_s + column)))) {
            const bool known = std::any_of(list->items().begin(), list->items().end(),
                                           [&value](const ListItem &item) { return item.code == value; });
            EXPECT_TRUE(value.isEmpty() || known) << column.toStdString() << ' ' << value.toStdString();
        }
    }

    const QTemporaryDir m_folder;
    BoxKeeper m_platform{m_folder.path()};
    Program m_program{m_platform};
    QByteArray m_pristine;
    std::vector<Row> m_rows;
    QMap<QString, QString> m_tags; ///< as the screen comes up with them; its rules change some on the way
};

TEST_P(HostileInput, FieldsHoldWhatTheyAdmitAndTheStoreStays)
{
    const QStringList names = fieldNames();
    ASSERT_FALSE(names.isEmpty());
    std::mt19937::result_type seed = 1;
    for (const QString &name : names) {
        SCOPED_TRACE(name.toStdString());
        // Afresh for each field: a text in one may close another.
        const std::unique_ptr<Screen> screen = openAt(GetParam(), m_program);
        Edit &field = *dynamic_cast<Edit *>(screen->find(name));
        for (const QString &text : hostileTexts(TextsPerField, seed++))
            for (const bool paste : {false, true}) {
                enter(*screen, field, text, paste);
                expectAdmitted(field, field.tag(), text);
                if (HasFatalFailure())
                    return;
            }
    }
    EXPECT_EQ(bytes(), m_pristine);
    EXPECT_EQ(m_platform.failures(), QStringList());
    EXPECT_EQ(m_platform.opened(), QStringList());
}

TEST_P(HostileInput, AcceptedTextsAreStoredAsAdmittedOrNotAtAll)
{
    const Stage &stage = GetParam();
    int written = 0;
    std::mt19937::result_type seed = 1001;
    for (const QString &name : fieldNames()) {
        SCOPED_TRACE(name.toStdString());
        for (const QString &text : hostileTexts(TextsPerField / TextsPerAcceptance, seed++)) {
            restoreStore();
            const std::unique_ptr<Screen> screen = openAt(stage, m_program);
            enter(*screen, *dynamic_cast<Edit *>(screen->find(name)), text, true);
            if (HasFatalFailure())
                return;
            if (Control *const accept = screen->find(stage.accept); accept->isReachable())
                screen->userClick(*accept);
            written += expectOneAdmittedRow(*screen);
        }
    }
    EXPECT_EQ(written > 0, stage.writes) << written;
    EXPECT_EQ(m_platform.failures(), QStringList());
    EXPECT_EQ(m_platform.opened(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Screens, HostileInput, testing::ValuesIn(fieldStages()),
                         [](const auto &stage) { return std::string(stage.param.name); });

} // namespace
} // namespace zrv
