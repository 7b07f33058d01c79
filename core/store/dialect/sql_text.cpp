// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/sql_text.h"

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

QString sqlName(QStringView name)
{
    return u'"' + name.toString().replace(u"\""_s, u"\"\""_s) + u'"';
}

QString sqlText(QStringView text)
{
    return u'\'' + text.toString().replace(u"'"_s, u"''"_s) + u'\'';
}

QString asValue(const Sql &sql)
{
    // True is -1 in the dialect.
    return sql.kind == Kind::Truth ? QString("(-("_L1 + sql.text + "))"_L1) : sql.text;
}

QString asText(const Sql &sql)
{
    const bool isNumeric = sql.kind == Kind::Number || sql.kind == Kind::Truth;
    return isNumeric ? QString("zrv_cstr("_L1 + asValue(sql) + ")"_L1) : sql.text;
}

QString asNumber(const Sql &sql)
{
    return sql.kind == Kind::Text ? QString("zrv_val("_L1 + sql.text + ")"_L1) : asValue(sql);
}

QString asCondition(const Sql &sql)
{
    // A text is true when its number isn't zero, so that iif(Access_Level, …) works on '1' and '0'.
    return sql.kind == Kind::Truth ? sql.text : QString("("_L1 + asNumber(sql) + "<>0)"_L1);
}

} // namespace zrv::dialect
