// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/page_file.h"

#include <QString>

#include <vector>

namespace zrv::jet {

/// A table that the file's catalogue names.
struct CatalogueEntry {
    QString name;
    quint32 page = 0; ///< of its definition
};

/// The tables that a user of the file sees, in the order of the catalogue; its own and hidden ones are left out.
/// Raises Refused.
[[nodiscard]] std::vector<CatalogueEntry> readCatalogue(const PageFile &file);

} // namespace zrv::jet
