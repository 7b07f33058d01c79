// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/mdlEncriptDecript.h"
#include "files/check_catalogue.h"
#include "files/check_words.h"
#include "tests/tools/zrvcheck_fixture.h"
#include "tools/terminal/failure.h"
#include "tools/zrvcheck/check_files.h"
#include "tools/zrvcheck/file_list.h"
#include "tools/zrvcheck/finding_lines.h"

#include <QRegularExpression>

#include <set>
#include <unistd.h>

namespace zrv::checktool {
namespace {

TEST_F(ZrvCheck, AGoodFileIsARowOfTheTableAndNothingElse)
{
    write(m_good, u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, u"file           records    errors  first error\n"
                       "WH138902.TXT         2         0\n"_s);
    EXPECT_EQ(run.err, u""_s);
}

TEST_F(ZrvCheck, EachErrorIsALineAsCompilersWriteThem)
{
    write(utf16File({payerLine(), payeeLine().with(8, u"1a"_s).with(2, u""_s)}), u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, 1);
    const QStringList lines = run.out.split(u'\n');
    EXPECT_TRUE(lines[0].startsWith(u"WH138902.TXT:2:2: 1: فيلد (نام دريافت کننده حقوق)"_s));
    EXPECT_TRUE(lines[1].startsWith(u"WH138902.TXT:2:8: 2: وجود کاراکتر غير عددي"_s));
    EXPECT_TRUE(lines[1].endsWith(u"( 97) ميباشد"_s));
    EXPECT_EQ(lines[3], u"WH138902.TXT         2         2  2:2 wh.payee.Name.length"_s);
}

TEST_F(ZrvCheck, TheSummaryIsTheTableAlone)
{
    write(utf16File({payerLine()}), u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"--summary"_s, u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out.count(u'\n'), 2);
    EXPECT_TRUE(run.out.endsWith(u"  2:0 too-few-records\n"_s));
}

TEST_F(ZrvCheck, AFolderStandsForTheElectronicFilesBelowIt)
{
    writeIn(u"b/1389"_s, m_good, u"WH138902.TXT"_s);
    writeIn(u"b/1389"_s, utf16File({summaryLine()}), u"wk138902.txt"_s);
    writeIn(u"b"_s, m_good, u"WH138901.TXT"_s);
    writeIn(u"b"_s, m_good, u"other.TXT"_s);
    writeIn(u"b"_s, m_good, u"WHOLE.TXT.TXT"_s);
    EXPECT_EQ(filesOf({m_folder.filePath(u"b"_s)}).size(), 3);
    const Run run = zrvcheck({u"b"_s});
    EXPECT_EQ(run.status, 0) << run.out.toStdString();
    EXPECT_EQ(run.out.count(u'\n'), 4);
    writeIn(u"none"_s, m_good, u"other.TXT"_s);
    EXPECT_EQ(zrvcheck({u"none"_s}).status, 2);
}

TEST_F(ZrvCheck, AFolderThatCanNotBeReadStandsForItself)
{
    writeIn(u"b/open"_s, m_good, u"WH138901.TXT"_s);
    writeIn(u"b/closed"_s, m_good, u"WH138903.TXT"_s);
    const auto permit = [this](const QString &folder, QFile::Permissions permissions) {
        EXPECT_TRUE(QFile::setPermissions(m_folder.filePath(folder), permissions));
    };
    constexpr QFile::Permissions Open = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup
                                        | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    permit(u"."_s, Open);
    permit(u"b/closed"_s, {});
    const auto in = [this](const QString &name) { return m_folder.filePath(name); };
    const QStringList expected{in(u"b/closed"_s), in(u"b/open/WH138901.TXT"_s)};
    // The tests may run as the user who may read everything.
    const auto filesAsNobody = [&] {
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            ::_exit(2);
        ::_exit(filesOf({in(u"b"_s)}) == expected && filesOf({in(u"b/closed"_s)}) == expected.first(1) ? 0 : 1);
    };
    EXPECT_EXIT(filesAsNobody(), testing::ExitedWithCode(0), "");
    permit(u"b/closed"_s, Open);
}

TEST_F(ZrvCheck, AFolderThatStandsForItselfCouldNotBeRead)
{
    writeIn(u"b"_s, m_good, u"WH138902.TXT"_s);
    const QStringList files{m_folder.filePath(u"b"_s), m_folder.filePath(u"b/WH138902.TXT"_s)};
    QByteArray told;
    OrderedOutput list([&](QByteArrayView text) { told.append(text); });
    const std::vector<FileResult> results =
        checkFiles({.files = files, .request = {}, .clock = [] { return QString(); }}, list, nullptr);
    list.finish();
    EXPECT_EQ(QString::fromUtf8(told), files[0] + u": the folder can't be read\n"_s);
    EXPECT_EQ(exitStatus(results), 2);
    EXPECT_EQ(results[1].records, 2);
}

TEST_F(ZrvCheck, WhatCanNotBeReadIsSaidAndTheOthersAreChecked)
{
    write(m_good, u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"gone/WH138902.TXT"_s, u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.out.startsWith(u"gone/WH138902.TXT: the check ends here: 76 < "_s)) << run.out.toStdString();
    EXPECT_TRUE(run.out.endsWith(u"WH138902.TXT              2         0\n"_s)) << run.out.toStdString();
}

TEST_F(ZrvCheck, AStoppedCheckIsAnErrorOfTheFile)
{
    write(utf16File({payerLine(), payeeLine().with(16, u""_s)}), u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.out.startsWith(u"WH138902.TXT:2:16: the check ends here: 13 < "_s));
}

TEST_F(ZrvCheck, TheReportIsTheScreens)
{
    const QString path = write(utf16File({payerLine(), payeeLine().with(2, u"12"_s), u"bad"_s}), u"WH138902.TXT"_s);
    options = {.onlyErrors = true, .firstTwoLines = true, .programVersion = CheckedVersion};
    check(FileKind::Wh, path);
    const Run run = zrvcheck({u"--report"_s, u"-"_s, u"--errors-only"_s, u"--first-two"_s, path});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, u""_s);
    // The first and the last line have the time of the check.
    QStringList made = run.out.split(u"\r\n"_s);
    ASSERT_EQ(made.size(), report->lineCount() + 1);
    EXPECT_EQ(made.last(), u""_s);
    EXPECT_EQ(made.mid(1, made.size() - 3).join(u"\r\n"_s), report->lines(1, report->lineCount() - 2));
    EXPECT_TRUE(made[0].startsWith(u" - در حال کنترل نام فايل ليست حقوق ... (تاريخ و زمان شروع"_s));
}

TEST_F(ZrvCheck, TheReportHasEveryLetterOfAFileAndAllThatPassed)
{
    const QString letters = u"a\u00A0\u07FF\u0800ع\uFFFD😀"_s;
    const QString path = write(utf16File({payerLine(), payeeLine().with(2, letters).with(3, u""_s), foreignPayeeLine(),
                                          payeeLine().with(14, u"0"_s).with(15, letters).and_(letters),
                                          payeeLine().cutTo(9), payeeLine().with(2, QString(QChar(0xD800)))}),
                               u"WH138902.TXT"_s);
    check(FileKind::Wh, path);
    QStringList made = zrvcheck({u"--report"_s, u"-"_s, path}).out.split(u"\r\n"_s);
    ASSERT_EQ(made.size(), report->lineCount() + 1);
    // Half a surrogate has no form in UTF-8; a question mark stands for it.
    const QString expected = report->lines(1, report->lineCount() - 2).replace(QChar(0xD800), u'?');
    EXPECT_EQ(made.mid(1, made.size() - 3).join(u"\r\n"_s), expected);

    const QString summary = write(utf16File({chequeLine().with(23, letters), u"x,"_s}), u"WK138902.TXT"_s);
    check(FileKind::Wk, summary);
    made = zrvcheck({u"--report"_s, u"-"_s, summary}).out.split(u"\r\n"_s);
    EXPECT_EQ(made.mid(1, made.size() - 3).join(u"\r\n"_s), report->lines(1, report->lineCount() - 2));
}

TEST_F(ZrvCheck, ReportsOfSeveralFilesFollowEachOtherInAFile)
{
    write(m_good, u"WH138902.TXT"_s);
    write(utf16File({payerLine(), payeeLine().with(16, u""_s)}), u"WH138903.TXT"_s);
    write(utf16File({summaryLine()}), u"WK138902.TXT"_s);
    const Run run = zrvcheck({u"--report=all"_s, u"WH138902.TXT"_s, u"WH138903.TXT"_s, u"WK138902.TXT"_s});
    EXPECT_EQ(run.status, 1);
    QFile file(m_folder.filePath(u"all"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString reports = QString::fromUtf8(file.readAll());
    EXPECT_EQ(reports.count(u"در حال کنترل نام فايل"_s), 2) << "a salary list's report is lost where its check stops";
    EXPECT_TRUE(run.out.contains(u"WH138903.TXT:2:16: "_s));
}

TEST_F(ZrvCheck, OddFilesHaveANote)
{
    write(m_good + "x", u"WH138902.TXT"_s);
    write(QString(summaryLine()).toUtf8(), u"WK138902.TXT"_s);
    const Run run = zrvcheck({u"."_s});
    EXPECT_TRUE(run.out.contains(u"WH138902.TXT: note: its length is odd"_s));
    EXPECT_TRUE(run.out.contains(u"WK138902.TXT: note: it doesn't begin with the mark"_s));
}

TEST_F(ZrvCheck, ControlCharactersOfAFileDoNotReachTheTerminal)
{
    write(utf16File({payerLine(), QString(payeeLine()) + u",\x1b[2Jx\ny"_s}), u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s});
    EXPECT_FALSE(run.out.contains(QChar(0x1b)));
    EXPECT_TRUE(run.out.contains(u"« \uFFFD[2Jx\uFFFDy»"_s));
}

TEST_F(ZrvCheck, AVersionIsShownInOneLineAndNoMoreThanItsBeginning)
{
    const QString version = EncodeBase64(QString(u"1\r\n2"_s + QString(1000, u'x')));
    write(utf16File({payerLine().with(22, version), payeeLine()}), u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s});
    EXPECT_EQ(run.out.count(u'\n'), 3) << "the error, and the table's two lines";
    EXPECT_TRUE(run.out.contains(u" 1\uFFFD\uFFFD2"_s + QString(196, u'x') + u"… ميباشد.\n"_s))
        << run.out.toStdString();
}

/// The words of a page of the manual in one row, without their layout.
QString wordsOfPage(const QString &path)
{
    static const QRegularExpression Layout(u"^\\.(TH|SH|TP|PP|br|nf|fi|\\\\\").*$"_s,
                                           QRegularExpression::MultilineOption);
    static const QRegularExpression Font(u"^\\.[BIR]+ "_s, QRegularExpression::MultilineOption);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QString page = QString::fromUtf8(file.readAll());
    return page.remove(Layout).remove(Font).remove(u'"').replace(u"\\-"_s, u"-"_s).simplified();
}

TEST_F(ZrvCheck, TheManualPageSaysWhatHelpSays)
{
    static const QRegularExpression NextParagraph(u"\n\n(?:exit)?|\n(?=--| {9}\\d)"_s);
    const QString page = wordsOfPage(QStringLiteral(ZRV_SOURCE_DIR "/packaging/man/zrvcheck.1"));
    const QString help = zrvcheck({u"--help"_s}).out;
    const QStringList paragraphs = help.sliced(help.indexOf(u"Each PATH"_s)).split(NextParagraph);
    EXPECT_EQ(paragraphs.size(), 1 + 6 + 3);
    for (const QString &paragraph : paragraphs)
        EXPECT_TRUE(page.contains(paragraph.simplified())) << paragraph.toStdString();
}

TEST_F(ZrvCheck, WrongWordsAreRefused)
{
    for (const QStringList &words : {QStringList{}, QStringList{u"--wrong"_s, u"x"_s}, QStringList{u"--report"_s},
                                     QStringList{u"--summary=1"_s, u"x"_s}, QStringList{u""_s}}) {
        const Run run = zrvcheck(words);
        EXPECT_EQ(run.status, 2);
        EXPECT_TRUE(run.err.startsWith(u"zrvcheck: "_s));
        EXPECT_EQ(run.out, u""_s);
    }
    EXPECT_EQ(zrvcheck({u"--help"_s}).status, 0);
    EXPECT_EQ(zrvcheck({u"--version"_s}).out, u"zrvcheck 1.1.38\n"_s);
}

TEST_F(ZrvCheck, ARefusedReportFileIsSaid)
{
    write(m_good, u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"--report"_s, u"none/report"_s, u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.err.startsWith(u"zrvcheck: "_s));
}

TEST_F(ZrvCheck, AReportInThePlaceOfAFileThatIsToBeCheckedIsRefused)
{
    write(m_good, u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"--report"_s, u"./WH138902.TXT"_s, u"."_s});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.err.startsWith(u"zrvcheck: the report would take the place of"_s)) << run.err.toStdString();
    QFile file(m_folder.filePath(u"WH138902.TXT"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), m_good);
}

TEST_F(ZrvCheck, EveryFindingIsListedUnderANameOfItsOwn)
{
    const QString out = zrvcheck({u"--rules"_s}).out;
    std::set<QString> names;
    for (const CatalogueEntry &entry : checkCatalogue()) {
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name.toStdString();
        EXPECT_TRUE(
            out.contains(entry.name + u"\n    "_s + entry.meaning + u"\n    to mend it: "_s + entry.remedy + u'\n'));
        EXPECT_FALSE(entry.meaning.isEmpty() || entry.remedy.isEmpty());
    }
    EXPECT_EQ(names.size(), 40u + 73u + 55u + 9u);
    EXPECT_TRUE(
        out.contains(u"wh.payer.TIN.length.legal\n    field 10 of a legal person (field 5 of line 1 is 2) has exactly "
                     "12 characters\n    to mend it: write it with 12 characters\n"_s));
}

TEST_F(ZrvCheck, TheOutputIsInTheFilesOrderWhateverTheNumberOfThreads)
{
    QStringList files;
    for (int i = 0; i < 40; ++i) {
        QStringList lines(i % 7 == 0 ? 3000 : 3, payeeLine().with(2, QString::number(i)));
        lines[0] = payerLine();
        files += write(utf16File(lines), u"WH1389%1.TXT"_s.arg(i, 2, 10, QChar(u'0')));
    }
    QByteArray outputs[2];
    for (const unsigned threads : {1u, 4u}) {
        QByteArray &out = outputs[threads == 1 ? 0 : 1];
        OrderedOutput list([&](QByteArrayView text) { out.append(text); });
        const auto results = checkFiles({files, Request{}, StandingClock, threads}, list, nullptr);
        list.finish();
        EXPECT_EQ(results[0].errors, 2999);
        EXPECT_EQ(results[39].errors, 2);
        EXPECT_EQ(results[39].path, files[39]);
        EXPECT_EQ(exitStatus(results), 1);
    }
    EXPECT_GT(outputs[0].size(), 1'000'000);
    EXPECT_EQ(outputs[0], outputs[1]);
}

TEST_F(ZrvCheck, TheOutputOfOneFileIsTheSameWhateverTheNumberOfThreads)
{
    QStringList lines(12'000, payeeLine());
    lines[0] = payerLine();
    for (int i = 1; i < 12'000; i += 7)
        lines[i] = payeeLine().with(2 + i / 7 % 14, QString::number(i) + u'x');
    lines[11'000] = payeeLine().with(16, u"x"_s);
    const QString file = write(utf16File(lines), u"WH138902.TXT"_s);
    ASSERT_GT(QFileInfo(file).size(), 4 << 20) << "some shares";
    QByteArray outputs[2];
    for (const unsigned threads : {1u, 3u}) {
        QByteArray &out = outputs[threads == 1 ? 0 : 1];
        OrderedOutput list([&](QByteArrayView text) { out.append(text); });
        out += tableText(checkFiles({{file}, Request{}, StandingClock, threads}, list, nullptr)).toUtf8();
        list.finish();
    }
    EXPECT_GT(outputs[0].size(), 300'000);
    EXPECT_EQ(outputs[0], outputs[1]);
}

/// Holds the lines of all findings against their words, each made anew.
class LineComparison : public CheckEvents {
public:
    explicit LineComparison(const FileRules &rules)
        : m_rules(rules)
        , m_lines(rules, CheckedVersion, u"f"_s)
    {
    }
    void finding(const Finding &finding) override
    {
        std::string line;
        m_lines.append(finding, line);
        EXPECT_EQ(QString::fromStdString(line),
                  u"f:%1:%2: %3: "_s.arg(finding.line).arg(finding.field).arg(finding.number)
                      + findingLine(m_rules, finding, CheckedVersion) + u'\n');
        ++compared;
    }

    int compared = 0;

private:
    const FileRules &m_rules;
    FindingLines m_lines;
};

TEST_F(ZrvCheck, AnErrorHasItsOwnWordsHoweverOftenOthersCame)
{
    QStringList wh = {payerLine()};
    QStringList wk = {summaryLine()};
    for (const QString &value : {u""_s, u"x"_s, u"1x"_s, u"12"_s, u"xy"_s, u"ع"_s, u"+"_s, QString(60, u'7')}) {
        for (int field = 1; field <= 34; ++field)
            wh += payeeLine().with(field, field == 16 ? u"1"_s : value).with(12, field % 2 == 0 ? u"1"_s : u"2"_s);
        wh += payeeLine().and_(value);
        wh += payeeLine().cutTo(int(value.size()) % 30 + 17);
    }
    for (const QStringList &lines : {wh, QStringList{u"1"_s + QString(20, u','), wh[1]}, QStringList{u"x"_s}}) {
        LineComparison comparison(whRules());
        StructureCheck(whRules(), write(utf16File(lines), u"WH138902.TXT"_s), options).run(comparison);
        EXPECT_GT(comparison.compared, 3);
    }
    for (const QStringList &lines : {QStringList{u"x"_s + QString(28, u','), u"x"_s, QString(30, u',')},
                                     QStringList{chequeLine().with(1, u""_s)}}) {
        LineComparison comparison(wkRules());
        StructureCheck(wkRules(), write(utf16File(lines), u"WK138902.TXT"_s), options).run(comparison);
        EXPECT_GE(comparison.compared, 2);
    }
}

TEST_F(ZrvCheck, AFileThatShrinksWhileItsReportIsWrittenIsSaid)
{
    QStringList lines(20'000, payeeLine());
    lines[0] = payerLine();
    const QString file = write(utf16File(lines), u"WH138902.TXT"_s);
    QByteArray out;
    OrderedOutput list([&](QByteArrayView text) { out.append(text); });
    OrderedOutput reports([&](QByteArrayView) { QFile::resize(file, 4000); });
    const auto results = checkFiles({{file}, {.report = u"-"_s}, StandingClock, 1}, list, &reports);
    EXPECT_EQ(exitStatus(results), 2);
    EXPECT_TRUE(out.contains("WH138902.TXT: the file was changed while its report was written\n")) << out.toStdString();
}

TEST_F(ZrvCheck, AnOutputThatFailsIsHeardOfAtTheEnd)
{
    const QString file = write(utf16File({payerLine()}), u"WH138902.TXT"_s);
    OrderedOutput list([](QByteArrayView) { throw Failure(u"full"_s); });
    (void)checkFiles({{file, file, file}, Request{}, StandingClock, 2}, list, nullptr);
    EXPECT_THROW(list.finish(), Failure);
}

TEST_F(ZrvCheck, WhatCanNotBeWrittenIsToldAndNoSuccess)
{
    write(m_good, u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s}, u"/dev/full"_s);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, u"zrvcheck: can't write: the disk is full, or nobody reads any more\n"_s);
}

} // namespace
} // namespace zrv::checktool
