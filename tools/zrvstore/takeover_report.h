// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/findings.h"

namespace zrv::storetool {

/// What a takeover can find in an old store beside verify's findings.
namespace finding {

inline constexpr QStringView ColumnType = u"column-type";
inline constexpr QStringView RowCount = u"row-count";
inline constexpr QStringView Letters = u"letters";
inline constexpr QStringView OldCodePage = u"old-code-page";
inline constexpr QStringView Spelling = u"spelling";  ///< of a column's name
inline constexpr QStringView CutOff = u"cut-off";     ///< the file isn't whole pages
inline constexpr QStringView LooseRow = u"loose-row"; ///< a row with bytes that belong to no column

} // namespace finding

/// Takes down what a takeover finds: faults, after which nothing is taken over; doubts, which are taken over as they
/// stand; and notes.
class TakeoverReport {
public:
    TakeoverReport(Findings::Sink sink, int mostOfAKind)
        : m_findings(std::move(sink), mostOfAKind)
    {
    }

    void fault(QStringView kind, const QString &where, const QString &what)
    {
        if (m_faults++ == 0) {
            m_firstKind = kind;
            m_first = where + QStringLiteral(": ") + what;
        }
        m_findings.add(kind, where, what);
    }
    void doubt(QStringView kind, const QString &where, const QString &what) { m_findings.add(kind, where, what); }
    void note(QStringView kind, const QString &where, const QString &what) { m_findings.note(kind, where, what); }

    [[nodiscard]] qint64 faults() const { return m_faults; }
    [[nodiscard]] const QString &firstFault() const { return m_first; }
    [[nodiscard]] QStringView kindOfFirstFault() const { return m_firstKind; }

    [[nodiscard]] Findings &findings() { return m_findings; }

private:
    Findings m_findings;
    qint64 m_faults = 0;
    QString m_first;
    QStringView m_firstKind;
};

} // namespace zrv::storetool
