// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/command_line.h"

#include "core/basic/text.h"
#include "files/check_catalogue.h"
#include "tools/terminal/failure.h"

#include <algorithm>
#include <iterator>

namespace zrv::checktool {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Option {
    QStringView name;
    bool hasValue;
    void (*set)(Request &, const QString &value);
};

// clang-format off
constexpr Option Options[] = {
    {u"--report",      true,  [](Request &r, const QString &value) { r.report = value; }},
    {u"--errors-only", false, [](Request &r, const QString &) { r.onlyErrors = true; }},
    {u"--first-two",   false, [](Request &r, const QString &) { r.firstTwoLines = true; }},
    {u"--summary",     false, [](Request &r, const QString &) { r.summary = true; }},
    {u"--rules",       false, [](Request &r, const QString &) { r.command = Command::Rules; }},
    {u"--version",     false, [](Request &r, const QString &) { r.command = Command::Version; }},
    {u"--help",        false, [](Request &r, const QString &) { r.command = Command::Help; }},
};
// clang-format on

/// Reads the option at `next` with its value, "--report FILE" or "--report=FILE", and moves behind it.
void readOption(Request &request, const QStringList &words, qsizetype &next)
{
    const QString &word = words[next++];
    const qsizetype equals = word.indexOf(u'=');
    const QString name = word.left(equals);
    const auto option = std::ranges::find(Options, QStringView(name), &Option::name);
    if (option == std::end(Options))
        throw Failure(u"there is no option '"_s + name + u"'; zrvcheck --help names them"_s);
    if (!option->hasValue && equals >= 0)
        throw Failure(name + u" takes no value"_s);
    QString value;
    if (option->hasValue) {
        value = equals >= 0 ? word.mid(equals + 1) : words.value(next++);
        if (value.isEmpty())
            throw Failure(name + u" needs a value"_s);
    }
    option->set(request, value);
}

} // namespace

Request readCommandLine(const QStringList &words)
{
    Request request;
    bool takesOptions = true;
    for (qsizetype next = 0; next < words.size();) {
        if (takesOptions && words[next] == u"--") {
            takesOptions = false;
            ++next;
        } else if (takesOptions && words[next].startsWith(u"--")) {
            readOption(request, words, next);
        } else {
            request.paths.append(words[next++]);
        }
    }
    if (request.command == Command::Check && (request.paths.isEmpty() || request.paths.contains(QString())))
        throw Failure(u"no file and no folder to check; zrvcheck --help tells more"_s);
    return request;
}

QString helpText()
{
    return u"zrvcheck checks the structure of electronic files, WH (salary lists) and WK (summary lists).\n"
           "\n"
           "    zrvcheck [--report FILE|-] [--errors-only] [--first-two] [--summary] PATH...\n"
           "    zrvcheck --rules | --version | --help\n"
           "\n"
           "Each PATH is a file, or a folder, in which and below which all files named WH or WK, year, month and .TXT\n"
           "are checked. For each error one line is written, FILE:LINE:FIELD: NUMBER: WORDS, with LINE and FIELD from 1\n"
           "(0: the file or the line itself), and at the end a table of the files.\n"
           "\n"
           "--report FILE  writes the reports that the program's check screen shows, in UTF-8, one behind the other,\n"
           "               in place of the errors' lines; with - to standard output, and then no table. A WH file whose\n"
           "               check ends early has no report.\n"
           "--errors-only  the report leaves out what passed; it still has a line for each field\n"
           "--first-two    checks the payer's line and the first payee of a WH file alone\n"
           "--summary      writes the table alone\n"
           "--rules        lists all that can be found: its name, what it means, how to mend it\n"
           "--             what follows are paths, whatever they begin with\n"
           "\n"
           "exit     0  no error\n"
           "         1  errors were found\n"
           "         2  something could not be read or written, or the words are wrong; one line says what\n"_s;
}

QString versionText()
{
    return u"zrvcheck " ZRV_VERSION "\n"_s;
}

QString rulesText()
{
    QString text;
    for (const CatalogueEntry &entry : checkCatalogue()) {
        text += entry.name + u"\n    "_s + entry.meaning + u"\n    to mend it: "_s + entry.remedy + u'\n';
        if (!entry.message.isEmpty())
            text += u"    "_s + Trim(entry.message) + u'\n';
    }
    return text;
}

} // namespace zrv::checktool
