// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/people.h"

#include "tools/sample/dice.h"
#include "tools/sample/numbers.h"
#include "tools/sample/words.h"

#include <algorithm>

namespace zrv::sample {

namespace {

// clang-format off
constexpr Column<Payer> PayerColumns[] = {
    {"TFN", &Payer::TFN}, {"CodeShobe", &Payer::CodeShobe}, {"MMoadiType", &Payer::MMoadiType},
    {"SMoadiType", &Payer::SMoadiType}, {"MohasebeType", &Payer::MohasebeType}, {"Name", &Payer::Name},
    {"Family", &Payer::Family}, {"ShobeName", &Payer::ShobeName}, {"Tin", &Payer::Tin},
    {"PostCode", &Payer::PostCode}, {"CodeHozeh", &Payer::CodeHozeh}, {"TelNo", &Payer::TelNo},
    {"Address", &Payer::Address},
    {"MelliCode1", &Payer::MelliCode1}, {"EmzaName1", &Payer::EmzaName1}, {"EmzaFamily1", &Payer::EmzaFamily1},
    {"EmzaSemat1", &Payer::EmzaSemat1},
    {"MelliCode2", &Payer::MelliCode2}, {"EmzaName2", &Payer::EmzaName2}, {"EmzaFamily2", &Payer::EmzaFamily2},
    {"EmzaSemat2", &Payer::EmzaSemat2}, {"EdareName", &Payer::EdareName},
};

constexpr Column<Payee> PayeeColumns[] = {
    {"TFN", &Payee::TFN}, {"MelliCode", &Payee::MelliCode}, {"Name", &Payee::Name}, {"Family", &Payee::Family},
    {"FatherName", &Payee::FatherName}, {"PostCode", &Payee::PostCode}, {"Semat", &Payee::Semat},
    {"Sabege", &Payee::Sabege}, {"Madrak", &Payee::Madrak}, {"Rasteh", &Payee::Rasteh}, {"InsuNo", &Payee::InsuNo},
    {"ShakhsMoafCode", &Payee::ShakhsMoafCode}, {"MelliatCode", &Payee::MelliatCode},
    {"KeshvarCode", &Payee::KeshvarCode}, {"BeginDate", &Payee::BeginDate}, {"EndDate", &Payee::EndDate},
    {"EstekhdamType", &Payee::EstekhdamType}, {"BimehType", &Payee::BimehType}, {"HomeAddress", &Payee::HomeAddress},
};

/// Jobs short enough for the salary file, behind those of a fresh store.
constexpr std::string_view Jobs[] = {
    "کارشناس فروش", "کارشناس مالي", "منشي", "انباردار", "تکنسين برق", "مهندس ساخت", "برنامه نويس", "مسئول دفتر",
    "آشپز", "پزشک", "سرپرست کارگاه", "مدير خريد", "آزمايشگر", "مترجم", "کارشناس بيمه",
};
// clang-format on

constexpr int FreshJobs = 8; ///< a fresh store has the jobs 1 to 8; job 0 asks for a description of its own
constexpr int OwnInsurer = 4;
constexpr int MostForeigners = 9'999;

/// What kind of payee stands at a place follows from the place, so that the smallest sample has one of each.
bool isForeigner(int number)
{
    return number % 10 == 6 && number / 10 < MostForeigners;
}

std::string code(Dice &dice, int low, int high)
{
    return std::to_string(dice.between(low, high));
}

std::string exemptionCode(Dice &dice, int number)
{
    const int place = (number + number / 10) % 6;
    return place == 1 ? "1" : place == 3 ? code(dice, 2, 11) : "0";
}

void setPerson(Payee &payee, const Plan &plan, int number)
{
    Dice dice(plan.rng, "person", quint64(number));
    const bool foreign = isForeigner(number);
    payee.MelliatCode = foreign ? "2" : "1";
    payee.MelliCode = foreign ? passportNumber(plan, number) : nationalCode(plan, number);
    payee.KeshvarCode = foreign ? code(dice, 2, 8) : "1";
    payee.Name = foreign ? foreignFirstName(dice) : firstName(dice);
    payee.Family = foreign ? foreignFamilyName(dice) : familyName(dice);
    payee.FatherName = foreign ? foreignFirstName(dice) : fatherName(dice);
    payee.Madrak = code(dice, 1, 8);
    if (!dice.oneIn(5)) {
        payee.PostCode = digits(dice, 10);
        payee.HomeAddress = address(dice);
    }
}

void setWork(Payee &payee, const Plan &plan, int number)
{
    Dice dice(plan.rng, "work", quint64(number));
    payee.Semat = code(dice, 1, FreshJobs + int(std::size(Jobs)));
    payee.Rasteh = code(dice, 1, 18);
    payee.EstekhdamType = code(dice, 1, 10);
    payee.ShakhsMoafCode = exemptionCode(dice, number);
    // Nobody is uninsured: the salary file of one without an insurance number can't be checked to its end.
    const int insurer = dice.oneIn(12) ? OwnInsurer : dice.oneIn(6) ? 2 : 1;
    payee.BimehType = std::to_string(insurer);
    payee.InsuNo = digits(dice, insurer == 1 ? 10 : 8);
}

void setTime(Payee &payee, const Plan &plan, int number)
{
    Dice dice(plan.rng, "time", quint64(number));
    const int years = dice.between(2, 25);
    const int month = dice.between(1, 12);
    payee.BeginDate = dateText(plan.year - years, month, dayOf(dice, month));
    payee.Sabege = std::to_string(years);
    const int someMonth = 1 + (number / 12 + 1) % plan.months;
    if (number % 12 == 7) {
        payee.lastMonth = 0;
        const int last = dice.between(1, 12);
        payee.EndDate = dateText(plan.year - 1, last, dayOf(dice, last));
    } else if (number % 12 == 10) {
        payee.lastMonth = someMonth;
        payee.EndDate = dateText(plan.year, someMonth, dayOf(dice, someMonth));
    } else if (number % 12 == 11) {
        payee.firstMonth = someMonth;
        payee.BeginDate = dateText(plan.year, someMonth, dayOf(dice, someMonth));
        payee.Sabege = "0";
    }
}

} // namespace

Payer payer(const Plan &plan)
{
    Dice dice(plan.rng, "payer", 0);
    Payer payer;
    payer.TFN = digits(dice, 12, 1, 3);
    payer.CodeShobe = "1";
    payer.ShobeName = "دفتر مرکزي";
    payer.MMoadiType = "2";
    payer.SMoadiType = "6";
    payer.MohasebeType = "1";
    payer.Family = "شرکت توليدي نمونه نيلگون";
    payer.Tin = digits(dice, 12, 4, 5);
    payer.PostCode = digits(dice, 10);
    payer.CodeHozeh = digits(dice, 6);
    payer.TelNo = "0210" + digits(dice, 7);
    payer.Address = address(dice);
    payer.EdareName = "اداره کل نمونه";
    payer.MelliCode1 = nationalCode(plan, Plan::MostPayees);
    payer.EmzaName1 = firstName(dice);
    payer.EmzaFamily1 = familyName(dice);
    payer.EmzaSemat1 = "مدير عامل";
    payer.MelliCode2 = nationalCode(plan, Plan::MostPayees + 1);
    payer.EmzaName2 = firstName(dice);
    payer.EmzaFamily2 = familyName(dice);
    payer.EmzaSemat2 = "مدير مالي";
    return payer;
}

std::span<const Column<Payer>> payerColumns()
{
    return PayerColumns;
}

Payee payee(const Plan &plan, const std::string &tfn, int number)
{
    Payee payee;
    payee.number = number;
    payee.TFN = tfn;
    setPerson(payee, plan, number);
    setWork(payee, plan, number);
    setTime(payee, plan, number);
    return payee;
}

std::span<const Column<Payee>> payeeColumns()
{
    return PayeeColumns;
}

std::vector<CodeRow> codeRows(const Plan &plan)
{
    std::vector<CodeRow> rows;
    int job = FreshJobs;
    for (const std::string_view description : Jobs)
        rows.push_back({"2", "سمت يا شغل", std::to_string(++job), std::string(description)});
    rows.push_back({"16", "نوع بيمه", std::to_string(OwnInsurer), "بيمه تکميلي"});
    if (plan.year != 1388)
        rows.push_back({"17", "معافيت سالانه ماده 84", std::to_string(plan.year), "52000000"});
    return rows;
}

} // namespace zrv::sample
