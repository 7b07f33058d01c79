// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/text_binders.h"

#include "qt/area_edit.h"
#include "qt/field_edit.h"
#include "qt/form_window.h"
#include "qt/look.h"

#include <QKeyEvent>

namespace zrv {

namespace {

template <class Field>
class TextBinder : public Binder {
public:
    TextBinder(TextBox &box, FormWindow &window)
        : Binder(box, window)
        , m_box(box)
        , m_widget(new Field(box, window, window.groundOf(box.container())))
    {
        adopt(*m_widget);
    }
    [[nodiscard]] QWidget *widget() const override { return m_widget; }
    [[nodiscard]] Field *field() const { return m_widget; }
    [[nodiscard]] bool keepsKey(const QKeyEvent &event) const override
    {
        return Field::keepsKey(event) || Binder::keepsKey(event);
    }
    bool special(QEvent &event) override
    {
        if (event.type() != QEvent::MouseButtonDblClick || !m_box.onDblClick)
            return false;
        m_window.enter([this] { form().userDblClick(m_box); });
        return true;
    }
    void refresh(Aspect aspect) override
    {
        switch (aspect) {
        case Aspect::Text:
            m_widget->showText();
            break;
        case Aspect::Selection:
            m_widget->showSelection();
            break;
        case Aspect::Locked:
            m_widget->showLocked();
            break;
        case Aspect::Colors:
            look::colorField(*m_widget, m_box.backColor(), m_box.textColor());
            break;
        default:
            Binder::refresh(aspect);
        }
    }

private:
    TextBox &m_box;
    Field *m_widget;
};

class AreaBinder : public TextBinder<AreaEdit> {
public:
    using TextBinder::TextBinder;
    [[nodiscard]] QWidget *target() const override { return field()->viewport(); }
};

} // namespace

std::unique_ptr<Binder> makeTextBinder(TextBox &box, FormWindow &window)
{
    if (box.isMultiLine())
        return std::make_unique<AreaBinder>(box, window);
    auto binder = std::make_unique<TextBinder<FieldEdit>>(box, window);
    if (!box.passwordLetter().isNull())
        binder->field()->setEchoMode(QLineEdit::Password);
    return binder;
}

} // namespace zrv
