// SPDX-License-Identifier: GPL-3.0-or-later

// How long a month of the salary list takes to open, as a multiple of what the bare queries take that yield the order of
// what it shows, the month's rows and the payees to choose from, in the same process and on the same file:
//
//     bench_open_month DIR [ROUNDS]
//
// Opening is all that the user waits for behind Enter on the month, but for the window: the payees are listed, the grid
// is filled, and one page of it is read as it is shown. bench/open_month/run.py makes the store and starts it.

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
        screen.userFocus(screen.dcbTaxMonth);
        QElapsedTimer timer;
        timer.start();
        screen.userKey(Key::Enter);
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
    qint64 queryRows()
    {
        return query(u"SELECT ZRVtbHogog.MelliCode FROM ZRVtbHogog LEFT JOIN ZRVtbKarkonan ON ZRVtbHogog.MelliCode = "
                     "ZRVtbKarkonan.MelliCode WHERE ZRVtbHogog.TFN = "_s
                     + quoted(program.PayerTFN)
                     + u" AND ZRVtbHogog.TaxYear = '1389' AND ZRVtbHogog.TaxMonth = '02' ORDER BY Family,Name"_s);
    }

    /// The same of the payees.
    qint64 queryPayees()
    {
        return query(u"SELECT MelliCode FROM ZRVtbKarkonan WHERE (EndDate >= '13890201' OR EndDate='' OR EndDate IS "
                     "NULL) ORDER BY Family,Name"_s);
    }

    qint64 query(const QString &select)
    {
        QElapsedTimer timer;
        timer.start();
        const Connection connection(program.StoreConnectionString);
        for (Recordset row(connection, select); !row.eof(); row.moveNext())
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

double milliseconds(std::vector<qint64> &times)
{
    return static_cast<double>(median(times)) / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    const int rounds = argc > 2 ? QByteArray(argv[2]).toInt() : 15;
    Bench bench(QFile::decodeName(argv[1]) + u"/DBZorvan.mdb"_s);
    std::vector<qint64> opened;
    std::vector<qint64> rows;
    std::vector<qint64> both;
    for (int round = -1; round < rounds; ++round) {
        const qint64 ofRows = bench.queryRows();
        const qint64 ofPayees = bench.queryPayees();
        const qint64 ofOpening = bench.open();
        if (round < 0)
            continue; // the first brings the file into memory
        rows.push_back(ofRows);
        both.push_back(ofRows + ofPayees);
        opened.push_back(ofOpening);
    }
    const auto ratio = [&](std::vector<qint64> &reference) {
        return static_cast<double>(median(opened)) / static_cast<double>(median(reference));
    };
    std::printf("%d rows, %d rounds, medians: opening %.1f ms, both orders %.1f ms, the rows' alone %.1f ms\n",
                bench.rows, rounds, milliseconds(opened), milliseconds(both), milliseconds(rows));
    std::printf("opening a month / the queries of both its orders: %.2f (goal %.1f); / that of its rows alone: %.2f\n",
                ratio(both), Goal, ratio(rows));
    return 0;
}
