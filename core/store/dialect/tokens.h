// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace zrv::dialect {

/// One word of a statement in the store's dialect. A bracketed name is never a keyword.
struct Token {
    enum class Type { Name, BracketedName, Text, Number, Symbol, End };

    Type type = Type::End;
    QString text; ///< without the brackets or quotes around it

    /// True for the keyword or symbol given in upper case.
    [[nodiscard]] bool is(QStringView word) const;
};

/// Splits a statement into its words, closed by one of type End. A single trailing semicolon belongs to the
/// statement. Comments, a second statement, NULs and open quotes raise store_error::Syntax.
[[nodiscard]] std::vector<Token> tokens(QStringView statement);

/// Raises store_error::Syntax; `near` is the piece of the statement that can't be read.
[[noreturn]] void refuse(QStringView near);

} // namespace zrv::dialect
