// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <array>

namespace zrv {

/// The columns of a payee behind the key, in the order in which a new row names them, a change sets them and the
/// screen shows them: the nationality comes before the country, which it empties.
inline constexpr std::array<QStringView, 17> PayeeDataColumns{
    u"Name",      u"Family",  u"FatherName",    u"PostCode",       u"Semat",       u"Sabege",
    u"Madrak",    u"Rasteh",  u"InsuNo",        u"ShakhsMoafCode", u"MelliatCode", u"KeshvarCode",
    u"BeginDate", u"EndDate", u"EstekhdamType", u"BimehType",      u"HomeAddress",
};

} // namespace zrv
