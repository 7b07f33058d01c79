// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zrv {

class NewStore;

/// The supervisor that a fresh store knows, since only a user can add users. Letters and digits, at most 10.
struct FirstUser {
    QString name = QStringLiteral("ADMIN");
    QString password = QStringLiteral("ADMIN");
};

/// A row of a code list.
struct FreshCode {
    QStringView list;
    QStringView listName;
    QStringView code;
    QStringView description;
};

/// The rows of the code lists of a fresh store, list by list.
[[nodiscard]] std::vector<FreshCode> freshCodes();
void addUser(NewStore &store, const FirstUser &user);

/// Puts in what every fresh store holds: the rows of the code lists and the first user. The codes of the fixed lists
/// are those of the tax authority's file formats; the user's own lists get a few rows to begin with. The old list 3,
/// which no screen writes, stays empty.
void addFreshRows(NewStore &store, const FirstUser &user);

/// The name of a code list, also when the store holds no row of it; empty for a number that is no list's.
[[nodiscard]] QString codeListName(QStringView number);

} // namespace zrv
