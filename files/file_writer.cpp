// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/file_writer.h"

#include "core/basic/safe_file.h"
#include "core/basic/val.h"
#include "core/mdlEncriptDecript.h"
#include "core/public/files.h"
#include "core/store/recordset.h"
#include "files/record_lines.h"
#include "files/wh_layout.h"
#include "files/wk_layout.h"

#include <QDir>

#include <string>
#include <vector>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Legal persons and foreigners, insurers and their like are told by the number that a code begins with.
double number(std::string_view code)
{
    if (code.size() == 1)
        return code[0] >= '0' && code[0] <= '9' ? code[0] - '0' : 0;
    return Val(QString::fromUtf8(code.data(), static_cast<qsizetype>(code.size())));
}

std::string_view trimmed(std::string_view value)
{
    const std::size_t first = value.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return value.substr(first, value.find_last_not_of(' ') + 1 - first);
}

/// The fields of one kind of line, found in the rows that they are written from.
class RowFields {
public:
    RowFields(std::span<const Field> fields, const Recordset &rows)
        : m_fields(fields)
        , m_rows(rows)
    {
        for (const Field &field : fields)
            m_columns.push_back(field.table.isEmpty() ? -1 : rows.columnIndex(field.name));
    }

    [[nodiscard]] std::span<const Field> fields() const { return m_fields; }
    /// The field's column of the current row; NULL is empty.
    [[nodiscard]] std::string_view value(const Field &field) const
    {
        return m_rows.utf8(m_columns[static_cast<std::size_t>(field.number) - 1]);
    }

private:
    std::span<const Field> m_fields;
    const Recordset &m_rows;
    std::vector<int> m_columns;
};

void addSummaryLine(RecordLines &lines, const RowFields &row)
{
    for (const Field &field : row.fields()) {
        const std::string_view value = row.value(field);
        if (field.fill == Fill::Padded)
            lines.addPadded(value, field.width);
        else if (field.fill == Fill::Amount && trimmed(value).empty())
            lines.addTrimmed("0", field.width);
        else
            lines.addTrimmed(value, field.width);
    }
    lines.endLine();
}

void addPayerLine(RecordLines &lines, const RowFields &row, const WhHeading &heading)
{
    const std::string year = heading.taxYear.toStdString();
    const std::string month = heading.taxMonth.toStdString();
    const std::string control = EncodeBase64(heading.programVersion).toStdString();
    for (const Field &field : row.fields()) {
        switch (field.fill) {
        case Fill::GivenMonth:
            lines.addTrimmed(field.name == u"TaxYear" ? year : month, field.width);
            break;
        case Fill::VersionControl:
            lines.addTrimmed(control, field.width);
            break;
        default:
            // The payer's columns lose their blanks before they are cut, the payees' only afterwards.
            lines.addTrimmed(trimmed(row.value(field)), field.width);
        }
    }
    lines.endLine();
}

class PayeeLines {
public:
    PayeeLines(RecordLines &lines, const Recordset &payees)
        : m_lines(lines)
        , m_row(whPayeeFields(), payees)
        , m_melliatCode(payees.columnIndex(u"MelliatCode"))
        , m_bimehType(payees.columnIndex(u"BimehType"))
        , m_payees(payees)
    {
    }

    void add()
    {
        const bool isForeigner = number(m_payees.utf8(m_melliatCode)) == 2;
        const bool hasOtherInsurer = number(m_payees.utf8(m_bimehType)) > LastNamedInsurer;
        for (const Field &field : m_row.fields())
            m_lines.addTrimmed(value(field, isForeigner, hasOtherInsurer), field.width);
        m_lines.endLine();
    }

private:
    static constexpr double LastNamedInsurer = 3;

    [[nodiscard]] std::string_view value(const Field &field, bool isForeigner, bool hasOtherInsurer) const
    {
        switch (field.fill) {
        case Fill::CountryOfForeigner:
            return isForeigner ? m_row.value(field) : std::string_view();
        case Fill::InsuranceKind:
            return hasOtherInsurer ? std::string_view("0") : m_row.value(field);
        case Fill::OtherInsurer:
            return hasOtherInsurer ? m_row.value(field) : std::string_view();
        default:
            return m_row.value(field);
        }
    }

    RecordLines &m_lines;
    RowFields m_row;
    int m_melliatCode;
    int m_bimehType;
    const Recordset &m_payees;
};

} // namespace

MonthFiles::MonthFiles(const QString &programFolder, const QString &year, const QString &month)
    : ersal(QDir::toNativeSeparators(programFolder + u"/ERSAL"_s))
    , folder(ersal + QDir::separator() + year + month)
    , wh(folder + QDir::separator() + u"WH"_s + year + month + u".TXT"_s)
    , wk(folder + QDir::separator() + u"WK"_s + year + month + u".TXT"_s)
{
}

void MonthFiles::ensureFolders() const
{
    EnsureFolder(ersal);
    EnsureFolder(folder);
}

void writeWkFile(const QString &path, Recordset &rows)
{
    SafeFile file(path);
    RecordLines lines(file);
    const RowFields row(wkFields(), rows);
    for (; !rows.eof(); rows.moveNext())
        addSummaryLine(lines, row);
    lines.flush();
    file.commit();
}

int writeWhFile(const QString &path, const WhHeading &heading, const Recordset &payer, Recordset &payees, int expected,
                const std::function<void(int)> &written)
{
    SafeFile file(path);
    RecordLines lines(file);
    addPayerLine(lines, RowFields(whPayerFields(), payer), heading);

    PayeeLines payeeLines(lines, payees);
    int count = 0;
    for (; !payees.eof(); payees.moveNext()) {
        payeeLines.add();
        written(++count);
    }
    if (count == expected) {
        lines.flush();
        file.commit();
    }
    return count;
}

} // namespace zrv
