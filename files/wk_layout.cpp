// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/wk_layout.h"

namespace zrv {
namespace {

using enum Fill;

// clang-format off
constexpr std::array<Field, 25> SummaryFields = {{
    // no name                table            made of width list
    //   label, meaning
    { 1, u"TFN",             u"ZRVtbKholList", Padded,  12,  0,
     u"(شماره پرونده)"}, // the payer's file number
    { 2, u"TaxYear",         u"ZRVtbKholList", Padded,   4,  0,
     u"(سال پرداخت)"}, // tax year
    { 3, u"TaxMonth",        u"ZRVtbKholList", Padded,   2,  4,
     u"(ماه پرداخت)"}, // tax month code
    { 4, u"JariSumHogog",    u"ZRVtbKholList", Amount,  15,  0,
     u"(جمع حقوق پرداختي ماه جاري)"}, // total salaries paid this month
    { 5, u"JariSumMashmol",  u"ZRVtbKholList", Amount,  15,  0,
     u"(جمع حقوق و مزاياي نقدي و غير نقدي مشمول ماليات ماه جاري)"}, // total taxable salaries and benefits, cash and non-cash, this month
    { 6, u"JariTax",         u"ZRVtbKholList", Amount,  15,  0,
     u"(جمع ماليات متعلقه ماه جاري)"}, // total tax due this month
    { 7, u"JariJarimeDo",    u"ZRVtbKholList", Amount,  15,  0,
     u"(جريمه عدم تسليم به موقع خلاصه ليست 2% جقوق پرداختي ماه جاري)"}, // penalty for late filing, 2% of the salaries of the month
    { 8, u"JariJarimeBist",  u"ZRVtbKholList", Amount,  15,  0,
     u"(جريمه عدم پرداخت به موقع ماليات 20% ماليات متعلقه ماه جاري)"}, // penalty for late payment, 20% of the tax of the month
    { 9, u"JariBedehiTax",   u"ZRVtbKholList", Amount,  15,  0,
     u"(بدهي مالياتي ماه جاري)"}, // tax debt of this month
    {10, u"GablSumHogog",    u"ZRVtbKholList", Amount,  17,  0,
     u"(جمع حقوق پرداختي تا ماه گذشته)"}, // as JariSumHogog, up to last month
    {11, u"GablSumMashmol",  u"ZRVtbKholList", Amount,  17,  0,
     u"(جمع حقوق و مزاياي نقدي و غير نقدي مشمول ماليات تا ماه گذشته)"}, // as JariSumMashmol, up to last month
    {12, u"GablTax",         u"ZRVtbKholList", Amount,  17,  0,
     u"(جمع ماليات متعلقه تا ماه گذشته)"}, // as JariTax, up to last month
    {13, u"GablJarimeDo",    u"ZRVtbKholList", Amount,  17,  0,
     u"(جريمه عدم تسليم به موقع خلاصه ليست 2% جقوق پرداختي تا ماه گذشته)"}, // as JariJarimeDo, up to last month
    {14, u"GablJarimeBist",  u"ZRVtbKholList", Amount,  17,  0,
     u"(جريمه عدم پرداخت به موقع ماليات 20% ماليات متعلقه تا ماه گذشته)"}, // as JariJarimeBist, up to last month
    {15, u"GablBedehiTax",   u"ZRVtbKholList", Amount,  17,  0,
     u"(بدهي مالياتي تا ماه گذشته)"}, // as JariBedehiTax, up to last month
    {16, u"RoznameDate",     u"ZRVtbKholList", Column,   8,  0,
     u"(تاريخ ثبت روزنامه(تخصيص))"}, // date of entry in the journal, Solar Hijri, eight digits
    {17, u"KarkonanNo",      u"ZRVtbKholList", Column,   6,  0,
     u"(تعداد کل کارکنان)"}, // number of payees in all
    {18, u"KharejiNo",       u"ZRVtbKholList", Column,   4,  0,
     u"(تعداد کارکنان خارجي)"}, // number of foreign payees
    {19, u"NahveyePardakht", u"ZRVtbKholList", Column,   4,  9,
     u"(نحوه پرداخت)"}, // manner of payment, 2 is the cheque
    {20, u"ChequeSeriNo",    u"ZRVtbKholList", Column,   6,  0,
     u"(شماره سريال چک)"}, // cheque serial number
    {21, u"ChequeDate",      u"ZRVtbKholList", Column,   8,  0,
     u"(تاريخ چک)"}, // cheque date
    {22, u"BankName",        u"ZRVtbKholList", Column,   4,  8,
     u"(کد بانک)"}, // bank code
    {23, u"ShobeName",       u"ZRVtbKholList", Column,  25,  0,
     u"(نام شعبه بانک)"}, // name of the bank branch
    {24, u"HesabNo",         u"ZRVtbKholList", Column,  13,  0,
     u"(شماره حساب)"}, // account number
    {25, u"MablagPardakhti", u"ZRVtbKholList", Amount,  15,  0,
     u"(مبلغ پرداختي/مبلغ چک)"}, // amount paid, or of the cheque
}};
// clang-format on

static_assert(isNumberedInOrder(SummaryFields));

} // namespace

std::span<const Field> wkFields()
{
    return SummaryFields;
}

} // namespace zrv
