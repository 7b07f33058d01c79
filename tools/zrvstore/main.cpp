// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/command_line.h"
#include "tools/zrvstore/create.h"
#include "tools/zrvstore/failure.h"

#include <QFile>

#include <cstdio>

namespace {

using namespace zrv::storetool;

void print(std::FILE *stream, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    std::fwrite(utf8.constData(), 1, std::size_t(utf8.size()), stream);
}

int run(const Request &request)
{
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
    case Command::Verify:
    case Command::Backup:
        throw Failure(QStringLiteral("this command is not built yet"));
    }
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    try {
        return run(readCommandLine(words));
    } catch (const Failure &failure) {
        print(stderr, QString(u"zrvstore: " + failure.reason() + u'\n'));
    } catch (const std::exception &error) {
        print(stderr, QString(u"zrvstore: " + QString::fromUtf8(error.what()) + u'\n'));
    }
    return 2;
}
