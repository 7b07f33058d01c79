// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/old_shape.h"

#include "core/store/schema.h"
#include "tools/zrvstore/letters.h"
#include "tools/zrvstore/older_shapes.h"

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int WidestText = 255; ///< letters

bool has(const TableShape &table, const QStringList &columns)
{
    return std::ranges::all_of(columns, [&](const QString &name) { return table.column(name) != nullptr; });
}

/// A column that can be read at all: a text of a width that texts can have.
void checkType(const QString &where, const jet::Column &column, TakeoverReport &report)
{
    if (column.type != jet::TextType || column.isFixed)
        report.fault(finding::ColumnType, where, u"is no text of variable length"_s);
    else if (column.size == 0 || column.size % 2 != 0 || column.size / 2 > WidestText)
        report.fault(finding::ColumnWidth, where, u"is "_s + QString::number(column.size) + u" bytes wide"_s);
    else if (lettersOf(column.name) != Letters::Sound)
        report.fault(finding::UnknownColumn, where, u"has no name that can be read"_s);
}

void checkWidth(const QString &table, const ColumnShape &wanted, int width, TakeoverReport &report)
{
    const QString where = table + u' ' + wanted.name;
    const QString widths = QString::number(width) + u" wide instead of "_s + QString::number(wanted.width);
    if (width > wanted.width || isAdded(table, wanted.name) || isWidened(table, wanted.name)
        || isOlderWidth(table, wanted.name, width))
        report.note(finding::ColumnWidth, where, widths);
    else
        report.doubt(finding::ColumnWidth, where, widths);
}

/// The columns of this version that the table lacks.
void checkMissing(const TableShape &wanted, const TableShape &found, TakeoverReport &report)
{
    QStringList younger;
    bool hasYounger = false;
    for (const ColumnShape &column : wanted.columns) {
        const bool isYounger = isAdded(wanted.name, column.name);
        const bool isThere = found.column(column.name) != nullptr;
        hasYounger = hasYounger || (isYounger && isThere);
        if (isThere || isOptional(wanted.name, column.name))
            continue;
        if (isYounger)
            younger.append(column.name);
        else
            report.fault(finding::MissingColumn, wanted.name + u' ' + column.name, u"is missing"_s);
    }
    if (younger.isEmpty())
        return;
    const QString names = u"has not got "_s + younger.join(u", "_s);
    if (hasYounger)
        report.doubt(finding::MissingColumn, wanted.name, names + u", though it has others of the same version"_s);
    else
        report.note(finding::MissingColumn, wanted.name,
                    names + u": an older store, the program's upgrade adds them"_s);
}

/// The columns that the table has beside those of this version.
void checkUnknown(const TableShape &wanted, const TableShape &found, TakeoverReport &report)
{
    QStringList older;
    for (const ColumnShape &column : found.columns) {
        if (wanted.column(column.name))
            continue;
        if (isDropped(wanted.name, column.name))
            older.append(column.name);
        else
            report.doubt(finding::UnknownColumn, wanted.name + u' ' + shown(column.name.toStdString()),
                         u"is of no version of the program; it is kept"_s);
    }
    if (!older.isEmpty())
        report.note(finding::UnknownColumn, wanted.name,
                    u"has "_s + older.join(u", "_s) + u": an older store, the program's upgrade drops them"_s);
}

/// Rows of these tables are inserted without naming their columns.
void checkOrder(const TableShape &wanted, const TableShape &found, TakeoverReport &report)
{
    if (wanted.name != u"ZRVtbCoding" && wanted.name != u"User_Defination")
        return;
    const auto isSame = [](const ColumnShape &one, const ColumnShape &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) == 0;
    };
    if (!std::ranges::equal(wanted.columns, found.columns, isSame))
        report.doubt(finding::ColumnOrder, wanted.name, u"has its columns in another order, or other ones"_s);
}

} // namespace

TableShape checkOldShape(const TableShape &wanted, const jet::Definition &definition, TakeoverReport &report)
{
    TableShape shape{wanted.name, {}, {}, {}};
    for (const jet::Column &column : definition.columns) {
        checkType(wanted.name + u' ' + shown(column.name.toStdString()), column, report);
        shape.columns.push_back({column.name, column.size / 2});
        const ColumnShape *known = wanted.column(column.name);
        if (known && known->name != column.name)
            report.note(finding::Spelling, wanted.name + u' ' + known->name, u"is spelt "_s + column.name);
        if (known && known->width != column.size / 2)
            checkWidth(wanted.name, *known, column.size / 2, report);
    }
    checkMissing(wanted, shape, report);
    checkUnknown(wanted, shape, report);
    checkOrder(wanted, shape, report);
    std::ranges::copy_if(wanted.uniqueKeys, std::back_inserter(shape.uniqueKeys),
                         [&](const QStringList &key) { return has(shape, key); });
    std::ranges::copy_if(wanted.indexes, std::back_inserter(shape.indexes),
                         [&](const QStringList &index) { return has(shape, index); });
    return shape;
}

QStringList keyOf(const TableShape &shape)
{
    const auto wanted = std::ranges::find(storeSchema(), shape.name, &TableShape::name);
    QStringList key = wanted->uniqueKeys.front();
    key.removeIf([&](const QString &name) { return shape.column(name) == nullptr; });
    return key;
}

} // namespace zrv::storetool
