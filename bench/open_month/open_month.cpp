// SPDX-License-Identifier: GPL-3.0-or-later

// How long a month of the salary list takes to open, as a part of what the bare query takes that yields the month's
// rows in their order, in the same process and on the same file:
//
//     bench_open_month DIR [ROUNDS]
//
// Opening is all that the user waits for without a window: the month is accepted, the payees are listed, the grid is
// filled, and one page of it is read as it is shown. bench/open_month/run.py makes the store and starts it.

#include "core/store/recordset.h"
#include "lists/frmHogog1.h"
#include "lists/salary_grid.h"
#include "tests/core/screens/quiet_platform.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

using namespace zrv;

constexpr int PageRows = 25;
constexpr double Goal = 1.5;

struct Bench {
    explicit Bench(const QString &store)
    {
        program.StoreConnectionString = u"Data Source = "_s + store;
        program.PayerTFN =
            Recordset(Connection(program.StoreConnectionString), u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0).toText();
        screen.load();
        screen.activate();
    }

    /// Nanoseconds until the month stands there.
    qint64 open()
    {
        screen.txtTaxYear.setText(u"1389"_s);
        screen.dcbTaxMonth.setBoundText(u"02"_s);
        QElapsedTimer timer;
        timer.start();
        screen.userClick(screen.cmdKeyOk);
        const Grid &grid = screen.browse.grid;
        for (int row = 0; row < PageRows; ++row)
            for (int column = 0; column < static_cast<int>(grid.columns().size()); ++column)
                letters += grid.shownCell(row, column).size();
        const qint64 taken = timer.nsecsElapsed();
        rows = grid.rowCount();
        screen.userClick(screen.cmdKeyReturn1);
        return taken;
    }

    /// Nanoseconds of the month's rows in their order, without what they show.
    qint64 query()
    {
        QElapsedTimer timer;
        timer.start();
        const Connection connection(program.StoreConnectionString);
        for (Recordset row(connection, u"SELECT ZRVtbHogog.MelliCode FROM ZRVtbHogog LEFT JOIN ZRVtbKarkonan ON "
                                       "ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode WHERE ZRVtbHogog.TFN = "_s
                                           + quoted(program.PayerTFN)
                                           + u" AND ZRVtbHogog.TaxYear = '1389' AND ZRVtbHogog.TaxMonth = '02' "
                                             "ORDER BY Family,Name"_s);
             !row.eof(); row.moveNext())
            letters += static_cast<qsizetype>(row.utf8(0).size());
        return timer.nsecsElapsed();
    }

    QuietPlatform platform;
    Program program{platform};
    frmHogog1 screen{program};
    int rows = 0;
    qsizetype letters = 0; ///< read, so that nothing is left undone
};

qint64 median(std::vector<qint64> &times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    const int rounds = argc > 2 ? QByteArray(argv[2]).toInt() : 15;
    Bench bench(QFile::decodeName(argv[1]) + u"/DBZorvan.mdb"_s);
    bench.query();
    bench.open();
    std::vector<qint64> opened;
    std::vector<qint64> queried;
    for (int round = 0; round < rounds; ++round) {
        queried.push_back(bench.query());
        opened.push_back(bench.open());
    }
    const double ratio = static_cast<double>(median(opened)) / static_cast<double>(median(queried));
    std::printf("%d rows, %d rounds, medians: opening a month / the query of its order: %.2f (goal %.1f)\n", bench.rows,
                rounds, ratio, Goal);
    return 0;
}
