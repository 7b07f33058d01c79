// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/forms/report_box.h"
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

/// "line N" so many times; some tell an error, one holds a word, and all may come to an end.
class Lines : public ReportLines {
public:
    explicit Lines(qint64 count)
        : m_count(count)
    {
    }

    [[nodiscard]] qint64 lineCount() override { return m_count; }
    [[nodiscard]] qint64 length() override { return lines(0, m_count).size() + 2; }
    [[nodiscard]] QString lines(qint64 first, qint64 count) override
    {
        if (isGone)
            throw RunTimeError(error::DeviceIo, u"the file has changed"_s);
        asked += count;
        QStringList made;
        for (qint64 line = first; line < std::min(m_count, first + count) - (endsEarly ? 1 : 0); ++line)
            made += line == wordAt ? word : u"line "_s + QString::number(line);
        return made.join(u"\r\n"_s);
    }
    [[nodiscard]] qint64 nextError(qint64 line) override
    {
        if (isGone)
            throw RunTimeError(error::DeviceIo, u"the file has changed"_s);
        const auto next = std::ranges::upper_bound(errors, line);
        return next == errors.end() ? -1 : *next;
    }

    std::vector<qint64> errors;
    qint64 wordAt = -1;
    QString word;
    bool isGone = false;
    bool endsEarly = false;
    qint64 asked = 0;

private:
    qint64 m_count;
};

struct ReportForm : TestForm {
    ReportForm()
    {
        report.setLines(lines);
        load();
        activate();
        report.setFocus();
    }
    explicit ReportForm(qint64 count)
        : lines(std::make_shared<Lines>(count))
    {
        report.setLines(lines);
        load();
        activate();
        report.setFocus();
    }
    [[nodiscard]] Control &part(const QString &name) const { return *find(QString(u"txtReport_"_s + name)); }
    [[nodiscard]] QString label() const { return part(u"FindLabel"_s).shownText(); }

    std::shared_ptr<Lines> lines = std::make_shared<Lines>(3);
    ReportBox report{*this, u"txtReport"_s};
};

TEST(ReportBox, ShowsAShortReportWhole)
{
    const ReportForm form;
    EXPECT_EQ(form.report.text(), u"line 0\r\nline 1\r\nline 2\r\n"_s);
    EXPECT_EQ(form.report.currentLine(), 0);
}

TEST(ReportBox, ShowsTheLinesOfALongReportThatHaveRoomInAMillionLetters)
{
    const ReportForm form(200'000);
    const QString text = form.report.text();
    EXPECT_LE(text.size(), 1048576);
    EXPECT_GT(text.size(), 1048576 - 20);
    const qsizetype last = text.count(u"\r\n"_s);
    EXPECT_TRUE(text.endsWith(u"\r\nline "_s + QString::number(last)));
    EXPECT_LT(form.lines->asked, 90'000);
}

TEST(ReportBox, ShowsAPlainTextAsItStands)
{
    ReportForm form;
    form.report.setText(u"a\rb\nc\r\n\r\nd"_s);
    EXPECT_EQ(form.report.text(), u"a\rb\nc\r\n\r\nd"_s);
    EXPECT_EQ(form.report.lineCount(), 5);
    EXPECT_EQ(form.report.page(0, 9).lines, (QStringList{u"a"_s, u"b"_s, u"c"_s, u""_s, u"d"_s}));
    EXPECT_FALSE(form.report.goToNextError());
    form.report.setText({});
    EXPECT_EQ(form.report.lineCount(), 0);
    EXPECT_EQ(form.report.currentLine(), -1);
    EXPECT_EQ(form.report.text(), QString());
}

TEST(ReportBox, WithoutLinesNoKeyDoesHarm)
{
    ReportForm form;
    form.report.setLines(nullptr);
    for (int key = int(Key::Enter); key <= int(Key::Find); ++key) {
        form.report.setFocus();
        form.userKey(Key(key));
        EXPECT_EQ(form.report.currentLine(), -1) << key;
    }
    EXPECT_EQ(form.report.selectedText(10), QString());
}

TEST(ReportBox, AsksForALineOfAPageOnce)
{
    ReportForm form(3'000'000'000);
    form.lines->errors = {5, 2'000'000'001, 2'000'000'003};
    const ReportPage &page = form.report.page(2'000'000'000, 5);
    EXPECT_EQ(page.lines.front(), u"line 2000000000"_s);
    EXPECT_EQ(page.tellsError, (std::vector{false, true, false, true, false}));
    (void)form.report.page(2'000'000'000, 5);
    EXPECT_EQ(form.lines->asked, 5);
}

TEST(ReportBox, APageHasTheLinesItWasAskedForWhateverTheReportGives)
{
    ReportForm form;
    form.lines->errors = {2};
    form.lines->wordAt = 0;
    form.lines->word = u"two\r\nlines"_s;
    EXPECT_EQ(form.report.page(0, 3).lines, (QStringList{u"two"_s, u"lines"_s, u"line 1"_s}));
    EXPECT_EQ(form.report.page(0, 3).tellsError, (std::vector{false, false, true}));
    form.lines->endsEarly = true;
    EXPECT_EQ(form.report.page(1, 2).lines, (QStringList{u"line 1"_s, QString()}));
    EXPECT_EQ(form.report.page(1, 2).tellsError, (std::vector{false, true}));
}

TEST(ReportBox, GoesFromLineToLineAndPageToPageWithinItsEnds)
{
    ReportForm form(50);
    form.report.setPageLines(30);
    form.userKey(Key::Up);
    EXPECT_EQ(form.report.currentLine(), 0);
    form.userKey(Key::Down);
    EXPECT_EQ(form.report.currentLine(), 1);
    form.userKey(Key::PageDown);
    EXPECT_EQ(form.report.currentLine(), 31);
    form.userKey(Key::PageDown);
    EXPECT_EQ(form.report.currentLine(), 49);
    form.userKey(Key::PageUp);
    EXPECT_EQ(form.report.currentLine(), 19);
}

TEST(ReportBox, F8GoesToTheNextErrorAndBehindTheLastToTheFirst)
{
    ReportForm form(50);
    form.lines->errors = {7, 30};
    form.userKey(Key::F8);
    EXPECT_EQ(form.report.currentLine(), 7);
    form.userKey(Key::F8);
    EXPECT_EQ(form.report.currentLine(), 30);
    form.userKey(Key::F8);
    EXPECT_EQ(form.report.currentLine(), 7);
    form.lines->errors.clear();
    EXPECT_FALSE(form.report.goToNextError());
    EXPECT_EQ(form.report.currentLine(), 7);
}

TEST(ReportBox, EnterAndADoubleClickTellTheScreenOfTheLine)
{
    ReportForm form(50);
    QList<qint64> told;
    form.report.onLineDoubleClick = [&](qint64 line) { told += line; };
    form.userKey(Key::Down);
    form.userKey(Key::Enter);
    form.userLines(form.report, 9, 9);
    form.userDblClick(form.report);
    EXPECT_EQ(told, (QList<qint64>{1, 9}));
}

TEST(ReportBox, ADoubleClickOnAReportWithoutLinesTellsNothing)
{
    ReportForm form;
    int told = 0;
    form.report.onLineDoubleClick = [&](qint64) { ++told; };
    form.report.setLines(nullptr);
    form.userDblClick(form.report);
    EXPECT_EQ(told, 0);
}

TEST(ReportBox, EnterIsTheDefaultButtonsWhereTheScreenHasNoUseForALine)
{
    ReportForm form(50);
    form.ok.setDefault(true);
    form.takeDiary();
    form.userKey(Key::Enter);
    EXPECT_EQ(form.takeDiary(), QStringList{u"click ok"_s});
}

TEST(ReportBox, FindsAWordWhicheverYehOrKafItIsWrittenWith)
{
    ReportForm form(50'000);
    form.lines->wordAt = 40'000;
    form.lines->word = u"نام : «علی کاظمی»"_s;
    EXPECT_EQ(form.report.find(u"علي كاظمي"_s, 0), 40'000);
    EXPECT_EQ(form.report.find(u"علي كاظمي"_s, 40'000), 40'000);
    EXPECT_EQ(form.report.find(u"علي كاظمي"_s, 40'001), -1);
    EXPECT_EQ(form.report.find(QString(), 0), -1);
}

TEST(ReportBox, ASearchThatIsStoppedFindsNothing)
{
    ReportForm form(3'000'000'000);
    qint64 reached = 0;
    EXPECT_EQ(form.report.find(u"nowhere"_s, 0,
                               [&](qint64 line) {
                                   reached = line;
                                   return line < 10'000;
                               }),
              -1);
    EXPECT_GE(reached, 10'000);
    EXPECT_LT(reached, 20'000);
}

TEST(ReportBox, CtrlFOpensAFieldAndEnterInItGoesFromPlaceToPlace)
{
    ReportForm form(1500);
    EXPECT_FALSE(form.part(u"Find"_s).isShown());
    form.userKey(Key::Find);
    EXPECT_TRUE(form.part(u"Find"_s).isShown());
    EXPECT_TRUE(form.part(u"Find"_s).hasFocus());
    type(form, u"LINE 14"_s);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.report.currentLine(), 14);
    form.userKey(Key::F3);
    EXPECT_EQ(form.report.currentLine(), 140);
    form.report.setCurrentLine(1499);
    form.userKey(Key::F3);
    EXPECT_EQ(form.report.currentLine(), 14) << "behind the last place comes the first";
    form.userKey(Key::Escape);
    EXPECT_FALSE(form.part(u"Find"_s).isShown());
    EXPECT_TRUE(form.report.hasFocus());
    EXPECT_EQ(form.report.currentLine(), 14);
}

TEST(ReportBox, SaysWhenAWordIsNowhere)
{
    ReportForm form(1500);
    form.userKey(Key::F3);
    type(form, u"nowhere"_s);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.label(), u"يافت نشد : "_s);
    EXPECT_EQ(form.report.currentLine(), 0);
    type(form, u"x"_s);
    EXPECT_EQ(form.label(), u"جستجو : "_s);
}

TEST(ReportBox, TheFieldOpensAnewAsForTheFirstTime)
{
    ReportForm form(1500);
    form.userKey(Key::Find);
    type(form, u"nowhere"_s);
    form.userKey(Key::Enter);
    form.userKey(Key::Escape);
    form.userKey(Key::Find);
    EXPECT_EQ(form.label(), u"جستجو : "_s);
    type(form, u"line 14"_s);
    EXPECT_EQ(form.part(u"Find"_s).shownText(), u"line 14"_s) << "what is typed takes the last word's place";
}

TEST(ReportBox, F3AndF8WorkInTheReportAndInTheFieldAlike)
{
    ReportForm form(1500);
    form.lines->errors = {7};
    form.userKey(Key::Find);
    type(form, u"line 14"_s);
    form.userKey(Key::F8);
    EXPECT_EQ(form.report.currentLine(), 7);
    EXPECT_TRUE(form.part(u"Find"_s).hasFocus());
    form.report.setFocus();
    form.userKey(Key::F3);
    EXPECT_EQ(form.report.currentLine(), 14);
    EXPECT_TRUE(form.report.hasFocus());
}

TEST(ReportBox, TheButtonBesideTheFieldGoesOnAndKnowsTheFieldsKeys)
{
    ReportForm form(1500);
    form.userKey(Key::Find);
    type(form, u"line 14"_s);
    form.userClick(form.part(u"FindNext"_s));
    EXPECT_EQ(form.report.currentLine(), 14);
    form.part(u"FindNext"_s).setFocus();
    form.userKey(Key::F3);
    EXPECT_EQ(form.report.currentLine(), 140);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.report.currentLine(), 141) << "once, as any button";
    form.userKey(Key::Escape);
    EXPECT_FALSE(form.part(u"Find"_s).isShown());
}

TEST(ReportBox, ASearchTellsHowFarItIsAndEndsWhereItBegan)
{
    ReportForm form(10'000);
    QStringList told;
    form.report.onSearching = [&] { told += form.label(); };
    form.report.setCurrentLine(4'999);
    form.userKey(Key::Find);
    type(form, u"nowhere"_s);
    form.lines->asked = 0;
    form.userKey(Key::Enter);
    EXPECT_EQ(told.front(), u"در حال جستجو (60%) : "_s);
    EXPECT_TRUE(told.contains(u"در حال جستجو (100%) : "_s));
    EXPECT_EQ(told.back(), u"در حال جستجو (51%) : "_s);
    EXPECT_LT(form.lines->asked, 12'000);
}

TEST(ReportBox, AnotherReportEndsTheSearchInTheOneBefore)
{
    ReportForm form(3'000'000'000);
    int calls = 0;
    form.report.onSearching = [&] {
        if (++calls == 2)
            form.report.setText(u"another"_s);
        ASSERT_LT(calls, 10);
    };
    form.userKey(Key::Find);
    type(form, u"nowhere"_s);
    form.userKey(Key::Enter);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(form.label(), u"جستجو متوقف شد : "_s);
}

TEST(ReportBox, TheStopButtonWorksWhileAWordIsSought)
{
    ReportForm form(3'000'000'000);
    form.setLiveWhileBusy(&form.back);
    QStringList captions;
    int calls = 0;
    form.report.onSearching = [&] {
        captions += form.part(u"FindNext"_s).shownText();
        if (++calls == 3) {
            EXPECT_FALSE(form.userKey(Key::Down));
            EXPECT_TRUE(form.userClick(form.part(u"FindNext"_s)));
        }
    };
    form.userKey(Key::Find);
    type(form, u"nowhere"_s);
    form.userKey(Key::Enter);
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(captions.back(), u"توقف"_s);
    EXPECT_EQ(form.part(u"FindNext"_s).shownText(), u"بعدي"_s);
    EXPECT_EQ(form.label(), u"جستجو متوقف شد : "_s);
    EXPECT_EQ(form.liveWhileBusy(), &form.back);
}

TEST(ReportBox, MarkedLinesAreCopiedWithTheirEnds)
{
    ReportForm form(5000);
    form.report.setCurrentLine(3);
    EXPECT_EQ(form.report.selectedText(100), u"line 3"_s);
    form.report.select(5, 3);
    EXPECT_EQ(form.report.selectedText(100), u"line 3\r\nline 4\r\nline 5\r\n"_s);
    EXPECT_EQ(form.report.selectedText(10), std::nullopt);
    form.report.select(0, 4999);
    EXPECT_EQ(form.report.selectedText(1'000'000)->count(u'\n'), 5000);
}

TEST(ReportBox, TooManyMarkedLinesAreNotEvenAskedFor)
{
    ReportForm form(3'000'000'000);
    form.report.select(0, 2'999'999'999);
    EXPECT_EQ(form.report.selectedText(16'000'000), std::nullopt);
    EXPECT_EQ(form.lines->asked, 0);
}

TEST(ReportBox, AReportThatIsGoneLeavesTheErrorsWordsInItsPlace)
{
    const QString gone = u"the file has changed"_s;
    const auto fresh = [](ReportForm &form) {
        form.lines->errors = {40};
        form.lines->isGone = true;
        EXPECT_EQ(form.report.lineCount(), 50);
    };
    const std::vector<std::function<void(ReportForm &)>> acts = {
        [](ReportForm &form) { EXPECT_EQ(form.report.page(10, 5).lines, QStringList{u"the file has changed"_s}); },
        [](ReportForm &form) { form.userKey(Key::F8); },
        [](ReportForm &form) { EXPECT_EQ(form.report.selectedText(100), QString()); },
        [](ReportForm &form) {
            form.userKey(Key::Find);
            type(form, u"word"_s);
            form.userKey(Key::Enter);
        },
    };
    for (const auto &act : acts) {
        ReportForm form(50);
        fresh(form);
        EXPECT_EQ(form.report.text(), gone);
        act(form);
        EXPECT_EQ(form.report.lineCount(), 1);
        EXPECT_EQ(form.report.text(), gone);
        EXPECT_EQ(form.report.page(0, 5).lines, QStringList{gone});
    }
}

TEST(ReportBox, AReportThatIsGoneBeforeItIsShownTellsSoAsWell)
{
    class Gone : public Lines {
    public:
        using Lines::Lines;
        [[nodiscard]] qint64 lineCount() override { throw RunTimeError(error::DeviceIo, u"the file has changed"_s); }
    };
    ReportForm form;
    form.report.setLines(std::make_shared<Gone>(3));
    EXPECT_EQ(form.report.text(), u"the file has changed"_s);
    EXPECT_EQ(form.report.lineCount(), 1);
}

} // namespace
} // namespace zrv
