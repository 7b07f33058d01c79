// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/terminal/terminal.h"
#include "tools/zrvstore/backup.h"
#include "tools/zrvstore/command_line.h"
#include "tools/zrvstore/create.h"
#include "tools/zrvstore/restore.h"
#include "tools/zrvstore/store_folder.h"
#include "tools/zrvstore/takeover.h"
#include "tools/zrvstore/verify.h"

#include <cstdio>

namespace {

using namespace zrv;
using namespace zrv::storetool;

void printLine(const QString &line)
{
    print(stdout, QString(line + u'\n'));
}

/// 0 for a sound store, 1 if there is anything to say about it.
int verify(const Request &request)
{
    const QString path = storeIn(request.folder);
    const qint64 findings = verifyStore(path, printLine, request.all ? 0 : MostOfAKind);
    print(stdout, findings == 0 ? QString(path + u" is sound\n")
                                : QString(path + u" has findings: " + QString::number(findings) + u'\n'));
    return findings == 0 ? 0 : 1;
}

/// 0 for a store without doubts, 1 if there is anything to say about it.
int takeOver(const Request &request)
{
    return zrv::storetool::takeOver(request.file, request.folder, request.asStored, printLine) == 0 ? 0 : 1;
}

int run(const QStringList &words)
{
    const Request request = readCommandLine(words);
    switch (request.command) {
    case Command::Help:
        print(stdout, helpText());
        return 0;
    case Command::Version:
        print(stdout, versionText());
        return 0;
    case Command::Create:
        create(request.folder, request.user);
        return 0;
    case Command::Sample:
        createSample(request.folder, request.plan);
        return 0;
    case Command::TakeOver:
        return takeOver(request);
    case Command::Verify:
        return verify(request);
    case Command::Backup:
        backup(storeIn(request.folder), request.file, request.force);
        return 0;
    case Command::List:
        return listCopies(request.folder, printLine) == 0 ? 0 : 1;
    case Command::Restore:
        restore(request.folder, request.file, printLine);
        return 0;
    }
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    return zrv::runTool(u"zrvstore", argc, argv, run);
}
