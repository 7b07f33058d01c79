// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lists/amounts.h"
#include "lists/salary_columns.h"

#include <QString>

#include <functional>
#include <optional>

namespace zrv {

// How one payee's month is worked out: sums and differences of what the payer enters, and no tax. The salary list
// binds its fields to it; the rules themselves know no screen.

/// What a payee's exemption code comes down to for the time the payee is open. The values are those of a set.
enum class ExemptionClass : quint8 {
    GMoaf = 1,   ///< no exemption: the final tax is the tax
    KTosehe = 2, ///< a less developed region: both taxes are entered
    Moaf = 4,    ///< full exemption: only gross amounts are entered
};

/// The class of a ShakhsMoafCode, of whatever code: all but "0" and "1" exempt in full.
[[nodiscard]] ExemptionClass exemptionClassOf(QStringView shakhsMoafCode);
/// What lbDVaziateMoafiat shows.
[[nodiscard]] QString exemptionText(ExemptionClass exemption);

/// An amount as it is stored, "1200": blank ones as "0".
[[nodiscard]] QString storedAmount(const QString &shown);

/// The fields of a month, as a screen has them.
class MonthSheet {
public:
    virtual ~MonthSheet() = default;

    /// An amount as it stands in its field, or a status's code.
    [[nodiscard]] virtual QString text(MonthField field) const = 0;
    /// Puts an amount, with the caret behind its last character, or a status's code into the field. When that leaves
    /// the text as it is, nothing else may happen; otherwise MonthArithmetic::changed() must run for the field before
    /// this returns.
    virtual void setText(MonthField field, const QString &text) = 0;
    /// The caret goes behind the last character of a field that a user has edited.
    virtual void moveCaretToEnd(MonthField field) = 0;
    virtual void disable(MonthField field) = 0;
    /// Switches an amount with its status: also its colour shows which it is.
    virtual void setOpen(MonthField amount, bool open) = 0;
    /// The final tax in words; empty to clear it.
    virtual void showTaxInWords(const QString &words) = 0;
    /// A critical box.
    virtual void warn(const QString &title, const QString &text) = 0;
};

/// The rules. A screen calls changed() for each field whose text becomes another, whoever changed it, and the others
/// when a payee is opened: readClass(), then loadRow() or beginRow(), then applyClass().
///
/// Amounts are whole rials in 64 bits; a field's number is what its text without separators begins with, blank is 0.
class MonthArithmetic {
public:
    explicit MonthArithmetic(MonthSheet &sheet);

    /// Takes the class from the payee's ShakhsMoafCode. Without a value there is no such payee: that is told, and the
    /// class stays what it was.
    void readClass(const std::optional<QString> &shakhsMoafCode);
    [[nodiscard]] ExemptionClass exemptionClass() const { return m_class; }

    /// Shows a saved row: `stored` gives the text of a column. Three derived amounts aren't read but worked out again.
    void loadRow(const std::function<QString(QStringView column)> &stored);
    /// A payee without a row: neither housing nor car.
    void beginRow();
    /// What the class zeroes and disables.
    void applyClass();

    /// A field's text has become another: separators are put in as the digits come, and what follows from the field is
    /// worked out, which may change further fields.
    void changed(MonthField field);

    // The formulas, as plain digits.
    [[nodiscard]] QString SumCashAmounts() const;
    [[nodiscard]] QString CashRemainder() const;
    [[nodiscard]] QString SumNonCashAmounts() const;
    [[nodiscard]] QString SumRemainders() const;
    [[nodiscard]] QString CopiedTax() const;

private:
    struct Step;
    static const Step Steps[];

    [[nodiscard]] qint64 amount(MonthField field) const;
    [[nodiscard]] bool isOf(quint8 classes) const { return (static_cast<quint8>(m_class) & classes) != 0; }
    /// True when the field holds an amount as it is shown; otherwise it has been put so, and its rule has run.
    bool isFormatted(MonthField field);
    bool exemptionIsTooHigh();
    void statusChanged(MonthField status, MonthField amount);

    MonthSheet &m_sheet;
    ExemptionClass m_class = ExemptionClass::GMoaf;
    bool m_loading = false;
};

} // namespace zrv
