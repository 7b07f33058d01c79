// SPDX-License-Identifier: GPL-3.0-or-later

// Makes the files of a month the way a user does, through frmCreatTextFiles without a window:
//
//     bench_write_wh DIR YEAR MONTH          the whole run
//     bench_write_wh --idle DIR YEAR MONTH   the screen opens, the month is chosen, nothing is written
//
// Its last line is the peak memory as the system tells it. bench/write_wh/run.py starts it.

#include "core/basic/run_time_error.h"
#include "core/store/recordset.h"
#include "files/frmCreatTextFiles.h"
#include "tests/core/screens/quiet_platform.h"

#include <QFile>

#include <cstdio>

namespace {

using namespace zrv;

class Desk : public QuietPlatform {
public:
    explicit Desk(QString folder)
        : m_folder(std::move(folder))
    {
    }
    QString lastBox;

    Answer messageBox(int, const QString &, const QString &text) override
    {
        lastBox = text;
        return Answer::Ok;
    }
    QString programFolder() override { return m_folder; }

private:
    QString m_folder;
};

int play(const QString &folder, const QString &year, const QString &month, bool idle)
{
    Desk desk(folder);
    Program program(desk);
    program.StoreConnectionString = u"Data Source = "_s + folder + u"\\DBZorvan.mdb;"_s;
    program.ProgramVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s;
    program.PayerTFN =
        Recordset(Connection(program.StoreConnectionString), u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0).toText();

    frmCreatTextFiles screen(program);
    screen.load();
    screen.activate();
    screen.txtTaxYear.setText(year);
    screen.dcbTaxMonth.setBoundText(month);
    if (idle)
        return 0;
    screen.userClick(screen.cmdCreatTextFiles);
    std::puts(desk.lastBox.toUtf8().constData());
    return screen.LabelHogogRecordsCount.caption() == u"0"_s ? 1 : 0;
}

void printPeakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            std::puts(line.constData());
    }
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    const bool idle = words.value(0) == u"--idle"_s;
    if (words.size() != (idle ? 4 : 3))
        return 2;
    try {
        const int result = play(words[words.size() - 3], words[words.size() - 2], words[words.size() - 1], idle);
        printPeakMemory();
        return result;
    } catch (const RunTimeError &failure) {
        std::fputs(failure.what(), stderr);
        return 2;
    }
}
