// SPDX-License-Identifier: GPL-3.0-or-later
// The card of all keys is true: for each of its rows the keys are pressed where the row says, and what it promises is
// seen to change. A row that is added to the card without a line here fails, and a line without a row.
#include "parties/frmKarkonan.h"
#include "qt/guide_viewer.h"
#include "qt/preview/page_view.h"
#include "qt/preview/preview_window.h"
#include "tests/print_text.h"
#include "tests/qt/opened_screen.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFile>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>

#include <set>

namespace zrv::test {

namespace {

/// What there is to be seen, by the names that the rows below know it by.
using Seen = QMap<QString, QString>;

class Place {
public:
    virtual ~Place() = default;
    virtual Seen look() = 0;
    /// What has the keyboard.
    virtual QWidget &hands() = 0;
};

Seen lookAt(const Form &form)
{
    const auto flag = [](bool on) { return QString::number(on); };
    Seen seen{{u"focus"_s, form.activeControl() ? form.activeControl()->name() : QString()},
              {u"open"_s, flag(form.isOpen())}};
    for (Control *control : form.controls()) {
        const QString &name = control->name();
        seen[name + u".shown"] = flag(control->isShown());
        seen[name + u".enabled"] = flag(control->isReachable());
        if (const auto *edit = dynamic_cast<const Edit *>(control)) {
            seen[name + u".text"] = edit->text();
            seen[name + u".caret"] = QString::number(edit->selStart()) + u'+' + QString::number(edit->selLength());
            seen[name + u".marked"] = QString::number(edit->selLength());
        } else if (const auto *grid = dynamic_cast<const Grid *>(control)) {
            seen[name + u".row"] = QString::number(grid->currentRow());
            seen[name + u".column"] = QString::number(grid->currentColumn());
            seen[name + u".rows"] = QString::number(grid->rowCount());
        } else if (const auto *box = dynamic_cast<const CheckBox *>(control)) {
            seen[name + u".checked"] = flag(box->isChecked());
        } else if (const auto *option = dynamic_cast<const OptionButton *>(control)) {
            seen[name + u".checked"] = flag(option->isChecked());
        } else if (const auto *tabs = dynamic_cast<const Tabs *>(control)) {
            seen[name + u".page"] = QString::number(tabs->page());
        } else if (const auto *report = dynamic_cast<const ReportBox *>(control)) {
            seen[name + u".line"] = QString::number(report->currentLine());
            seen[name + u".marked"] = QString::number(std::abs(report->anchorLine() - report->currentLine()));
        }
    }
    return seen;
}

// Places -----------------------------------------------------------------------------------------------------------

/// A report of many long lines of which every tenth tells an error.
class CardLines : public ReportLines {
public:
    [[nodiscard]] qint64 lineCount() override { return Count; }
    [[nodiscard]] qint64 length() override { return lines(0, Count).size(); }
    [[nodiscard]] QString lines(qint64 first, qint64 count) override
    {
        QStringList made;
        for (qint64 line = first; line < std::min<qint64>(Count, first + count); ++line)
            made += QString(500, u'ب') + QString::number(line);
        return made.join(u"\r\n"_s);
    }
    [[nodiscard]] qint64 nextError(qint64 line) override
    {
        const qint64 next = (line < 0 ? 0 : line / 10 + 1) * 10;
        return next < Count ? next : -1;
    }

private:
    static constexpr qint64 Count = 300;
};

/// One of each, as screens have them.
class CardForm : public TestForm {
public:
    CardForm()
    {
        for (Button *button : {&plain, &accept})
            button->onClick = [this, button] { clicks += button->name() + u' '; };
        accept.setDefault(true);
        list.setItems({{u"الف"_s, u"1"_s}, {u"ب"_s, u"2"_s}, {u"پ"_s, u"3"_s}});
        report.setLines(std::make_shared<CardLines>());
        report.onLineDoubleClick = [this](qint64) { clicks += u"line "_s; };
    }

    TextBox field{*this, u"field"_s};
    TextBox next{*this, u"next"_s};
    DataCombo list{*this, u"list"_s};
    CheckBox check{*this, u"check"_s, {.caption = u"تيک"_s}};
    OptionButton option{*this, u"option"_s, {.caption = u"گزينه"_s}};
    Button plain{*this, u"plain"_s, {.caption = u"دکمه"_s}};
    Button accept{*this, u"accept"_s, {.caption = u"قبول"_s}};
    ReportBox report{*this, u"report"_s};
    QString clicks;
};

class CardPlace : public Place {
public:
    explicit CardPlace(const char16_t *control)
    {
        Control &focused = *m_shown.form.find(QString::fromUtf16(control));
        EXPECT_TRUE(m_shown.form.userFocus(focused));
        m_shown.window.syncFocus();
    }
    Seen look() override
    {
        Seen seen = lookAt(m_shown.form);
        seen[u"clicks"_s] = m_shown.form.clicks;
        seen[u"clipboard"_s] = QGuiApplication::clipboard()->text();
        const auto *const view = m_shown.window.inputFor(m_shown.form.report);
        seen[u"across"_s] =
            QString::number(static_cast<const QAbstractScrollArea *>(view)->horizontalScrollBar()->value());
        const auto *const box = dynamic_cast<QComboBox *>(m_shown.window.widgetFor(m_shown.form.list));
        seen[u"opened list"_s] = QString::number(box->view()->isVisible());
        return seen;
    }
    QWidget &hands() override { return m_shown.input(*m_shown.form.activeControl()); }

private:
    Shown<CardForm> m_shown;
};

class ScreenPlace : public Place {
public:
    ScreenPlace(const ScreenCase &screen, const char16_t *control)
        : m_opened(screen)
    {
        Control *const focused = control ? m_opened.screen->find(QString::fromUtf16(control)) : nullptr;
        if (focused) {
            EXPECT_TRUE(m_opened.screen->userFocus(*focused)) << qPrintable(focused->name());
        }
        m_opened.window.syncFocus();
    }
    Seen look() override
    {
        Seen seen = lookAt(*m_opened.screen);
        const auto *const menus = m_opened.window.findChild<QMenuBar *>();
        seen[u"menu"_s] = menus && menus->activeAction() ? menus->activeAction()->text() : QString();
        seen[u"guide"_s] = m_guide;
        return seen;
    }
    QWidget &hands() override
    {
        // A guide that is about to open is noted and closed again.
        QTimer::singleShot(0, &m_opened.window, [this] {
            if (auto *const guide = dynamic_cast<GuideViewer *>(QApplication::activeModalWidget())) {
                m_guide = guide->page();
                guide->reject();
            }
        });
        return m_opened.window.focusWidget() ? *m_opened.window.focusWidget() : m_opened.window;
    }

private:
    OpenedScreen m_opened;
    QString m_guide;
};

class CardPages : public Report {
public:
    CardPages()
        : Report(u"rptCard"_s, u"پيش نمايش"_s, A4Landscape)
    {
    }
    [[nodiscard]] int pageCount() const override { return 9; }
    [[nodiscard]] report::Page page(int number) const override
    {
        report::Page page;
        page.items.push_back(report::Text{.box = {100, 100, 50, 10}, .text = QString::number(number + 1)});
        return page;
    }
};

class PreviewPlace : public Place {
public:
    PreviewPlace()
    {
        m_window.resize(900, 600);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        m_window.sought().setText(u"7"_s);
        m_window.view().setFocus();
        pressKey(m_window.view(), Qt::Key_PageDown);
        pressKey(m_window.view(), Qt::Key_PageDown);
    }
    Seen look() override
    {
        return {{u"page"_s, m_window.pageText()},
                {u"open"_s, QString::number(m_window.isVisible())},
                {u"size"_s, QString::number(m_window.view().verticalScrollBar()->maximum())
                                + QString::number(m_window.view().horizontalScrollBar()->maximum())},
                {u"dialogue"_s, m_dialogue}};
    }
    QWidget &hands() override
    {
        QTimer::singleShot(0, &m_window, [this] {
            if (auto *const dialogue = dynamic_cast<QDialog *>(QApplication::activeModalWidget())) {
                m_dialogue = QString::fromLatin1(dialogue->metaObject()->className());
                dialogue->reject();
            }
        });
        return m_window.view();
    }

private:
    QuietPlatform m_platform;
    CardPages m_report;
    PreviewWindow m_window{m_report, m_platform, nullptr};
    QString m_dialogue;
};

class GuidePlace : public Place {
public:
    GuidePlace()
    {
        m_guide.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_guide));
    }
    Seen look() override
    {
        return {{u"page"_s, m_guide.page()},
                {u"open"_s, QString::number(m_guide.isVisible())},
                {u"place"_s, QString::number(pages().verticalScrollBar()->value())},
                {u"link"_s, pages().textCursor().selectedText()}};
    }
    QWidget &hands() override { return pages(); }

private:
    QTextBrowser &pages() { return *m_guide.findChild<QTextBrowser *>(); }

    GuideViewer m_guide{QStringLiteral(ZRV_GUIDE), u"frmKarkonan"_s, nullptr};
};

// The card ---------------------------------------------------------------------------------------------------------

const Stage PayeeFound{
    "PayeeFound",
    [](Program &program) -> std::unique_ptr<Screen> { return std::make_unique<frmKarkonan>(program); },
    {{u"txtMelliCode", u"1234567891"}, {u"cmdKeyOk"}},
    u"cmdDataOk",
    false,
    {},
    {u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,ShakhsMoafCode) VALUES ('','1234567891','علي','احمدي','1')"}};

std::unique_ptr<Place> card(const char16_t *control)
{
    return std::make_unique<CardPlace>(control);
}

std::unique_ptr<Place> screen(const char *name, const char16_t *control = nullptr)
{
    return std::make_unique<ScreenPlace>(ScreenCase{name}, control);
}

std::unique_ptr<Place> stage(const char *name, const char16_t *control)
{
    if (PayeeFound.name == std::string_view(name))
        return std::make_unique<ScreenPlace>(ScreenCase{name, &PayeeFound}, control);
    const auto found = std::ranges::find(fieldStages(), std::string_view(name), &Stage::name);
    return std::make_unique<ScreenPlace>(ScreenCase{name, &*found}, control);
}

/// A key, and what is seen to change by it; of a key that only leads there nothing is asked.
struct Press {
    QKeyCombination key;
    QString changes = {};
};

struct Line {
    const char16_t *section;
    const char16_t *keys;
    std::function<std::unique_ptr<Place>()> place;
    std::vector<Press> presses;
};

constexpr auto Ctrl = Qt::ControlModifier;
constexpr auto Alt = Qt::AltModifier;
constexpr auto Shift = Qt::ShiftModifier;

QKeyCombination letter(char16_t sign, Qt::KeyboardModifiers held = {})
{
    return QKeyCombination(held, static_cast<Qt::Key>(sign));
}

// clang-format off
const std::vector<Line> Lines{
    {u"در همه فرم‌ها", u"F1",              [] { return screen("frmAbout"); },                      {{Qt::Key_F1, u"guide"_s}}},
    {u"در همه فرم‌ها", u"Enter",           [] { return card(u"plain"); },                          {{Qt::Key_Return, u"clicks"_s}}},
    {u"در همه فرم‌ها", u"Enter",           [] { return card(u"field"); },                          {{Qt::Key_Return, u"clicks"_s}}},
    {u"در همه فرم‌ها", u"Enter",           [] { return screen("frmUpgrades", u"optUpgrades(0)"); }, {{Qt::Key_Return, u"focus"_s}}},
    {u"در همه فرم‌ها", u"Escape",          [] { return stage("CodeNew", u"txtSDesc"); },           {{Qt::Key_Escape, u"txtSCode.enabled"_s}}},
    {u"در همه فرم‌ها", u"Tab و Shift+Tab", [] { return card(u"next"); },                           {{Qt::Key_Tab, u"focus"_s}, {Shift | Qt::Key_Backtab, u"focus"_s}}},
    {u"در همه فرم‌ها", u"F6",              [] { return stage("SummaryFound", u"txtKharejiNo"); },       {{Qt::Key_F6, u"focus"_s}}},
    {u"در همه فرم‌ها", u"Ctrl+Tab و Ctrl+Shift+Tab", [] { return screen("frmReadTextFiles", u"SSTab1"); },
     {{Ctrl | Qt::Key_Tab, u"SSTab1.page"_s}, {Ctrl | Shift | Qt::Key_Backtab, u"SSTab1.page"_s}}},
    {u"در همه فرم‌ها", u"Alt با يک حرف",   [] { return card(u"field"); },                          {{letter(u'د', Alt), u"clicks"_s}, {Alt | Qt::Key_R, u"clicks"_s}}},
    {u"در همه فرم‌ها", u"Space",           [] { return card(u"plain"); },                          {{Qt::Key_Space, u"clicks"_s}}},
    {u"در همه فرم‌ها", u"Space",           [] { return card(u"check"); },                          {{Qt::Key_Space, u"check.checked"_s}}},
    {u"در همه فرم‌ها", u"Space",           [] { return card(u"option"); },                         {{Qt::Key_Space, u"option.checked"_s}}},
    {u"در همه فرم‌ها", u"F10",             [] { return screen("frmMain"); },                       {{Qt::Key_F10, u"menu"_s}}},
    {u"در همه فرم‌ها", u"Ctrl+C ، Ctrl+V ، Ctrl+X", [] { return card(u"field"); },
     {{letter(u'1')}, {letter(u'2')}, {Ctrl | Qt::Key_A, u"field.marked"_s}, {Ctrl | Qt::Key_C, u"clipboard"_s}, {Ctrl | Qt::Key_X, u"field.text"_s}, {Ctrl | Qt::Key_V, u"field.text"_s}}},
    {u"در همه فرم‌ها", u"Ctrl+Z",          [] { return card(u"field"); },                          {{letter(u'1')}, {Ctrl | Qt::Key_Z, u"field.text"_s}}},

    {u"در يک فيلد", u"← و →",              [] { return card(u"field"); }, {{letter(u'ب')}, {Qt::Key_Right, u"field.caret"_s}, {Qt::Key_Left, u"field.caret"_s}}},
    {u"در يک فيلد", u"Home و End",         [] { return card(u"field"); }, {{letter(u'ب')}, {Qt::Key_Home, u"field.caret"_s}, {Qt::Key_End, u"field.caret"_s}}},
    {u"در يک فيلد", u"Backspace و Delete", [] { return card(u"field"); }, {{letter(u'ب')}, {letter(u'ب')}, {Qt::Key_Backspace, u"field.text"_s}, {Qt::Key_Home}, {Qt::Key_Delete, u"field.text"_s}}},
    {u"در يک فيلد", u"Backspace در خانه خالي تاريخ", [] { return stage("SummaryNew", u"txtRozname_Month"); }, {{Ctrl | Qt::Key_A}, {Qt::Key_Delete, u"txtRozname_Month.text"_s}, {Qt::Key_Backspace, u"focus"_s}}},
    {u"در يک فيلد", u"Shift با کليدهاي بالا", [] { return card(u"field"); }, {{letter(u'ب')}, {letter(u'ب')}, {letter(u'ب')}, {Shift | Qt::Key_Right, u"field.marked"_s}, {Shift | Qt::Key_Right, u"field.marked"_s}, {Shift | Qt::Key_Home, u"field.marked"_s}}},

    {u"در يک ليست بازشو", u"حروف",         [] { return card(u"list"); }, {{letter(u'ب'), u"list.text"_s}}},
    {u"در يک ليست بازشو", u"↑ و ↓",        [] { return card(u"list"); }, {{Qt::Key_Down, u"list.text"_s}, {Qt::Key_Down, u"list.text"_s}, {Qt::Key_Up, u"list.text"_s}}},
    {u"در يک ليست بازشو", u"F4 يا Alt+↓",  [] { return card(u"list"); }, {{Qt::Key_F4, u"opened list"_s}}},
    {u"در يک ليست بازشو", u"F4 يا Alt+↓",  [] { return card(u"list"); }, {{Alt | Qt::Key_Down, u"opened list"_s}}},
    {u"در يک ليست بازشو", u"Delete",       [] { return stage("PayeeFound", u"dcbShakhsMoafCode"); }, {{Qt::Key_Delete, u"dcbShakhsMoafCode.text"_s}}},
    {u"در يک ليست بازشو", u"Backspace",    [] { return stage("PayeeFound", u"dcbShakhsMoafCode"); }, {{Qt::Key_Backspace, u"dcbShakhsMoafCode.text"_s}}},
    {u"در يک ليست بازشو", u"Enter",        [] { return stage("SalaryKey", u"dcbTaxMonth"); },       {{Qt::Key_Return, u"dcbMelliCode.enabled"_s}}},
    {u"در يک ليست بازشو", u"Enter",        [] { return stage("SalaryPayee", u"dcbMelliCode"); },    {{Qt::Key_Down}, {Qt::Key_Return, u"txtNJariHogog.enabled"_s}}},

    {u"در جدول", u"↑ و ↓",                 [] { return screen("frmKarkonan", u"dbgLetter_Topic"); }, {{Qt::Key_Down, u"dbgLetter_Topic.row"_s}, {Qt::Key_Up, u"dbgLetter_Topic.row"_s}}},
    {u"در جدول", u"← و →",                 [] { return screen("frmKarkonan", u"dbgLetter_Topic"); }, {{Qt::Key_Left, u"dbgLetter_Topic.column"_s}, {Qt::Key_Right, u"dbgLetter_Topic.column"_s}}},
    {u"در جدول", u"PageUp و PageDown",     [] { return screen("frmKarkonan", u"dbgLetter_Topic"); }, {{Qt::Key_PageDown, u"dbgLetter_Topic.row"_s}, {Qt::Key_PageUp, u"dbgLetter_Topic.row"_s}}},
    {u"در جدول", u"Home و End",            [] { return screen("frmKarkonan", u"dbgLetter_Topic"); }, {{Qt::Key_End, u"dbgLetter_Topic.column"_s}, {Qt::Key_Home, u"dbgLetter_Topic.column"_s}}},
    {u"در جدول", u"Enter",                 [] { return screen("frmKarkonan", u"dbgLetter_Topic"); }, {{Qt::Key_Return, u"txtMelliCode.text"_s}}},
    {u"در جدول", u"Delete",                [] { return screen("frmKarkonan", u"dbgLetter_Topic"); }, {{Qt::Key_Down}, {Qt::Key_Delete, u"dbgLetter_Topic.rows"_s}}},

    {u"در متن جستجو", u"Enter",            [] { return stage("CodeSearch", u"txtSearch"); }, {{letter(u'م')}, {letter(u'ل')}, {letter(u'ي')}, {Qt::Key_Return, u"dbgBrowser.rows"_s}}},
    {u"در متن جستجو", u"Escape",           [] { return stage("CodeSearch", u"txtSearch"); }, {{Qt::Key_Escape, u"txtSearch.shown"_s}}},

    {u"در گزارش ساختار فايل‌ها", u"↑ و ↓ و PageUp و PageDown", [] { return card(u"report"); }, {{Qt::Key_Down, u"report.line"_s}, {Qt::Key_PageDown, u"report.line"_s}, {Qt::Key_Up, u"report.line"_s}, {Qt::Key_PageUp, u"report.line"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Ctrl+Home و Ctrl+End",      [] { return card(u"report"); }, {{Ctrl | Qt::Key_End, u"report.line"_s}, {Ctrl | Qt::Key_Home, u"report.line"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"← و → و Home و End",        [] { return card(u"report"); }, {{Qt::Key_Left, u"across"_s}, {Qt::Key_Right, u"across"_s}, {Qt::Key_End, u"across"_s}, {Qt::Key_Home, u"across"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Shift با کليدهاي بالا",     [] { return card(u"report"); }, {{Shift | Qt::Key_Down, u"report.marked"_s}, {Shift | Qt::Key_PageDown, u"report.marked"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Ctrl+A و Ctrl+C",           [] { return card(u"report"); }, {{Ctrl | Qt::Key_A, u"report.marked"_s}, {Ctrl | Qt::Key_C, u"clipboard"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Ctrl+F يا F3",              [] { return card(u"report"); }, {{Ctrl | Qt::Key_F, u"report_FindBar.shown"_s}, {letter(u'9')}, {Qt::Key_Return, u"report.line"_s}, {Qt::Key_F3, u"report.line"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Ctrl+F يا F3",              [] { return card(u"report"); }, {{Qt::Key_F3, u"report_FindBar.shown"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"F8",                        [] { return card(u"report"); }, {{Qt::Key_F8, u"report.line"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Enter يا دابل کليک",        [] { return card(u"report"); }, {{Qt::Key_Return, u"clicks"_s}}},
    {u"در گزارش ساختار فايل‌ها", u"Escape",                    [] { return card(u"report"); }, {{Ctrl | Qt::Key_F}, {Qt::Key_Escape, u"report_FindBar.shown"_s}}},

    {u"در پيش‌نمايش چاپ", u"F9",                [] { return std::make_unique<PreviewPlace>(); }, {{Qt::Key_F9, u"open"_s}}},
    {u"در پيش‌نمايش چاپ", u"Ctrl+P",            [] { return std::make_unique<PreviewPlace>(); }, {{Ctrl | Qt::Key_P, u"dialogue"_s}}},
    {u"در پيش‌نمايش چاپ", u"Ctrl+F يا F3",      [] { return std::make_unique<PreviewPlace>(); }, {{Ctrl | Qt::Key_F, u"page"_s}}},
    {u"در پيش‌نمايش چاپ", u"Ctrl+F يا F3",      [] { return std::make_unique<PreviewPlace>(); }, {{Qt::Key_F3, u"page"_s}}},
    {u"در پيش‌نمايش چاپ", u"PageUp و PageDown", [] { return std::make_unique<PreviewPlace>(); }, {{Qt::Key_PageUp, u"page"_s}, {Qt::Key_PageDown, u"page"_s}}},
    {u"در پيش‌نمايش چاپ", u"Home و End",        [] { return std::make_unique<PreviewPlace>(); }, {{Qt::Key_Home, u"page"_s}, {Qt::Key_End, u"page"_s}}},
    {u"در پيش‌نمايش چاپ", u"+ و -",             [] { return std::make_unique<PreviewPlace>(); }, {{Qt::Key_Plus, u"size"_s}, {Qt::Key_Minus, u"size"_s}}},

    {u"در راهنما", u"↑ و ↓ و PageUp و PageDown", [] { return std::make_unique<GuidePlace>(); }, {{Qt::Key_Down, u"place"_s}, {Qt::Key_PageDown, u"place"_s}, {Qt::Key_Up, u"place"_s}, {Qt::Key_PageUp, u"place"_s}}},
    {u"در راهنما", u"Tab و Enter",               [] { return std::make_unique<GuidePlace>(); }, {{Qt::Key_Tab, u"link"_s}, {Qt::Key_Return, u"page"_s}}},
    {u"در راهنما", u"Alt+ب",                     [] { return std::make_unique<GuidePlace>(); }, {{letter(u'ف', Alt), u"page"_s}, {letter(u'ب', Alt), u"page"_s}}},
    {u"در راهنما", u"Alt+ف",                     [] { return std::make_unique<GuidePlace>(); }, {{letter(u'ف', Alt), u"page"_s}}},
    {u"در راهنما", u"Alt+ک",                     [] { return std::make_unique<GuidePlace>(); }, {{letter(u'ک', Alt), u"page"_s}}},
    {u"در راهنما", u"Escape",                    [] { return std::make_unique<GuidePlace>(); }, {{Qt::Key_Escape, u"open"_s}}},
};

/// Rows whose keys are pressed by the test of the boxes below.
const std::set<std::pair<QString, QString>> OfBoxes{{u"در پيام‌ها"_s, u"Enter"_s}, {u"در پيام‌ها"_s, u"Escape"_s}};
// clang-format on

/// As a display sends it: marked letters of Qt's own buttons see it first.
void send(QWidget &widget, QKeyCombination key)
{
    const bool types = key.key() < Qt::Key_Escape && !(key.keyboardModifiers() & (Ctrl | Alt));
    const QString text = types ? QString(QChar(static_cast<char16_t>(key.key()))) : QString();
    if (!qt_sendShortcutOverrideEvent(&widget, 0, key.key(), key.keyboardModifiers(), text))
        pressKey(widget, key.key(), text, key.keyboardModifiers());
}

std::set<std::pair<QString, QString>> rowsOfTheCard()
{
    QFile file(QStringLiteral(ZRV_GUIDE "/keys.html"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    static const QRegularExpression part(u"<h2>(.*?)</h2>|<tr><td>(.*?)</td>"_s);
    std::set<std::pair<QString, QString>> rows;
    QString section;
    for (const QRegularExpressionMatch &found : part.globalMatch(page)) {
        if (found.hasCaptured(1) && !found.captured(1).isEmpty())
            section = found.captured(1);
        else
            rows.emplace(section, found.captured(2));
    }
    return rows;
}

void PrintTo(const Line &line, std::ostream *out)
{
    *out << QString::fromUtf16(line.section).toStdString() << ": " << QString::fromUtf16(line.keys).toStdString();
}

class CardLine : public testing::TestWithParam<Line> {};

} // namespace

TEST_P(CardLine, DoesWhatTheCardSays)
{
    QGuiApplication::clipboard()->clear();
    const std::unique_ptr<Place> place = GetParam().place();
    for (const auto &[key, changes] : GetParam().presses) {
        const Seen before = place->look();
        send(place->hands(), key);
        if (changes.isEmpty())
            continue;
        ASSERT_TRUE(before.contains(changes)) << changes.toStdString();
        // A button shows itself pressed for a moment before it is clicked.
        EXPECT_TRUE(QTest::qWaitFor([&] { return place->look()[changes] != before[changes]; }, 2000))
            << QKeySequence(key).toString().toStdString() << " leaves " << changes.toStdString() << " at "
            << before[changes].toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Keys, CardLine, testing::ValuesIn(Lines));

TEST(Card, EveryRowOfItHasBeenTried)
{
    std::set<std::pair<QString, QString>> tried = OfBoxes;
    for (const Line &line : Lines)
        tried.emplace(QString::fromUtf16(line.section), QString::fromUtf16(line.keys));
    const std::set<std::pair<QString, QString>> rows = rowsOfTheCard();
    for (const auto &[section, keys] : rows)
        EXPECT_TRUE(tried.contains({section, keys})) << section.toStdString() << ": " << keys.toStdString();
    for (const auto &[section, keys] : tried)
        EXPECT_TRUE(rows.contains({section, keys})) << section.toStdString() << ": " << keys.toStdString();
}

TEST(Card, EnterAndEscapeAnswerABox)
{
    const auto answer = [](int style, int key) {
        QtPlatform platform;
        QTimer::singleShot(0, qApp, [key] {
            QWidget *const box = QApplication::activeModalWidget();
            send(box->focusWidget() ? *box->focusWidget() : *box, static_cast<Qt::Key>(key));
        });
        return platform.messageBox(style, u"توجه"_s, u"متن"_s);
    };
    EXPECT_EQ(answer(box::AskYesNo, Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(answer(box::AskYesNo, Qt::Key_Escape), Answer::No);
    EXPECT_EQ(answer(box::Notice, Qt::Key_Return), Answer::Ok);
    EXPECT_EQ(answer(box::Notice, Qt::Key_Escape), Answer::Ok);
}

} // namespace zrv::test
