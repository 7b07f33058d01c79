// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <map>
#include <string_view>

namespace zrv::storetool {

/// What verify can find, each with a name that scripts and tests may rely on.
namespace finding {

inline constexpr QStringView Damage = u"damage"; ///< the file itself, as SQLite's own check tells it
inline constexpr QStringView MissingTable = u"missing-table";
inline constexpr QStringView MissingColumn = u"missing-column";
inline constexpr QStringView UnknownColumn = u"unknown-column";
inline constexpr QStringView ColumnOrder = u"column-order"; ///< where rows are inserted without naming columns
inline constexpr QStringView ColumnWidth = u"column-width";
inline constexpr QStringView MissingKey = u"missing-key";       ///< nothing in the file keeps a key unique
inline constexpr QStringView ForeignObject = u"foreign-object"; ///< triggers, views and tables of somebody else
inline constexpr QStringView DuplicateKey = u"duplicate-key";
inline constexpr QStringView TooLong = u"too-long";
inline constexpr QStringView Form = u"form";   ///< a number, date or word that no screen writes
inline constexpr QStringView Empty = u"empty"; ///< a value that every row must have
inline constexpr QStringView UnknownCode = u"unknown-code";
inline constexpr QStringView ListName = u"list-name"; ///< a code list under two names
inline constexpr QStringView EmptyList = u"empty-list";
inline constexpr QStringView PayerCount = u"payer-count";
inline constexpr QStringView NoSupervisor = u"no-supervisor";
inline constexpr QStringView OrphanTfn = u"orphan-tfn"; ///< a row of a payer that isn't there
inline constexpr QStringView MissingPayee = u"missing-payee";
inline constexpr QStringView RowSum = u"row-sum";         ///< sums of a salary row
inline constexpr QStringView OtherClass = u"other-class"; ///< note: reckoned under another exemption class
inline constexpr QStringView SummarySum = u"summary-sum"; ///< a summary row against the month's salary rows
inline constexpr QStringView CarriedSum = u"carried-sum"; ///< a summary row against the earlier ones
inline constexpr QStringView Payment = u"payment";        ///< kind, amount and cheque of a summary row

} // namespace finding

/// Takes the findings and writes a line for each: where, what, and the finding's name in brackets.
class Findings {
public:
    using Sink = std::function<void(const QString &line)>;

    /// Writes `mostOfAKind` lines of each kind and, at the end, how many more there are; 0 writes them all.
    Findings(Sink sink, int mostOfAKind);

    /// `where` is the table, the row's key and the column.
    void add(QStringView kind, const QString &where, const QString &what);
    /// Something worth knowing that is nothing wrong.
    void note(QStringView kind, const QString &where, const QString &what);

    /// Writes what was left out. Returns the number of findings, notes aside.
    [[nodiscard]] qint64 finish();

private:
    struct Count {
        qint64 seen = 0;
        bool isNote = false;
    };
    void write(QStringView kind, const QString &where, const QString &what, bool isNote);

    Sink m_sink;
    int m_mostOfAKind;
    std::map<QString, Count> m_counts;
};

/// A value as a line of output can show it: cut, and without signs that move the cursor.
[[nodiscard]] QString shown(std::string_view utf8);

} // namespace zrv::storetool
