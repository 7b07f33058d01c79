// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/terminal/terminal.h"

#include "core/basic/run_time_error.h"
#include "tools/terminal/failure.h"

#include <QFile>

namespace zrv {

void print(std::FILE *stream, QByteArrayView utf8)
{
    std::fwrite(utf8.data(), 1, static_cast<std::size_t>(utf8.size()), stream);
}

void print(std::FILE *stream, const QString &text)
{
    print(stream, QByteArrayView(text.toUtf8()));
}

void expectWritten(std::FILE *stream)
{
    if (std::ferror(stream) != 0)
        throw Failure(QStringLiteral("can't write: the disk is full, or nobody reads any more"));
}

int runTool(QStringView name, int argc, char **argv, const std::function<int(const QStringList &words)> &run)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    QString reason;
    try {
        const int status = run(words);
        std::fflush(stdout);
        expectWritten(stdout);
        return status;
    } catch (const Failure &failure) {
        reason = failure.reason();
    } catch (const RunTimeError &error) {
        reason = QString(error.description()).replace(u'\n', u' ');
    } catch (const std::exception &error) {
        reason = QString::fromUtf8(error.what());
    }
    print(stderr, QString(name + u": " + reason + u'\n'));
    return 2;
}

} // namespace zrv
