// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lists/month_arithmetic.h"
#include "tests/print_text.h"

#include <QStringList>

#include <array>

namespace zrv {

/// The fields of a month without a screen.
class PaperSheet : public MonthSheet {
public:
    struct Field {
        QString text;
        bool enabled = true;
        bool colouredOpen = true;
        qsizetype caret = 0;
    };

    Field &operator[](MonthField field) { return m_fields[static_cast<std::size_t>(field)]; }
    const Field &operator[](MonthField field) const { return m_fields[static_cast<std::size_t>(field)]; }

    QStringList warnings; ///< title and text, a bar between
    QString taxInWords;
    QStringList assigned; ///< each change of a text, "name=text"
    MonthArithmetic rules{*this};

    /// Empty and open, as between two payees.
    void clear() { m_fields = {}; }

    /// What a user does to a field that is open: its text becomes another, the caret behind what was entered.
    void enter(MonthField field, const QString &text)
    {
        if ((*this)[field].text == text)
            return;
        (*this)[field].text = text;
        (*this)[field].caret = text.size() / 2;
        rules.changed(field);
    }

    [[nodiscard]] QString text(MonthField field) const override { return (*this)[field].text; }
    void setText(MonthField field, const QString &text) override
    {
        if ((*this)[field].text == text)
            return;
        (*this)[field].text = text;
        assigned += columnOf(field).name + u'=' + text;
        rules.changed(field);
    }
    void moveCaretToEnd(MonthField field) override { (*this)[field].caret = (*this)[field].text.size(); }
    void disable(MonthField field) override
    {
        (*this)[field].enabled = false;
        assigned += columnOf(field).name + QLatin1String(" disabled");
    }
    void setOpen(MonthField amount, bool open) override
    {
        (*this)[amount].enabled = (*this)[amount].colouredOpen = open;
    }
    void showTaxInWords(const QString &words) override { taxInWords = words; }
    void warn(const QString &title, const QString &text) override { warnings += title + u'|' + text; }

private:
    std::array<Field, MonthFields> m_fields;
};

} // namespace zrv
