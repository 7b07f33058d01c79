// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/edit_menu.h"

#include <QAction>
#include <QMenu>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

void showEditMenu(QWidget &field, const QPoint &place, const EditMenuState &state, const EditMenuActions &actions)
{
    const bool canTake = state.hasSelection && !state.hidesText;
    struct Row {
        QString name;
        QString text;
        const std::function<void()> *action;
        bool enabled;
    };
    const Row rows[] = {
        {u"undo"_s, u"واگرد"_s, &actions.undo, state.canUndo && !state.isLocked},
        {u"redo"_s, u"انجام دوباره"_s, &actions.redo, state.canRedo && !state.isLocked},
        {},
        {u"cut"_s, u"برش"_s, &actions.cut, canTake && !state.isLocked},
        {u"copy"_s, u"رونوشت"_s, &actions.copy, canTake},
        {u"paste"_s, u"چسباندن"_s, &actions.paste, !state.isLocked},
        {u"delete"_s, u"حذف"_s, &actions.remove, state.hasSelection && !state.isLocked},
        {},
        {u"selectAll"_s, u"انتخاب همه"_s, &actions.selectAll, true},
    };
    auto *const menu = new QMenu(&field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Row &row : rows) {
        if (row.text.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        QAction *const action = menu->addAction(row.text, &field, *row.action);
        action->setObjectName(row.name);
        action->setEnabled(row.enabled);
    }
    menu->popup(place);
}

} // namespace zrv
