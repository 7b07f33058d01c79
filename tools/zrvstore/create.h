// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/fresh_rows.h"
#include "tools/sample/plan.h"

#include <QString>

namespace zrv::storetool {

/// Makes a store in a folder, which is made too if it is missing. The store has its name only once it is whole and on
/// the disk; one that is there already stays, and Failure is raised.
void create(const QString &folder, const FirstUser &user);

/// The same, filled with the sample of a plan; its user is ADMIN with the password ADMIN.
void createSample(const QString &folder, const sample::Plan &plan);

} // namespace zrv::storetool
