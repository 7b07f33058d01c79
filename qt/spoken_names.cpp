// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/spoken_names.h"

#include "core/forms/form.h"
#include "core/forms/spoken_name.h"
#include "qt/form_window.h"

#include <QLabel>
#include <QVariant>

#include <algorithm>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A field, or the end of the names of several, and the word that tells it from others behind the same label, or stands
/// for a label where there is none.
struct OwnWord {
    QStringView field;
    QStringView word;
};

// clang-format off
constexpr OwnWord OwnWords[] = {
    {u"_Year",           u"سال"},
    {u"_Month",          u"ماه"},
    {u"_Day",            u"روز"},
    {u"txtSearch",       u"متن جستجو"},
    {u"txtLog",          u"شرح"},
    {u"txtHelpMessage",  u"راهنما"},
    {u"textMelliCode",   u"کد ملي"},
    {u"dcbSMoadiType",   u"فرعي"},
    {u"txtNewTFN",       u"کد پرونده جديد"},
    {u"txtNewCodeShobe", u"کد شعبه جديد"},
    {u"lstJobs",         u"فهرست اصلاحات"},
    {u"txtEncode",       u"متن"},
    {u"txtDecode",       u"رمز"},
};
// clang-format on

QString ownWord(const Control &control)
{
    if (control.kind() == ControlKind::ReportBox)
        return static_cast<const ReportBox &>(control).spokenName();
    const auto own =
        std::ranges::find_if(OwnWords, [&control](const OwnWord &word) { return control.name().endsWith(word.field); });
    return own == std::end(OwnWords) ? QString() : own->word.toString();
}

void name(const FormWindow &window, const Control &control)
{
    QWidget *const widget = window.widgetFor(control);
    // What lies in a picture or on the status bar says enough by itself.
    const bool isGround = control.kind() == ControlKind::Picture || control.kind() == ControlKind::StatusPanel;
    if (!widget || isGround || widget->property(NamedByLayout).isValid())
        return;
    const QString name = fullSpokenName(control, ownWord(control));
    widget->setAccessibleName(name);
    // A combo box and a report have their keys from a widget inside.
    window.inputFor(control)->setAccessibleName(name);
    // Of a combo box a reader takes the name from its label.
    if (const Label *const label = labelOf(control))
        if (auto *const shown = qobject_cast<QLabel *>(window.widgetFor(*label)); shown && !shown->buddy())
            shown->setBuddy(widget);
}

} // namespace

void nameWidgets(const FormWindow &window)
{
    for (const Control *control : window.form().controls())
        name(window, *control);
}

void renameWidgets(const FormWindow &window, const Control &control)
{
    name(window, control);
    if (control.kind() == ControlKind::Label)
        for (const Control *field : fieldsOf(static_cast<const Label &>(control)))
            name(window, *field);
}

} // namespace zrv
