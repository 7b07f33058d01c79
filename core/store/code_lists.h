// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/connection.h"

#include <QString>

#include <vector>

namespace zrv {

/// The questions that all screens put to the store, each over a connection of its own. The screens' layer binds the
/// rows to their combos and shows the boxes.

/// A row of a combo: what it shows, and the value that stands behind it.
struct CodeRow {
    QString shown;
    QString bound;

    friend bool operator==(const CodeRow &, const CodeRow &) = default;
};

/// True if a complete SELECT gives a row.
[[nodiscard]] bool recordExists(const QString &connectionString, const QString &select);

/// The rows of a code list in the text order of their codes.
[[nodiscard]] std::vector<CodeRow> codeList(const QString &connectionString, const QString &list);

/// The rows of a code list in the order of their codes as numbers.
[[nodiscard]] std::vector<CodeRow> codeListByValue(const QString &connectionString, const QString &list,
                                                   bool descending = false);

/// Two columns of any query.
[[nodiscard]] std::vector<CodeRow> queryList(const QString &connectionString, const QString &select,
                                             QStringView listField, QStringView boundField);

/// All code lists: description and number, in the order of the numbers.
[[nodiscard]] std::vector<CodeRow> masterList(const QString &connectionString);

/// What a code of a list means: the empty text for a blank code, "کد نامعتبر" for one that the list lacks.
[[nodiscard]] QString codeDescription(const QString &connectionString, const QString &list, const QString &code);

} // namespace zrv
