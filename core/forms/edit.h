// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/control.h"

namespace zrv {

/// What a text box, a combo box and a data combo share: a text that is edited, its selection and its limit.
/// Lengths and places count UTF-16 units.
class Edit : public Control {
public:
    [[nodiscard]] const QString &text() const { return m_text; }
    /// Replaces the text; onChange runs only when it really becomes another. The caret goes behind the last letter.
    void setText(const QString &text);
    [[nodiscard]] QString shownText() const override { return m_text; }

    /// The longest text a user can enter, 0 for any length. The program may set longer ones.
    [[nodiscard]] int maxLength() const { return m_maxLength; }
    void setMaxLength(int length);
    /// A locked field can be read, selected and copied but not typed in.
    [[nodiscard]] bool isLocked() const { return m_locked; }
    void setLocked(bool locked);

    /// Digits, codes and Latin texts run from left to right whatever is typed first; all other fields from right to
    /// left, where the Left key moves on and the Right key back.
    [[nodiscard]] bool isLeftToRight() const;

    [[nodiscard]] qsizetype selStart() const { return m_selStart; }
    [[nodiscard]] qsizetype selLength() const { return m_selLength; }
    void select(qsizetype start, qsizetype length);
    void selectAll() { select(0, m_text.size()); }

    /// Puts letters in place of the selection as far as the limit allows, the way a user's typing does.
    virtual void insert(const QString &letters);
    /// Removes the selection, or the letter before (behind) the caret.
    virtual void erase(bool backwards);

    std::function<void()> onChange;

protected:
    Edit(Container &container, QString name, ControlKind kind)
        : Control(container, std::move(name), kind, true)
    {
    }
    /// Sets the text and the caret, tells the view, then the screen.
    void assign(const QString &text, qsizetype caret);
    friend class Form;

    QString m_text;
    int m_maxLength = 0;
    bool m_locked = false;
    bool m_leftToRight = false;
    qsizetype m_selStart = 0;
    qsizetype m_selLength = 0;
};

} // namespace zrv
