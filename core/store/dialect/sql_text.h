// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace zrv::dialect {

/// What an expression gives; the dialect's operators go by it.
enum class Kind { Text, Number, Truth, Null };

/// A piece of SQLite's SQL and what it gives.
struct Sql {
    QString text;
    Kind kind = Kind::Text;
};

[[nodiscard]] QString sqlName(QStringView name);
[[nodiscard]] QString sqlText(QStringView text);

/// The piece as a text, a number, a truth value, or in the form in which a result shows it.
[[nodiscard]] QString asText(const Sql &sql);
[[nodiscard]] QString asNumber(const Sql &sql);
[[nodiscard]] QString asCondition(const Sql &sql);
[[nodiscard]] QString asValue(const Sql &sql);

} // namespace zrv::dialect
