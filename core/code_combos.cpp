// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/code_combos.h"

#include "core/store/code_lists.h"
#include "core/store/fresh_rows.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString EmptyListTitle = u" تــوجه  "_s;

void fill(Combo &combo, const std::vector<CodeRow> &rows)
{
    std::vector<ListItem> items;
    items.reserve(rows.size());
    for (const CodeRow &row : rows)
        items.push_back({row.shown, row.bound});
    combo.setItems(std::move(items));
}

} // namespace

bool RecordExists(Program &program, const QString &select)
{
    return recordExists(program.StoreConnectionString, select);
}

void FillCodeList(Program &program, const QString &list, Combo &combo)
{
    fill(combo, codeList(program.StoreConnectionString, list));
}

void FillCodeListByValue(Program &program, const QString &list, Combo &combo, bool descending)
{
    const std::vector<CodeRow> rows = codeListByValue(program.StoreConnectionString, list, descending);
    fill(combo, rows);
    if (rows.empty())
        program.platform.messageBox(box::Refusal, EmptyListTitle,
                                    u" اطلاعات پايه مربوط به "_s + codeListName(list) + u" خالي ميباشد "_s);
}

void FillFromQuery(Program &program, const QString &select, Combo &combo, QStringView listField, QStringView boundField,
                   bool showFirst)
{
    const std::vector<CodeRow> rows = queryList(program.StoreConnectionString, select, listField, boundField);
    fill(combo, rows);
    if (showFirst && !rows.empty())
        combo.setText(rows.front().shown);
}

void FillMasterList(Program &program, Combo &combo)
{
    const std::vector<CodeRow> rows = masterList(program.StoreConnectionString);
    fill(combo, rows);
    if (rows.empty())
        program.platform.messageBox(box::Refusal, EmptyListTitle, u" جدول اطلاعات پايه خالي ميباشد "_s);
}

QString CodeDescription(Program &program, const QString &list, const QString &code)
{
    return codeDescription(program.StoreConnectionString, list, code);
}

} // namespace zrv
