// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Runs zrvcheck over the small files of tests/files/check_fixture.h.

#include "tests/files/check_fixture.h"

#include <QDir>
#include <QProcess>

#ifndef ZRVCHECK
#define ZRVCHECK "zrvcheck" // the one on the path, where a test isn't told of another
#endif

namespace zrv::checktool {

class ZrvCheck : public StructureCheckTest {
protected:
    struct Run {
        int status = -1;
        QString out;
        QString err;
    };

    /// Runs the program itself; with a path its output goes there.
    Run zrvcheck(const QStringList &words, const QString &output = {})
    {
        QProcess process;
        if (!output.isEmpty())
            process.setStandardOutputFile(output);
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral(ZRVCHECK), words);
        EXPECT_TRUE(process.waitForFinished());
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    void writeIn(const QString &folder, const QByteArray &bytes, const QString &name)
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(folder));
        write(bytes, folder + u'/' + name);
    }

    const QByteArray m_good = utf16File({payerLine(), payeeLine()});
};

} // namespace zrv::checktool
