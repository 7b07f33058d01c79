// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/month_arithmetic.h"

#include "core/basic/text.h"
#include "core/public/null_text.h"
#include "core/public/number_words.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;
using enum MonthField;

namespace {

constexpr quint8 operator|(ExemptionClass left, ExemptionClass right)
{
    return static_cast<quint8>(left) | static_cast<quint8>(right);
}

constexpr quint8 Taxed = ExemptionClass::GMoaf | ExemptionClass::KTosehe;
constexpr quint8 Exempt = static_cast<quint8>(ExemptionClass::Moaf);
constexpr quint8 GMoafAlone = static_cast<quint8>(ExemptionClass::GMoaf);
constexpr quint8 Any = Taxed | Exempt;

/// The columns of a saved row that are shown, in this order: the copy of the tax is overwritten by the final tax. The
/// other derived amounts come out of these.
constexpr MonthField LoadOrder[] = {
    NJariHogog,       JariEzafeKar,    NJariSayerPardakhtiha, NJariMoafiate91, GJariHogog,       MaskanStatus,
    MaskanMablagh,    OtomobilStatus,  OtomobilMablagh,       GTotalDaramad,   GDaramadeMashmol, PJariHogog,
    PDaramadeMashmol, SayereMoafiatha, FinalDaramadeMashmol,  JariTax,         FinalTax,
};

/// What a payee of full exemption can't have, in the order in which it is set to zero and disabled.
constexpr MonthField ZeroWhenExempt[] = {
    NJariMoafiate91,      NDaramadeMashmol, GDaramadeMashmol, PDaramadeMashmol,
    FinalDaramadeMashmol, JariTax,          FinalTax,         SayereMoafiatha,
};

const QString NoUse = u"1"_s; ///< the code of a status that goes with no amount

} // namespace

// clang-format off
/// What a changed field changes, by the payee's class.
struct MonthArithmetic::Step {
    MonthField changed;
    quint8 classes;
    MonthField target;
    QString (MonthArithmetic::*formula)() const;
};

const MonthArithmetic::Step MonthArithmetic::Steps[] = {
    {NJariHogog,            Any,        NTotalDaramad,           &MonthArithmetic::SumCashAmounts},
    {JariEzafeKar,          Any,        NTotalDaramad,           &MonthArithmetic::SumCashAmounts},
    {NJariSayerPardakhtiha, Any,        NTotalDaramad,           &MonthArithmetic::SumCashAmounts},
    {NTotalDaramad,         Taxed,      NDaramadeMashmol,        &MonthArithmetic::CashRemainder},
    {NTotalDaramad,         Exempt,     NGPTotalDaramadeMashmol, &MonthArithmetic::SumRemainders},
    {NJariMoafiate91,       Any,        NDaramadeMashmol,        &MonthArithmetic::CashRemainder},
    {NDaramadeMashmol,      Any,        NGPTotalDaramadeMashmol, &MonthArithmetic::SumRemainders},
    {GJariHogog,            Any,        GTotalDaramad,           &MonthArithmetic::SumNonCashAmounts},
    {MaskanMablagh,         Any,        GTotalDaramad,           &MonthArithmetic::SumNonCashAmounts},
    {OtomobilMablagh,       Any,        GTotalDaramad,           &MonthArithmetic::SumNonCashAmounts},
    {GTotalDaramad,         Exempt,     NGPTotalDaramadeMashmol, &MonthArithmetic::SumRemainders},
    {GDaramadeMashmol,      Any,        NGPTotalDaramadeMashmol, &MonthArithmetic::SumRemainders},
    {PDaramadeMashmol,      Any,        NGPTotalDaramadeMashmol, &MonthArithmetic::SumRemainders},
    {PJariHogog,            Exempt,     NGPTotalDaramadeMashmol, &MonthArithmetic::SumRemainders},
    {JariTax,               GMoafAlone, FinalTax,                &MonthArithmetic::CopiedTax},
};
// clang-format on

// Classes and texts ------------------------------------------------------------------------------------------

ExemptionClass exemptionClassOf(QStringView shakhsMoafCode)
{
    if (shakhsMoafCode == u"0")
        return ExemptionClass::GMoaf;
    return shakhsMoafCode == u"1" ? ExemptionClass::KTosehe : ExemptionClass::Moaf;
}

QString exemptionText(ExemptionClass exemption)
{
    switch (exemption) {
    case ExemptionClass::GMoaf:
        return u"عدم معافيت"_s;
    case ExemptionClass::KTosehe:
        return u"مناطق کمتر توسعه يافته-50% معافيت"_s;
    case ExemptionClass::Moaf:
        break;
    }
    return u"معافيت کامل"_s;
}

QString storedAmount(const QString &shown)
{
    return NullToZero(Trim(plainAmount(shown)));
}

// The formulas -----------------------------------------------------------------------------------------------

qint64 MonthArithmetic::amount(MonthField field) const
{
    return amountOf(m_sheet.text(field));
}

QString MonthArithmetic::SumCashAmounts() const
{
    return QString::number(amount(NJariHogog) + amount(JariEzafeKar) + amount(NJariSayerPardakhtiha));
}

QString MonthArithmetic::CashRemainder() const
{
    // The total may have fallen below an exemption that was accepted earlier, and which is left as it stands.
    return NegativeToZero(QString::number(amount(NTotalDaramad) - amount(NJariMoafiate91)));
}

QString MonthArithmetic::SumNonCashAmounts() const
{
    return QString::number(amount(GJariHogog) + amount(MaskanMablagh) + amount(OtomobilMablagh));
}

QString MonthArithmetic::SumRemainders() const
{
    if (isOf(Exempt)) // nothing is deducted
        return QString::number(amount(NTotalDaramad) + amount(GTotalDaramad) + amount(PJariHogog));
    return QString::number(amount(NDaramadeMashmol) + amount(GDaramadeMashmol) + amount(PDaramadeMashmol));
}

QString MonthArithmetic::CopiedTax() const
{
    return m_sheet.text(JariTax);
}

// A change and what follows ----------------------------------------------------------------------------------

MonthArithmetic::MonthArithmetic(MonthSheet &sheet)
    : m_sheet(sheet)
{
}

void MonthArithmetic::changed(MonthField field)
{
    if (field == MaskanStatus || field == OtomobilStatus) {
        statusChanged(field, field == MaskanStatus ? MaskanMablagh : OtomobilMablagh);
        return;
    }
    if (!isFormatted(field))
        return;
    m_sheet.moveCaretToEnd(field);
    if (field == NJariMoafiate91 && exemptionIsTooHigh())
        return;
    if (field == FinalTax) {
        const bool blank = trimBlanks(m_sheet.text(FinalTax)).isEmpty();
        m_sheet.showTaxInWords(blank ? QString() : NumberToWords(amount(FinalTax), u"ريال"));
    }
    for (const Step &step : Steps) {
        if (step.changed == field && isOf(step.classes))
            m_sheet.setText(step.target, (this->*step.formula)());
    }
}

bool MonthArithmetic::isFormatted(MonthField field)
{
    const QString text = m_sheet.text(field);
    QString shown = shownAmount(text);
    // A paste can bring more digits than fit once they have their separators; typing would have ended there.
    const int limit = columnOf(field).limit;
    if (limit > 0 && shown.size() > limit && !m_loading)
        shown = shownAmount(shown.left(limit));
    m_sheet.setText(field, shown);
    return shown == text;
}

bool MonthArithmetic::exemptionIsTooHigh()
{
    if (amount(NTotalDaramad) >= amount(NJariMoafiate91))
        return false;
    // clang-format off
    m_sheet.warn(u" تــوجه  "_s, u" مقدار معافيت ماده 91 نميتواند بزرگتر از (جمع کل مبالغ پرداختي/ تخصيصي نقدي) باشد."_s);
    // clang-format on
    m_sheet.setText(NJariMoafiate91, u"0"_s);
    return true;
}

void MonthArithmetic::statusChanged(MonthField status, MonthField amount)
{
    const QString code = m_sheet.text(status);
    if (code.isEmpty())
        return;
    m_sheet.setOpen(amount, code != NoUse);
    if (code == NoUse)
        m_sheet.setText(amount, QString());
}

// Opening a payee --------------------------------------------------------------------------------------------

void MonthArithmetic::readClass(const std::optional<QString> &shakhsMoafCode)
{
    if (shakhsMoafCode)
        m_class = exemptionClassOf(*shakhsMoafCode);
    else
        m_sheet.warn(u" تــوجه  "_s, u" مشخصات اين دريافت کننده حقوق وارد سيستم نگرديده است "_s);
}

void MonthArithmetic::loadRow(const std::function<QString(QStringView)> &stored)
{
    struct Loading {
        bool &flag;
        ~Loading() { flag = false; }
    } const guard{m_loading};
    m_loading = true;
    for (const MonthField field : LoadOrder) {
        const SalaryColumn &column = columnOf(field);
        const QString text = stored(column.name);
        m_sheet.setText(field, column.origin == Origin::Status ? text : shownAmount(text));
    }
}

void MonthArithmetic::beginRow()
{
    m_sheet.setText(MaskanStatus, NoUse);
    m_sheet.setText(OtomobilStatus, NoUse);
}

void MonthArithmetic::applyClass()
{
    if (isOf(GMoafAlone))
        m_sheet.disable(FinalTax);
    if (!isOf(Exempt))
        return;
    for (const MonthField field : ZeroWhenExempt) {
        m_sheet.setText(field, u"0"_s);
        m_sheet.disable(field);
    }
}

} // namespace zrv
