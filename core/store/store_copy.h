// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// Copies a store, also while other programs have it open, onto `copy`, which may be there already and is replaced
/// only by a sound copy that is on the disk: it was opened, its pages and rows were checked, and each table has as
/// many rows as the store's.
/// Raises store_error::General, with a description for the user, when there is no such copy; then `copy` is as it was.
void copyStore(const QString &store, const QString &copy);

} // namespace zrv
