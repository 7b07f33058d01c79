// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The names of all that a structure check can find, and what it means to somebody who must mend a file.

#include "files/line_check.h"

#include <QString>

#include <vector>

namespace zrv {

struct CatalogueEntry {
    QString name;    ///< the same for as long as the rule is: "wh.payer.TIN.length.legal", "field-count"
    QString meaning; ///< in English, of a rule: what its field must be
    QString remedy;
    QString message; ///< the words of a rule's error; empty for the others, whose words tell the case
};

/// Each finding once, no two of one name.
[[nodiscard]] std::vector<CatalogueEntry> checkCatalogue();

[[nodiscard]] QString findingName(const FileRules &rules, const Finding &finding);

} // namespace zrv
