// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/mnemonics.h"

#include "core/basic/keyboard_letters.h"
#include "core/forms/form.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QVariant>

#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The property of a button's widget that holds the place of a mark that its caption does not have.
constexpr char MarkPlace[] = "markPlace";

/// The letters of the Persian keyboard and what the same keys bear when it is set to Latin.
struct KeyRow {
    QStringView latin;
    QStringView persian;
};
constexpr std::array KeyRows{
    KeyRow{u"qwertyuiop[]", u"\u0636\u0635\u062B\u0642\u0641\u063A\u0639\u0647\u062E\u062D\u062C\u0686"},
    KeyRow{u"asdfghjkl;'", u"\u0634\u0633\u064A\u0628\u0644\u0627\u062A\u0646\u0645\u06A9\u06AF"},
    KeyRow{u"zxcvbn,\\", u"\u0638\u0637\u0632\u0631\u0630\u062F\u0648\u067E"},
};

QChar persianOfKey(QChar latin)
{
    for (const KeyRow &row : KeyRows)
        if (const qsizetype place = row.latin.indexOf(latin); place >= 0)
            return row.persian[place];
    return {};
}

/// A letter that one key gives without Shift.
bool isOnAKey(QChar letter)
{
    for (const KeyRow &row : KeyRows)
        if (row.persian.contains(letter))
            return true;
    return letter >= u'a' && letter <= u'z';
}

QChar folded(QChar letter)
{
    return keyboardLetter(letter).toLower();
}

/// The letter that a caption marks itself; null when it marks none.
QChar markedLetter(const QString &caption)
{
    const qsizetype mark = caption.indexOf(u'&');
    return mark < 0 || mark + 1 >= caption.size() ? QChar() : folded(caption[mark + 1]);
}

/// The first letter of a caption that is free, those that begin a word before the others.
QChar freeLetter(const QString &caption, const QString &taken)
{
    QChar inside;
    bool begins = true;
    for (const QChar sign : caption) {
        const QChar letter = folded(sign);
        if (isOnAKey(letter) && !taken.contains(letter)) {
            if (begins)
                return letter;
            if (inside.isNull())
                inside = letter;
        }
        begins = sign == u' ';
    }
    return inside;
}

bool hasLetters(const QString &caption)
{
    return !freeLetter(caption, {}).isNull();
}

qsizetype placeOf(QChar letter, const QString &caption)
{
    qsizetype inside = -1;
    for (qsizetype place = 0; place < caption.size(); ++place) {
        if (folded(caption[place]) != letter)
            continue;
        if (place == 0 || caption[place - 1] == u' ')
            return place;
        if (inside < 0)
            inside = place;
    }
    return inside;
}

} // namespace

Mnemonics::Mnemonics(const Form &form)
    : m_form(form)
{
    // What the captions mark themselves goes first; a menu of the bar is reached by Alt as well.
    for (const Control *control : form.controls())
        if (const QChar letter = markedLetter(control->shownText());
            !letter.isNull() && (control->kind() == ControlKind::Button || control->kind() == ControlKind::MenuItem))
            m_taken += letter;
    for (const Control *control : form.controls())
        if (control->kind() == ControlKind::Button)
            give(static_cast<const Button &>(*control));
}

void Mnemonics::give(const Button &button)
{
    if (!markedLetter(button.caption()).isNull())
        return;
    QChar letter = freeLetter(button.caption(), m_taken);
    if (!hasLetters(button.caption()))
        letter = freeLetter(button.toolTip(), m_taken);
    m_letters[&button] = letter;
    if (!letter.isNull())
        m_taken += letter;
}

QChar Mnemonics::letterOf(const Button &button) const
{
    const QChar marked = markedLetter(button.caption());
    if (!marked.isNull())
        return marked;
    const auto given = m_letters.find(&button);
    return given == m_letters.end() ? QChar() : given->second;
}

void Mnemonics::show(QAbstractButton &widget, const Button &button)
{
    QString caption = button.caption();
    QVariant mark;
    if (markedLetter(caption).isNull()) {
        // A caption that changes may have lost its letter.
        if (hasLetters(caption) && placeOf(letterOf(button), caption) < 0)
            give(button);
        if (const qsizetype place = placeOf(letterOf(button), caption); place >= 0) {
            caption.insert(place, u'&');
            mark = place;
        }
    }
    widget.setProperty(MarkPlace, mark);
    widget.setText(caption);
    // A letter that no mark shows has to be said.
    const bool isMarked = caption.contains(u'&') || letterOf(button).isNull();
    widget.setAccessibleDescription(isMarked ? QString() : QString(u"Alt+"_s + letterOf(button)));
}

QString Mnemonics::captionOf(const QAbstractButton &widget)
{
    const QVariant mark = widget.property(MarkPlace);
    QString caption = widget.text();
    if (mark.isValid())
        caption.remove(mark.toLongLong(), 1);
    // A long one is shown in two lines where the display is narrow.
    return caption.replace(u'\n', u' ');
}

Button *Mnemonics::pressedBy(const QKeyEvent &event) const
{
    if (event.modifiers() != Qt::AltModifier || event.key() <= Qt::Key_Space || event.key() > 0xFFFF)
        return nullptr;
    const QChar typed = folded(QChar(event.key()));
    for (const QChar letter : {typed, persianOfKey(typed)}) {
        if (letter.isNull())
            continue;
        for (Control *control : m_form.controls()) {
            if (control->kind() != ControlKind::Button || !control->isReachable())
                continue;
            auto &button = static_cast<Button &>(*control);
            if (letterOf(button) == letter)
                return &button;
        }
    }
    return nullptr;
}

} // namespace zrv
