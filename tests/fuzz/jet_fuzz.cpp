// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the reader of old stores with files that are anything but sound. An input is either a file, behind a byte of
// 0xFF, or changes to one of a few sound files: a byte that says which, then for each change three bytes of place and
// two of what is put there. From 0x40 on that byte names one of the databases in the folder ZRV_JET_FILES, where there
// is one.

#include "core/store/schema.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/jet_writer/jet_writer.h"
#include "tools/jet/refused.h"
#include "tools/zrvstore/old_rows.h"
#include "tools/zrvstore/old_store.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <map>

using namespace Qt::Literals::StringLiterals;
using namespace zrv;

namespace {

constexpr std::size_t ChangeSize = 5;

jettest::Manner mannerOf(unsigned kind)
{
    return {.isCompressed = (kind & 1) != 0,
            .movedEach = (kind & 2) != 0 ? 2 : 0,
            .deletedEach = (kind & 2) != 0 ? 3 : 0,
            .hasMapPages = (kind & 4) != 0,
            .indexes = (kind & 8) != 0 ? 300 : 1,
            .key = (kind & 16) != 0 ? 0x12345678U : 0U};
}

/// A sound store with a few short rows in each table.
const QByteArray &soundFile(unsigned kind)
{
    static std::map<unsigned, QByteArray> files;
    QByteArray &file = files[kind];
    if (!file.isEmpty())
        return file;
    std::vector<jettest::Table> tables;
    for (const TableShape &shape : storeSchema()) {
        jettest::Table table{shape, {}};
        for (int row = 1; row <= 5; ++row) {
            jettest::Cells cells(shape.columns.size());
            for (std::size_t i = 0; i < cells.size() && int(i) < 30 - row; ++i) {
                if (shape.columns[i].width > 1)
                    cells[i] = i % 3 == 2 ? u"م"_s + QString::number(row) : QString::number(row);
            }
            // The last row is older than the last column.
            cells.resize(cells.size() - (row == 5 ? 1 : 0));
            table.rows.push_back(std::move(cells));
        }
        tables.push_back(std::move(table));
    }
    file = jettest::jetFile(tables, mannerOf(kind));
    return file;
}

/// The databases that other programs wrote.
const std::vector<QByteArray> &foundFiles()
{
    static const std::vector<QByteArray> files = [] {
        std::vector<QByteArray> found;
        const QDir folder(qEnvironmentVariable("ZRV_JET_FILES", u"/nowhere"_s));
        for (const QString &name : folder.entryList({u"*.mdb"_s}, QDir::Files, QDir::Name)) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadOnly) && file.size() > 1)
                found.push_back(file.readAll());
        }
        return found;
    }();
    return files;
}

std::vector<unsigned char> fileOf(const unsigned char *data, std::size_t size)
{
    if (size == 0 || data[0] == 0xFF)
        return {data + (size > 0 ? 1 : 0), data + size};
    const std::vector<QByteArray> &found = foundFiles();
    const bool isFound = data[0] >= 0x40 && !found.empty();
    const QByteArray &sound = isFound ? found[data[0] % found.size()] : soundFile(data[0] & 31U);
    std::vector<unsigned char> file(sound.begin(), sound.end());
    for (std::size_t at = 1; at + ChangeSize <= size; at += ChangeSize) {
        const std::size_t place =
            (data[at] | std::size_t(data[at + 1]) << 8 | std::size_t(data[at + 2]) << 16) % (file.size() - 1);
        file[place] = data[at + 3];
        file[place + 1] = data[at + 4];
    }
    return file;
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    storetool::TakeoverReport report([](const QString &) {}, 1);
    try {
        const storetool::OldStore old(fileOf(data, size), report);
        for (const storetool::OldTable &table : old.tables()) {
            if (report.faults() > 0)
                break;
            storetool::checkOldRows(table, false, report);
            // What was checked can be read again, value by value.
            for (const jet::PlacedRow &row : table.rows) {
                if (table.values(row).size() != table.shape.columns.size())
                    std::abort();
            }
        }
    } catch (const jet::Refused &) {
        return 0;
    }
    return 0;
}
