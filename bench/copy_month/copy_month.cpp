// SPDX-License-Identifier: GPL-3.0-or-later

// Copies a month of the store in DIR into another one, as the yearly transfer does:
//
//     bench_copy_month DIR YEAR MONTH TARGET-YEAR TARGET-MONTH
//     bench_copy_month --idle DIR       reads the payer's number alone
//
// bench/copy_month/run.py starts it.

#include "core/basic/run_time_error.h"
#include "lists/month_copy.h"
#include "tests/core/screens/quiet_platform.h"

#include <QFile>
#include <QStringList>

#include <cstdio>

namespace {

using namespace zrv;
using namespace Qt::Literals::StringLiterals;

/// A box tells that nothing was copied.
class Desk : public QuietPlatform {
public:
    bool failed = false;

    Answer messageBox(int, const QString &, const QString &text) override
    {
        std::fputs(text.toUtf8().constData(), stderr);
        failed = true;
        return Answer::Ok;
    }
};

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    const bool idle = words.size() == 2 && words[0] == u"--idle"_s;
    if (!idle && words.size() != 5)
        return 2;
    try {
        Desk desk;
        Program program(desk);
        program.StoreConnectionString = u"Data Source = "_s + words[idle ? 1 : 0] + u"\\DBZorvan.mdb;"_s;
        program.PayerTFN =
            Recordset(Connection(program.StoreConnectionString), u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0).toText();
        if (!idle)
            CopyMonth(program, {words[1], words[2]}, {words[3], words[4]});
        return desk.failed ? 1 : 0;
    } catch (const RunTimeError &failure) {
        std::fputs(failure.what(), stderr);
        return 2;
    }
}
