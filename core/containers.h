// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"

namespace zrv {

// The routines that act on all controls of a container by the first letters of their names. A container is given
// by its name, letter for letter; controls that begin with mnu, Data or tmr are left alone by all of them.

/// Enables the container's controls and gives fields their colour (light yellow in a Key container, cream
/// elsewhere), then calls ApplyModeButtons with the container's name.
void EnableContainer(QStringView container, Form &form);

/// Disables what EnableContainer enables; colours stay.
void DisableContainer(QStringView container, Form &form);

/// Empties the container's fields, data labels and ticks.
void ClearContainer(QStringView container, Form &form);

/// "FramKey" switches cmdKeyOk off; "StartProgram", the mode in which a record screen comes up, switches
/// cmdExit on and cmdDelete off. Other words change nothing.
void ApplyModeButtons(QStringView mode, Form &form);

/// What CheckRequired found: the empty required field that comes first in tab order; null when all are filled.
struct RequiredFields {
    Control *firstEmpty = nullptr;
    [[nodiscard]] bool allFilled() const { return firstEmpty == nullptr; }
};

/// Looks at the fields of the container, and one level inside its picture boxes and frames, whose tag holds "+N"
/// and which a user can reach: an empty one turns orange, a filled one cream.
[[nodiscard]] RequiredFields CheckRequired(QStringView container, Form &form);

} // namespace zrv
