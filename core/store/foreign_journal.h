// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// What a killed program left half done in a store is undone at the next opening, from the journal beside it. Whoever
/// puts a copy in the store's place before that would have it undone in the copy, which is then neither of both. To be
/// called before a store is opened: such a journal takes another name, with ".foreign" behind its own. False if it can't;
/// the store must not be opened then.
[[nodiscard]] bool setForeignJournalAside(const QString &store);

} // namespace zrv
