// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace zrv::player {

/// A scenario that can't be played as it is written: an unknown line, a missing word, a number that is none.
class ScenarioError : public std::runtime_error {
public:
    explicit ScenarioError(const QString &message)
        : std::runtime_error(message.toStdString())
    {
    }
};

/// One word of a scenario's line. A bare % in it stands for any run of characters where the word is matched with
/// something seen, and for itself everywhere else; \% is always a per cent sign.
class Word {
public:
    Word() = default;
    explicit Word(const QString &text)
        : m_pieces(text)
    {
    }
    explicit Word(QStringList piecesBetweenWildcards)
        : m_pieces(std::move(piecesBetweenWildcards))
    {
    }

    [[nodiscard]] QString text() const { return m_pieces.join(u'%'); }
    /// Whether the whole of what was seen reads like this word.
    [[nodiscard]] bool matches(QStringView seen) const;
    /// The word with CR LF and CR as LF, for texts whose line ends don't matter.
    [[nodiscard]] Word withPlainLineEnds() const;
    /// The word with any run of characters before and behind it.
    [[nodiscard]] Word anywhere() const;

private:
    QStringList m_pieces{QString()}; ///< what stands between the wildcards; one more than there are wildcards
};

/// CR LF and CR as LF.
[[nodiscard]] QString plainLineEnds(QString text);

/// The words of a line, split at blanks. A word may stand in double quotes, with the escapes \" \\ \n \r \t \uXXXX
/// inside; ${folder} is the sitting's folder in any word. Raises ScenarioError for a quote that is never closed, for
/// letters that follow a closing quote, and for an unknown escape.
[[nodiscard]] std::vector<Word> splitWords(QStringView line, const QString &folder);

/// A text between double quotes, in the escapes that splitWords reads. The result never holds a line break.
[[nodiscard]] QString quotedWord(const QString &text);

/// The same without the quotes, for columns that are joined by other marks.
[[nodiscard]] QString escapedText(const QString &text);

} // namespace zrv::player
