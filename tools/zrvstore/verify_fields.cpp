// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/verify_fields.h"

#include <QStringList>

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// Characters of a UTF-8 text, counted by the bytes that begin one.
std::ptrdiff_t lengthOf(std::string_view utf8)
{
    return std::ranges::count_if(utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
}

std::string_view trimmed(std::string_view value)
{
    while (!value.empty() && value.front() == ' ')
        value.remove_prefix(1);
    while (!value.empty() && value.back() == ' ')
        value.remove_suffix(1);
    return value;
}

/// The lists that a column with a code of its own in every row leans on; the old list 3 is none of them.
void reportEmptyLists(const CodeLists &lists, Findings &findings)
{
    std::set<int> needed;
    for (const FieldRule &rule : fieldRules()) {
        if (rule.form == Form::Code && rule.column != "IDSeri")
            needed.insert(rule.number);
    }
    for (const int list : needed) {
        if (!lists.contains(QString::number(list).toStdString()))
            findings.add(finding::EmptyList, u"ZRVtbCoding"_s, u"list "_s + QString::number(list) + u" has no row"_s);
    }
}

} // namespace

CodeLists checkCodeLists(const Database &database, const FoundTable &table, Findings &findings)
{
    CodeLists lists;
    if (!table.isThere)
        return lists;
    std::map<std::string, std::string, std::less<>> names;
    const std::size_t list = placeOf(*table.shape, "MCode");
    const std::size_t name = placeOf(*table.shape, "MDesc");
    const std::size_t code = placeOf(*table.shape, "SCode");
    const std::size_t description = placeOf(*table.shape, "SDesc");
    TableReader row(database, table);
    while (row.next()) {
        lists[std::string(row.value(list))].emplace(row.value(code));
        const auto [known, isNew] = names.emplace(row.value(list), row.value(name));
        if (!isNew && known->second != row.value(name))
            findings.add(finding::ListName, row.where("MDesc"),
                         shown(row.value(name)) + u", but other rows of the list say "_s + shown(known->second));
        if (row.value(list) == "4" && row.value(code).size() != 2)
            findings.add(finding::Form, row.where("SCode"), shown(row.value(code)) + u" is no month of two digits"_s);
        if (row.value(list) == "17" && !isDigits(row.value(description)))
            findings.add(finding::Form, row.where("SDesc"), shown(row.value(description)) + u" is no amount"_s);
    }
    reportEmptyLists(lists, findings);
    return lists;
}

FieldCheck::FieldCheck(const FoundTable &table, const CodeLists &lists)
{
    static const std::set<std::string, std::less<>> none;
    for (std::size_t place = 0; place < table.shape->columns.size(); ++place) {
        if (!table.has(place))
            continue;
        const ColumnShape &column = table.shape->columns[place];
        const auto rule = std::ranges::find_if(fieldRules(), [&](const FieldRule &candidate) {
            return text(candidate.table) == table.shape->name && text(candidate.column) == column.name;
        });
        Field field{place, column.width, rule == fieldRules().end() ? nullptr : &*rule, nullptr, false};
        if (field.rule && field.rule->form == Form::Code) {
            const auto list = lists.find(QString::number(field.rule->number).toStdString());
            field.codes = list == lists.end() ? &none : &list->second;
            field.isTrimmed = column.name == u"BankName"; // the one code that the program trims before it looks
        }
        m_fields.push_back(field);
    }
}

void FieldCheck::check(const TableReader &row, Findings &findings) const
{
    for (const Field &field : m_fields)
        checkValue(row, field, findings);
}

void FieldCheck::checkValue(const TableReader &row, const Field &field, Findings &findings) const
{
    // Reading a value as text would make a text of it.
    const bool isText = row.isText(field.place);
    const std::string_view value = row.value(field.place);
    const auto report = [&](QStringView kind, const QString &what) {
        findings.add(kind, row.where(row.shape().columns[field.place].name.toStdString()), what);
    };
    const auto quoted = [&] { return field.rule && field.rule->column == "Passwordd" ? u"it"_s : shown(value); };
    if (!isText)
        report(finding::Form, u"is no text"_s);
    if (std::ptrdiff_t(value.size()) > field.width && lengthOf(value) > field.width)
        report(finding::TooLong, u"is "_s + QString::number(lengthOf(value)) + u" characters long, at most "_s
                                     + QString::number(field.width));
    if (!field.rule)
        return;
    if (isBlank(value)) {
        if (field.rule->isRequired)
            report(finding::Empty, u"is empty"_s);
        return;
    }
    if (const QString fault = complaint(*field.rule, value); !fault.isEmpty())
        report(finding::Form, quoted() + u' ' + fault);
    if (field.codes && !field.codes->contains(field.isTrimmed ? trimmed(value) : value))
        report(finding::UnknownCode,
               u"code "_s + quoted() + u" is not in list "_s + QString::number(field.rule->number));
}

void checkFields(const Database &database, const FoundTable &table, const CodeLists &lists, Findings &findings)
{
    if (!table.isThere)
        return;
    const FieldCheck fields(table, lists);
    for (TableReader row(database, table); row.next();)
        fields.check(row, findings);
}

void checkKeys(const Database &database, const FoundTable &table, Findings &findings)
{
    if (!table.isThere || table.keyIsUnique)
        return;
    QStringList columns;
    for (const QString &name : table.shape->uniqueKeys.front()) {
        if (!table.has(placeOf(*table.shape, name.toStdString())))
            return;
        columns.append(sqlName(name));
    }
    const QString key = columns.join(u',');
    Rows rows(database, u"SELECT count(*),"_s + key + u" FROM "_s + sqlName(table.shape->name) + u" GROUP BY "_s + key
                            + u" HAVING count(*)>1"_s);
    while (rows.next()) {
        QStringList values;
        for (int i = 0; i < int(columns.size()); ++i) {
            if (columns[i] != u"\"Passwordd\"")
                values.append(text(rows.text(i + 1)));
        }
        findings.add(finding::DuplicateKey, table.shape->name + u" ["_s + values.join(u' ') + u']',
                     QString::number(rows.number(0)) + u" rows have this key"_s);
    }
}

} // namespace zrv::storetool
