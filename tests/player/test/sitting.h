// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/basic/run_time_error.h"
#include "core/forms/form.h"
#include "tests/player/player.h"
#include "tests/player/scenario.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

/// Two pages of a few words.
class TestReport : public Report {
public:
    TestReport()
        : Report(u"rptTest"_s, u"پيش نمايش"_s, A4Portrait)
    {
    }
    [[nodiscard]] int pageCount() const override { return 2; }
    [[nodiscard]] report::Page page(int number) const override
    {
        report::Page page;
        page.items.push_back(
            report::Text{.box = {10, 10, 50, 8}, .text = number == 0 ? u"ليست حقوق 1389"_s : u"100 %"_s});
        page.items.push_back(report::Text{.box = {10, 20, 50, 8}, .text = u"صفحه "_s + QString::number(number + 1)});
        return page;
    }
};

/// A screen with one control of each kind that the lines act on. It writes down what happens to it.
class TestForm : public Form {
public:
    explicit TestForm(Platform &platform, QString name = u"frmTest"_s)
        : Form(std::move(name))
        , m_platform(platform)
    {
        setCaption(u"آزمون"_s);
        list.setItems({{.shown = u"يك"_s, .code = u"01"_s}, {.shown = u"دو"_s, .code = u"02"_s}});
        plainList.setItems({{.shown = u"سرخ"_s}, {.shown = u"سبز"_s}});
        ticks.setItems({{.shown = u"a"_s}, {.shown = u"b"_s}});
        for (TextBox *field : {&first, &second}) {
            field->onGotFocus = [this, field] { log += u"+"_s + field->name(); };
            field->onLostFocus = [this, field] { log += u"-"_s + field->name(); };
        }
        first.onKeyPress = [this](int &key) {
            if (key == 13) {
                key = 0;
                second.setFocus();
            }
        };
        ask.onClick = [this] {
            log += m_platform.messageBox(box::AskYesNo, u"t"_s, u"?"_s) == Answer::Yes ? u"yes"_s : u"no"_s;
        };
        tell.onClick = [this] { m_platform.messageBox(box::Refusal, u" t "_s, u"a\r\nb\rc\nd"_s); };
        end.onClick = [] { throw ProgramEnd{}; };
        menuItem.onClick = [this] { log += u"menu"_s; };
        open.onClick = [this] {
            TestForm inner(m_platform, u"frmInner"_s);
            inner.load();
            m_platform.runModal(inner);
            log += inner.log;
        };
        door.onGotFocus = [this] { open.onClick(); };
        print.onClick = [this] { m_platform.preview(TestReport()); };
        dialog.onClick = [this] { log += m_platform.openFileDialog(u"/where"_s, {}).value_or(u"none"_s); };
        grid.setColumns(
            {{.field = u"a"_s, .caption = u"A"_s}, {.field = u"b"_s, .caption = u"B"_s, .format = u"#,##0"_s}});
        grid.setRows(std::make_shared<Rows>());
        grid.onDblClick = [this] { log += u"row "_s + grid.currentCell(u"a"); };
        report.setText(u"يك\r\nعلی\r\nسه\r\n"_s);
        report.onLineDoubleClick = [this](qint64 line) { log += u"line "_s + QString::number(line); };
        grid.onHeadClick = [this](int column) { log += u"head "_s + QString::number(column); };
    }

    struct Rows : RowSource {
        [[nodiscard]] int rowCount() const override { return 2; }
        [[nodiscard]] QString cell(int row, int column) const override
        {
            return column == 0 ? QString(QChar(u'x' + row)) : QString::number(1000 * (row + 1));
        }
    };

    QStringList log;

    // clang-format off
    TextBox first{*this, u"txtFirst"_s, {.limit = 10, .tag = u"+N"_s, .toolTip = u"راهنما"_s}};
    TextBox second{*this, u"txtSecond"_s};
    Frame frame{*this, u"framData"_s, {.caption = u"قاب"_s}};
    TextBox inside{frame, u"txtInside"_s};
    DataCombo list{*this, u"dcbList"_s};
    ComboBox plainList{*this, u"cmbPlain"_s};
    ListBox ticks{*this, u"lstTicks"_s, {.checkBoxes = true}};
    CheckBox check{*this, u"chkOne"_s, {.caption = u"c"_s}};
    OptionButton left{*this, u"OptLeft"_s, {.checked = true}};
    OptionButton right{*this, u"OptRight"_s};
    Grid grid{*this, u"dbgRows"_s};
    ReportBox report{*this, u"txtReport"_s};
    Button ask{*this, u"cmdAsk"_s, {.caption = u"&پرسش"_s}};
    Button tell{*this, u"cmdTell"_s};
    Button dialog{*this, u"cmdFile"_s};
    Button print{*this, u"cmdPrint"_s};
    Button open{*this, u"cmdOpen"_s};
    Button door{*this, u"cmdDoor"_s};
    Button end{*this, u"cmdEnd"_s};
    Button hidden{*this, u"cmdHidden"_s, {.visible = false}};
    Button disabled{*this, u"cmdDisabled"_s, {.enabled = false}};
    MenuItem menu{*this, u"mnuMenu"_s, {.caption = u"m"_s}};
    MenuItem menuItem{menu, u"mnuItem"_s, {.caption = u"i"_s}};
    Label label{*this, u"lblWord(1)"_s, {.caption = u"برچسب"_s}};
    // clang-format on

protected:
    bool Form_QueryUnload(UnloadMode) override { return !keepsOpen; }
    void failed(const RunTimeError &failure) override { throw failure; }

public:
    bool keepsOpen = false;

private:
    Platform &m_platform;
};

/// Plays a scenario's text on a TestForm, headless, and keeps what came of it.
class SittingTest : public testing::Test {
protected:
    Status play(const QByteArray &text)
    {
        const QString path = m_folder.filePath(u"s.scn"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        QBuffer account;
        account.open(QIODevice::WriteOnly);
        Transcript transcript(account);
        HeadlessStage stage;
        Player player(m_folder.path(), stage, transcript, [this](Platform &platform) { runForm(platform); });
        const Status status = player.play(readScenario(path, m_folder.path()));
        complaint = player.complaint();
        lines = QString::fromUtf8(account.data()).split(u'\n', Qt::SkipEmptyParts);
        return status;
    }

    /// Plays lines behind start that must all hold.
    void holds(const QByteArray &text) { EXPECT_EQ(play("start\n" + text), Status::Held) << complaint.toStdString(); }
    /// Plays lines behind start of which the last must fail.
    void fails(const QByteArray &text)
    {
        EXPECT_EQ(play("start\n" + text), Status::Failed);
        const auto last = QString::number(1 + text.count('\n') + (text.endsWith('\n') ? 0 : 1));
        EXPECT_TRUE(complaint.contains(u"s.scn:"_s + last + u": "_s)) << complaint.toStdString();
    }

    QStringList lines; ///< the transcript
    QString complaint;
    QStringList log; ///< what the form wrote down
    bool keepsOpen = false;
    QTemporaryDir m_folder;

private:
    void runForm(Platform &platform)
    {
        TestForm form(platform);
        form.keepsOpen = keepsOpen;
        struct KeepLog {
            QStringList &to;
            QStringList &from;
            ~KeepLog() { to = from; }
        } const keep{log, form.log};
        form.load();
        platform.runModal(form);
    }
};

} // namespace zrv::player
