// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/tokens.h"

#include "core/basic/text.h"
#include "core/store/store_error.h"

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isNameStart(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_';
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

class Reader {
public:
    explicit Reader(QStringView statement)
        : m_statement(statement)
    {
    }

    std::vector<Token> all()
    {
        std::vector<Token> words;
        for (skipBlanks(); m_at < m_statement.size(); skipBlanks()) {
            if (peek(0) == u';') {
                ++m_at;
                skipBlanks();
                if (m_at < m_statement.size())
                    refuse(m_statement.mid(m_at));
                break;
            }
            words.push_back(next());
        }
        words.push_back({});
        return words;
    }

private:
    QChar peek(qsizetype ahead) const
    {
        return m_at + ahead < m_statement.size() ? m_statement.at(m_at + ahead) : QChar();
    }

    void skipBlanks()
    {
        while (m_at < m_statement.size() && isBlank(m_statement.at(m_at)))
            ++m_at;
    }

    Token next()
    {
        const QChar c = peek(0);
        if (c == u'\'' || c == u'"')
            return quotedText(c);
        if (c == u'[')
            return bracketedName();
        if (isAsciiDigit(c) || (c == u'.' && isAsciiDigit(peek(1))))
            return number();
        if (isNameStart(c))
            return name();
        return symbol();
    }

    /// A quote doubled inside the text stands for itself.
    Token quotedText(QChar quote)
    {
        const qsizetype start = m_at;
        QString text;
        for (++m_at;; ++m_at) {
            if (m_at >= m_statement.size() || peek(0).isNull())
                refuse(m_statement.mid(start));
            if (peek(0) == quote && peek(1) != quote)
                break;
            if (peek(0) == quote)
                ++m_at;
            text += peek(0);
        }
        ++m_at;
        return {Token::Type::Text, text};
    }

    Token bracketedName()
    {
        const qsizetype start = m_at;
        const qsizetype end = m_statement.indexOf(u']', start);
        const QStringView text = end < 0 ? QStringView() : m_statement.mid(start + 1, end - start - 1);
        if (text.isEmpty() || text.contains(QChar()))
            refuse(m_statement.mid(start));
        m_at = end + 1;
        return {Token::Type::BracketedName, text.toString()};
    }

    Token number()
    {
        const qsizetype start = m_at;
        while (isAsciiDigit(peek(0)))
            ++m_at;
        if (peek(0) == u'.') {
            ++m_at;
            while (isAsciiDigit(peek(0)))
                ++m_at;
        }
        // "5WHERE" is a slip of the pen and not a number followed by a keyword.
        if (isNameStart(peek(0)))
            refuse(m_statement.mid(start));
        return {Token::Type::Number, m_statement.mid(start, m_at - start).toString()};
    }

    Token name()
    {
        const qsizetype start = m_at;
        while (isNameStart(peek(0)) || isAsciiDigit(peek(0)))
            ++m_at;
        return {Token::Type::Name, m_statement.mid(start, m_at - start).toString()};
    }

    Token symbol()
    {
        const QStringView rest = m_statement.mid(m_at);
        if (rest.startsWith("--"_L1) || rest.startsWith("/*"_L1))
            refuse(rest);
        for (const QStringView pair : {u"<=", u">=", u"<>"}) {
            if (rest.startsWith(pair)) {
                m_at += 2;
                return {Token::Type::Symbol, pair.toString()};
            }
        }
        if (!u"+-*/&=<>(),."_s.contains(rest.front()))
            refuse(rest);
        ++m_at;
        return {Token::Type::Symbol, rest.first(1).toString()};
    }

    QStringView m_statement;
    qsizetype m_at = 0;
};

} // namespace

bool Token::is(QStringView word) const
{
    return (type == Type::Name || type == Type::Symbol) && text.compare(word, Qt::CaseInsensitive) == 0;
}

std::vector<Token> tokens(QStringView statement)
{
    return Reader(statement).all();
}

void refuse(QStringView near)
{
    constexpr qsizetype LongestPiece = 40;
    const QString piece = near.isEmpty() ? u"پايان دستور"_s : near.first(qMin(near.size(), LongestPiece)).toString();
    throw RunTimeError(store_error::Syntax, u"دستور بانک اطلاعاتي خوانا نيست : "_s + piece);
}

} // namespace zrv::dialect
