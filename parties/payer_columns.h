// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The payer's columns, which its screen reads and writes, and the types of payer that its rules tell apart.

#include <array>

namespace zrv {

/// Codes of the main payer type; no rule asks for another.
inline constexpr int NaturalPerson = 1;
inline constexpr int LegalPerson = 2;

/// The data columns in the order in which a new row names them; the two key columns come before them.
inline constexpr std::array PayerDataColumns{
    u"MMoadiType", u"SMoadiType", u"MohasebeType", u"Name",        u"Family",     u"ShobeName", u"Tin",
    u"PostCode",   u"CodeHozeh",  u"TelNo",        u"Address",     u"MelliCode1", u"EmzaName1", u"EmzaFamily1",
    u"EmzaSemat1", u"MelliCode2", u"EmzaName2",    u"EmzaFamily2", u"EmzaSemat2", u"EdareName",
};

/// The same in the order in which a change of a row sets them.
inline constexpr std::array PayerUpdatedColumns{
    u"MMoadiType", u"SMoadiType", u"MohasebeType", u"Name",        u"Family",     u"ShobeName", u"Tin",
    u"PostCode",   u"CodeHozeh",  u"TelNo",        u"Address",     u"MelliCode1", u"EmzaName1", u"EmzaFamily1",
    u"MelliCode2", u"EmzaSemat1", u"EmzaName2",    u"EmzaFamily2", u"EmzaSemat2", u"EdareName",
};

} // namespace zrv
