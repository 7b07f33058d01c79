// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QPoint;
class QWidget;

namespace zrv {

/// What the context menu of a field offers and what its items do; line and area share it.
struct EditMenuState {
    bool canUndo = false;
    bool canRedo = false;
    bool hasSelection = false;
    bool isLocked = false;
    bool hidesText = false; ///< a password is neither cut nor copied
};

struct EditMenuActions {
    std::function<void()> undo;
    std::function<void()> redo;
    std::function<void()> cut;
    std::function<void()> copy;
    std::function<void()> paste;
    std::function<void()> remove;
    std::function<void()> selectAll;
};

/// Shows the menu at a place of the display. It returns at once; the chosen action runs later, unless the field is
/// gone by then.
void showEditMenu(QWidget &field, const QPoint &place, const EditMenuState &state, const EditMenuActions &actions);

} // namespace zrv
