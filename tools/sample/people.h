// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/sample/plan.h"
#include "tools/sample/row.h"

#include <span>
#include <string>
#include <vector>

namespace zrv::sample {

/// The one payer of the sample: a legal person at its head office, with two signatories.
struct Payer {
    std::string TFN, CodeShobe, MMoadiType, SMoadiType, MohasebeType, Name, Family, ShobeName, Tin, PostCode, CodeHozeh,
        TelNo, Address, MelliCode1, EmzaName1, EmzaFamily1, EmzaSemat1, MelliCode2, EmzaName2, EmzaFamily2, EmzaSemat2,
        EdareName;
};
[[nodiscard]] Payer payer(const Plan &plan);
[[nodiscard]] std::span<const Column<Payer>> payerColumns();

/// A payee's row, and what its salary months follow from.
struct Payee {
    std::string TFN, MelliCode, Name, Family, FatherName, PostCode, Semat, Sabege, Madrak, Rasteh, InsuNo,
        ShakhsMoafCode, MelliatCode, KeshvarCode, BeginDate, EndDate, EstekhdamType, BimehType, HomeAddress;

    int number = 0;     ///< from 0, in the order of entry
    int firstMonth = 1; ///< of the plan's year, with salary rows
    int lastMonth = 12; ///< 0 for one who had left before the year began
    [[nodiscard]] bool isForeign() const { return MelliatCode == "2"; }
    [[nodiscard]] bool isPaidIn(int month) const { return firstMonth <= month && month <= lastMonth; }
};

/// Payee `number` of a sample, made without the others. Of every ten one is a foreigner (9,999 at the most, which is
/// what a summary list can count), of every twelve one had left before the year, one leaves in one of the months and
/// one comes in one of them. The first stays throughout. Of every six one lives in an underdeveloped region (half the
/// tax), one is exempt altogether.
[[nodiscard]] Payee payee(const Plan &plan, const std::string &tfn, int number);
[[nodiscard]] std::span<const Column<Payee>> payeeColumns();

/// A row that the sample adds to the lists of a fresh store.
struct CodeRow {
    std::string list, listName, code, description;
};
/// Jobs, an insurer of the user's own, and the yearly exemption of the plan's year if the fresh store lacks it.
[[nodiscard]] std::vector<CodeRow> codeRows(const Plan &plan);

} // namespace zrv::sample
