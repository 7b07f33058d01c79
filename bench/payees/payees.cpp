// SPDX-License-Identifier: GPL-3.0-or-later

// How long the payee screen takes in front of a user who has very many payees, beside the bare queries that yield the
// order of the same rows:
//
//     bench_payees DIR [ROUNDS]    opens the screen, searches in every way, scrolls; prints medians and ratios
//     bench_payees --idle DIR      the main form alone
//
// Its last line is the peak memory as the system tells it. bench/payees/run.py makes the store and starts it.

#include "app/catalogue.h"
#include "core/basic/run_time_error.h"
#include "core/store/recordset.h"
#include "core/store/store_file.h"
#include "parties/frmKarkonan.h"
#include "qt/form_window.h"
#include "qt/look.h"
#include "tests/forgetful_platform.h"

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <map>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace zrv;

/// Milliseconds that have passed, and those of them that this process worked: the latter are steadier on a busy
/// machine, and hold less than the user's wait.
struct Times {
    double wall = 0;
    double processor = 0;
};

class Watch {
public:
    [[nodiscard]] Times times() const
    {
        return {std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_begin).count(),
                static_cast<double>(std::clock() - m_processorBegin) * 1e3 / CLOCKS_PER_SEC};
    }

private:
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
    std::clock_t m_processorBegin = std::clock();
};

Times timeOf(const std::function<void()> &action)
{
    const Watch watch;
    action();
    return watch.times();
}

double median(const std::vector<Times> &times, double Times::*kind)
{
    std::vector<double> sorted;
    for (const Times &time : times)
        sorted.push_back(time.*kind);
    std::ranges::sort(sorted);
    return sorted.empty() ? 0 : sorted[sorted.size() / 2];
}

/// Tells when a widget has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }

    /// Lets the windows do what is due until the widget has been painted.
    void wait() const
    {
        for (int turn = 0; !m_painted; ++turn) {
            if (turn == 1000) {
                std::fputs("nothing was painted\n", stderr);
                std::_Exit(1);
            }
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

/// The desktop without a user: what a user would do is done as soon as a screen waits.
class Desk : public ForgetfulPlatform {
public:
    explicit Desk(QString folder)
        : m_folder(std::move(folder))
    {
    }
    std::function<void()> onWait;

    Answer messageBox(int style, const QString &, const QString &text) override
    {
        if (style & box::YesNo)
            return Answer::No; // whether the news of the version shall be shown
        std::fprintf(stderr, "a box came up: %s\n", qPrintable(text));
        std::_Exit(1);
    }
    QString programFolder() override { return m_folder; }

protected:
    void waitWhileOpen(Form &) override
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        onWait();
    }

private:
    QString m_folder;
};

/// A way of looking for payees: what the user does, and the bare query of the ids in their order.
struct Search {
    const char *name;
    std::function<void(frmKarkonan &)> act;
    QString bare;
};

void searchByWords(frmKarkonan &screen, int column, bool alike, bool all, const QString &words)
{
    if (screen.browse.searchSimilar() != alike)
        screen.userDblClick(screen.browse.OptSearch);
    screen.userCheck(screen.browse.OptSearch, true);
    screen.userCheck(screen.browse.chkAnd, all);
    screen.userHead(screen.browse.grid, column);
    screen.browse.txtSearch.setText(words);
    screen.userClick(screen.browse.cmdSearch);
}

QString ids(const QString &condition)
{
    return u"SELECT k.rowid FROM ZRVtbKarkonan AS k"_s + condition
           + u" ORDER BY zrv_order(k.Family),zrv_order(k.Name),k.rowid"_s;
}

std::vector<Search> searches()
{
    constexpr int Family = 2;
    constexpr int Semat = 7;
    const auto byWords = [](int column, bool alike, bool all, const QString &words) {
        return [=](frmKarkonan &screen) { searchByWords(screen, column, alike, all, words); };
    };
    const QString semat = u" LEFT JOIN ZRVtbCoding AS c ON c.MCode = '2' AND c.SCode = k.Semat"_s;
    return {
        {"a word, alike", byWords(Family, true, false, u"کريم"_s), ids(u" WHERE zrv_like(k.Family,'%کريم%')"_s)},
        {"two words, or", byWords(Family, true, false, u"کريم نژاد"_s),
         ids(u" WHERE zrv_like(k.Family,'%کريم%') OR zrv_like(k.Family,'%نژاد%')"_s)},
        {"two words, and", byWords(Family, true, true, u"کريم نژاد"_s),
         ids(u" WHERE zrv_like(k.Family,'%کريم%') AND zrv_like(k.Family,'%نژاد%')"_s)},
        {"a word, equal", byWords(Family, false, false, u"چراغي"_s), ids(u" WHERE zrv_like(k.Family,'چراغي')"_s)},
        {"a code's meaning", byWords(Semat, true, false, u"کار"_s), ids(semat + u" WHERE zrv_like(c.SDesc,'%کار%')"_s)},
        {"automatic, a letter", [](frmKarkonan &screen) { screen.txtFamily.setText(u"ک"_s); },
         ids(u" WHERE zrv_like(k.Family,'%ک%')"_s)},
        {"automatic, both names", [](frmKarkonan &screen) { screen.txtName.setText(u"علي"_s); },
         ids(u" WHERE zrv_like(k.Name,'%علي%') AND zrv_like(k.Family,'%ک%')"_s)},
    };
}

class Measurement {
public:
    Measurement(Desk &desk, Program &program, const QString &store)
        : m_desk(desk)
        , m_program(program)
        , m_store(store)
    {
    }

    void round()
    {
        bare("opening", ids({}));
        for (const Search &search : searches())
            bare(search.name, search.bare);
        const Watch watch;
        frmKarkonan screen(m_program);
        screen.load();
        m_desk.onWait = [&] {
            rowsOf(screen).viewport()->repaint();
            m_screen["opening"].push_back(watch.times());
            check("opening", screen);
            use(screen);
        };
        m_desk.runModal(screen);
    }

    void print() const
    {
        const auto line = [this](const char *name) {
            const auto ratio = [&](double Times::*kind) {
                return median(m_screen.at(name), kind) / median(m_bare.at(name), kind);
            };
            std::printf("%-24s %7d rows   bare %7.1f ms   program %7.1f ms   ratio %.2f   of processor time %.2f\n",
                        name, m_rows.at(name), median(m_bare.at(name), &Times::wall),
                        median(m_screen.at(name), &Times::wall), ratio(&Times::wall), ratio(&Times::processor));
        };
        line("opening");
        for (const Search &search : searches())
            line(search.name);
        std::printf("a page of scrolling: median %.1f ms, worst %.1f ms, processor %.1f ms, of %zu\n",
                    median(m_pages, &Times::wall), std::ranges::max(m_pages, {}, &Times::wall).wall,
                    median(m_pages, &Times::processor), m_pages.size());
    }

private:
    void bare(const char *name, const QString &sql)
    {
        int rows = 0;
        m_bare[name].push_back(timeOf([&] {
            StoreFile file(m_store);
            const PreparedStatement statement = file.prepare(sql);
            while (file.step(statement))
                ++rows;
        }));
        m_rows[name] = rows;
    }

    /// Both must speak of the same rows.
    void check(const char *name, const frmKarkonan &screen) const
    {
        if (screen.browse.rowCount() == m_rows.at(name))
            return;
        std::fprintf(stderr, "%s: %d rows on the screen, %d by the query\n", name, screen.browse.rowCount(),
                     m_rows.at(name));
        std::_Exit(1);
    }

    void use(frmKarkonan &screen)
    {
        scroll(screen);
        for (const Search &search : searches()) {
            if (QLatin1StringView(search.name).startsWith("automatic"_L1) && screen.txtMelliCode.isReachable()) {
                screen.txtMelliCode.setText(u"0456789121"_s);
                screen.cmdKeyOk_Click();
                QCoreApplication::processEvents();
            }
            m_screen[search.name].push_back(timeOf([&] {
                const PaintWatch painted(*rowsOf(screen).viewport());
                search.act(screen);
                painted.wait();
            }));
            check(search.name, screen);
        }
    }

    const QTableView &rowsOf(const frmKarkonan &screen) const
    {
        return *qobject_cast<QTableView *>(m_desk.windowOf(screen)->widgetFor(screen.browse.grid));
    }

    void scroll(const frmKarkonan &screen)
    {
        const QTableView &table = rowsOf(screen);
        QScrollBar &bar = *table.verticalScrollBar();
        constexpr int Pages = 300;
        for (int page = 0; page < Pages; ++page)
            m_pages.push_back(timeOf([&] {
                const PaintWatch painted(*table.viewport());
                bar.setValue(bar.value() + std::max(1, bar.pageStep()));
                painted.wait();
            }));
    }

    Desk &m_desk;
    Program &m_program;
    QString m_store;
    std::map<std::string, std::vector<Times>> m_bare;
    std::map<std::string, std::vector<Times>> m_screen;
    std::map<std::string, int> m_rows;
    std::vector<Times> m_pages;
};

void printPeakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            std::puts(line.constData());
}

void showMainForm(Desk &desk, Program &program)
{
    const std::unique_ptr<Screen> main = program.catalogue.make(u"frmMain"_s, program);
    desk.onWait = [] {};
    main->load();
    desk.runModal(*main);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    const QStringList words = QApplication::arguments().mid(1);
    const bool idle = words.value(0) == u"--idle"_s;
    const QString folder = words.value(idle ? 1 : 0);
    if (folder.isEmpty())
        return 2;
    try {
        Desk desk(folder);
        Program program(desk);
        fillCatalogue(program.catalogue);
        const QString store = folder + u"/DBZorvan.mdb"_s;
        program.StoreConnectionString = u"Data Source = "_s + store + u";"_s;
        if (idle) {
            showMainForm(desk, program);
        } else {
            program.PayerTFN = Recordset(Connection(program.StoreConnectionString), u"SELECT TFN FROM ZRVtbKarfarma"_s)
                                   .value(0)
                                   .toText();
            Measurement measurement(desk, program, store);
            const int rounds = words.size() > 1 ? words[1].toInt() : 7;
            for (int round = 0; round < rounds; ++round)
                measurement.round();
            measurement.print();
        }
    } catch (const RunTimeError &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 2;
    }
    printPeakMemory();
    return 0;
}
