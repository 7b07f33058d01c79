// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/statement.h"

namespace zrv {

class StoreFile;

/// The statements that change the shape of a table. Each takes effect as a whole or not at all.

/// A column that is there already raises store_error::ColumnChange.
void change(StoreFile &file, const dialect::AddColumn &statement);

/// A column that isn't there raises store_error::ColumnChange.
void change(StoreFile &file, const dialect::DropColumn &statement);

/// Gives a column a new width; its rows keep their order. A row that is longer raises store_error::ValueTooLong.
void change(StoreFile &file, const dialect::AlterColumn &statement);

/// A table that is there already raises store_error::General.
void change(StoreFile &file, const dialect::CreateTable &statement);

} // namespace zrv
