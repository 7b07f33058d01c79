// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QString>

#include <unordered_map>

class QAbstractButton;
class QKeyEvent;

namespace zrv {

class Button;
class Form;

/// The letters with which Alt presses the buttons of a form. A caption that marks one of its letters with "&" has that
/// one; each other button gets a letter of its own caption that no other button and no menu of the form has, and shows
/// it underlined in the same way; one that has only dots takes a letter of its tooltip. The captions themselves stay as
/// the screen gave them.
///
/// Qt knows a marked letter by the sign that the keyboard gives. press() also takes the key that bears the letter while
/// the keyboard is set to Latin, and the other yeh and kaf.
class Mnemonics {
public:
    explicit Mnemonics(const Form &form);

    /// Shows a button's caption with its letter marked.
    void show(QAbstractButton &widget, const Button &button);
    /// The caption that a widget was given, without the mark put in by show().
    [[nodiscard]] static QString captionOf(const QAbstractButton &widget);

    /// The letter of a button, in lower case; null when its caption has none left for it.
    [[nodiscard]] QChar letterOf(const Button &button) const;
    /// The button that a key with Alt presses: the first one with that letter that a user can reach; else null.
    [[nodiscard]] Button *pressedBy(const QKeyEvent &event) const;

private:
    void give(const Button &button);

    const Form &m_form;
    std::unordered_map<const Button *, QChar> m_letters;
    QString m_taken;
};

} // namespace zrv
