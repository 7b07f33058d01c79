// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/sql_functions.h"

#include "core/basic/letter_fold.h"
#include "core/basic/number_format.h"
#include "core/store/like.h"
#include "core/store/persian_order.h"
#include "core/store/sql_number.h"
#include "core/store/value.h"

#include <new>
#include <span>
#include <sqlite3.h>

namespace zrv {

namespace {

using Arguments = std::span<sqlite3_value *const>;
using Call = void (*)(sqlite3_context *, Arguments);

std::string_view utf8Of(sqlite3_value *value)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return text ? std::string_view(text, std::size_t(sqlite3_value_bytes(value))) : std::string_view();
}

QString textOf(sqlite3_value *value)
{
    const std::string_view utf8 = utf8Of(value);
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

bool isNull(sqlite3_value *value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}

void give(sqlite3_context *context, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text(context, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

void give(sqlite3_context *context, const SqlNumber &number)
{
    if (const qint64 *whole = std::get_if<qint64>(&number))
        sqlite3_result_int64(context, *whole);
    else
        sqlite3_result_double(context, std::get<double>(number));
}

SqlNumber numberOf(sqlite3_value *value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        return qint64(0);
    case SQLITE_INTEGER:
        return qint64(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    default:
        return leadingNumber(utf8Of(value));
    }
}

/// A number or text as the text that shows it.
QString shown(sqlite3_value *value)
{
    if (sqlite3_value_type(value) == SQLITE_INTEGER)
        return QString::number(qint64(sqlite3_value_int64(value)));
    if (sqlite3_value_type(value) == SQLITE_FLOAT)
        return Value(sqlite3_value_double(value)).toText();
    return textOf(value);
}

void val(sqlite3_context *context, Arguments arguments)
{
    give(context, numberOf(arguments[0]));
}

void cstr(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[0]))
        give(context, shown(arguments[0]));
}

void join(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[0]) || !isNull(arguments[1]))
        give(context, textOf(arguments[0]) + textOf(arguments[1]));
}

void like(sqlite3_context *context, Arguments arguments)
{
    if (isNull(arguments[0]) || isNull(arguments[1]))
        return;
    // The pattern is the same in every row: SQLite keeps its search form from one call to the next.
    auto *pattern = static_cast<QString *>(sqlite3_get_auxdata(context, 1));
    if (!pattern) {
        sqlite3_set_auxdata(context, 1, new QString(searchKey(textOf(arguments[1]))),
                            [](void *kept) { delete static_cast<QString *>(kept); });
        pattern = static_cast<QString *>(sqlite3_get_auxdata(context, 1));
    }
    const QString form = pattern ? *pattern : searchKey(textOf(arguments[1]));
    sqlite3_result_int(context, matches(form, searchKey(textOf(arguments[0]))));
}

void order(sqlite3_context *context, Arguments arguments)
{
    if (isNull(arguments[0]))
        return;
    const std::string key = persianOrderKey(utf8Of(arguments[0]));
    sqlite3_result_blob(context, key.data(), int(key.size()), SQLITE_TRANSIENT);
}

void format(sqlite3_context *context, Arguments arguments)
{
    give(context, isNull(arguments[0]) ? QString() : Format(shown(arguments[0]), textOf(arguments[1])));
}

void left(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[0]))
        give(context, textOf(arguments[0]).left(qMax(0, sqlite3_value_int(arguments[1]))));
}

void right(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[0]))
        give(context, textOf(arguments[0]).right(qMax(0, sqlite3_value_int(arguments[1]))));
}

void mid(sqlite3_context *context, Arguments arguments)
{
    if (isNull(arguments[0]))
        return;
    const int start = qMax(1, sqlite3_value_int(arguments[1])) - 1;
    const int length = arguments.size() > 2 ? qMax(0, sqlite3_value_int(arguments[2])) : -1;
    give(context, textOf(arguments[0]).mid(start, length));
}

void ucase(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[0]))
        give(context, textOf(arguments[0]).toUpper());
}

void lcase(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[0]))
        give(context, textOf(arguments[0]).toLower());
}

struct Sum {
    bool any;
    bool real; ///< one of the numbers had a fraction
    bool tooLarge;
    qint64 whole;
    double fractions;
};

void addToSum(sqlite3_context *context, Arguments arguments)
{
    auto *sum = static_cast<Sum *>(sqlite3_aggregate_context(context, sizeof(Sum)));
    if (!sum || isNull(arguments[0]))
        return;
    sum->any = true;
    const SqlNumber number = numberOf(arguments[0]);
    if (const qint64 *whole = std::get_if<qint64>(&number)) {
        qint64 result = 0;
        sum->tooLarge = sum->tooLarge || qAddOverflow(sum->whole, *whole, &result);
        sum->whole = result;
    } else {
        sum->real = true;
        sum->fractions += std::get<double>(number);
    }
}

void giveSum(sqlite3_context *context)
{
    const auto *sum = static_cast<const Sum *>(sqlite3_aggregate_context(context, 0));
    if (!sum || !sum->any)
        return;
    if (sum->tooLarge)
        sqlite3_result_error(context, "جمع مبالغ از حد مجاز بزرگتر است", -1);
    else if (sum->real)
        sqlite3_result_double(context, double(sum->whole) + sum->fractions);
    else
        sqlite3_result_int64(context, sum->whole);
}

/// No exception may pass through SQLite, and running out of memory is the only one there can be.
template <Call call>
void guarded(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    try {
        call(context, Arguments(arguments, std::size_t(count)));
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
}

struct SqlFunction {
    const char *name;
    int arguments;
    void (*call)(sqlite3_context *, int, sqlite3_value **);
};

constexpr SqlFunction SqlFunctions[] = {
    // clang-format off
    {"zrv_val",    1, guarded<val>},
    {"zrv_cstr",   1, guarded<cstr>},
    {"zrv_join",   2, guarded<join>},
    {"zrv_like",   2, guarded<like>},
    {"zrv_order",  1, guarded<order>},
    {"zrv_format", 2, guarded<format>},
    {"zrv_left",   2, guarded<left>},
    {"zrv_right",  2, guarded<right>},
    {"zrv_mid",    2, guarded<mid>},
    {"zrv_mid",    3, guarded<mid>},
    {"zrv_ucase",  1, guarded<ucase>},
    {"zrv_lcase",  1, guarded<lcase>},
    // clang-format on
};

} // namespace

void addSqlFunctions(sqlite3 *database)
{
    constexpr int Form = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    for (const SqlFunction &function : SqlFunctions)
        sqlite3_create_function_v2(database, function.name, function.arguments, Form, nullptr, function.call, nullptr,
                                   nullptr, nullptr);
    sqlite3_create_function_v2(database, "zrv_sum", 1, Form, nullptr, nullptr, guarded<addToSum>, giveSum, nullptr);
}

} // namespace zrv
