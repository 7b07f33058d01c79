// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// What becomes of a file that has the copy's name already.
enum class EarlierCopy { Replaced, Kept };

/// Copies a store, also while other programs have it open: who wants to write waits meanwhile. The copy takes its name,
/// and the place of an earlier one, only when it is sound and on the disk: it was opened, its pages and rows were
/// checked, and each table has as many rows as the store's.
/// Raises store_error::General, with a description for the user, when there is no such copy; then `copy` is as it was.
void copyStore(const QString &store, const QString &copy, EarlierCopy earlier = EarlierCopy::Replaced);

/// Gives back the room of what was deleted from a store, so that nothing of it is left in the file.
/// Raises store_error::General; the store is as it was then.
void compactStore(const QString &store);

} // namespace zrv
