// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/parser.h"

#include <algorithm>
#include <iterator>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

// Words that end a name or an expression, so that an alias without AS can be told from what follows.
// Sorted for the search.
constexpr QStringView Keywords[] = {
    u"ADD",   u"ALTER",    u"AND",  u"AS",    u"ASC",   u"BETWEEN", u"BY",     u"COLUMN", u"CREATE", u"DELETE",
    u"DESC",  u"DISTINCT", u"DROP", u"FROM",  u"GROUP", u"HAVING",  u"IN",     u"INNER",  u"INSERT", u"INTO",
    u"IS",    u"JOIN",     u"LEFT", u"LIKE",  u"NOT",   u"NULL",    u"ON",     u"OR",     u"ORDER",  u"OUTER",
    u"RIGHT", u"SELECT",   u"SET",  u"TABLE", u"UNION", u"UPDATE",  u"VALUES", u"WHERE",
};

Statement parseInsert(WordReader &words)
{
    Insert insert;
    words.expect(u"INTO");
    insert.table = words.takeName();
    if (words.takeIf(u"(")) {
        do
            insert.columns.append(words.takeName());
        while (words.takeIf(u","));
        words.expect(u")");
    }
    if (words.peek().is(u"SELECT")) {
        insert.query = std::make_shared<Select>(parseSelect(words));
        return insert;
    }
    words.expect(u"VALUES");
    words.expect(u"(");
    do
        insert.values.push_back(parseExpression(words));
    while (words.takeIf(u","));
    words.expect(u")");
    return insert;
}

std::optional<Expression> parseWhere(WordReader &words)
{
    if (!words.takeIf(u"WHERE"))
        return std::nullopt;
    return parseExpression(words);
}

Statement parseUpdate(WordReader &words)
{
    Update update;
    update.table = words.takeName();
    words.expect(u"SET");
    do {
        QString column = words.takeName();
        if (words.takeIf(u".")) {
            if (column.compare(update.table, Qt::CaseInsensitive) != 0)
                words.refuseHere();
            column = words.takeName();
        }
        words.expect(u"=");
        update.changes.emplace_back(std::move(column), parseExpression(words));
    } while (words.takeIf(u","));
    update.where = parseWhere(words);
    return update;
}

Statement parseDelete(WordReader &words)
{
    Delete statement;
    words.takeIf(u"*"); // "DELETE * FROM" is the dialect's other spelling
    words.expect(u"FROM");
    statement.table = words.takeName();
    statement.where = parseWhere(words);
    return statement;
}

ColumnDefinition parseColumn(WordReader &words)
{
    constexpr int WidestText = 255; // of the dialect's TEXT
    ColumnDefinition column{words.takeName(), WidestText};
    words.expect(u"TEXT");
    if (words.takeIf(u"(")) {
        const Token width = words.take();
        if (width.type != Token::Type::Number)
            refuse(width.text);
        bool whole = false;
        column.width = width.text.toInt(&whole);
        if (!whole || column.width < 1 || column.width > WidestText)
            refuse(width.text);
        words.expect(u")");
    }
    return column;
}

Statement parseAlter(WordReader &words)
{
    words.expect(u"TABLE");
    const QString table = words.takeName();
    const Token change = words.take();
    if (change.is(u"ADD")) {
        words.takeIf(u"COLUMN");
        return AddColumn{table, parseColumn(words)};
    }
    if (change.is(u"ALTER")) {
        words.takeIf(u"COLUMN");
        return AlterColumn{table, parseColumn(words)};
    }
    if (!change.is(u"DROP"))
        refuse(change.text);
    words.takeIf(u"COLUMN");
    return DropColumn{table, words.takeName()};
}

Statement parseCreate(WordReader &words)
{
    CreateTable create;
    words.expect(u"TABLE");
    create.table = words.takeName();
    words.expect(u"(");
    do
        create.columns.push_back(parseColumn(words));
    while (words.takeIf(u","));
    words.expect(u")");
    return create;
}

Statement parseAny(WordReader &words)
{
    if (words.peek().is(u"SELECT"))
        return parseSelect(words);
    const Token verb = words.take();
    if (verb.is(u"INSERT"))
        return parseInsert(words);
    if (verb.is(u"UPDATE"))
        return parseUpdate(words);
    if (verb.is(u"DELETE"))
        return parseDelete(words);
    if (verb.is(u"ALTER"))
        return parseAlter(words);
    if (verb.is(u"CREATE"))
        return parseCreate(words);
    refuse(verb.text);
}

} // namespace

Token WordReader::take()
{
    Token word = peek();
    if (!atEnd())
        ++m_at;
    return word;
}

bool WordReader::takeIf(QStringView word)
{
    if (!peek().is(word))
        return false;
    ++m_at;
    return true;
}

void WordReader::expect(QStringView word)
{
    if (!takeIf(word))
        refuseHere();
}

bool WordReader::atName() const
{
    if (peek().type == Token::Type::BracketedName)
        return true;
    if (peek().type != Token::Type::Name)
        return false;
    const QString upper = peek().text.toUpper();
    return !std::binary_search(std::begin(Keywords), std::end(Keywords), QStringView(upper));
}

QString WordReader::takeName()
{
    if (!atName())
        refuseHere();
    return take().text;
}

Statement parse(QStringView statement)
{
    WordReader words(statement);
    Statement result = parseAny(words);
    if (!words.atEnd())
        words.refuseHere();
    return result;
}

} // namespace zrv::dialect
