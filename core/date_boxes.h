// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/controls.h"
#include "core/platform/platform.h"

namespace zrv {

/// A Solar Hijri date typed in three boxes, STEM_Year, STEM_Month and STEM_Day. A full box sends the focus on to the
/// next one, Backspace in an empty one sends it back, and what no month or day can be is refused as it is typed.
/// Month and day take digits alone, whatever their tags.
///
/// Whether there is such a day isn't judged: "00", or the thirtieth of a month of 29, passes.
class DateBoxes {
public:
    /// What dates differ in from screen to screen.
    struct Look {
        QString yearTag = QStringLiteral("+DigitOnly");
        QString monthTag = {};
        QString dayTag = {};
        /// Backspace in an empty day takes the last digit of the month, as it does with month and year.
        bool dayShortensMonth = false;
        /// The day is judged whoever changes it: a stored day that can't be is told as it is shown.
        bool judgesShownDay = false;
    };

    DateBoxes(Platform &platform, Container &container, const QString &stem, const Look &look);
    DateBoxes(Platform &platform, Container &container, const QString &stem)
        : DateBoxes(platform, container, stem, Look{})
    {
    }
    DateBoxes(const DateBoxes &) = delete;
    DateBoxes &operator=(const DateBoxes &) = delete;

    /// Shows a stored date of eight digits, cut by position.
    void show(const QString &date);
    /// The three trimmed texts one behind the other, however long.
    [[nodiscard]] QString joined() const;
    /// The date as it is stored: eight digits, or empty when the boxes hold more or less.
    [[nodiscard]] QString stored() const;

private:
    Platform &m_platform;

public:
    TextBox year;
    TextBox month;
    TextBox day;

private:
    void yearChanged();
    void yearLeft();
    void monthChanged();
    void dayChanged();
    void partLeft(TextBox &part, const QString &zeroIsRefused);
    bool stepBack(TextBox &from, TextBox &to, bool shorten);
    void refuse(const QString &text, TextBox &box, const QString &left);

    bool m_dayShortensMonth;
    bool m_judgesShownDay;
    bool m_handsBack = false; ///< while a refused part gets the focus back
};

} // namespace zrv
