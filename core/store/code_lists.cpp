// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/code_lists.h"

#include "core/store/recordset.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A list's number between the quotes that stand in the statement's own text.
QString listQuery(const QString &list, const QString &order)
{
    const QString number = quoted(list);
    return u"select Sdesc,SCode from ZRVtbCoding where Mcode='"_s + number.mid(1, number.size() - 2) + order;
}

} // namespace

bool recordExists(const QString &connectionString, const QString &select)
{
    const Connection connection(connectionString);
    return !Recordset(connection, select).eof();
}

std::vector<CodeRow> codeList(const QString &connectionString, const QString &list)
{
    return queryList(connectionString, listQuery(list, u"' order by SCode"_s), u"Sdesc", u"SCode");
}

std::vector<CodeRow> codeListByValue(const QString &connectionString, const QString &list, bool descending)
{
    const QString order = descending ? u"' order by val(SCode) Desc"_s : u"' order by val(SCode) "_s;
    return queryList(connectionString, listQuery(list, order), u"Sdesc", u"SCode");
}

std::vector<CodeRow> queryList(const QString &connectionString, const QString &select, QStringView listField,
                               QStringView boundField)
{
    const Connection connection(connectionString);
    Recordset rows(connection, select);
    const int shown = rows.columnIndex(listField);
    const int bound = rows.columnIndex(boundField);
    std::vector<CodeRow> list;
    for (; !rows.eof(); rows.moveNext())
        list.push_back({rows.value(shown).toText(), rows.value(bound).toText()});
    return list;
}

std::vector<CodeRow> masterList(const QString &connectionString)
{
    return queryList(connectionString,
                     u"select Mcode,MDesc from ZRVtbCoding "
                     "Group By MCode,MDesc order by val(Mcode)"_s,
                     u"MDesc", u"Mcode");
}

QString codeDescription(const QString &connectionString, const QString &list, const QString &code)
{
    if (code.trimmed().isEmpty())
        return {};
    const Connection connection(connectionString);
    const Recordset row(connection, "SELECT SDesc FROM ZRVtbCoding WHERE MCode = "_L1 + quoted(list)
                                        + " AND SCode = "_L1 + quoted(code));
    return row.eof() ? u"کد نامعتبر"_s : row.value(0).toText();
}

} // namespace zrv
