// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/create.h"

#include "core/basic/run_time_error.h"
#include "core/store/new_store.h"
#include "core/store/schema.h"
#include "tools/sample/sample_store.h"
#include "tools/terminal/failure.h"
#include "tools/zrvstore/store_folder.h"

#include <QDir>
#include <QFileInfo>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Fill>
void make(const QString &folder, const std::vector<TableShape> &tables, Fill fill)
{
    const QString path = storeIn(folder);
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
        throw Failure(path + u" exists and is not replaced"_s);
    refuseForeignJournal(path);
    if (!QDir().mkpath(folder))
        throw Failure(u"can't make the folder "_s + folder);
    try {
        NewStore store(path, tables);
        fill(store);
        store.finish();
    } catch (const RunTimeError &error) {
        throw Failure(u"can't make the store: "_s + error.description());
    }
}

} // namespace

void create(const QString &folder, const FirstUser &user)
{
    make(folder, storeSchema(), [&](NewStore &store) { addFreshRows(store, user); });
}

void createSample(const QString &folder, const sample::Plan &plan)
{
    make(folder, sample::schemaOf(plan), [&](NewStore &store) { sample::addSampleRows(store, plan); });
}

} // namespace zrv::storetool
