// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/parser.h"

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

Source parseSource(WordReader &words);

SelectItem parseItem(WordReader &words)
{
    SelectItem item;
    if (words.takeIf(u"*")) {
        item.allColumns = true;
        return item;
    }
    if (words.atName() && words.peek(1).is(u".") && words.peek(2).is(u"*")) {
        item.allColumns = true;
        item.table = words.takeName();
        words.take();
        words.take();
        return item;
    }
    item.value = parseExpression(words);
    if (words.takeIf(u"AS") || words.atName())
        item.alias = words.takeName();
    return item;
}

Source parseTable(WordReader &words)
{
    const Nesting level(words);
    Source source;
    if (words.takeIf(u"(")) {
        if (!words.peek().is(u"SELECT")) {
            source = parseSource(words);
            words.expect(u")");
            return source;
        }
        source.query = std::make_shared<Select>(parseSelect(words));
        words.expect(u")");
        words.takeIf(u"AS");
        source.alias = words.takeName();
        return source;
    }
    source.table = words.takeName();
    source.alias = source.table;
    if (words.takeIf(u"AS") || words.atName())
        source.alias = words.takeName();
    return source;
}

QString takeJoin(WordReader &words)
{
    for (const QStringView side : {u"LEFT", u"RIGHT"}) {
        if (words.takeIf(side)) {
            words.takeIf(u"OUTER");
            words.expect(u"JOIN");
            return side.toString() + " JOIN"_L1;
        }
    }
    if (words.takeIf(u"INNER")) {
        words.expect(u"JOIN");
        return u"INNER JOIN"_s;
    }
    return {};
}

Source parseSource(WordReader &words)
{
    constexpr int MostJoins = 60; // a query of the store joins ten tables, and SQLite stops at 64
    Source left = parseTable(words);
    for (int joins = 0;; ++joins) {
        const QString join = takeJoin(words);
        if (join.isEmpty())
            return left;
        if (joins == MostJoins)
            words.refuseHere();
        Source joined;
        joined.join = join;
        joined.sides.push_back(std::move(left));
        joined.sides.push_back(parseTable(words));
        words.expect(u"ON");
        joined.on = parseExpression(words);
        left = std::move(joined);
    }
}

std::vector<OrderItem> parseOrder(WordReader &words)
{
    std::vector<OrderItem> order;
    do {
        OrderItem item{parseExpression(words)};
        item.descending = words.takeIf(u"DESC");
        if (!item.descending)
            words.takeIf(u"ASC");
        order.push_back(std::move(item));
    } while (words.takeIf(u","));
    return order;
}

} // namespace

Select parseSelect(WordReader &words)
{
    const Nesting level(words);
    Select select;
    words.expect(u"SELECT");
    select.distinct = words.takeIf(u"DISTINCT");
    do
        select.items.push_back(parseItem(words));
    while (words.takeIf(u","));
    if (words.takeIf(u"FROM")) {
        do
            select.from.push_back(parseSource(words));
        while (words.takeIf(u","));
    }
    if (words.takeIf(u"WHERE"))
        select.where = parseExpression(words);
    if (words.takeIf(u"GROUP")) {
        words.expect(u"BY");
        do
            select.groupBy.push_back(parseExpression(words));
        while (words.takeIf(u","));
    }
    if (words.takeIf(u"HAVING"))
        select.having = parseExpression(words);
    if (words.takeIf(u"ORDER")) {
        words.expect(u"BY");
        select.orderBy = parseOrder(words);
    }
    return select;
}

} // namespace zrv::dialect
