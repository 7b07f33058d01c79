// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Texts that stand in for what a column lacks. Each takes a text that may be NULL (nullopt) or a cell of the
// store's recordset.

#include <QString>

#include <concepts>
#include <optional>

namespace zrv {

/// "0" for NULL and for a text of blanks alone, else the text as it is.
[[nodiscard]] QString NullToZero(const std::optional<QString> &text);

/// The text without blanks at its ends; empty for NULL.
[[nodiscard]] QString NullToEmpty(const std::optional<QString> &text);

/// The text, or "0" when the number it begins with is below zero.
[[nodiscard]] QString NegativeToZero(const QString &text);

/// A cell of a recordset, by what is asked of it here: the store itself isn't known in this folder.
template <class T>
concept NullableCell = requires(const T &cell)
{
    {
        cell.isNull()
        } -> std::same_as<bool>;
    {
        cell.toText()
        } -> std::convertible_to<QString>;
};

[[nodiscard]] QString NullToZero(const NullableCell auto &cell)
{
    return NullToZero(cell.isNull() ? std::nullopt : std::optional<QString>(cell.toText()));
}

[[nodiscard]] QString NullToEmpty(const NullableCell auto &cell)
{
    return NullToEmpty(cell.isNull() ? std::nullopt : std::optional<QString>(cell.toText()));
}

} // namespace zrv
