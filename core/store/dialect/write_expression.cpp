// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/write_expression.h"

#include "core/store/dialect/functions.h"
#include "core/store/dialect/tokens.h"
#include "core/store/store_error.h"

#include <algorithm>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

using Type = Expression::Type;

class Writer {
public:
    Writer(const Scope &scope, const ResultNames &names)
        : m_scope(scope)
        , m_names(names)
    {
    }

    Sql write(const Expression &expression) const
    {
        switch (expression.type) {
        case Type::Text:
            return {sqlText(expression.name), Kind::Text};
        case Type::Number:
            return {expression.name, Kind::Number};
        case Type::Null:
            return {u"NULL"_s, Kind::Null};
        case Type::Column:
            return column(expression);
        case Type::Call:
            return writeCall(expression.name, all(expression.operands));
        case Type::CountAll:
            return {u"count(*)"_s, Kind::Number};
        case Type::Not:
            return {"(NOT "_L1 + asCondition(write(expression.operands[0])) + u')', Kind::Truth};
        case Type::Negative:
            return {"(-"_L1 + asNumber(write(expression.operands[0])) + u')', Kind::Number};
        case Type::Operation:
            return operation(expression);
        case Type::In:
            return membership(expression);
        case Type::Between:
            return between(expression);
        case Type::IsNull:
            return {u'(' + write(expression.operands[0]).text
                        + (expression.negated ? " IS NOT NULL)"_L1 : " IS NULL)"_L1),
                    Kind::Truth};
        }
        Q_UNREACHABLE();
    }

private:
    std::vector<Sql> all(const std::vector<Expression> &expressions) const
    {
        std::vector<Sql> written;
        written.reserve(expressions.size());
        for (const Expression &expression : expressions)
            written.push_back(write(expression));
        return written;
    }

    Sql column(const Expression &expression) const
    {
        if (expression.table.isEmpty() && !m_scope.has(expression.name)) {
            for (const auto &[name, sql] : m_names) {
                if (name.compare(expression.name, Qt::CaseInsensitive) == 0)
                    return sql;
            }
        }
        return m_scope.column(expression.table, expression.name).sql;
    }

    Sql operation(const Expression &expression) const
    {
        const QString &sign = expression.name;
        if (sign == "AND"_L1 || sign == "OR"_L1)
            return {u'(' + condition(expression, sign) + u')', Kind::Truth};
        const Sql left = write(expression.operands[0]);
        const Sql right = write(expression.operands[1]);
        if (sign == "LIKE"_L1)
            return {(expression.negated ? "(NOT zrv_like("_L1 : "(zrv_like("_L1) + asText(left) + u',' + asText(right)
                        + "))"_L1,
                    Kind::Truth};
        if (sign == u'&')
            return {"zrv_join("_L1 + asText(left) + u',' + asText(right) + u')', Kind::Text};
        if (sign == u'+' && (left.kind == Kind::Text || right.kind == Kind::Text))
            return {u'(' + asText(left) + "||"_L1 + asText(right) + u')', Kind::Text};
        if (u"+-*/"_s.contains(sign))
            return {arithmetic(left, sign, right), Kind::Number};
        return {u'(' + comparison(left, sign, right) + u')', Kind::Truth};
    }

    /// A chain of one operator is written flat: SQLite's parser would run out of room for its brackets.
    QString condition(const Expression &expression, const QString &sign) const
    {
        const Expression &first = expression.operands[0];
        const bool chained = first.type == Type::Operation && first.name == sign;
        const QString left = chained ? condition(first, sign) : asCondition(write(first));
        return left + u' ' + sign + u' ' + asCondition(write(expression.operands[1]));
    }

    static QString arithmetic(const Sql &left, const QString &sign, const Sql &right)
    {
        // 3/2 is 1.5 in the dialect and 1 in SQLite.
        const QLatin1StringView real = sign == u'/' ? "*1.0"_L1 : ""_L1;
        return u'(' + asNumber(left) + real + sign + asNumber(right) + u')';
    }

    /// Texts compare without regard to case, whatever the table says.
    static QString comparison(const Sql &left, const QString &sign, const Sql &right)
    {
        const auto isNumeric = [](Kind kind) { return kind == Kind::Number || kind == Kind::Truth; };
        if ((left.kind == Kind::Text && isNumeric(right.kind)) || (isNumeric(left.kind) && right.kind == Kind::Text))
            throw RunTimeError(store_error::TypeMismatch, u"نوع دو طرف مقايسه در دستور بانک اطلاعاتي يکسان نيست : "_s
                                                              + left.text + sign + right.text);
        const bool texts = left.kind == Kind::Text || right.kind == Kind::Text;
        return asValue(left) + sign + asValue(right) + (texts ? " COLLATE NOCASE"_L1 : ""_L1);
    }

    /// IN takes the collation of its left side alone.
    Sql membership(const Expression &expression) const
    {
        const Sql value = write(expression.operands[0]);
        QStringList list;
        for (std::size_t i = 1; i < expression.operands.size(); ++i) {
            const Sql candidate = write(expression.operands[i]);
            (void)comparison(value, u"="_s, candidate);
            list.append(asValue(candidate));
        }
        const QLatin1StringView collation = value.kind == Kind::Text ? " COLLATE NOCASE"_L1 : ""_L1;
        return {u'(' + asValue(value) + collation + (expression.negated ? " NOT IN ("_L1 : " IN ("_L1) + list.join(u',')
                    + "))"_L1,
                Kind::Truth};
    }

    Sql between(const Expression &expression) const
    {
        const Sql value = write(expression.operands[0]);
        const QString range = comparison(value, u">="_s, write(expression.operands[1])) + " AND "_L1
                              + comparison(value, u"<="_s, write(expression.operands[2]));
        return {(expression.negated ? "(NOT ("_L1 : "(("_L1) + range + "))"_L1, Kind::Truth};
    }

    const Scope &m_scope;
    const ResultNames &m_names;
};

} // namespace

Sql writeExpression(const Expression &expression, const Scope &scope, const ResultNames &names)
{
    return Writer(scope, names).write(expression);
}

bool isAggregate(const Expression &expression)
{
    if (expression.type == Type::CountAll || (expression.type == Type::Call && isAggregateFunction(expression.name)))
        return true;
    return std::any_of(expression.operands.begin(), expression.operands.end(), isAggregate);
}

} // namespace zrv::dialect
