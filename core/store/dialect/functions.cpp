// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/functions.h"

#include "core/store/dialect/tokens.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

/// How a function is called. In `arguments`, a letter each: t is taken as a text, n as a number, any other as it is.
struct Function {
    QStringView name;
    QStringView sqlite;
    QStringView arguments;
    int fewest;
    Kind result;
};

// Functions whose SQLite name begins with zrv_ are ours (core/store/sql_functions.cpp).
constexpr Function Functions[] = {
    // clang-format off
    {u"val",    u"zrv_val",    u"*",   1, Kind::Number},
    {u"cstr",   u"zrv_cstr",   u"*",   1, Kind::Text},
    {u"format", u"zrv_format", u"*t",  2, Kind::Text},
    {u"trim",   u"trim",       u"t",   1, Kind::Text},
    {u"ltrim",  u"ltrim",      u"t",   1, Kind::Text},
    {u"rtrim",  u"rtrim",      u"t",   1, Kind::Text},
    {u"len",    u"length",     u"t",   1, Kind::Number},
    {u"left",   u"zrv_left",   u"tn",  2, Kind::Text},
    {u"right",  u"zrv_right",  u"tn",  2, Kind::Text},
    {u"mid",    u"zrv_mid",    u"tnn", 2, Kind::Text},
    {u"ucase",  u"zrv_ucase",  u"t",   1, Kind::Text},
    {u"lcase",  u"zrv_lcase",  u"t",   1, Kind::Text},
    {u"sum",    u"zrv_sum",    u"*",   1, Kind::Number},
    {u"count",  u"count",      u"*",   1, Kind::Number},
    // clang-format on
};

QString argument(QChar form, const Sql &sql)
{
    if (form == u't')
        return asText(sql);
    return form == u'n' ? asNumber(sql) : asValue(sql);
}

Sql writeChoice(const std::vector<Sql> &arguments)
{
    const Sql &yes = arguments[1];
    const Sql &no = arguments[2];
    const bool numbers = yes.kind != Kind::Text && no.kind != Kind::Text;
    const QString text = "(CASE WHEN "_L1 + asCondition(arguments[0]) + " THEN "_L1
                         + (numbers ? asValue(yes) : asText(yes)) + " ELSE "_L1 + (numbers ? asValue(no) : asText(no))
                         + " END)"_L1;
    return {text, numbers ? Kind::Number : Kind::Text};
}

/// max and min of texts go by the order in which texts compare.
Sql writeExtreme(const QString &name, const Sql &argument)
{
    const bool text = argument.kind == Kind::Text;
    return {name + u'(' + asValue(argument) + (text ? " COLLATE NOCASE)"_L1 : ")"_L1),
            text ? Kind::Text : Kind::Number};
}

} // namespace

Sql writeCall(const QString &name, const std::vector<Sql> &arguments)
{
    if (name == "iif"_L1 && arguments.size() == 3)
        return writeChoice(arguments);
    if ((name == "max"_L1 || name == "min"_L1) && arguments.size() == 1)
        return writeExtreme(name, arguments[0]);
    const auto *function = std::find_if(std::begin(Functions), std::end(Functions),
                                        [&](const Function &candidate) { return candidate.name == name; });
    if (function == std::end(Functions) || arguments.size() < std::size_t(function->fewest)
        || arguments.size() > std::size_t(function->arguments.size()))
        refuse(name);
    QStringList list;
    for (std::size_t i = 0; i < arguments.size(); ++i)
        list.append(argument(function->arguments.at(qsizetype(i)), arguments[i]));
    return {function->sqlite + u'(' + list.join(u',') + u')', function->result};
}

bool isAggregateFunction(QStringView name)
{
    return name == "sum"_L1 || name == "count"_L1 || name == "max"_L1 || name == "min"_L1;
}

} // namespace zrv::dialect
