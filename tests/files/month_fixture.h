// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/fresh_rows.h"
#include "core/store/new_store.h"
#include "core/store/schema.h"
#include "files/frmCreatTextFiles.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <QFile>
#include <QStringDecoder>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <map>

namespace zrv {

/// A row by its columns' names; columns that it doesn't name are NULL.
using Row = std::map<QString, Value>;

/// The rows of a store with one payer, a summary list and payees of the second month of 1389. Tests change what
/// they are about, then call writeTo().
struct MonthRows {
    static constexpr QStringView Tfn = u"123456789012";

    std::vector<Row> payers = {
        // clang-format off
        {{u"TFN"_s, Tfn.toString()}, {u"CodeShobe"_s, u"1"_s}, {u"MMoadiType"_s, u"2"_s}, {u"SMoadiType"_s, u"6"_s},
         {u"Family"_s, u"شرکت نمونه"_s}, {u"ShobeName"_s, u"دفتر مرکزي"_s}, {u"Tin"_s, u"411111111111"_s}},
        // clang-format on
    };
    std::vector<Row> summaries = {summary(u"1"_s)};
    std::vector<Row> codes;
    std::vector<Row> payees;
    std::vector<Row> salaries;

    static Row summary(const QString &type)
    {
        return {
            {u"TFN"_s, Tfn.toString()}, {u"KholListType"_s, type}, {u"TaxYear"_s, u"1389"_s}, {u"TaxMonth"_s, u"02"_s}};
    }

    /// A payee whose codes all stand in their lists, with a salary row. `changes` goes into the columns of both.
    void addPayee(const Row &changes = {})
    {
        const QString code = QString::number(1'000'000'000 + payees.size());
        // clang-format off
        Row payee = {{u"TFN"_s, Tfn.toString()}, {u"MelliCode"_s, code}, {u"Name"_s, u"مريم"_s}, {u"Family"_s, u"آذري"_s},
                     {u"Semat"_s, u"3"_s}, {u"Madrak"_s, u"6"_s}, {u"Rasteh"_s, u"1"_s}, {u"ShakhsMoafCode"_s, u"0"_s},
                     {u"MelliatCode"_s, u"1"_s}, {u"KeshvarCode"_s, u"1"_s}, {u"EstekhdamType"_s, u"1"_s},
                     {u"BimehType"_s, u"1"_s}};
        Row salary = {{u"TFN"_s, Tfn.toString()}, {u"MelliCode"_s, code}, {u"TaxYear"_s, u"1389"_s}, {u"TaxMonth"_s, u"02"_s}};
        // clang-format on
        for (const auto &[column, value] : changes) {
            if (isColumnOf(u"ZRVtbKarkonan", column))
                payee[column] = value;
            if (isColumnOf(u"ZRVtbHogog", column))
                salary[column] = value;
        }
        payees.push_back(payee);
        salaries.push_back(salary);
    }

    void addPayees(int count)
    {
        for (int i = 0; i < count; ++i)
            addPayee();
    }

    void addCode(const QString &list, const QString &code, const QString &description)
    {
        codes.push_back({{u"MCode"_s, list}, {u"SCode"_s, code}, {u"SDesc"_s, description}});
    }

    void writeTo(const QString &path) const
    {
        NewStore store(path);
        addFreshRows(store, {});
        addRows(store, u"ZRVtbKarfarma", payers);
        addRows(store, u"ZRVtbKholList", summaries);
        addRows(store, u"ZRVtbCoding", codes);
        addRows(store, u"ZRVtbKarkonan", payees);
        addRows(store, u"ZRVtbHogog", salaries);
        store.finish();
    }

private:
    static const TableShape &shape(QStringView table)
    {
        const auto &tables = storeSchema();
        return *std::ranges::find_if(tables, [&](const TableShape &one) { return one.name == table; });
    }
    static bool isColumnOf(QStringView table, const QString &column) { return shape(table).column(column) != nullptr; }

    static void addRows(NewStore &store, QStringView table, const std::vector<Row> &rows)
    {
        for (const Row &row : rows) {
            std::vector<Value> values;
            for (const ColumnShape &column : shape(table).columns) {
                const auto cell = row.find(column.name);
                values.push_back(cell == row.end() ? Value() : cell->second);
            }
            store.addRow(table, values);
        }
    }
};

/// Remembers what the screen asked for.
class WritingPlatform : public QuietPlatform {
public:
    struct Box {
        int style;
        QString title;
        QString text;
    };

    explicit WritingPlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }

    std::vector<Box> boxes;
    std::vector<QString> dialogueFolders;
    std::function<void()> onYield = [] {};

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes.push_back({style, title, text});
        return Answer::Ok;
    }
    std::optional<QString> openFileDialog(const QString &folder, const QString &) override
    {
        dialogueFolders.push_back(folder);
        return std::nullopt;
    }
    QString programFolder() override { return m_folder; }
    void yield() override { onYield(); }

private:
    QString m_folder;
};

/// The screen in a folder of its own, with the store that rows describes.
class MonthTest : public testing::Test {
protected:
    /// Writes the store and opens the screen.
    void open()
    {
        rows.writeTo(path(u"DBZorvan.mdb"));
        openScreen();
    }

    void openScreen()
    {
        program.StoreConnectionString = u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + folder.path()
                                        + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
        program.ProgramVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s;
        program.PayerTFN = MonthRows::Tfn.toString();
        screen = std::make_unique<frmCreatTextFiles>(program);
        screen->load();
        screen->activate();
    }

    /// Chooses a month as a user does; the year stands at 1389.
    void chooseMonth(const QString &code)
    {
        const auto &months = screen->dcbTaxMonth.items();
        for (std::size_t i = 0; i < months.size(); ++i) {
            if (months[i].code == code) {
                ASSERT_TRUE(screen->userChoose(screen->dcbTaxMonth, static_cast<int>(i)));
            }
        }
    }

    /// A whole run for the second month of 1389.
    void run()
    {
        if (!screen)
            open();
        chooseMonth(u"02"_s);
        ASSERT_TRUE(screen->userClick(screen->cmdCreatTextFiles));
    }

    [[nodiscard]] QString path(QStringView name) const { return folder.path() + u'/' + name; }
    [[nodiscard]] QString whPath() const { return path(u"ERSAL/138902/WH138902.TXT"); }
    [[nodiscard]] QString wkPath() const { return path(u"ERSAL/138902/WK138902.TXT"); }

    static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// The lines of a file, without their ends; the last, behind the last end, is empty in a good file.
    static QStringList lines(const QString &path)
    {
        QStringDecoder decoder(QStringDecoder::Utf16LE, QStringDecoder::Flag::ConvertInitialBom);
        QString text = decoder(bytes(path));
        EXPECT_TRUE(text.startsWith(QChar(0xFEFF)));
        return text.mid(1).split(u"\r\n"_s);
    }

    /// A field by its number from 1, of a line by its place from 0.
    static QString field(const QString &path, int line, int number)
    {
        return lines(path).value(line).split(u',').value(number - 1);
    }
    [[nodiscard]] QString payerField(int number) const { return field(whPath(), 0, number); }
    [[nodiscard]] QString payeeField(int number) const { return field(whPath(), 1, number); }
    [[nodiscard]] QString summaryField(int number) const { return field(wkPath(), 0, number); }

    const QTemporaryDir folder;
    MonthRows rows;
    WritingPlatform platform{folder.path()};
    Program program{platform};
    std::unique_ptr<frmCreatTextFiles> screen;
};

} // namespace zrv
