// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/scenario.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

QString fileText(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        throw ScenarioError(path + u": the scenario can't be read"_s);
    QStringDecoder fromUtf8(QStringDecoder::Utf8);
    QString text = fromUtf8(file.readAll());
    if (fromUtf8.hasError())
        throw ScenarioError(path + u": the scenario is no UTF-8 text"_s);
    return text;
}

class ScenarioReader {
public:
    explicit ScenarioReader(const QString &folder)
        : m_folder(folder)
    {
    }

    void readFile(const QString &path)
    {
        const QString text = fileText(path);
        const QString known = QFileInfo(path).canonicalFilePath();
        if (m_open.contains(known))
            throw ScenarioError(path + u": the file includes itself"_s);
        m_open += known;
        int number = 0;
        for (const QString &line : text.split(u'\n')) {
            ++number;
            readLine(line.trimmed(), {.path = path, .number = number});
        }
        m_open.removeLast();
    }

    std::vector<Line> takeLines() { return std::move(m_lines); }

private:
    struct Place {
        QString path;
        int number;
        [[noreturn]] void refuse(const QString &why) const
        {
            throw ScenarioError(path + u':' + QString::number(number) + u": "_s + why);
        }
    };

    void readLine(const QString &line, const Place &place)
    {
        if (line.isEmpty() || line.startsWith(u'#'))
            return;
        const auto blank = std::find_if(line.begin(), line.end(), [](QChar c) { return c == u' ' || c == u'\t'; });
        const QString first = line.left(blank - line.begin());
        const QString rest = line.sliced(first.size()).trimmed();
        if (first == u"include") {
            include(rest, place);
            return;
        }
        const Command *const command = findCommand(first);
        if (!command)
            place.refuse(u"there is no line \""_s + first + u"\" (zrvplay --help names all)"_s);
        std::vector<Word> words = wordsOf(rest, command->restIsOneWord, place);
        if (std::cmp_not_equal(words.size(), command->argumentCount()))
            place.refuse(u"this line reads: "_s + first + u' ' + command->arguments);
        checkOrder(*command, place);
        m_lines.push_back({command, std::move(words), place.path, place.number, line});
    }

    std::vector<Word> wordsOf(const QString &rest, bool restIsOneWord, const Place &place)
    {
        if (restIsOneWord && !rest.isEmpty() && !rest.startsWith(u'"'))
            return {Word(QString(rest).replace(u"${folder}"_s, m_folder))};
        try {
            return splitWords(rest, m_folder);
        } catch (const ScenarioError &error) {
            place.refuse(QString::fromUtf8(error.what()));
        }
    }

    void include(const QString &rest, const Place &place)
    {
        const std::vector<Word> words = wordsOf(rest, false, place);
        if (words.size() != 1)
            place.refuse(u"this line reads: include PATH"_s);
        const QString path = QFileInfo(place.path).dir().filePath(words.front().text());
        if (!QFileInfo(path).isFile())
            place.refuse(u"there is no file "_s + path + u" to include"_s);
        readFile(path);
    }

    void checkOrder(const Command &command, const Place &place)
    {
        const bool starts = command.word == u"start";
        if (command.when == When::BeforeStart && m_started && !starts)
            place.refuse(command.word + u" must stand before start"_s);
        if (command.when == When::AfterStart && !m_started)
            place.refuse(command.word + u" must stand behind start"_s);
        m_started = m_started || starts;
    }

    const QString &m_folder;
    std::vector<Line> m_lines;
    QStringList m_open; ///< the files being read, each included by the one before it
    bool m_started = false;
};

} // namespace

std::vector<Line> readScenario(const QString &path, const QString &folder)
{
    ScenarioReader reader(folder);
    reader.readFile(path);
    return reader.takeLines();
}

} // namespace zrv::player
