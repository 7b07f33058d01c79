// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/parser.h"

#include <initializer_list>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int DeepestNesting = 100;
constexpr int LongestChain = 400; // operators of one strength in a row; each adds a level to the tree
thread_local int nesting = 0;

Expression node(Expression::Type type, QString name, std::vector<Expression> operands = {})
{
    Expression expression;
    expression.type = type;
    expression.name = std::move(name);
    expression.operands = std::move(operands);
    return expression;
}

template <typename Operand>
Expression chain(WordReader &words, std::initializer_list<QStringView> operators, Operand operand)
{
    Expression left = operand(words);
    for (int length = 0;; ++length) {
        const auto *found =
            std::find_if(operators.begin(), operators.end(), [&](QStringView word) { return words.peek().is(word); });
        if (found == operators.end())
            return left;
        if (length == LongestChain)
            words.refuseHere();
        words.take();
        Expression right = operand(words);
        std::vector<Expression> operands;
        operands.push_back(std::move(left));
        operands.push_back(std::move(right));
        left = node(Expression::Type::Operation, found->toString(), std::move(operands));
    }
}

std::vector<Expression> parseList(WordReader &words)
{
    std::vector<Expression> list;
    do
        list.push_back(parseExpression(words));
    while (words.takeIf(u","));
    words.expect(u")");
    return list;
}

Expression parseNamed(WordReader &words)
{
    // A function's name needs no protection from keywords, because a bracket follows it: left(…), format(…).
    if (words.peek().type == Token::Type::Name && words.peek(1).is(u"(")) {
        Expression call = node(Expression::Type::Call, words.take().text.toLower());
        words.expect(u"(");
        if (call.name == "count"_L1 && words.takeIf(u"*")) {
            words.expect(u")");
            call.type = Expression::Type::CountAll;
        } else {
            call.operands = parseList(words);
        }
        return call;
    }
    Expression column = node(Expression::Type::Column, words.takeName());
    if (words.takeIf(u".")) {
        column.table = column.name;
        column.name = words.takeName();
    }
    return column;
}

Expression parsePrimary(WordReader &words)
{
    const Nesting level(words);
    if (words.takeIf(u"-"))
        return node(Expression::Type::Negative, {}, {parsePrimary(words)});
    if (words.takeIf(u"+"))
        return parsePrimary(words);
    if (words.takeIf(u"(")) {
        Expression inner = parseExpression(words);
        words.expect(u")");
        return inner;
    }
    if (words.peek().type == Token::Type::Text)
        return node(Expression::Type::Text, words.take().text);
    if (words.peek().type == Token::Type::Number)
        return node(Expression::Type::Number, words.take().text);
    if (words.takeIf(u"NULL"))
        return node(Expression::Type::Null, {});
    return parseNamed(words);
}

Expression parseProduct(WordReader &words)
{
    return chain(words, {u"*", u"/"}, parsePrimary);
}

Expression parseSum(WordReader &words)
{
    return chain(words, {u"+", u"-"}, parseProduct);
}

Expression parseJoinedText(WordReader &words)
{
    return chain(words, {u"&"}, parseSum);
}

Expression parseIsNull(WordReader &words, Expression value)
{
    const bool negated = words.takeIf(u"NOT");
    words.expect(u"NULL");
    Expression test = node(Expression::Type::IsNull, {}, {std::move(value)});
    test.negated = negated;
    return test;
}

/// IN, BETWEEN and LIKE, each of which a NOT may precede.
Expression parseTest(WordReader &words, Expression value)
{
    const bool negated = words.takeIf(u"NOT");
    Expression test;
    if (words.takeIf(u"LIKE")) {
        test = node(Expression::Type::Operation, u"LIKE"_s, {std::move(value), parseJoinedText(words)});
    } else if (words.takeIf(u"IN")) {
        words.expect(u"(");
        test = node(Expression::Type::In, {}, parseList(words));
        test.operands.insert(test.operands.begin(), std::move(value));
    } else {
        words.expect(u"BETWEEN");
        Expression lowest = parseJoinedText(words);
        words.expect(u"AND");
        test = node(Expression::Type::Between, {}, {std::move(value), std::move(lowest), parseJoinedText(words)});
    }
    test.negated = negated;
    return test;
}

Expression parseComparison(WordReader &words)
{
    Expression left = parseJoinedText(words);
    for (const QStringView comparison : {u"=", u"<>", u"<=", u">=", u"<", u">"}) {
        if (words.takeIf(comparison))
            return node(Expression::Type::Operation, comparison.toString(), {std::move(left), parseJoinedText(words)});
    }
    if (words.takeIf(u"IS"))
        return parseIsNull(words, std::move(left));
    const Token &next = words.peek();
    if (next.is(u"NOT") || next.is(u"LIKE") || next.is(u"IN") || next.is(u"BETWEEN"))
        return parseTest(words, std::move(left));
    return left;
}

Expression parseNegation(WordReader &words)
{
    const Nesting level(words);
    if (words.takeIf(u"NOT"))
        return node(Expression::Type::Not, {}, {parseNegation(words)});
    return parseComparison(words);
}

Expression parseConjunction(WordReader &words)
{
    return chain(words, {u"AND"}, parseNegation);
}

} // namespace

Nesting::Nesting(const WordReader &words)
{
    if (nesting >= DeepestNesting)
        words.refuseHere();
    ++nesting;
}

Nesting::~Nesting()
{
    --nesting;
}

Expression parseExpression(WordReader &words)
{
    return chain(words, {u"OR"}, parseConjunction);
}

} // namespace zrv::dialect
