// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <array>

namespace zrv {

// The columns of ZRVtbKholList, which the summary list's screen reads and writes. "Jari" columns are of the month,
// "Gabl" columns the sum of the months before it.

/// The kind of list that the screen keeps; no other can be chosen.
inline constexpr QStringView MonthlyList = u"1";

/// What a column holds, and so what its field is.
enum class SummaryValue {
    Amount,
    Count,
    Date,
    Code, ///< a code list's
    Bank, ///< the number of a bank's code
    Text,
};

struct SummaryColumn {
    QStringView name;
    SummaryValue holds;
    int digits = 0; ///< how many a user can enter of an amount or count
};

// clang-format off
/// The data columns in the order in which a new row names them; the four key columns come before them.
inline constexpr std::array<SummaryColumn, 22> SummaryDataColumns = {{
    {u"JariSumHogog",    SummaryValue::Amount, 15},
    {u"JariSumMashmol",  SummaryValue::Amount, 15},
    {u"JariTax",         SummaryValue::Amount, 15},
    {u"JariJarimeDo",    SummaryValue::Amount, 15},
    {u"JariJarimeBist",  SummaryValue::Amount, 15},
    {u"JariBedehiTax",   SummaryValue::Amount, 15},
    {u"GablSumHogog",    SummaryValue::Amount, 17},
    {u"GablSumMashmol",  SummaryValue::Amount, 17},
    {u"GablTax",         SummaryValue::Amount, 17},
    {u"GablJarimeDo",    SummaryValue::Amount, 17},
    {u"GablJarimeBist",  SummaryValue::Amount, 17},
    {u"GablBedehiTax",   SummaryValue::Amount, 17},
    {u"RoznameDate",     SummaryValue::Date},
    {u"KarkonanNo",      SummaryValue::Count, 6},
    {u"KharejiNo",       SummaryValue::Count, 4},
    {u"NahveyePardakht", SummaryValue::Code},
    {u"ChequeSeriNo",    SummaryValue::Text},
    {u"ChequeDate",      SummaryValue::Date},
    {u"BankName",        SummaryValue::Bank},
    {u"ShobeName",       SummaryValue::Text},
    {u"HesabNo",         SummaryValue::Text},
    {u"MablagPardakhti", SummaryValue::Amount, 15},
}};

/// The columns of a saved row that are shown, in this order: the earlier sums replace what has just been added up,
/// the manner of payment comes before the cheque that it may close, and the amount paid after all that sets it. The
/// month's own sums and its number of payees aren't among them, they are counted afresh.
inline constexpr std::array<QStringView, 18> SummaryShownColumns = {
    u"JariJarimeDo", u"JariJarimeBist", u"JariBedehiTax",   u"GablSumHogog", u"GablSumMashmol", u"GablTax",
    u"GablJarimeDo", u"GablJarimeBist", u"GablBedehiTax",   u"RoznameDate",  u"KharejiNo",      u"NahveyePardakht",
    u"ChequeSeriNo", u"ChequeDate",     u"BankName",        u"ShobeName",    u"HesabNo",        u"MablagPardakhti",
};

/// What the amount to pay is the sum of.
inline constexpr std::array<QStringView, 4> AmountToPayColumns = {
    u"JariTax", u"JariJarimeDo", u"JariJarimeBist", u"JariBedehiTax",
};

/// The sums of the months before, all of them zero in the first month of a year. The first three are added up in the
/// other months, the last three are the user's to type.
inline constexpr std::array<QStringView, 6> EarlierColumns = {
    u"GablSumHogog", u"GablSumMashmol", u"GablTax", u"GablJarimeDo", u"GablJarimeBist", u"GablBedehiTax",
};

/// What a manner of payment makes of the cheque and of the amount paid.
struct PaymentKind {
    QStringView code;
    bool byCheque;
    bool takesAmount;   ///< otherwise the amount is "0" and can't be typed
    bool amountMayBeZero;
};

inline constexpr std::array<PaymentKind, 3> PaymentKinds = {{
    {.code = u"1", .byCheque = false, .takesAmount = true,  .amountMayBeZero = true},  // cash
    {.code = u"2", .byCheque = true,  .takesAmount = true,  .amountMayBeZero = false}, // cheque
    {.code = u"3", .byCheque = false, .takesAmount = false, .amountMayBeZero = true},  // handed in without payment
}};
// clang-format on

} // namespace zrv
