// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <variant>

namespace zrv {

/// One cell of a row: NULL, a text, a whole number or a real one. Columns of the store hold texts or NULL;
/// numbers come from computed columns (val, sum, count). NULL and the empty text are different values.
class Value {
public:
    Value() = default;
    // NOLINTBEGIN(google-explicit-constructor): a row is written as its texts and numbers.
    Value(QString text)
        : m_cell(std::move(text))
    {
    }
    Value(qint64 number)
        : m_cell(number)
    {
    }
    Value(double number)
        : m_cell(number)
    {
    }
    // NOLINTEND(google-explicit-constructor)

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_cell); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<QString>(m_cell); }

    /// The cell as it is shown: NULL gives the empty text, numbers their shortest decimal form without
    /// separators and without an exponent when they are whole.
    [[nodiscard]] QString toText() const;

    friend bool operator==(const Value &, const Value &) = default;

private:
    std::variant<std::monostate, QString, qint64, double> m_cell;
};

} // namespace zrv
