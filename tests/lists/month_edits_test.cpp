// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is entered in whatever order, the derived amounts are what the entered ones make.
#include "tests/lists/paper_sheet.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;
using enum MonthField;

constexpr int Edits = 4000;

/// What the user has entered, in numbers, and what must follow from it: worked out afresh each time and without a
/// chain.
class Expected {
public:
    explicit Expected(ExemptionClass exemption)
        : m_class(exemption)
    {
    }

    /// True if the amount is refused.
    bool enter(MonthField field, qint64 amount)
    {
        const bool refused = field == NJariMoafiate91 && amount > cash();
        m_entered[field] = refused ? 0 : amount;
        return refused;
    }

    void check(const PaperSheet &sheet) const
    {
        const bool exempt = m_class == ExemptionClass::Moaf;
        const qint64 remainder = exempt ? 0 : std::max<qint64>(0, cash() - of(NJariMoafiate91));
        expect(sheet, NTotalDaramad, cash());
        expect(sheet, NDaramadeMashmol, remainder);
        expect(sheet, GTotalDaramad, nonCash());
        expect(sheet, NGPTotalDaramadeMashmol,
               exempt ? cash() + nonCash() + of(PJariHogog) : remainder + of(GDaramadeMashmol) + of(PDaramadeMashmol));
        expect(sheet, FinalTax, m_class == ExemptionClass::GMoaf ? of(JariTax) : of(FinalTax));
        expect(sheet, NJariMoafiate91, of(NJariMoafiate91));
    }

private:
    [[nodiscard]] qint64 of(MonthField field) const
    {
        const auto entered = m_entered.find(field);
        return entered == m_entered.end() ? 0 : entered->second;
    }
    [[nodiscard]] qint64 cash() const { return of(NJariHogog) + of(JariEzafeKar) + of(NJariSayerPardakhtiha); }
    [[nodiscard]] qint64 nonCash() const { return of(GJariHogog) + of(MaskanMablagh) + of(OtomobilMablagh); }

    static void expect(const PaperSheet &sheet, MonthField field, qint64 amount)
    {
        QString digits = sheet.text(field);
        digits.remove(u',');
        EXPECT_EQ(digits.toLongLong(), amount) << columnOf(field).name.toString().toStdString();
        EXPECT_EQ(sheet.text(field), shownAmount(digits));
    }

    ExemptionClass m_class;
    std::map<MonthField, qint64> m_entered;
};

struct Payee {
    const char *name;
    const char16_t *code;
};

class MonthEdits : public testing::TestWithParam<Payee> {
protected:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(limit)); }

    /// Of one to ten digits, or blank; every fourth near to the last one, where sums and limits meet.
    qint64 amount()
    {
        if (below(6) == 0)
            return 0;
        if (below(4) == 0)
            return std::max<qint64>(0, m_last + below(3) - 1);
        qint64 limit = 10;
        for (int digits = below(10); digits > 0; --digits)
            limit *= 10;
        m_last = static_cast<qint64>((quint64(m_random()) << 32 | m_random()) % static_cast<quint64>(limit));
        return m_last;
    }

    std::vector<MonthField> openFields() const
    {
        std::vector<MonthField> fields;
        for (std::size_t i = 0; i < MonthFields; ++i) {
            const auto field = static_cast<MonthField>(i);
            if (sheet[field].enabled && columnOf(field).origin != Origin::Derived)
                fields.push_back(field);
        }
        return fields;
    }

    void enterSomething(Expected &expected)
    {
        const std::vector<MonthField> fields = openFields();
        const MonthField field = fields[static_cast<std::size_t>(below(static_cast<int>(fields.size())))];
        if (columnOf(field).origin == Origin::Status) {
            const int code = 1 + below(3);
            sheet.enter(field, QString::number(code));
            if (code == 1)
                expected.enter(field == MaskanStatus ? MaskanMablagh : OtomobilMablagh, 0);
            return;
        }
        const qint64 value = amount();
        const auto warned = sheet.warnings.size();
        const bool same = sheet.text(field) == shownAmount(QString::number(value));
        sheet.enter(field, value == 0 && below(2) == 0 ? QString() : QString::number(value));
        EXPECT_EQ(sheet.warnings.size() > warned, expected.enter(field, value) && !same);
    }

    std::mt19937 m_random;
    qint64 m_last = 0;
    PaperSheet sheet;
};

TEST_P(MonthEdits, LeaveTheDerivedAmountsAsTheFormulasHaveThem)
{
    for (const std::uint32_t seed : {1U, 2U, 3U, 4U, 5U}) {
        SCOPED_TRACE(seed);
        m_random.seed(seed);
        sheet.clear();
        sheet.rules.readClass(QString::fromUtf16(GetParam().code));
        sheet.rules.beginRow();
        sheet.rules.applyClass();
        Expected expected(sheet.rules.exemptionClass());
        for (int edit = 0; edit < Edits && !HasFailure(); ++edit) {
            enterSomething(expected);
            expected.check(sheet);
        }
        EXPECT_EQ(sheet.warnings.size() > 20, sheet.rules.exemptionClass() != ExemptionClass::Moaf)
            << "exemptions are refused now and then";
        sheet.warnings.clear();
    }
}

INSTANTIATE_TEST_SUITE_P(Classes, MonthEdits,
                         testing::Values(Payee{"GMoaf", u"0"}, Payee{"KTosehe", u"1"}, Payee{"Moaf", u"4"}),
                         [](const auto &payee) { return std::string(payee.param.name); });

} // namespace
} // namespace zrv
