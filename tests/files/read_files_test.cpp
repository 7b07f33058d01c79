// SPDX-License-Identifier: GPL-3.0-or-later
// The screen frmReadTextFiles where a scenario can't look: runs that are cancelled while they are under way, and files
// that mean harm.
#include "core/store/new_store.h"
#include "files/contents_columns.h"
#include "files/frmReadTextFiles.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/files/check_fixture.h"

#include <QDir>
#include <QRegularExpression>

#include <sys/stat.h>

namespace zrv {
namespace {

struct Box {
    int style;
    QString title;
    QString text;
};

class ReadingPlatform : public QuietPlatform {
public:
    explicit ReadingPlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }

    std::vector<Box> boxes;
    std::function<void()> onYield = [] {};
    std::function<void()> onBox = [] {};

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes.push_back({style, title, text});
        onBox();
        return Answer::Ok;
    }
    QString programFolder() override { return m_folder; }
    void yield() override { onYield(); }

private:
    QString m_folder;
};

class ReadFiles : public testing::Test {
protected:
    ReadFiles()
    {
        createStore(path(u"DBZorvan.mdb"_s));
        program.StoreConnectionString = u"Data Source = "_s + path(u"DBZorvan.mdb"_s);
        program.ProgramVersion = CheckedVersion;
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    QString write(const QByteArray &bytes, const QString &name = u"WH138902.TXT"_s)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    /// Opens the screen on these two files.
    void open(const QString &wh, const QString &wk = {})
    {
        program.HogogPath = wh;
        program.KholPath = wk;
        screen = std::make_unique<frmReadTextFiles>(program);
        screen->load();
        screen->activate();
    }
    void openWith(const QStringList &lines) { open(write(utf16File(lines))); }

    static QStringList manyLines(int payees)
    {
        QStringList lines{payerLine()};
        lines.resize(payees + 1, payeeLine().with(8, u"x"_s));
        return lines;
    }

    /// Lets the user act at the second time that a run lets him, or later: at the first it has not begun yet.
    void whileRunning(const std::function<void()> &action, int time = 2)
    {
        platform.onYield = [action, time, times = 0]() mutable {
            if (++times == time)
                action();
        };
    }

    QTemporaryDir folder;
    ReadingPlatform platform{folder.path()};
    Program program{platform};
    std::unique_ptr<frmReadTextFiles> screen;
};

TEST_F(ReadFiles, CancelEndsACheckAndKeepsWhatItHadReported)
{
    openWith(manyLines(60'000));
    whileRunning([&] { EXPECT_TRUE(screen->userClick(screen->cmdCancel)); });
    EXPECT_TRUE(screen->userClick(screen->cmdCheckHogogStructure));
    EXPECT_GT(screen->txtHogogStructure.lineCount(), 100);
    EXPECT_LT(screen->txtHogogStructure.lineCount(), 60'000 * 100);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
    EXPECT_TRUE(screen->cmdCheckHogogStructure.hasFocus());
}

TEST_F(ReadFiles, CancelEndsACheckInsideALineOfMillionsOfFields)
{
    const QString many(8'000'000, u',');
    open(write(utf16File({QString(payerLine()) + many})),
         write(utf16File({QString(summaryLine()) + many}), u"WK138902.TXT"_s));
    for (Button *const button : {&screen->cmdCheckHogogStructure, &screen->cmdCheckKholStructure}) {
        // The second time may come when the line was read, before it is looked at.
        whileRunning([&] { EXPECT_TRUE(screen->userClick(screen->cmdCancel)); }, 4);
        EXPECT_TRUE(screen->userClick(*button));
        EXPECT_TRUE(platform.boxes.empty()) << "a run that comes to its end has a box";
    }
    EXPECT_EQ(screen->txtHogogStructure.lineCount(), 3) << "what stands before the line";
    EXPECT_EQ(screen->txtKholStructure.lineCount(), 3);
}

TEST_F(ReadFiles, EscapeAndTheCloseBoxCancelFirst)
{
    openWith(manyLines(60'000));
    for (const bool byKey : {true, false}) {
        whileRunning([&] { EXPECT_TRUE(byKey ? screen->userKey(Key::Escape) : screen->userClose()); });
        screen->userClick(screen->cmdCheckHogogStructure);
        EXPECT_TRUE(screen->isOpen());
        EXPECT_TRUE(platform.boxes.empty()) << "a run that comes to its end has a box";
    }
    EXPECT_TRUE(screen->userClose());
    EXPECT_FALSE(screen->isOpen());
}

TEST_F(ReadFiles, NothingElseCanBeStartedDuringACheck)
{
    openWith(manyLines(60'000));
    int refused = 0;
    whileRunning([&] {
        for (Button *const button :
             {&screen->cmdCheckHogogStructure, &screen->cmdCheckKholStructure, &screen->cmdHogogShow,
              &screen->cmdKholShow, &screen->cmdShowHogogTextFilePath, &screen->cmdPrint, &screen->cmdExit}) {
            EXPECT_FALSE(button->isReachable()) << button->name().toStdString();
            refused += !screen->userClick(*button);
        }
        EXPECT_TRUE(screen->LabelWaitingMessage.caption().endsWith(u")"_s)) << "with the number of lines";
        EXPECT_TRUE(screen->LabelWaitingShare.caption().endsWith(u"%"_s));
        screen->userClick(screen->cmdCancel);
    });
    screen->userClick(screen->cmdCheckHogogStructure);
    EXPECT_EQ(refused, 7);
    EXPECT_TRUE(screen->cmdCheckKholStructure.isReachable());
}

TEST_F(ReadFiles, CancelEndsALoadAndLeavesNoContents)
{
    openWith(manyLines(60'000));
    whileRunning([&] { EXPECT_TRUE(screen->userClick(screen->cmdCancel)); });
    screen->userClick(screen->cmdHogogShow);
    EXPECT_EQ(screen->browse.rowCount(), 0);
    EXPECT_TRUE(screen->lblHogog.caption().isEmpty());
    EXPECT_FALSE(screen->cmdPrint.isEnabled());
    EXPECT_TRUE(screen->cmdKholShow.isReachable());
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(ReadFiles, CancelEndsASortOrASearchOfManyRowsAndTheyStay)
{
    openWith(manyLines(60'000));
    screen->userClick(screen->cmdHogogShow);
    BrowsePanel &browse = screen->browse;
    int cancelled = 0;
    platform.onYield = [&] { cancelled += screen->userClick(screen->cmdCancel); };
    screen->userCheck(browse.OptSort, true);
    screen->userHead(browse.grid, 3);
    EXPECT_EQ(cancelled, 1);
    screen->userCheck(browse.OptSearch, true);
    screen->userHead(browse.grid, 3);
    browse.txtSearch.setText(u"هيچ"_s);
    platform.boxes.clear();
    screen->userClick(browse.cmdSearch);
    EXPECT_EQ(cancelled, 2);
    EXPECT_TRUE(platform.boxes.empty()) << "a search to the end has a box, as nothing is found";
    EXPECT_EQ(browse.rowCount(), 60'000);
    EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
    EXPECT_TRUE(screen->cmdExit.isReachable());
}

TEST_F(ReadFiles, CancelOfTheLogLeavesItEmpty)
{
    openWith(manyLines(60'000));
    screen->userClick(screen->chkCreatHogogErrorLogFile);
    bool cancels = false;
    platform.onYield = [&] {
        if (!platform.boxes.empty() && !std::exchange(cancels, true))
            screen->userClick(screen->cmdCancel);
    };
    screen->userClick(screen->cmdCheckHogogStructure);
    EXPECT_TRUE(cancels);
    EXPECT_EQ(QFileInfo(path(u"ErrorLog/HogogErrorLog.TXT"_s)).size(), 0);
    EXPECT_GT(screen->txtHogogStructure.lineCount(), 60'000) << "the run itself had come to its end";
}

TEST_F(ReadFiles, ALogThatCanNotBeMadeIsToldBeforeAnythingIsCleared)
{
    openWith(manyLines(3));
    screen->userClick(screen->cmdCheckHogogStructure);
    const qint64 lines = screen->txtHogogStructure.lineCount();
    screen->userPage(screen->SSTab1, 1);
    write("x", u"ErrorLog"_s);
    screen->userClick(screen->chkCreatHogogErrorLogFile);
    platform.boxes.clear();
    screen->userClick(screen->cmdCheckHogogStructure);
    ASSERT_EQ(platform.boxes.size(), 1);
    EXPECT_EQ(platform.boxes[0].style, box::Plain);
    EXPECT_TRUE(platform.boxes[0].text.contains(u" < "_s)) << platform.boxes[0].text.toStdString();
    EXPECT_EQ(screen->SSTab1.page(), 1);
    EXPECT_EQ(screen->txtHogogStructure.lineCount(), lines);
}

TEST_F(ReadFiles, AtTheBoxOfTheEndTheReportOfASummaryListIsThereAndThatOfASalaryListIsNot)
{
    open(write(utf16File(manyLines(3))), write(utf16File({summaryLine().with(19, u""_s)}), u"WK138902.TXT"_s));
    std::vector<bool> isThere;
    platform.onBox = [&] {
        isThere = {screen->txtHogogStructure.lineCount() > 0, screen->txtKholStructure.lineCount() > 0};
    };
    screen->userClick(screen->cmdCheckKholStructure);
    EXPECT_EQ(isThere, (std::vector{false, true})) << "of a run that fails, too";
    screen->userClick(screen->cmdCheckHogogStructure);
    EXPECT_EQ(isThere, (std::vector{false, true}));
    EXPECT_GT(screen->txtHogogStructure.lineCount(), 0);
}

TEST_F(ReadFiles, ContentsStayWhateverBecomesOfTheFile)
{
    openWith(manyLines(3'000));
    screen->userClick(screen->cmdHogogShow);
    ASSERT_TRUE(QFile::remove(path(u"WH138902.TXT"_s)));
    ASSERT_EQ(screen->browse.rowCount(), 3'000);
    EXPECT_EQ(screen->browse.grid.shownCell(2'999, 1), u"1234567891"_s);
    EXPECT_EQ(screen->browse.grid.shownCell(0, 17), u" 1,000,000 "_s);
    EXPECT_EQ(screen->browse.grid.shownCell(0, 35), u" 3,000,000 "_s);
}

TEST_F(ReadFiles, ALineThatEndsEarlyLeavesItsLastCellsEmpty)
{
    openWith({payerLine().cutTo(3), payeeLine().cutTo(3), foreignPayeeLine()});
    screen->userClick(screen->cmdHogogShow);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(screen->browse.grid.cell(0, 3), u"احمدي"_s);
    EXPECT_EQ(screen->browse.grid.cell(0, 34), QString());
    EXPECT_EQ(screen->browse.grid.cell(0, 0), u"شماره گذرنامه"_s);
    EXPECT_EQ(screen->browse.grid.cell(1, 1), u"A1234567"_s);
    EXPECT_EQ(program.DisplayedTaxMonth, QString());
}

TEST_F(ReadFiles, ContentsEndAtAnEmptyLine)
{
    openWith({payerLine(), payeeLine(), u""_s, payeeLine()});
    screen->userClick(screen->cmdHogogShow);
    EXPECT_EQ(screen->browse.rowCount(), 1);
}

TEST_F(ReadFiles, HostileLettersAreShownAsTheyAreOrNotAtAll)
{
    QString letters(3, QChar());
    letters[1] = QChar(0xD800);
    letters[2] = u'\'';
    openWith({payerLine().with(4, letters), payeeLine().with(2, letters).with(5, letters),
              u",,,,"_s.repeated(2'500'000), payeeLine().with(3, QString(1'000'000, u'ب'))});
    screen->userClick(screen->cmdHogogShow);
    EXPECT_TRUE(platform.boxes.empty());
    ASSERT_EQ(screen->browse.rowCount(), 3);
    EXPECT_EQ(screen->browse.grid.cell(0, 2).size(), 3);
    EXPECT_EQ(screen->browse.grid.cell(0, 5), u"کد نامعتبر"_s);
    EXPECT_LT(screen->browse.grid.cell(2, 3).size(), 5'000) << "no cell is longer than a grid can draw";
}

TEST_F(ReadFiles, AnotherEncodingIsTold)
{
    open(write("\xEF\xBB\xBF" + QStringList{payerLine(), payeeLine()}.join(u"\r\n"_s).toUtf8()));
    for (Button *const button : {&screen->cmdCheckHogogStructure, &screen->cmdHogogShow}) {
        platform.boxes.clear();
        screen->userClick(*button);
        ASSERT_FALSE(platform.boxes.empty());
        EXPECT_EQ(platform.boxes.back().style, box::Notice);
        EXPECT_TRUE(platform.boxes.back().text.contains(u"UTF-8"_s));
    }
}

TEST_F(ReadFiles, WhatIsNoFileIsRefused)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"WH138902.TXT"_s));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"WK138902.TXT"_s)).constData(), 0600), 0);
    open(path(u"WH138902.TXT"_s), path(u"WK138902.TXT"_s));
    for (Button *const button : {&screen->cmdHogogShow, &screen->cmdKholShow, &screen->cmdCheckHogogStructure,
                                 &screen->cmdCheckKholStructure}) {
        platform.boxes.clear();
        screen->userClick(*button);
        ASSERT_EQ(platform.boxes.size(), 1) << button->name().toStdString();
        EXPECT_TRUE(platform.boxes[0].text.startsWith(u"فايل مورد نظر يافت نشد\r75 < "_s))
            << button->name().toStdString();
    }
}

TEST_F(ReadFiles, AGigabyteInOneLineIsRefused)
{
    const QString wh = write("");
    ASSERT_TRUE(QFile::resize(wh, qint64(1) << 30)); // a hole: it takes no room on the disk
    open(wh);
    for (Button *const button : {&screen->cmdHogogShow, &screen->cmdCheckHogogStructure}) {
        platform.boxes.clear();
        screen->userClick(*button);
        ASSERT_EQ(platform.boxes.size(), 1);
        EXPECT_TRUE(platform.boxes[0].text.startsWith(u"7 < "_s)) << platform.boxes[0].text.toStdString();
    }
}

TEST_F(ReadFiles, AFileThatShrinksDuringALoadOrACheckIsTold)
{
    for (const bool isCheck : {false, true}) {
        openWith(manyLines(60'000));
        platform.boxes.clear();
        whileRunning([&] { ASSERT_TRUE(QFile::resize(path(u"WH138902.TXT"_s), 100)); });
        screen->userClick(isCheck ? screen->cmdCheckHogogStructure : screen->cmdHogogShow);
        ASSERT_EQ(platform.boxes.size(), 1);
        EXPECT_TRUE(platform.boxes[0].text.startsWith(u"57 < "_s)) << platform.boxes[0].text.toStdString();
        EXPECT_EQ(screen->browse.rowCount(), 0);
        EXPECT_EQ(screen->txtHogogStructure.lineCount(), 0);
    }
}

TEST_F(ReadFiles, AReportWhoseFileChangedSaysSo)
{
    openWith(manyLines(10));
    screen->userClick(screen->cmdCheckHogogStructure);
    write(utf16File(manyLines(11)));
    EXPECT_TRUE(screen->txtHogogStructure.text().contains(u"تغيير کرده است"_s));
}

TEST_F(ReadFiles, TheBranchOfTheLastSalaryListStandsOverTheSummary)
{
    open(write(utf16File({payerLine(), payeeLine()})), write(utf16File({summaryLine()}), u"WK138902.TXT"_s));
    screen->userClick(screen->cmdHogogShow);
    screen->userClick(screen->cmdKholShow);
    EXPECT_TRUE(screen->lblKhol.caption().contains(u"123456789012 - کد شعبه 01 در ارديبهشت ماه سال 1389"_s));
}

TEST_F(ReadFiles, ADoubleClickOnAnErrorShowsItsField)
{
    openWith({payerLine().with(5, u"x"_s), payeeLine(), payeeLine().with(8, u"xyz"_s)});
    screen->userClick(screen->cmdCheckHogogStructure);
    ReportBox &report = screen->txtHogogStructure;
    ASSERT_TRUE(report.goToNextError());
    EXPECT_TRUE(screen->userDblClick(report));
    EXPECT_EQ(screen->SSTab1.page(), 2);
    EXPECT_EQ(screen->dbgKarfarma.currentColumn(), 0);

    screen->SSTab1.setPage(3);
    const qint64 before = report.currentLine();
    while (report.goToNextError() && report.currentLine() > before && screen->browse.grid.currentRow() == 0) {
        screen->userDblClick(report);
        if (screen->SSTab1.page() == 1)
            break;
        screen->SSTab1.setPage(3);
    }
    EXPECT_EQ(screen->SSTab1.page(), 1);
    EXPECT_EQ(screen->browse.grid.currentRow(), 1);
    EXPECT_EQ(screen->browse.grid.columns()[static_cast<std::size_t>(screen->browse.grid.currentColumn())].field,
              u"Sabege"_s);
}

TEST_F(StructureCheckTest, EachLineOfAReportTellsItsRecordAndField)
{
    static const QRegularExpression lineBegins(u"^ -- در حال کنترل خط شماره : (\\d+) از"_s);
    static const QRegularExpression fieldBegins(u"^ \\+\\+\\+\\+ در حال کنترل فيلد شماره : (\\d+)"_s);
    checkWh({payerLine(), payeeLine().with(2, u"12"_s), payeeLine().cutTo(33), payeeLine().and_(u"x"_s)});
    qint64 record = 0;
    int field = 0;
    const QStringList lines = text().split(u"\r\n"_s);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (const auto begins = lineBegins.match(lines[line]); begins.hasMatch()) {
            record = begins.captured(1).toLongLong();
            field = 0;
        } else if (const auto fieldAt = fieldBegins.match(lines[line]); fieldAt.hasMatch()) {
            field = fieldAt.captured(1).toInt();
        } else if (lines[line].contains(u"پايان عمليات"_s)) {
            record = field = 0;
        }
        const ReportPlace place = report->placeOf(line);
        EXPECT_EQ(place.record, record) << line;
        EXPECT_EQ(place.field, field) << line;
    }
    EXPECT_GT(lines.size(), 100);
}

TEST(ContentsColumns, AreThoseOfTheLinesBesidesWhatIsDerived)
{
    EXPECT_EQ(payerContents().columns.size(), 17);
    EXPECT_EQ(payeeContents().columns.size(), 36);
    EXPECT_EQ(summaryContents().columns.size(), 22);
    EXPECT_EQ(payeeContents().columnOf(34), 34);
    EXPECT_EQ(payeeContents().columnOf(99), 34);
    EXPECT_EQ(payerContents().columnOf(1), 0);
    EXPECT_EQ(summaryContents().columnOf(25), 21);
}

} // namespace
} // namespace zrv
