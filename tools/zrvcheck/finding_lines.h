// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The lines in which zrvcheck lists errors.

#include "files/line_check.h"

#include <QString>

#include <string>
#include <unordered_map>

namespace zrv::checktool {

/// Of one file, FILE:LINE:FIELD: NUMBER: WORDS in UTF-8. Words that come again and again are made once.
class FindingLines {
public:
    FindingLines(const FileRules &rules, const QString &programVersion, const QString &path);

    /// Puts the line with its end behind the text.
    void append(const Finding &finding, std::string &text);

private:
    [[nodiscard]] std::string wordsOf(const Finding &finding) const;

    const FileRules &m_rules;
    QString m_programVersion;
    std::string m_path;
    std::unordered_map<quint64, std::string> m_words;
};

} // namespace zrv::checktool
