// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/amounts.h"

#include "core/basic/number_format.h"
#include "core/basic/val.h"

#include <algorithm>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Beyond what any column holds, and low enough for sums of a few of them.
constexpr qint64 LargestAmount = 1'000'000'000'000'000'000;

QString withoutSeparators(QString amount)
{
    return amount.remove(u',');
}

} // namespace

QString shownAmount(const QString &amount)
{
    return Format(withoutSeparators(amount), u"#,##0");
}

QString plainAmount(const QString &amount)
{
    return Format(withoutSeparators(amount), u"0");
}

qint64 amountOf(const QString &amount)
{
    return std::clamp(wholeVal(plainAmount(amount)), -LargestAmount, LargestAmount);
}

} // namespace zrv
