// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"

#include <optional>
#include <span>

namespace zrv::player {

/// What a scenario can ask of a control, in its words: texts as they stand, flags as yes or no, colours as RRGGBB,
/// numbers in decimal.
struct Property {
    QString name;
    /// The control's value; nothing when a control of its kind has no such property.
    std::optional<QString> (*of)(const Control &);
};

[[nodiscard]] std::span<const Property> allProperties();
/// Null for an unknown name.
[[nodiscard]] const Property *findProperty(QStringView name);

[[nodiscard]] QString flagText(bool flag);
/// TextBox, Label, …
[[nodiscard]] QString kindText(ControlKind kind);
/// The control and all containers around it are enabled.
[[nodiscard]] bool isEnabledThroughout(const Control &control);
/// The rows of a combo box, a data combo or a list box, the captions of a tab control; null for other kinds.
[[nodiscard]] std::optional<std::vector<ListItem>> listItems(const Control &control);

} // namespace zrv::player
