// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/spoken_name.h"

#include "core/forms/form.h"

#include <algorithm>

namespace zrv {

namespace {

constexpr QChar Stroke = u'\u0640';
constexpr QChar NonJoiner = u'\u200C'; ///< belongs to the spelling of a word

bool saysSomething(const QString &text)
{
    return std::ranges::any_of(text, [](QChar sign) { return !sign.isPunct() && !sign.isSpace(); });
}

bool marksKeys(const Control &control)
{
    return control.kind() == ControlKind::Button || control.kind() == ControlKind::MenuItem;
}

bool isField(const Control &control)
{
    return dynamic_cast<const Edit *>(&control) != nullptr;
}

/// Between a label and its field: the other fields of that label, and the box that holds the parts of a date.
bool standsBetween(const Control &control)
{
    return isField(control) || control.kind() == ControlKind::Picture;
}

/// The caption of a page is its own or the one that the tab control gave it.
QString pageCaption(const Tabs &tabs, const Control &page)
{
    const auto place = std::ranges::find(tabs.children(), &page) - tabs.children().begin();
    return tabs.captions().value(place);
}

QString surroundingCaption(const Control &control)
{
    for (const Control *inner = &control; Control *const outer = inner->container().containerControl(); inner = outer) {
        if (outer->kind() == ControlKind::Frame && saysSomething(outer->shownText()))
            return spokenText(outer->shownText());
        if (outer->kind() == ControlKind::Tabs)
            return spokenText(pageCaption(static_cast<const Tabs &>(*outer), *inner));
    }
    return spokenText(control.form().caption());
}

} // namespace

QString spokenText(const QString &caption)
{
    QString text;
    for (const QChar sign : caption) {
        if (sign == Stroke)
            continue;
        if (sign.category() == QChar::Other_Control)
            text += u' ';
        else if (sign == NonJoiner || sign.category() != QChar::Other_Format)
            text += sign;
    }
    text = text.simplified();
    while (text.endsWith(u':') || text.endsWith(u' '))
        text.chop(1);
    return text;
}

const Label *labelOf(const Control &field)
{
    if (!isField(field))
        return nullptr;
    const std::vector<Control *> &all = field.form().controls();
    for (int place = field.tabIndex() - 1; place >= 0; --place) {
        const Control &before = *all[static_cast<size_t>(place)];
        if (before.kind() == ControlKind::Label)
            return static_cast<const Label *>(&before);
        if (!standsBetween(before))
            return nullptr;
    }
    return nullptr;
}

std::vector<Control *> fieldsOf(const Label &label)
{
    const std::vector<Control *> &all = label.form().controls();
    std::vector<Control *> fields;
    for (size_t place = static_cast<size_t>(label.tabIndex()) + 1; place < all.size() && standsBetween(*all[place]);
         ++place)
        if (isField(*all[place]))
            fields.push_back(all[place]);
    return fields;
}

QString fullSpokenName(const Control &control, const QString &ownWord)
{
    if (dynamic_cast<const Captioned *>(&control)) {
        QString caption = control.shownText();
        if (marksKeys(control))
            caption.remove(u'&');
        return spokenText(saysSomething(caption) ? caption : control.toolTip());
    }
    const Label *const label = labelOf(control);
    const QString name = spokenText((label ? label->caption() : QString()) + u' ' + ownWord);
    return name.isEmpty() ? surroundingCaption(control) : name;
}

} // namespace zrv
