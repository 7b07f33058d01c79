// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/row_window.h"

#include <QStringList>

#include <memory>

namespace zrv {

class StoreFile;

/// A table of texts that no store keeps, of any length: it lies in a nameless file that goes with the last who looks at
/// its rows. It is filled once and then read by the statements of the store's dialect.
class ScratchTable {
public:
    /// Names as a statement has them, of letters and digits.
    ScratchTable(const QString &name, const QStringList &columns);
    ~ScratchTable();
    ScratchTable(const ScratchTable &) = delete;
    ScratchTable &operator=(const ScratchTable &) = delete;

    /// A row behind the others, with as many cells as there are columns. Raises the store's errors, such as a full disk.
    void add(const QStringList &cells);
    /// To be called behind the last row.
    void finish();

    /// The rows of a SELECT over this table. `goesOn` is asked now and then; false ends it in StatementStopped.
    [[nodiscard]] RowWindow rows(const QString &select, std::function<bool()> goesOn = {}) const
    {
        return {m_file, select, std::move(goesOn)};
    }

private:
    struct Insert;

    std::shared_ptr<StoreFile> m_file;
    std::unique_ptr<Insert> m_insert; ///< null when the table is finished
};

} // namespace zrv
