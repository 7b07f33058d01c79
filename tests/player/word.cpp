// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/word.h"

#include <optional>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

bool Word::matches(QStringView seen) const
{
    if (m_pieces.size() == 1)
        return seen == m_pieces.front();
    const QString &head = m_pieces.front();
    const QString &tail = m_pieces.back();
    if (!seen.startsWith(head) || !seen.endsWith(tail))
        return false;
    qsizetype from = head.size();
    for (qsizetype piece = 1; piece < m_pieces.size() - 1; ++piece) {
        const qsizetype place = seen.indexOf(m_pieces[piece], from);
        if (place < 0)
            return false;
        from = place + m_pieces[piece].size();
    }
    return from <= seen.size() - tail.size();
}

Word Word::withPlainLineEnds() const
{
    QStringList pieces;
    for (const QString &piece : m_pieces)
        pieces += plainLineEnds(piece);
    return Word(pieces);
}

Word Word::anywhere() const
{
    return Word(QStringList{QString()} + m_pieces + QStringList{QString()});
}

QString plainLineEnds(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

namespace {

bool isBlank(QChar letter)
{
    return letter == u' ' || letter == u'\t';
}

/// Reads one line from left to right.
class Reader {
public:
    Reader(QStringView line, const QString &folder)
        : m_line(line)
        , m_folder(folder)
    {
    }

    std::optional<Word> nextWord()
    {
        while (!atEnd() && isBlank(m_line[m_place]))
            ++m_place;
        if (atEnd())
            return {};
        m_pieces = {QString()};
        if (m_line[m_place] == u'"')
            quoted();
        else
            bare();
        return Word(m_pieces);
    }

private:
    [[nodiscard]] bool atEnd() const { return m_place >= m_line.size(); }

    void bare()
    {
        while (!atEnd() && !isBlank(m_line[m_place]))
            if (!commonLetter())
                m_pieces.back() += m_line[m_place++];
    }

    void quoted()
    {
        ++m_place;
        while (!atEnd() && m_line[m_place] != u'"') {
            if (commonLetter())
                continue;
            const QChar letter = m_line[m_place++];
            m_pieces.back() += letter == u'\\' ? escape() : letter;
        }
        if (atEnd())
            throw ScenarioError(u"a double quote is never closed"_s);
        ++m_place;
        if (!atEnd() && !isBlank(m_line[m_place]))
            throw ScenarioError(u"a blank is missing behind a closing double quote"_s);
    }

    /// What means the same inside quotes and outside: per cent signs and the folder.
    bool commonLetter()
    {
        static constexpr QStringView folderMark = u"${folder}";
        const QStringView rest = m_line.sliced(m_place);
        if (rest.startsWith(u"\\%")) {
            m_pieces.back() += u'%';
            m_place += 2;
        } else if (rest.front() == u'%') {
            m_pieces.append(QString());
            ++m_place;
        } else if (rest.startsWith(folderMark)) {
            m_pieces.back() += m_folder;
            m_place += folderMark.size();
        } else {
            return false;
        }
        return true;
    }

    /// The letter that an escape stands for; its backslash has been read.
    QChar escape()
    {
        if (atEnd())
            throw ScenarioError(u"a double quote is never closed"_s);
        const QChar letter = m_line[m_place++];
        switch (letter.unicode()) {
        case u'"':
        case u'\\':
            return letter;
        case u'n':
            return u'\n';
        case u'r':
            return u'\r';
        case u't':
            return u'\t';
        case u'u':
            return fourDigits();
        default:
            throw ScenarioError(u"the escape \\"_s + letter + u" is unknown"_s);
        }
    }

    QChar fourDigits()
    {
        const QString digits = m_line.sliced(m_place, std::min<qsizetype>(4, m_line.size() - m_place)).toString();
        for (const QChar digit : digits)
            if (!isxdigit(digit.unicode() < 0x80 ? digit.unicode() : 0))
                throw ScenarioError(u"\\u needs four hexadecimal digits"_s);
        if (digits.size() < 4)
            throw ScenarioError(u"\\u needs four hexadecimal digits"_s);
        m_place += 4;
        return QChar(digits.toUShort(nullptr, 16));
    }

    QStringView m_line;
    const QString &m_folder;
    QStringList m_pieces;
    qsizetype m_place = 0;
};

} // namespace

std::vector<Word> splitWords(QStringView line, const QString &folder)
{
    std::vector<Word> words;
    Reader reader(line, folder);
    while (const std::optional<Word> word = reader.nextWord())
        words.push_back(*word);
    return words;
}

QString escapedText(const QString &text)
{
    QString out;
    for (const QChar letter : text) {
        switch (letter.unicode()) {
        case u'"':
        case u'\\':
            out += u'\\';
            out += letter;
            break;
        case u'\n':
            out += u"\\n"_s;
            break;
        case u'\r':
            out += u"\\r"_s;
            break;
        case u'\t':
            out += u"\\t"_s;
            break;
        default:
            // The other control letters, and the line and paragraph marks, would break the line apart.
            if (letter < u' ' || letter == QChar(0x2028) || letter == QChar(0x2029))
                out += u"\\u"_s + QString::number(letter.unicode(), 16).rightJustified(4, u'0');
            else
                out += letter;
        }
    }
    return out;
}

QString quotedWord(const QString &text)
{
    return u'"' + escapedText(text) + u'"';
}

} // namespace zrv::player
