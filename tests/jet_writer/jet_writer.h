// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Writes small databases of the kind that older versions of the program kept their store in, so that the reader has
// something to read, sound or odd. Only what the reader looks at is written.

#include "core/store/table_shape.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace zrv::jettest {

using Cell = std::optional<QString>; ///< nothing for NULL
using Cells = std::vector<Cell>;

/// A table and its rows. A row that is shorter than the table was written before the last columns came.
struct Table {
    TableShape shape;
    std::vector<Cells> rows;
};

/// What a file has been through, and how it is kept.
struct Manner {
    bool isCompressed = false; ///< texts of one byte a letter where that does
    int movedEach = 0;         ///< each so many rows, one was moved to another page
    int deletedEach = 0;       ///< behind each so many rows, one was deleted
    int orphanEach = 0;        ///< behind each so many rows, one was moved and deleted afterwards
    bool hasMapPages = false;  ///< usage maps on pages of their own
    int indexes = 1;           ///< real indexes of each table; many make definitions of several pages
    quint32 key = 0;           ///< pages are encoded with it
    QString password;
    bool isNotClosed = false; ///< the tables' row counts are 0
    quint8 version = 1;
};

/// The bytes of a file with these tables.
[[nodiscard]] QByteArray jetFile(const std::vector<Table> &tables, const Manner &manner = {});

/// Puts a file into clear, as far as it is enciphered, has it changed, and enciphers it again: what damage does to a
/// file's contents, whatever the key.
[[nodiscard]] QByteArray changedHeader(QByteArray file, const std::function<void(QByteArray &clearHeader)> &change);

} // namespace zrv::jettest
