// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/keyboard_letters.h"

#include <QString>

namespace zrv {
namespace {

constexpr QChar ArabicYeh = u'\u064A';
constexpr QChar FarsiYeh = u'\u06CC';

constexpr bool isArabicPresentationForm(QChar letter)
{
    return (letter >= u'\uFB50' && letter <= u'\uFDFF') || (letter >= u'\uFE70' && letter <= u'\uFEFF');
}

/// Ligatures, lam with alef among them, are more than one letter and stay.
QChar withoutPresentation(QChar letter)
{
    if (!isArabicPresentationForm(letter))
        return letter;
    const QString decomposed = letter.decomposition();
    return decomposed.size() == 1 ? decomposed.front() : letter;
}

} // namespace

QChar keyboardLetter(QChar typed)
{
    // Superscripts and circled digits have digit values too, but are no keys of digits.
    if (typed.category() == QChar::Number_DecimalDigit)
        return QChar(char16_t(u'0' + typed.digitValue()));
    const QChar letter = withoutPresentation(typed);
    return letter == FarsiYeh ? ArabicYeh : letter;
}

} // namespace zrv
