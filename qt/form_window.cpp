// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/form_window.h"

#include "core/forms/spoken_name.h"
#include "qt/binder.h"
#include "qt/caption_label.h"
#include "qt/keyboard.h"
#include "qt/layouts/layouts.h"
#include "qt/look.h"
#include "qt/qt_platform.h"
#include "qt/spoken_names.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace zrv {

namespace {

/// The main form is a window of its own right, with a menu and a size that its user chooses; a screen over it is a
/// dialogue, which window managers keep above it. The login has nothing to lie above.
Qt::WindowFlags windowKind(const Form &form, const QWidget *parent)
{
    const bool hasMenu = std::ranges::any_of(
        form.controls(), [](const Control *control) { return control->kind() == ControlKind::MenuItem; });
    return parent && !hasMenu ? Qt::Dialog : Qt::Window;
}

} // namespace

FormWindow::FormWindow(Form &form, QtPlatform &platform, QWidget *parent)
    : QWidget(parent, windowKind(form, parent))
    , m_form(form)
    , m_platform(platform)
    , m_mnemonics(form)
    , m_ground(new look::Ground(this))
{
    setObjectName(form.name());
    setWindowModality(Qt::ApplicationModal);
    auto *const outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    // The window may be smaller than what lies in it: then that scrolls.
    outer->setSizeConstraint(QLayout::SetNoConstraint);
    outer->addWidget(m_ground, 1);
    makeBinders();
    layOut(*this);
    for (Control *control : form.controls())
        binderOf(*control).refreshAll();
    captionChanged();
    form.setView(this);
}

FormWindow::~FormWindow()
{
    m_keptSize.reset();
    m_form.setView(nullptr);
    // Widgets that go still tell of pages and rows that go; nobody is to hear that, and the binders must outlive it.
    m_leaving = true;
    delete (m_scroll ? static_cast<QWidget *>(m_scroll) : m_ground);
}

void FormWindow::makeBinders()
{
    for (Control *control : m_form.controls()) {
        auto binder = makeBinder(*control, *this);
        watch(*binder);
        m_binders.emplace(control, std::move(binder));
    }
}

void FormWindow::watch(Binder &binder)
{
    for (QWidget *part : {binder.widget(), binder.input(), binder.target()}) {
        if (part && m_watched.emplace(part, &binder).second)
            part->installEventFilter(this);
    }
}

Binder &FormWindow::binderOf(const Control &control) const
{
    return *m_binders.at(&control);
}

QWidget *FormWindow::widgetFor(const Control &control) const
{
    return binderOf(control).widget();
}

QWidget *FormWindow::inputFor(const Control &control) const
{
    return binderOf(control).input();
}

QAction *FormWindow::actionFor(const Control &control) const
{
    return binderOf(control).action();
}

QWidget *FormWindow::groundOf(Container &container) const
{
    const Control *const control = container.containerControl();
    return control ? widgetFor(*control) : m_ground;
}

QMenuBar *FormWindow::menuBar()
{
    if (!m_menuBar) {
        m_menuBar = new QMenuBar(this);
        layout()->setMenuBar(m_menuBar);
    }
    return m_menuBar;
}

QStatusBar *FormWindow::statusBar()
{
    if (!m_statusBar) {
        m_statusBar = new QStatusBar(this);
        layout()->addWidget(m_statusBar);
    }
    return m_statusBar;
}

// From the form -------------------------------------------------------------------------------------------------

void FormWindow::controlChanged(Control &control, Aspect aspect)
{
    if (aspect != Aspect::DefaultOrCancel) {
        binderOf(control).refresh(aspect);
        if (aspect == Aspect::Caption)
            renameWidgets(*this, control);
        return;
    }
    // The role was taken from another button.
    for (Control *other : m_form.controls())
        if (other->kind() == ControlKind::Button)
            binderOf(*other).refresh(aspect);
}

void FormWindow::focusMoved(Control *control)
{
    Q_UNUSED(control);
    syncFocus();
}

void FormWindow::captionChanged()
{
    setWindowTitle(m_form.caption());
    setAccessibleName(spokenText(m_form.caption()));
    nameWidgets(*this);
}

void FormWindow::closed()
{
    // A screen reader that holds on to the focused cell must let go before the widgets are gone.
    if (QWidget *const focused = focusWidget())
        focused->clearFocus();
    hide();
    m_platform.wake();
}

void FormWindow::syncFocus()
{
    QWidget *const now = focusWidget();
    if (QApplication::activePopupWidget() || qobject_cast<QMenuBar *>(now))
        return;
    Control *const active = m_form.activeControl();
    QWidget *const wanted = active ? inputFor(*active) : nullptr;
    if (wanted == now)
        return;
    if (wanted) {
        wanted->setFocus(Qt::OtherFocusReason);
        if (m_scroll && m_ground->isAncestorOf(wanted))
            m_scroll->ensureWidgetVisible(wanted);
    } else {
        now->clearFocus();
    }
}

// From the user -------------------------------------------------------------------------------------------------

void FormWindow::enter(const std::function<void()> &action)
{
    if (m_leaving)
        return;
    m_platform.enter(action);
    if (!m_platform.isEnding() && m_form.isOpen() && !m_form.isBusy())
        syncFocus();
}

void FormWindow::enterTyping(const Control *field, const std::function<void()> &action)
{
    const QScopedValueRollback typing(m_typingIn, field);
    enter(action);
}

bool FormWindow::pressed(Control &control)
{
    if (!control.takesFocus())
        return true;
    bool taken = false;
    enter([&] { taken = m_form.userFocus(control) && control.hasFocus(); });
    return taken && !m_form.isBusy();
}

/// True when the form has taken the key; false leaves it to the widget.
bool FormWindow::keyPressed(Binder *binder, const QKeyEvent &event)
{
    if (Button *const button = m_mnemonics.pressedBy(event)) {
        if (!event.isAutoRepeat())
            enter([&] { m_form.userClick(*button); });
        return true;
    }
    if (binder && binder->keepsKey(event))
        return false;
    const auto *const field = dynamic_cast<const Edit *>(m_form.activeControl());
    if (const std::optional<Key> key = namedKey(event)) {
        // A key that is held down must not click its way through boxes that come up meanwhile.
        const bool once = *key == Key::Enter || *key == Key::Escape;
        if (once && event.isAutoRepeat())
            return true;
        if (*key == Key::F10 && m_menuBar && !m_menuBar->actions().isEmpty()) {
            m_menuBar->setFocus(Qt::MenuBarFocusReason);
            m_menuBar->setActiveAction(m_menuBar->actions().constFirst());
            return true;
        }
        if (*key == Key::F1) {
            // Not into a run that draws now and then: it would stand still under the guide.
            if (!event.isAutoRepeat() && !m_form.isBusy())
                enter([this] { m_platform.showGuide(m_form.name()); });
            return true;
        }
        enterTyping(field, [&] { m_form.userKey(*key); });
        return true;
    }
    const QString letters = typedLetters(event, field && field->isLeftToRight());
    if (letters.isEmpty())
        return false;
    enterTyping(field, [&] { letters.size() == 1 ? m_form.userLetter(letters.front()) : m_form.userPaste(letters); });
    return true;
}

bool FormWindow::watchedEvent(Binder &binder, QObject *object, QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
        if (object != binder.input())
            return false;
        return binder.special(event) || keyPressed(&binder, static_cast<const QKeyEvent &>(event));
    case QEvent::FocusIn:
        // Qt moves the focus by itself where the window becomes active or a screen reader asks for it.
        if (object == binder.input() && &binder.control() != m_form.activeControl() && !m_form.isBusy())
            enter([&] { m_form.userFocus(binder.control()); });
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto kind = binder.control().kind();
        const bool isField = kind != ControlKind::Button && kind != ControlKind::CheckBox
                             && kind != ControlKind::OptionButton && kind != ControlKind::Tabs;
        if (object == binder.target() && isField && !pressed(binder.control()))
            return true;
        // A field in a combo box is the target; what is left of the box is its arrow.
        return object == binder.widget() && binder.special(event);
    }
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        return object == binder.widget() && binder.special(event);
    default:
        return false;
    }
}

bool FormWindow::eventFilter(QObject *object, QEvent *event)
{
    const auto watched = m_watched.find(object);
    return !m_leaving && watched != m_watched.end() && watchedEvent(*watched->second, object, *event);
}

void FormWindow::keyPressEvent(QKeyEvent *event)
{
    // Only keys that no control's widget has seen: those of a control come up from it a second time.
    if (!m_watched.contains(focusWidget()) && keyPressed(nullptr, *event))
        return;
    QWidget::keyPressEvent(event);
}

bool FormWindow::focusNextPrevChild(bool next)
{
    Q_UNUSED(next);
    return false;
}

void FormWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    enter([this] { m_form.userClose(); });
}

// Size and place ------------------------------------------------------------------------------------------------

/// The size at which nothing has to be scrolled.
QSize FormWindow::groundSize() const
{
    QSize size = m_ground->sizeHint().expandedTo(m_ground->minimumSize());
    // Texts that wrap need less height in the window's width than in their own.
    const QLayout *const cells = m_ground->layout();
    if (cells && cells->hasHeightForWidth())
        size.setHeight(std::max(cells->heightForWidth(size.width()), m_ground->minimumHeight()));
    return size;
}

void FormWindow::fit()
{
    const QSize room = KeptSize::room(*this);
    int bars = 0;
    for (const QWidget *bar : {static_cast<QWidget *>(m_menuBar), static_cast<QWidget *>(m_statusBar)})
        bars += bar ? bar->sizeHint().height() : 0;
    // Frames within frames learn of their captions by events that a window gets once it is shown.
    for (QWidget *part : m_ground->findChildren<QWidget *>())
        part->updateGeometry();
    for (QLayout *cells : m_ground->findChildren<QLayout *>())
        cells->invalidate();
    QSize wanted = groundSize();
    const bool isHigh = wanted.height() + bars > room.height();
    const int beside = isHigh ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    if (wanted.width() + beside > room.width()) {
        constexpr int Around = 60; // the frames that a text may lie in
        for (const Control *control : m_form.controls())
            if (auto *label = dynamic_cast<CaptionLabel *>(widgetFor(*control));
                label && label->isCentred() && label->sizeHint().width() > room.width() - beside - Around)
                label->setWordWrap(true);
        m_ground->setMinimumWidth(std::min(m_ground->minimumWidth(), room.width() - beside));
        wanted = groundSize();
    }
    if (wanted.height() + bars > room.height()) {
        scroll();
        wanted.rwidth() += m_scroll->verticalScrollBar()->sizeHint().width();
    } else {
        wanted.setHeight(std::min(wanted.height() + m_spare, room.height() - bars));
    }
    resize((wanted + QSize(0, bars)).boundedTo(room));
    layout()->activate();
    // A bar may have taken a little more than it asked for.
    const QWidget &body = m_scroll ? static_cast<QWidget &>(*m_scroll) : *m_ground;
    resize((size() + wanted - body.size()).boundedTo(room));
    // What does not scroll can't be made smaller than it is seen whole.
    if (!m_scroll)
        setMinimumSize(layout()->totalMinimumSize().boundedTo(size()));
}

/// Only a screen that is too high for its display lies in an area that scrolls: making one takes its time.
void FormWindow::scroll()
{
    auto *const outer = static_cast<QVBoxLayout *>(layout());
    outer->removeWidget(m_ground);
    m_scroll = new QScrollArea(this);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(m_ground);
    outer->insertWidget(0, m_scroll, 1);
}

void FormWindow::open()
{
    fit();
    m_keptSize.emplace(*this, m_platform, m_form.name());
    const QWidget *const over = parentWidget();
    const QRect around = over && over->isVisible() ? over->frameGeometry() : screen()->availableGeometry();
    const QRect room = screen()->availableGeometry();
    QPoint corner = around.center() - rect().center();
    corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())));
    corner.setY(std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    move(corner);
    show();
}

} // namespace zrv
