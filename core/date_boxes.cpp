// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/date_boxes.h"

#include "core/basic/val.h"
#include "core/mdlPublic.h"

#include <QScopedValueRollback>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int YearDigits = 4;
constexpr int PartDigits = 2;
constexpr int StoredDigits = 8;

constexpr int LastMonth = 12;
constexpr int LastDay = 31;
constexpr int FirstMonthOf30Days = 7; ///< the six months before have 31

bool isFull(const TextBox &box)
{
    return box.text().trimmed().size() >= box.maxLength();
}

} // namespace

DateBoxes::DateBoxes(Platform &platform, Container &container, const QString &stem, const Look &look)
    : m_platform(platform)
    , year(container, stem + u"_Year"_s, {.limit = YearDigits, .tag = look.yearTag, .leftToRight = true})
    , month(container, stem + u"_Month"_s, {.limit = PartDigits, .tag = look.monthTag, .leftToRight = true})
    , day(container, stem + u"_Day"_s, {.limit = PartDigits, .tag = look.dayTag, .leftToRight = true})
    , m_dayShortensMonth(look.dayShortensMonth)
    , m_judgesShownDay(look.judgesShownDay)
{
    year.onChange = [this] { yearChanged(); };
    year.onLostFocus = [this] { yearLeft(); };
    month.onChange = [this] { monthChanged(); };
    month.onLostFocus = [this] { partLeft(month, u"   ورود ماه صفر غير مجاز است  "_s); };
    month.onKeyDown = [this](Key key) { return key == Key::Backspace && stepBack(month, year, true); };
    day.onChange = [this] { dayChanged(); };
    day.onLostFocus = [this] { partLeft(day, u"   ورود روز صفر غير مجاز است  "_s); };
    day.onKeyDown = [this](Key key) { return key == Key::Backspace && stepBack(day, month, m_dayShortensMonth); };
    for (TextBox *part : {&month, &day})
        part->onKeyPress = [](int &keyAscii) { keyAscii = FilterKey(u"+DigitOnly", keyAscii); };
}

void DateBoxes::show(const QString &date)
{
    year.setText(date.mid(0, YearDigits));
    month.setText(date.mid(YearDigits, PartDigits));
    day.setText(date.mid(YearDigits + PartDigits, PartDigits));
}

QString DateBoxes::joined() const
{
    return year.text().trimmed() + month.text().trimmed() + day.text().trimmed();
}

QString DateBoxes::stored() const
{
    const QString date = joined();
    return date.size() == StoredDigits ? date : QString();
}

void DateBoxes::refuse(const QString &text, TextBox &box, const QString &left)
{
    m_platform.messageBox(box::Refusal, u" اخطار  "_s, text);
    box.setText(left);
    // The part that hands the focus back isn't judged for it: of two zeros each would send the focus to the other.
    const QScopedValueRollback handingBack(m_handsBack, true);
    box.setFocus();
}

// Only what a user types is judged, unless the screen wants the day judged always: a stored date is shown as it is.

void DateBoxes::yearChanged()
{
    if (year.hasFocus() && isFull(year))
        month.setFocus();
}

void DateBoxes::monthChanged()
{
    if (!month.hasFocus())
        return;
    if (wholeVal(month.text()) > LastMonth)
        refuse(u"   ورود ماه بزرگتر از 12 غير مجاز است  "_s, month, {});
    else if (isFull(month))
        day.setFocus();
}

void DateBoxes::dayChanged()
{
    if (!day.hasFocus() && !m_judgesShownDay)
        return;
    const qint64 value = wholeVal(day.text());
    if (value > LastDay)
        refuse(u"   ورود روز بزرگتر از 31 غير مجاز است  "_s, day, {});
    else if (value == LastDay && wholeVal(month.text()) >= FirstMonthOf30Days)
        refuse(u"   ششماهه دوم سال حداكثر 30 روزه هستند . "_s, day, u"30"_s);
}

void DateBoxes::yearLeft()
{
    year.setText(FullYear(year.text()));
    year.select(0, 0);
}

void DateBoxes::partLeft(TextBox &part, const QString &zeroIsRefused)
{
    const QString text = part.text().trimmed();
    if (text == u"0") {
        if (!m_handsBack)
            refuse(zeroIsRefused, part, text);
    } else if (text.size() == 1) {
        part.setText(u"0"_s + text);
    }
}

bool DateBoxes::stepBack(TextBox &from, TextBox &to, bool shorten)
{
    if (!from.text().isEmpty())
        return false;
    QString text = to.text();
    if (shorten)
        text.chop(1);
    to.setText(text);
    to.setFocus();
    // The whole text is selected now; the next key would replace it.
    if (shorten)
        to.select(text.size(), 0);
    return true;
}

} // namespace zrv
