// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/widget_stage.h"

#include "qt/form_window.h"
#include "qt/report_view.h"
#include "tests/player/player.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTableView>

#include <array>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A key as a keyboard sends it.
struct SentKey {
    Key key;
    Qt::Key sent;
    QString text;
    Qt::KeyboardModifiers held = {};
};

const std::array SentKeys{
    SentKey{Key::Enter, Qt::Key_Return, u"\r"_s},
    SentKey{Key::Escape, Qt::Key_Escape, u"\u001B"_s},
    SentKey{Key::Tab, Qt::Key_Tab, u"\t"_s},
    SentKey{Key::Backspace, Qt::Key_Backspace, u"\b"_s},
    SentKey{Key::Delete, Qt::Key_Delete, u"\u007F"_s},
    SentKey{Key::Left, Qt::Key_Left, {}},
    SentKey{Key::Right, Qt::Key_Right, {}},
    SentKey{Key::Up, Qt::Key_Up, {}},
    SentKey{Key::Down, Qt::Key_Down, {}},
    SentKey{Key::PageUp, Qt::Key_PageUp, {}},
    SentKey{Key::PageDown, Qt::Key_PageDown, {}},
    SentKey{Key::F3, Qt::Key_F3, {}},
    SentKey{Key::F8, Qt::Key_F8, {}},
    SentKey{Key::F9, Qt::Key_F9, {}},
    SentKey{Key::Find, Qt::Key_F, u"\u0006"_s, Qt::ControlModifier},
};

/// Where a click on the widget takes effect: boxes that are ticked have their mark at one end.
QPoint placeOfClick(const QWidget &widget, ControlKind kind)
{
    if (kind != ControlKind::CheckBox && kind != ControlKind::OptionButton)
        return widget.rect().center();
    QStyleOptionButton option;
    option.initFrom(&widget);
    const auto mark = kind == ControlKind::CheckBox ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator;
    return widget.style()->subElementRect(mark, &option, &widget).center();
}

/// The middle of a column's head, which in a table from right to left is counted from the right.
QPoint middleOfHead(const QHeaderView &head, int column)
{
    const int x = head.sectionViewportPosition(column) + head.sectionSize(column) / 2;
    const int mirrored = head.viewport()->width() - 1 - x;
    return {head.logicalIndexAt(x) == column ? x : mirrored, head.height() / 2};
}

} // namespace

void WidgetStage::runModal(Form &form, const std::function<void()> &letUserAct)
{
    m_platform.users[&form] = letUserAct;
    m_platform.runModal(form);
}

void WindowPlatform::waitWhileOpen(Form &form)
{
    users.at (&form)();
}

FormWindow &WidgetStage::windowOf(const Form &form) const
{
    if (FormWindow *const window = m_platform.windowOf(form))
        return *window;
    failLine(form.name() + u" has no window"_s);
}

QWidget &WidgetStage::usable(const Control &control) const
{
    QWidget *const widget = windowOf(control.form()).widgetFor(control);
    if (!widget)
        failLine(u"the window has no widget "_s + control.name());
    if (!widget->isVisible() || !widget->isEnabled())
        failLine(u"the window shows "_s + control.name() + (widget->isVisible() ? u" disabled"_s : u" hidden"_s));
    return *widget;
}

void WidgetStage::afterEvent() const
{
    // With the last window it has gone all its way.
    if (m_platform.isEnding() && m_platform.topWindow())
        m_platform.throwOn();
}

void WidgetStage::settle()
{
    QCoreApplication::processEvents();
    afterEvent();
}

// Keys ----------------------------------------------------------------------------------------------------------

void WidgetStage::press(Form &form, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    FormWindow &window = windowOf(form);
    QWidget *const focused = window.focusWidget();
    const QPointer<QWidget> target = focused ? focused : &window;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        if (target)
            QCoreApplication::sendEvent(target, &event);
    }
    afterEvent();
}

bool WidgetStage::letter(Form &form, QChar letter)
{
    press(form, letter.toUpper().unicode(), Qt::NoModifier, letter);
    return true;
}

bool WidgetStage::key(Form &form, Key key)
{
    for (const SentKey &row : SentKeys)
        if (row.key == key) {
            press(form, row.sent, row.held, row.text);
            return true;
        }
    return false;
}

bool WidgetStage::paste(Form &form, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    press(form, Qt::Key_V, Qt::ControlModifier, u"\u0016"_s);
    return true;
}

bool WidgetStage::selectText(Control &control)
{
    if (dynamic_cast<Edit *>(&control))
        press(control.form(), Qt::Key_A, Qt::ControlModifier, u"\u0001"_s);
    return true;
}

// Mouse ---------------------------------------------------------------------------------------------------------

void WidgetStage::mouse(QWidget &widget, const QPoint &place, bool twice)
{
    const QPointer<QWidget> target = &widget;
    const std::array types{twice ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, QEvent::MouseButtonRelease};
    for (const QEvent::Type type : types) {
        if (!target)
            break;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, target->mapToGlobal(QPointF(place)), Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }
    afterEvent();
}

void WidgetStage::cell(QAbstractItemView &view, int row, int column, bool twice)
{
    const QModelIndex index = view.model()->index(row, column);
    view.scrollTo(index);
    const QPoint place = view.visualRect(index).center();
    mouse(*view.viewport(), place);
    if (twice)
        mouse(*view.viewport(), place, true);
}

void WidgetStage::clickLine(ReportBox &report, qint64 line, bool twice)
{
    (void)usable(report);
    auto &view = static_cast<ReportView &>(*windowOf(report.form()).inputFor(report));
    view.bringIntoView(line);
    const QPoint place = view.lineRect(line).center();
    mouse(*view.viewport(), place);
    if (twice)
        mouse(*view.viewport(), place, true);
}

bool WidgetStage::focus(Control &control)
{
    if (!control.takesFocus())
        return false;
    (void)usable(control);
    FormWindow &window = windowOf(control.form());
    QWidget &input = *window.inputFor(control);
    input.setFocus(Qt::TabFocusReason);
    // A window that the display has not made the active one gets no word of the focus; the form is asked itself then.
    if (!window.isActiveWindow())
        window.pressed(control);
    afterEvent();
    return true;
}

bool WidgetStage::click(Control &control)
{
    if (QAction *const action = windowOf(control.form()).actionFor(control)) {
        action->trigger();
        afterEvent();
        return true;
    }
    QWidget &widget = usable(control);
    mouse(widget, placeOfClick(widget, control.kind()));
    return true;
}

bool WidgetStage::dblClick(Control &control)
{
    QWidget &widget = usable(control);
    if (const auto *const grid = dynamic_cast<const Grid *>(&control)) {
        cell(static_cast<QAbstractItemView &>(widget), grid->currentRow(), grid->currentColumn(), true);
        return true;
    }
    if (const auto *const list = dynamic_cast<const ListBox *>(&control)) {
        cell(static_cast<QAbstractItemView &>(widget), list->listIndex(), 0, true);
        return true;
    }
    if (auto *const report = dynamic_cast<ReportBox *>(&control)) {
        clickLine(*report, report->currentLine(), true);
        return true;
    }
    mouse(widget, placeOfClick(widget, control.kind()));
    mouse(widget, placeOfClick(widget, control.kind()), true);
    return true;
}

bool WidgetStage::tick(Control &checkOrOption)
{
    return click(checkOrOption);
}

// Lists and grids -----------------------------------------------------------------------------------------------

bool WidgetStage::chooseInCombo(Combo &combo, int row)
{
    // The arrow opens the list, the Enter key picks from it: a release of the mouse would only count after a while.
    auto &widget = static_cast<QComboBox &>(usable(combo));
    QMouseEvent arrow(QEvent::MouseButtonPress, widget.rect().center(), widget.mapToGlobal(widget.rect().center()),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &arrow);
    afterEvent();
    QAbstractItemView &list = *widget.view();
    if (!list.isVisible())
        return false;
    list.setCurrentIndex(widget.model()->index(row, widget.modelColumn()));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCoreApplication::sendEvent(&list, &enter);
    afterEvent();
    return true;
}

bool WidgetStage::chooseRow(Control &list, int row)
{
    if (auto *const combo = dynamic_cast<Combo *>(&list))
        return chooseInCombo(*combo, row);
    QWidget &widget = usable(list);
    if (list.kind() == ControlKind::Tabs) {
        auto &bar = static_cast<QTabBar &>(*windowOf(list.form()).inputFor(list));
        mouse(bar, bar.tabRect(row).center());
    } else {
        cell(static_cast<QAbstractItemView &>(widget), row, 0);
    }
    return true;
}

bool WidgetStage::tickRow(ListBox &list, int row)
{
    auto &view = static_cast<QAbstractItemView &>(usable(list));
    view.model()->setData(view.model()->index(row, 0), Qt::Checked, Qt::CheckStateRole);
    afterEvent();
    return true;
}

bool WidgetStage::row(Grid &grid, int row)
{
    auto &table = static_cast<QTableView &>(usable(grid));
    int column = std::max(0, grid.currentColumn());
    while (table.isColumnHidden(column) && column + 1 < table.model()->columnCount())
        ++column;
    cell(table, row, column);
    return true;
}

bool WidgetStage::line(ReportBox &report, qint64 line)
{
    clickLine(report, line, false);
    return true;
}

bool WidgetStage::head(Grid &grid, int column)
{
    auto &table = static_cast<QTableView &>(usable(grid));
    if (table.isColumnHidden(column))
        failLine(u"the window hides that column"_s);
    mouse(*table.horizontalHeader()->viewport(), middleOfHead(*table.horizontalHeader(), column));
    return true;
}

// The window itself ---------------------------------------------------------------------------------------------

bool WidgetStage::close(Form &form)
{
    windowOf(form).close();
    afterEvent();
    return true;
}

bool WidgetStage::picture(const QString &path)
{
    FormWindow *const window = m_platform.topWindow();
    return window && window->grab().save(path, "PNG");
}

} // namespace zrv::player
