// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/edit.h"

#include <algorithm>

namespace zrv {

void Edit::setText(const QString &text)
{
    if (text == m_text)
        return;
    assign(text, text.size());
}

void Edit::assign(const QString &text, qsizetype caret)
{
    const bool other = text != m_text;
    m_text = text;
    m_selStart = std::clamp<qsizetype>(caret, 0, text.size());
    m_selLength = 0;
    if (!other) {
        changed(Aspect::Selection);
        return;
    }
    changed(Aspect::Text);
    if (onChange)
        onChange();
}

void Edit::setMaxLength(int length)
{
    if (m_maxLength == length)
        return;
    m_maxLength = length;
    changed(Aspect::Limit);
}

void Edit::setLocked(bool locked)
{
    if (m_locked == locked)
        return;
    m_locked = locked;
    changed(Aspect::Locked);
}

bool Edit::isLeftToRight() const
{
    return m_leftToRight || (tag().contains(u"+DigitOnly") && !tag().contains(u"+FA"));
}

void Edit::select(qsizetype start, qsizetype length)
{
    m_selStart = std::clamp<qsizetype>(start, 0, m_text.size());
    m_selLength = std::clamp<qsizetype>(length, 0, m_text.size() - m_selStart);
    changed(Aspect::Selection);
}

void Edit::insert(const QString &letters)
{
    QString text = m_text;
    text.remove(m_selStart, m_selLength);
    QString fitting = letters;
    if (m_maxLength > 0)
        fitting.truncate(std::max<qsizetype>(0, m_maxLength - text.size()));
    // Half of a surrogate pair is no letter.
    if (!fitting.isEmpty() && fitting.back().isHighSurrogate())
        fitting.chop(1);
    text.insert(m_selStart, fitting);
    assign(text, m_selStart + fitting.size());
}

void Edit::erase(bool backwards)
{
    QString text = m_text;
    qsizetype caret = m_selStart;
    if (m_selLength > 0) {
        text.remove(m_selStart, m_selLength);
    } else if (backwards) {
        if (caret == 0)
            return;
        const bool pair = caret > 1 && text.at(caret - 1).isLowSurrogate();
        caret -= pair ? 2 : 1;
        text.remove(caret, pair ? 2 : 1);
    } else {
        const bool pair = caret + 1 < text.size() && text.at(caret).isHighSurrogate();
        text.remove(caret, pair ? 2 : 1);
    }
    assign(text, caret);
}

} // namespace zrv
