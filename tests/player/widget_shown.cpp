// SPDX-License-Identifier: GPL-3.0-or-later
// What the widgets show of the controls' properties.
#include "qt/form_window.h"
#include "tests/player/properties.h"
#include "tests/player/widget_stage.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

#include <array>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

using Shown = std::optional<QString>;

Shown textOf(const QWidget &input, const QWidget &widget)
{
    if (const auto *field = qobject_cast<const QLineEdit *>(&input))
        return field->text();
    if (const auto *area = qobject_cast<const QPlainTextEdit *>(&input))
        return area->toPlainText();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return Mnemonics::captionOf(*button);
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        return group->title();
    return {};
}

Shown lockedOf(const QWidget &input)
{
    if (const auto *field = qobject_cast<const QLineEdit *>(&input))
        return flagText(field->isReadOnly());
    if (const auto *area = qobject_cast<const QPlainTextEdit *>(&input))
        return flagText(area->isReadOnly());
    return {};
}

Shown rowsOf(const QWidget &widget)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        return QString::number(combo->count());
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
        return QString::number(view->model()->rowCount());
    return {};
}

Shown columnsOf(const QWidget &widget)
{
    const auto *const view = qobject_cast<const QAbstractItemView *>(&widget);
    if (!view)
        return {};
    QStringList captions;
    for (int column = 0; column < view->model()->columnCount(); ++column)
        captions += view->model()->headerData(column, Qt::Horizontal).toString();
    return captions.join(u'|');
}

/// Only the active window has the focus at all.
Shown focusedOf(const QWidget &input)
{
    return input.window()->isActiveWindow() ? Shown(flagText(input.hasFocus())) : Shown();
}

Shown checkedOf(const QWidget &widget)
{
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return button ? Shown(flagText(button->isChecked())) : Shown();
}

Shown defaultOf(const QWidget &widget)
{
    const auto *const button = qobject_cast<const QPushButton *>(&widget);
    return button ? Shown(flagText(button->isDefault())) : Shown();
}

Shown pageOf(const QWidget &widget)
{
    const auto *const tabs = qobject_cast<const QTabWidget *>(&widget);
    return tabs ? Shown(QString::number(tabs->currentIndex())) : Shown();
}

struct Reader {
    QStringView property;
    Shown (*read)(const QWidget &input, const QWidget &widget);
};

// clang-format off
constexpr std::array Readers{
    Reader{u"text",    textOf},
    Reader{u"caption", textOf},
    Reader{u"enabled", [](const QWidget &, const QWidget &w) { return Shown(flagText(w.isEnabled())); }},
    Reader{u"visible", [](const QWidget &, const QWidget &w) { return Shown(flagText(w.isVisibleTo(w.window()))); }},
    Reader{u"locked",  [](const QWidget &input, const QWidget &) { return lockedOf(input); }},
    Reader{u"focused", [](const QWidget &input, const QWidget &) { return focusedOf(input); }},
    Reader{u"checked", [](const QWidget &, const QWidget &w) { return checkedOf(w); }},
    Reader{u"default", [](const QWidget &, const QWidget &w) { return defaultOf(w); }},
    Reader{u"tooltip", [](const QWidget &, const QWidget &w) { return Shown(w.toolTip()); }},
    Reader{u"rows",    [](const QWidget &, const QWidget &w) { return rowsOf(w); }},
    Reader{u"count",   [](const QWidget &, const QWidget &w) { return rowsOf(w); }},
    Reader{u"columns", [](const QWidget &, const QWidget &w) { return columnsOf(w); }},
    Reader{u"tab",     [](const QWidget &, const QWidget &w) { return pageOf(w); }},
};
// clang-format on

/// An item is reached through the menus around it.
Shown shownOfItem(const FormWindow &window, const Control &item, QStringView property)
{
    if (property == u"caption" || property == u"text")
        return window.actionFor(item)->isSeparator() ? Shown() : Shown(window.actionFor(item)->text());
    bool enabled = true;
    bool visible = true;
    for (const Control *at = &item; at; at = at->container().containerControl()) {
        enabled = enabled && window.actionFor(*at)->isEnabled();
        visible = visible && window.actionFor(*at)->isVisible();
    }
    if (property == u"enabled")
        return flagText(enabled);
    return property == u"visible" ? Shown(flagText(visible)) : Shown();
}

} // namespace

std::optional<QString> WidgetStage::shown(const Control &control, QStringView property)
{
    const FormWindow &window = windowOf(control.form());
    if (window.actionFor(control))
        return shownOfItem(window, control, property);
    const QWidget *const widget = window.widgetFor(control);
    if (!widget)
        return {};
    for (const Reader &reader : Readers)
        if (reader.property == property)
            return reader.read(*window.inputFor(control), *widget);
    return {};
}

std::optional<QString> WidgetStage::shownCell(const Grid &grid, int row, int column)
{
    const auto *const view = qobject_cast<const QAbstractItemView *>(windowOf(grid.form()).widgetFor(grid));
    return view ? Shown(view->model()->index(row, column).data().toString()) : Shown();
}

} // namespace zrv::player
