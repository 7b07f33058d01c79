// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program.h"
#include "core/report/report.h"

#include <QHash>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The fields of one printed summary list by their names: TFN, KholListType, TaxYear, TaxMonth (its name), KarfarmaName,
/// Address, TelNo, PostCode, the twelve amounts, RoznameDate, KarkonanNo, KharejiNo, NAGHDY, GNAGHDY, ADAMEPARDAKHT
/// ("1" ticks the box), ChequeSeriNo, ChequeDate, BankName, ShobeName, HesabNo, MablagPardakhti. A field that is not
/// there prints empty.
using KholRow = QHash<QString, QString>;

/// The summary list that is stored under this key, with the payer and each code in words; empty when there is none.
/// Raises the store's errors.
[[nodiscard]] KholRow readKholRow(const Program &program, const QString &TFN, const QString &KholListType,
                                  const QString &TaxYear, const QString &TaxMonth);

/// The month's summary list as a form for the tax office, on one standing A4 page. The summary list's screen shows it
/// for a saved row, the display of electronic files for a file's.
class rptKhol : public Report {
public:
    rptKhol(const Program &program, KholRow row);

    [[nodiscard]] int pageCount() const override { return 1; }
    [[nodiscard]] report::Page page(int number) const override;

    /// File number, year and month, with commas between. All three are those of the last file displayed; before the
    /// first there is the form's own number and neither year nor month.
    [[nodiscard]] QString barCodeText() const;

private:
    const Program &m_program;
    KholRow m_row;
};

} // namespace zrv
