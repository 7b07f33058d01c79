// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/button_binders.h"

#include "qt/form_window.h"
#include "qt/icons.h"
#include "qt/mnemonics.h"

#include <QCheckBox>
#include <QEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

namespace zrv {

namespace {

/// A click of the widget is the user's; what the widget then shows is the control's, which may have refused.
void passClicks(QAbstractButton &widget, FormWindow &window, Binder &binder)
{
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&] {
        window.enter([&] { window.form().userClick(binder.control()); });
        binder.refresh(Aspect::Checked);
    });
}

/// The caption in two lines where the display has no room for it in one.
QString inTheRoomOf(const QWidget &widget, QString caption)
{
    constexpr int Beside = 120; // the box or the drawing, and what lies around it
    if (widget.fontMetrics().horizontalAdvance(caption) > widget.screen()->availableSize().width() - Beside) {
        const qsizetype blank = caption.indexOf(u' ', caption.size() / 2);
        if (blank >= 0)
            caption[blank] = u'\n';
    }
    return caption;
}

} // namespace

ButtonBinder::ButtonBinder(Button &button, FormWindow &window)
    : Binder(button, window)
    , m_button(button)
    , m_widget(new QPushButton(window.groundOf(button.container())))
{
    adopt(*m_widget);
    if (const QString name = look::iconName(form().name(), button.name()); !name.isEmpty())
        m_widget->setIcon(look::icon(name));
    passClicks(*m_widget, window, *this);
}

QWidget *ButtonBinder::widget() const
{
    return m_widget;
}

void ButtonBinder::refresh(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Caption:
        m_window.mnemonics().show(*m_widget, m_button);
        m_widget->setText(inTheRoomOf(*m_widget, m_widget->text()));
        break;
    case Aspect::DefaultOrCancel:
        m_widget->setDefault(m_button.isDefault());
        break;
    case Aspect::Colors:
        break; // Buttons look alike everywhere.
    default:
        Binder::refresh(aspect);
    }
}

CheckBinder::CheckBinder(CheckBox &box, FormWindow &window)
    : Binder(box, window)
    , m_box(box)
    , m_widget(new QCheckBox(window.groundOf(box.container())))
{
    adopt(*m_widget);
    passClicks(*m_widget, window, *this);
}

QWidget *CheckBinder::widget() const
{
    return m_widget;
}

void CheckBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Caption)
        m_widget->setText(inTheRoomOf(*m_widget, m_box.caption()));
    else if (aspect == Aspect::Checked)
        m_widget->setChecked(m_box.isChecked());
    else
        Binder::refresh(aspect);
}

OptionBinder::OptionBinder(OptionButton &option, FormWindow &window)
    : Binder(option, window)
    , m_option(option)
    , m_widget(new QRadioButton(window.groundOf(option.container())))
{
    adopt(*m_widget);
    passClicks(*m_widget, window, *this);
    // Qt has cleared the others of the group; the form may have refused.
    QObject::connect(m_widget, &QAbstractButton::clicked, m_widget, [this] {
        for (const Control *other : m_option.container().children())
            if (other->kind() == ControlKind::OptionButton)
                m_window.binderOf(*other).refresh(Aspect::Checked);
    });
}

QWidget *OptionBinder::widget() const
{
    return m_widget;
}

void OptionBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Caption) {
        m_widget->setText(m_option.caption());
    } else if (aspect == Aspect::Checked) {
        // An exclusive button, which a screen reader knows from a check box by that, can't be cleared by the form.
        m_widget->setAutoExclusive(false);
        m_widget->setChecked(m_option.isChecked());
        m_widget->setAutoExclusive(true);
    } else {
        Binder::refresh(aspect);
    }
}

bool OptionBinder::special(QEvent &event)
{
    if (event.type() != QEvent::MouseButtonDblClick)
        return false;
    m_window.enter([this] { form().userDblClick(m_option); });
    return true;
}

} // namespace zrv
