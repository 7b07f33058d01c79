// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The contents of a WH or WK file, whoever made it, taken out of it to be looked at: its rows stay as they were read,
// whatever becomes of the file.

#include "core/store/scratch_table.h"
#include "files/check_rules.h"
#include "files/line_reader.h"

#include <QHash>

#include <functional>
#include <optional>

namespace zrv {

/// What the codes in electronic files mean, read from the store once.
class CodeWords {
public:
    /// Raises the store's errors.
    explicit CodeWords(const QString &connectionString);

    /// As CodeDescription() tells it: empty for a blank code, "کد نامعتبر" for one that the list lacks.
    [[nodiscard]] QString describe(int list, const QString &code) const;

private:
    QHash<int, QHash<QString, QString>> m_lists;
};

struct FileContents {
    // Of the first line.
    QString TFN;
    QString CodeShobe; ///< a WK file has none
    QString TaxYear;
    QString TaxMonth;
    QString monthName;
    QString version; ///< of the program that wrote a WH file, as text

    int rows = 0; ///< payees, or lines of the summary
    FileOddities oddities;
    int invalidCodes = 0;                ///< national payees whose national code is wrong
    std::unique_ptr<ScratchTable> payer; ///< of a WH file: one row, by payerContents()
    std::unique_ptr<ScratchTable> table; ///< by payeeContents() or summaryContents()
};

/// Called between two lines; false stops the reading.
using BetweenLines = std::function<bool(qint64 lines, qint64 offset, qint64 fileSize)>;

/// Reads the file up to its first empty line; nothing when the reading was stopped. A line that ends early leaves its
/// last cells empty, and of a field no more than some thousand letters are kept. Raises LineReader's errors,
/// InputPastEnd for an empty file, and the store's errors where there is no room for the rows.
[[nodiscard]] std::optional<FileContents> readContents(FileKind kind, const QString &path, const CodeWords &codes,
                                                       const BetweenLines &goOn);

} // namespace zrv
