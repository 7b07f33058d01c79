// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/statement.h"
#include "core/store/dialect/tokens.h"

namespace zrv::dialect {

/// The place reached in a statement's words, with the few moves that every rule of the grammar needs.
class WordReader {
public:
    explicit WordReader(QStringView statement)
        : m_words(tokens(statement))
    {
    }

    [[nodiscard]] const Token &peek(std::size_t ahead = 0) const
    {
        return m_words[qMin(m_at + ahead, m_words.size() - 1)];
    }
    [[nodiscard]] bool atEnd() const { return peek().type == Token::Type::End; }
    Token take();
    bool takeIf(QStringView word);
    void expect(QStringView word);

    /// A name of a table, column or alias: bracketed, or any word that isn't a keyword of the dialect.
    [[nodiscard]] bool atName() const;
    QString takeName();

    [[noreturn]] void refuseHere() const { refuse(peek().text); }

private:
    std::vector<Token> m_words;
    std::size_t m_at = 0;
};

/// Reads an expression, from its weakest operator (OR) down.
[[nodiscard]] Expression parseExpression(WordReader &words);

/// Reads a SELECT, from the word SELECT on.
[[nodiscard]] Select parseSelect(WordReader &words);

/// Counts how deep a statement is nested. Depth is bounded, since the tree is walked by recursion.
class Nesting {
public:
    explicit Nesting(const WordReader &words);
    ~Nesting();
    Nesting(const Nesting &) = delete;
    Nesting &operator=(const Nesting &) = delete;
};

} // namespace zrv::dialect
