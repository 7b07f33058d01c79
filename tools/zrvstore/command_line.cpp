// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/command_line.h"

#include "core/basic/text.h"
#include "tools/terminal/failure.h"

#include <algorithm>
#include <iterator>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString &reason)
{
    throw Failure(reason);
}

/// A user's name or password: 1 to 10 Latin letters and digits. The login screen types capitals only.
QString loginWord(const QString &option, const QString &value)
{
    const auto fits = [](QChar letter) {
        return isAsciiDigit(letter) || (letter >= u'A' && letter <= u'Z') || (letter >= u'a' && letter <= u'z');
    };
    if (value.isEmpty() || value.size() > 10 || !std::all_of(value.begin(), value.end(), fits))
        refuse(option + u" takes 1 to 10 Latin letters and digits"_s);
    return value.toUpper();
}

quint64 wholeNumber(const QString &option, const QString &value, quint64 low, quint64 high)
{
    bool ok = !value.isEmpty() && std::all_of(value.begin(), value.end(), isAsciiDigit);
    const quint64 number = ok ? value.toULongLong(&ok) : 0;
    if (!ok || number < low || number > high)
        refuse(option + u" takes a number from "_s + QString::number(low) + u" to "_s + QString::number(high));
    return number;
}

int smallNumber(const QString &option, const QString &value, int low, int high)
{
    return int(wholeNumber(option, value, quint64(low), quint64(high)));
}

struct Option {
    QStringView name;
    Command command;
    bool hasValue;
    void (*set)(Request &, const QString &option, const QString &value);
};

using Words = const QString &;
using sample::Plan;

// clang-format off
const Option Options[] = {
    {u"--user",     Command::Create, true,  [](Request &r, Words o, Words v) { r.user.name = loginWord(o, v); }},
    {u"--password", Command::Create, true,  [](Request &r, Words o, Words v) { r.user.password = loginWord(o, v); }},
    {u"--payees",   Command::Sample, true,  [](Request &r, Words o, Words v) { r.plan.payees = smallNumber(o, v, 1, Plan::MostPayees); }},
    {u"--months",   Command::Sample, true,  [](Request &r, Words o, Words v) { r.plan.months = smallNumber(o, v, 1, 12); }},
    {u"--year",     Command::Sample, true,  [](Request &r, Words o, Words v) { r.plan.year = smallNumber(o, v, Plan::FirstYear, Plan::LastYear); }},
    {u"--rng",      Command::Sample, true,  [](Request &r, Words o, Words v) { r.plan.rng = wholeNumber(o, v, 0, ~quint64(0)); }},
    {u"--old",      Command::Sample, false, [](Request &r, Words, Words) { r.plan.old = true; }},
    {u"--as-stored", Command::TakeOver, false, [](Request &r, Words, Words) { r.asStored = true; }},
    {u"--all",      Command::Verify, false, [](Request &r, Words, Words) { r.all = true; }},
    {u"--force",    Command::Backup, false, [](Request &r, Words, Words) { r.force = true; }},
};

struct CommandName {
    QStringView name;
    Command command;
    qsizetype operands;
    QStringView usage;
};

constexpr CommandName Commands[] = {
    {u"--help",    Command::Help,    0, u"--help"},
    {u"--version", Command::Version, 0, u"--version"},
    {u"create",    Command::Create,  1, u"create DIR [--user U] [--password P]"},
    {u"sample",    Command::Sample,  1, u"sample DIR [--payees N] [--months M] [--year Y] [--rng K] [--old]"},
    {u"takeover",  Command::TakeOver, 2, u"takeover OLD.mdb DIR [--as-stored]"},
    {u"verify",    Command::Verify,  1, u"verify DIR [--all]"},
    {u"backup",    Command::Backup,  2, u"backup DIR FILE [--force]"},
    {u"list",      Command::List,    1, u"list DIR"},
    {u"restore",   Command::Restore, 2, u"restore DIR COPY"},
};
// clang-format on

const CommandName &commandNamed(const QString &word)
{
    const auto found = std::ranges::find(Commands, QStringView(word), &CommandName::name);
    if (found == std::end(Commands))
        refuse(u"there is no command '"_s + word + u"'; zrvstore --help names them"_s);
    return *found;
}

/// Reads the option at `next` with its value, "--user U" or "--user=U", and moves behind it.
void readOption(Request &request, const QStringList &words, qsizetype &next)
{
    const QString &word = words[next++];
    const qsizetype equals = word.indexOf(u'=');
    const QString name = word.left(equals);
    const auto option = std::ranges::find_if(Options, [&](const Option &candidate) {
        return candidate.name == name && candidate.command == request.command;
    });
    if (option == std::end(Options))
        refuse(u"this command has no option '"_s + name + u"'; zrvstore --help names them"_s);
    if (!option->hasValue && equals >= 0)
        refuse(name + u" takes no value"_s);
    if (option->hasValue && equals < 0 && next == words.size())
        refuse(name + u" needs a value"_s);
    const QString value = !option->hasValue ? QString() : equals >= 0 ? word.mid(equals + 1) : words[next++];
    option->set(request, name, value);
}

} // namespace

Request readCommandLine(const QStringList &words)
{
    if (words.isEmpty())
        refuse(u"no command; zrvstore --help names them"_s);
    if (words.contains(u"--help"_s))
        return {};
    const CommandName &command = commandNamed(words.first());
    Request request;
    request.command = command.command;
    QStringList operands;
    for (qsizetype next = 1; next < words.size();) {
        if (words[next].startsWith(u"--"))
            readOption(request, words, next);
        else
            operands.append(words[next++]);
    }
    if (operands.size() != command.operands || operands.contains(QString()))
        refuse(u"usage: zrvstore "_s + command.usage);
    request.folder = operands.value(0);
    request.file = operands.value(1);
    if (request.command == Command::TakeOver)
        std::swap(request.folder, request.file);
    return request;
}

QString helpText()
{
    QString text =
        u"zrvstore makes, fills, takes over, verifies, copies and restores the store DBZorvan.mdb in the folder DIR.\n\n"_s;
    for (const CommandName &command : Commands)
        text += u"    zrvstore "_s + command.usage + u'\n';
    return text
           + u"\n"
             "create   makes DIR if it is missing, and in it an empty store with the base data and one supervisor,\n"
             "         U with password P: 1 to 10 Latin letters and digits each, kept as capitals; ADMIN, ADMIN\n"
             "         unless told otherwise. It never replaces a store.\n"
             "sample   the same, filled with invented people and figures: one payer, N payees (12; at most 1000000)\n"
             "         and the first M months (3) of the year Y (1389). The same K (1) gives the same store. With\n"
             "         --old it is one of the program's oldest version, for its upgrade.\n"
             "takeover makes a store in DIR out of the database OLD.mdb of an older version of the program: all of it,\n"
             "         in the same shape, or nothing. It says what was taken over and what is doubtful in it; the sums are for\n"
             "         verify to judge. If OLD.mdb is DIR's own DBZorvan.mdb, the store replaces it, and it stays there\n"
             "         as JetDBZorvan.mdb. Texts of an old code page are a reason not to, unless they are to be kept\n"
             "         --as-stored.\n"
             "verify   reads the whole store and writes a line for each thing that is wrong with it, at most 20 of a\n"
             "         kind and the number of the rest, or each one with --all. Lines that begin with \"note\" are\n"
             "         nothing wrong. Whoever wants to write to the store waits meanwhile.\n"
             "backup   makes a verified copy, also while the program is open. It replaces a FILE only with --force,\n"
             "         and only when the new copy is whole and on the disk.\n"
             "list     tells the dated copies that the program keeps in DIR/Backups, newest first: name, length, and\n"
             "         what each holds.\n"
             "restore  puts COPY, one of those by its name or any file by its path, in the place of DIR's store, in\n"
             "         one step. The copy is only read; the store as it was is kept in DIR/Backups first.\n"
             "\n"
             "exit     0  done; verify: the store is sound; takeover: and nothing is doubtful\n"
             "         1  verify: there are findings; list: a copy is damaged; takeover: done, and something is doubtful\n"
             "         2  it can't be done: wrong words, no store, damaged or busy, disk full; one line says which\n"_s;
}

QString versionText()
{
    return u"zrvstore " ZRV_VERSION "\n"_s;
}

} // namespace zrv::storetool
