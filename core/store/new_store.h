// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/fresh_rows.h"
#include "core/store/table_shape.h"
#include "core/store/value.h"

#include <QString>

#include <memory>
#include <span>
#include <vector>

namespace zrv {

/// A store in the making. It is built under a temporary name beside its own, readable by its owner alone, and takes
/// its name when it is whole and on the disk; until then, and if anything fails, there is no file of that name, or the
/// old one.
/// Failures of a row raise the store's errors, an existing file store_error::General.
class NewStore {
public:
    /// What is to be under the store's name when it takes it: nothing, or a file that it replaces in one stroke.
    enum class Place { Free, Replaced };

    explicit NewStore(const QString &path);
    /// A store of another shape, such as an older version's.
    NewStore(const QString &path, std::vector<TableShape> tables, Place place = Place::Free);
    ~NewStore();
    NewStore(const NewStore &) = delete;
    NewStore &operator=(const NewStore &) = delete;

    /// Adds a row with a value for each column, in their order. Values are taken as they are, quotes included;
    /// many rows need little time and no memory.
    void addRow(QStringView table, std::span<const Value> values);

    /// Makes the indexes, flushes the file and gives it its name. A key that stands twice raises
    /// store_error::General.
    void finish();

private:
    class Build;
    std::unique_ptr<Build> m_build;
};

/// Makes a fresh store of the current shape, with its code lists and one user.
void createStore(const QString &path, const FirstUser &user = {});

} // namespace zrv
