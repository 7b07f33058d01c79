// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/takeover.h"

#include "core/basic/run_time_error.h"
#include "core/store/foreign_journal.h"
#include "core/store/new_store.h"
#include "tools/jet/read_file.h"
#include "tools/jet/refused.h"
#include "tools/terminal/failure.h"
#include "tools/zrvstore/kept_original.h"
#include "tools/zrvstore/old_rows.h"
#include "tools/zrvstore/old_store.h"
#include "tools/zrvstore/store_folder.h"
#include "tools/zrvstore/verify.h"

#include <QDir>
#include <QFileInfo>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView CannotWrite = u"can-not-write";

[[noreturn]] void fail(const QString &text, QStringView why)
{
    throw Failure(text + u" ["_s + why + u']');
}

void refuseFaults(const QString &file, const TakeoverReport &report)
{
    if (report.faults() == 0)
        return;
    const QString more =
        report.faults() > 1 ? QString(u", and "_s + QString::number(report.faults() - 1) + u" more"_s) : QString();
    fail(file + u" is not taken over: "_s + report.firstFault() + more, report.kindOfFirstFault());
}

/// Reads a file and checks it to its last row.
OldStore readOldStore(const QString &file, std::vector<unsigned char> bytes, bool asStored, TakeoverReport &report)
{
    try {
        OldStore old(std::move(bytes), report);
        // Rows of a table whose columns aren't right can't be told right from wrong.
        refuseFaults(file, report);
        for (const OldTable &table : old.tables())
            checkOldRows(table, asStored, report);
        refuseFaults(file, report);
        return old;
    } catch (const jet::Refused &refused) {
        fail(file + u": "_s + refused.text(), refused.why());
    }
}

jet::FileBytes readBytes(const QString &file)
{
    try {
        return jet::readFile(file);
    } catch (const jet::Refused &refused) {
        fail(file + u' ' + refused.text(), refused.why());
    }
}

/// What a killed statement left of a store that lay here before the old one.
void refuseJournal(const QString &path, bool isInPlace)
{
    if (isInPlace && !setForeignJournalAside(path))
        fail(path + u"-journal can't be moved away"_s, CannotWrite);
    try {
        refuseForeignJournal(path);
    } catch (const Failure &failure) {
        fail(failure.reason(), CannotWrite);
    }
}

void addRows(NewStore &store, const OldTable &table)
{
    std::vector<Value> cells(table.shape.columns.size());
    for (const jet::PlacedRow &placed : table.rows) {
        OldRow row = table.values(placed);
        for (std::size_t i = 0; i < cells.size(); ++i)
            cells[i] = row[i] ? Value(std::move(*row[i])) : Value();
        store.addRow(table.shape.name, cells);
    }
}

std::vector<TableShape> shapesOf(const OldStore &old)
{
    std::vector<TableShape> shapes;
    for (const OldTable &table : old.tables())
        shapes.push_back(table.shape);
    return shapes;
}

} // namespace

qint64 takeOver(const QString &file, const QString &folder, bool asStored, const Findings::Sink &sink)
{
    const QString path = storeIn(folder);
    const bool isInPlace =
        QFileInfo(path).isFile() && !QFileInfo(path).isSymLink() && QFileInfo(path) == QFileInfo(file);
    if (!isInPlace && (QFileInfo::exists(path) || QFileInfo(path).isSymLink()))
        fail(path + u" exists and is not replaced"_s, CannotWrite);
    refuseJournal(path, isInPlace);

    TakeoverReport report(sink, MostOfAKind);
    jet::FileBytes read = readBytes(file);
    const OldStore old = readOldStore(file, std::move(read.bytes), asStored, report);
    if (!QDir().mkpath(folder))
        fail(u"can't make the folder "_s + folder, CannotWrite);
    try {
        NewStore store(path, shapesOf(old), isInPlace ? NewStore::Place::Replaced : NewStore::Place::Free);
        for (const OldTable &table : old.tables())
            addRows(store, table);
        KeptOriginal original(file, read.state, isInPlace);
        store.finish();
        original.keep();
        for (const OldTable &table : old.tables())
            sink(table.shape.name + u": "_s + QString::number(table.rows.size()) + u" rows"_s);
        if (isInPlace)
            sink(u"the old file is kept as "_s + original.name());
    } catch (const RunTimeError &error) {
        fail(u"can't make the store: "_s + error.description(), CannotWrite);
    }
    return report.findings().finish();
}

} // namespace zrv::storetool
