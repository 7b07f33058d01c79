// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told: of every screen and stage the names, roles, shortcuts and tables, and that whatever it
// asks for has an answer.
#include "core/forms/spoken_name.h"
#include "core/frmCoding.h"
#include "lists/frmKholList.h"
#include "tests/print_text.h"
#include "tests/qt/opened_screen.h"

#include <QAccessible>
#include <QGroupBox>
#include <QPushButton>
#include <QTableView>

#include <set>

namespace zrv::test {

namespace {

QAccessibleInterface &spoken(QWidget &widget)
{
    QAccessibleInterface *const found = QAccessible::queryAccessibleInterface(&widget);
    if (!found)
        throw std::logic_error("a widget that no reader is told of");
    return *found;
}

QString nameOf(QWidget &widget)
{
    return spoken(widget).text(QAccessible::Name);
}

/// Nothing of it is for the eye alone.
bool isPlain(const QString &text)
{
    return std::ranges::none_of(text, [](QChar sign) {
        return sign == u'\u0640' || sign.category() == QChar::Other_Control
               || (sign.category() == QChar::Other_Format && sign != u'\u200C');
    });
}

/// The group that a control lies in, whose caption a reader says on the way into it: a frame with a caption, or a page.
QString groupOf(const Control &control)
{
    for (const Control *inner = &control; Control *const outer = inner->container().containerControl(); inner = outer) {
        const bool isPage = inner->container().containerControl()->kind() == ControlKind::Tabs;
        if (isPage || (outer->kind() == ControlKind::Frame && !outer->shownText().trimmed().isEmpty()))
            return isPage ? inner->name() : outer->name();
    }
    return {};
}

bool isField(const Control &control)
{
    return dynamic_cast<const Edit *>(&control) || control.kind() == ControlKind::Grid
           || control.kind() == ControlKind::ListBox || control.kind() == ControlKind::ReportBox;
}

std::set<QAccessible::Role> rolesOf(ControlKind kind)
{
    switch (kind) {
    case ControlKind::TextBox:
        return {QAccessible::EditableText};
    case ControlKind::ComboBox:
    case ControlKind::DataCombo:
        return {QAccessible::ComboBox};
    case ControlKind::Button:
        return {QAccessible::Button};
    case ControlKind::CheckBox:
        return {QAccessible::CheckBox};
    case ControlKind::OptionButton:
        return {QAccessible::RadioButton};
    case ControlKind::ListBox:
        return {QAccessible::List};
    case ControlKind::Grid:
        return {QAccessible::Table};
    case ControlKind::Label:
        return {QAccessible::StaticText};
    case ControlKind::Frame:
        return {QAccessible::Grouping, QAccessible::Client}; // a group box, or a page
    default:
        return {};
    }
}

class ScreenReader : public testing::TestWithParam<ScreenCase> {
protected:
    OpenedScreen opened{GetParam()};
    FormWindow &window = opened.window;

    /// Controls that are seen now or may come to be: all but those that the screen never shows.
    [[nodiscard]] std::vector<Control *> controls() const
    {
        std::vector<Control *> shown;
        for (Control *control : opened.screen->controls())
            if (control->isVisible() && window.widgetFor(*control))
                shown.push_back(control);
        return shown;
    }
};

/// Goes through all that a reader can reach from here; of a long table no more than its beginning.
void walk(QAccessibleInterface &node, int depth, int &count)
{
    constexpr int MostChildren = 200;
    constexpr int DeepestTree = 25;
    ASSERT_LT(depth, DeepestTree);
    ASSERT_TRUE(node.isValid());
    ++count;
    // What is stored, and what was typed, is told as it is; so are the items of a menu, whose names are what is drawn.
    const std::set<QAccessible::Role> asItIs{QAccessible::EditableText, QAccessible::Cell, QAccessible::MenuItem};
    for (const auto part : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
        EXPECT_TRUE(isPlain(node.text(part)) || asItIs.contains(node.role()))
            << node.role() << ' ' << node.text(part).toStdString();
    }
    (void)node.rect();
    (void)node.state();
    (void)node.relations();
    for (int place = 0; place < std::min(node.childCount(), MostChildren); ++place) {
        QAccessibleInterface *const child = node.child(place);
        ASSERT_TRUE(child) << node.role() << " has no child " << place;
        QAccessibleInterface *const parent = child->parent();
        ASSERT_TRUE(parent) << child->role() << " is nobody's child";
        walk(*child, depth + 1, count);
    }
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Screens, ScreenReader, testing::ValuesIn(allScreensAndStages()),
                         [](const auto &screen) { return screen.param.name; });

TEST_P(ScreenReader, IsToldANameOfItsOwnOfEveryField)
{
    std::map<std::pair<QString, QString>, QString> named;
    for (Control *control : controls()) {
        if (!control->takesFocus())
            continue;
        const QString name = nameOf(*window.inputFor(*control));
        EXPECT_FALSE(name.isEmpty()) << qPrintable(control->name());
        EXPECT_TRUE(isPlain(name)) << qPrintable(control->name()) << ": " << name.toStdString();
        if (dynamic_cast<Combo *>(control)) {
            // The box around the field tells its value, and is known by the label that points at it.
            const auto labels = spoken(*window.widgetFor(*control)).relations(QAccessible::Label);
            EXPECT_FALSE(labels.isEmpty() && labelOf(*control) && fieldsOf(*labelOf(*control)).front() == control)
                << qPrintable(control->name());
        } else if (control->kind() != ControlKind::ReportBox && control->kind() != ControlKind::Tabs) {
            EXPECT_EQ(nameOf(*window.widgetFor(*control)), name) << qPrintable(control->name());
        }
        if (!isField(*control))
            continue;
        const auto [other, isFirst] = named.emplace(std::pair(groupOf(*control), name), control->name());
        EXPECT_TRUE(isFirst) << qPrintable(control->name()) << " and " << qPrintable(other->second) << " are both "
                             << name.toStdString();
    }
}

TEST_P(ScreenReader, IsToldTheKindOfEveryControl)
{
    for (Control *control : controls()) {
        const std::set<QAccessible::Role> roles = rolesOf(control->kind());
        const QAccessible::Role role = spoken(*window.widgetFor(*control)).role();
        EXPECT_TRUE(roles.empty() || roles.contains(role)) << qPrintable(control->name()) << ' ' << role;
    }
}

TEST_P(ScreenReader, IsToldTheKeyOfEveryButton)
{
    for (Control *control : controls()) {
        if (control->kind() != ControlKind::Button)
            continue;
        QAccessibleInterface &button = spoken(*window.widgetFor(*control));
        // The name of the Alt key is in the language of whoever shows it.
        EXPECT_TRUE(!button.text(QAccessible::Accelerator).isEmpty()
                    || button.text(QAccessible::Description).startsWith(u"Alt+"_s))
            << qPrintable(control->name());
    }
}

TEST_P(ScreenReader, IsToldTheHeadAndTheCellOfEveryColumn)
{
    for (Control *control : controls()) {
        if (control->kind() != ControlKind::Grid)
            continue;
        auto &grid = static_cast<Grid &>(*control);
        QAccessibleTableInterface *const table = spoken(*window.inputFor(grid)).tableInterface();
        ASSERT_TRUE(table) << qPrintable(grid.name());
        EXPECT_EQ(table->rowCount(), grid.rowCount());
        EXPECT_EQ(table->columnCount(), static_cast<int>(grid.columns().size()));
        for (int column = 0; column < table->columnCount() && grid.rowCount() > 0; ++column) {
            QAccessibleInterface *const cell = table->cellAt(0, column);
            ASSERT_TRUE(cell);
            EXPECT_EQ(cell->text(QAccessible::Name), grid.shownCell(0, column));
            EXPECT_EQ(cell->role(), QAccessible::Cell);
            const auto heads = cell->tableCellInterface()->columnHeaderCells();
            ASSERT_EQ(heads.size(), 1);
            EXPECT_EQ(heads[0]->text(QAccessible::Name),
                      spokenText(grid.columns()[static_cast<size_t>(column)].caption));
        }
    }
}

TEST_P(ScreenReader, GoesThroughTheWholeWindow)
{
    int count = 0;
    walk(spoken(window), 0, count);
    EXPECT_GT(count, static_cast<int>(controls().size()) / 2);
}

// What single screens say ----------------------------------------------------------------------------------------

TEST(SpokenNames, FigureOfATableIsCalledByItsLineAndItsColumn)
{
    OpenedScreen opened({"frmKholList"});
    EXPECT_EQ(nameOf(*opened.window.inputFor(*opened.screen->find(u"txtGablTax"_s))),
              u"جمع ماليات متعلقه : جمع تا ماه گذشته"_s);
    EXPECT_EQ(nameOf(*opened.window.inputFor(*opened.screen->find(u"txtCheque_Month"_s))), u"تاريخ چک : ماه"_s);
}

TEST(SpokenNames, LabelThatIsGivenAnotherCaptionTakesItsFieldsNameWithIt)
{
    class LabelledForm : public TestForm {
    public:
        Label label{*this, u"label"_s, {.caption = u"نام :"_s}};
        TextBox field{*this, u"field"_s};
        DataCombo list{*this, u"list_Month"_s};
        Grid grid{*this, u"grid"_s};
    };
    Shown<LabelledForm> shown;
    EXPECT_EQ(nameOf(shown.input(shown.form.field)), u"نام"_s);
    shown.form.label.setCaption(u"شـماره :"_s);
    EXPECT_EQ(nameOf(shown.input(shown.form.field)), u"شماره"_s);
    EXPECT_EQ(nameOf(shown.input(shown.form.list)), u"شماره : ماه"_s);
    shown.form.setCaption(u"فرم"_s);
    EXPECT_EQ(nameOf(shown.input(shown.form.grid)), u"فرم"_s);
}

TEST(SpokenNames, ButtonThatIsGivenAnotherCaptionHasItsName)
{
    class ButtonForm : public TestForm {
    public:
        Button button{*this, u"button"_s, {.caption = u" &ذخيره"_s}};
        Button dots{*this, u"dots"_s, {.caption = u"..."_s, .toolTip = u"انتخاب فايل"_s}};
    };
    Shown<ButtonForm> shown;
    EXPECT_EQ(nameOf(shown.input(shown.form.button)), u"ذخيره"_s);
    shown.form.button.setCaption(u"تاييـد"_s);
    EXPECT_EQ(nameOf(shown.input(shown.form.button)), u"تاييد"_s);
    EXPECT_EQ(nameOf(shown.input(shown.form.dots)), u"انتخاب فايل"_s);
    EXPECT_EQ(spoken(shown.input(shown.form.dots)).text(QAccessible::Description), u"Alt+ا"_s);
}

// Fields ------------------------------------------------------------------------------------------------------------

namespace {

class FieldForm : public TestForm {
public:
    TextBox word{*this, u"word"_s};
    TextBox secret{*this, u"secret"_s, {.password = u'*'}};
};

struct Part {
    QString text;
    int begin = 0;
    int end = 0;
    bool operator==(const Part &) const = default;
};

Part partAt(QAccessibleTextInterface &text, int place, QAccessible::TextBoundaryType unit)
{
    Part part;
    part.text = text.textAtOffset(place, unit, &part.begin, &part.end);
    return part;
}

} // namespace

/// It is asked there after each letter that is typed; were the answer sought for ever, so would this test's be.
TEST(SpokenField, BehindTheLastLetterIsTheLastWord)
{
    Shown<FieldForm> shown;
    shown.form.word.setText(u"علي رضايي"_s);
    QAccessibleTextInterface &text = *spoken(shown.input(shown.form.word)).textInterface();
    text.setCursorPosition(9);
    for (const int place : {8, 9, -1, -2})
        EXPECT_EQ(partAt(text, place, QAccessible::WordBoundary), (Part{u"رضايي"_s, 4, 9})) << place;
    EXPECT_EQ(partAt(text, 9, QAccessible::SentenceBoundary), (Part{u"علي رضايي"_s, 0, 9}));
    EXPECT_EQ(partAt(text, 9, QAccessible::LineBoundary), (Part{u"علي رضايي"_s, 0, 9}));
    EXPECT_EQ(partAt(text, 0, QAccessible::WordBoundary), (Part{u"علي"_s, 0, 3}));
    EXPECT_EQ(partAt(text, 10, QAccessible::WordBoundary).text, QString());
    shown.form.word.setText({});
    for (int unit = QAccessible::CharBoundary; unit <= QAccessible::NoBoundary; ++unit)
        EXPECT_EQ(partAt(text, 0, QAccessible::TextBoundaryType(unit)).text, QString()) << unit;
}

TEST(SpokenField, EveryPartOfEveryTextIsTold)
{
    Shown<FieldForm> shown;
    QAccessibleTextInterface &text = *spoken(shown.input(shown.form.word)).textInterface();
    for (const QString &written :
         {u" "_s, u"a"_s, u"علي "_s, u" علي. رضا ! "_s, u"-۱۲/۵-"_s, u"می‌شود"_s, u"كُلّ"_s, u"..."_s}) {
        shown.form.word.setText(written);
        const int length = static_cast<int>(text.characterCount());
        ASSERT_EQ(length, written.size());
        for (int unit = QAccessible::CharBoundary; unit <= QAccessible::NoBoundary; ++unit) {
            QString joined;
            for (int place = 0; place < length;) {
                const Part part = partAt(text, place, QAccessible::TextBoundaryType(unit));
                ASSERT_EQ(part.begin, place) << qPrintable(written) << ' ' << unit;
                ASSERT_GT(part.end, place) << qPrintable(written) << ' ' << unit;
                Part after;
                after.text = text.textAfterOffset(place, QAccessible::TextBoundaryType(unit), &after.begin, &after.end);
                EXPECT_EQ(after, part.end < length ? partAt(text, part.end, QAccessible::TextBoundaryType(unit))
                                                   : (Part{QString(), -1, -1}));
                joined += part.text;
                place = part.end;
            }
            EXPECT_EQ(joined, written) << unit;
        }
    }
    shown.form.word.setText(u"علي رضا"_s);
    Part before;
    before.text = text.textBeforeOffset(4, QAccessible::WordBoundary, &before.begin, &before.end);
    EXPECT_EQ(before, (Part{u" "_s, 3, 4}));
}

TEST(SpokenField, NothingOfAPasswordIsTold)
{
    Shown<FieldForm> shown;
    shown.form.secret.setText(u"Pass word"_s);
    QAccessibleInterface &field = spoken(shown.input(shown.form.secret));
    EXPECT_TRUE(field.state().passwordEdit);
    EXPECT_EQ(field.text(QAccessible::Value), QString(9, u'*'));
    EXPECT_EQ(field.textInterface()->text(0, 9), QString());
    for (int unit = QAccessible::CharBoundary; unit <= QAccessible::NoBoundary; ++unit)
        for (int place = -2; place <= 9; ++place)
            EXPECT_EQ(partAt(*field.textInterface(), place, QAccessible::TextBoundaryType(unit)).text, QString());
    EXPECT_FALSE(spoken(shown.input(shown.form.word)).state().passwordEdit);
}

TEST(SpokenField, AReaderMovesTheCursorMarksAndWritesUnlessTheFieldIsLocked)
{
    Shown<FieldForm> shown;
    TextBox &word = shown.form.word;
    QAccessibleInterface &field = spoken(shown.input(word));
    QAccessibleTextInterface &text = *field.textInterface();
    EXPECT_TRUE(field.state().editable);
    field.editableTextInterface()->insertText(0, u"علي رضايي"_s);
    EXPECT_EQ(word.text(), u"علي رضايي"_s);
    EXPECT_EQ(text.characterCount(), 9);
    EXPECT_EQ(text.text(4, 9), u"رضايي"_s);
    text.setCursorPosition(4);
    EXPECT_EQ(text.cursorPosition(), 4);
    EXPECT_EQ(text.selectionCount(), 0);
    text.addSelection(4, 9);
    int begin = 0;
    int end = 0;
    text.selection(0, &begin, &end);
    EXPECT_EQ(text.selectionCount(), 1);
    EXPECT_EQ(begin, 4);
    EXPECT_EQ(end, 9);
    text.removeSelection(0);
    EXPECT_EQ(text.selectionCount(), 0);
    field.editableTextInterface()->deleteText(3, 9);
    EXPECT_EQ(word.text(), u"علي"_s);
    word.setLocked(true);
    field.editableTextInterface()->replaceText(0, 3, u"رضا"_s);
    field.setText(QAccessible::Value, u"رضا"_s);
    EXPECT_EQ(word.text(), u"علي"_s);
    EXPECT_TRUE(field.state().readOnly);
}

TEST(SpokenField, EachLetterIsFoundWhereItStands)
{
    Shown<FieldForm> shown;
    const QString both = u"علي abc ۱۲"_s;
    shown.form.word.setText(both);
    QAccessibleTextInterface &text = *spoken(shown.input(shown.form.word)).textInterface();
    (void)shown.window.grab(); // Only what is drawn has its place.
    const QRect field(shown.line(shown.form.word).mapToGlobal(QPoint()), shown.line(shown.form.word).size());
    int right = field.right();
    for (int place = 0; place < 3; ++place) {
        const QRect room = text.characterRect(place);
        EXPECT_TRUE(field.contains(room)) << place;
        EXPECT_LE(room.right(), right + 2) << "from right to left: " << place;
        right = room.left();
        const int found = text.offsetAtPoint(room.center());
        EXPECT_TRUE(found == place || found == place + 1) << place << ' ' << found;
    }
    EXPECT_LT(text.characterRect(4).left(), text.characterRect(5).left()) << "Latin letters from left to right";
    EXPECT_TRUE(text.characterRect(static_cast<int>(both.size())).isEmpty());
    EXPECT_EQ(text.offsetAtPoint(field.topLeft() - QPoint(5, 5)), -1);
}

// Long tables -------------------------------------------------------------------------------------------------------

namespace {

/// Notes how much of it is asked for.
class CountingRows : public RowSource {
public:
    [[nodiscard]] int rowCount() const override { return 100'000; }
    [[nodiscard]] QString cell(int row, int column) const override
    {
        ++asked;
        return QString::number(row) + u'/' + QString::number(column);
    }

    mutable int asked = 0;
};

class LongGridForm : public TestForm {
public:
    LongGridForm()
    {
        for (int column = 0; column < Columns; ++column)
            columns.push_back({QString::number(column), u"ستون "_s + QString::number(column)});
        grid.setColumns(columns);
        grid.setRows(rows);
    }

    static constexpr int Columns = 20;
    std::vector<GridColumn> columns;
    std::shared_ptr<CountingRows> rows = std::make_shared<CountingRows>();
    Grid grid{*this, u"grid"_s};
};

} // namespace

TEST(LongTable, ReaderAsksForWhatIsInViewAndNothingIsReadBeyond)
{
    Shown<LongGridForm> shown;
    auto &view = dynamic_cast<QTableView &>(shown.input(shown.form.grid));
    QAccessibleInterface &table = spoken(view);
    shown.form.rows->asked = 0;
    EXPECT_EQ(table.tableInterface()->rowCount(), 100'000);
    EXPECT_GE(table.childCount(), 100'000 * LongGridForm::Columns);
    EXPECT_EQ(shown.form.rows->asked, 0) << "counting reads nothing";

    // Every cell in view, as a reader finds it under a point, and its way back to the table.
    int inView = 0;
    for (int row = 0; row < view.rowAt(view.viewport()->height() - 1); ++row) {
        for (int column = 0; column < LongGridForm::Columns; ++column, ++inView) {
            QAccessibleInterface *const cell = table.tableInterface()->cellAt(row, column);
            ASSERT_TRUE(cell);
            EXPECT_EQ(cell->text(QAccessible::Name), QString(QString::number(row) + u'/' + QString::number(column)));
            EXPECT_EQ(table.indexOfChild(cell), table.indexOfChild(table.child(table.indexOfChild(cell))));
        }
    }
    ASSERT_GT(inView, 40);
    EXPECT_LE(shown.form.rows->asked, inView * 2);
}

TEST(LongTable, LastRowIsAsNearAsTheFirst)
{
    Shown<LongGridForm> shown;
    QAccessibleInterface &table = spoken(shown.input(shown.form.grid));
    shown.form.grid.setCurrent(99'999, 3);
    shown.form.rows->asked = 0;
    QAccessibleInterface *const cell = table.focusChild();
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->text(QAccessible::Name), u"99999/3"_s);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 99'999);
    EXPECT_EQ(table.tableInterface()->selectedCellCount(), LongGridForm::Columns);
    EXPECT_EQ(table.tableInterface()->selectedRows(), QList<int>{99'999});
    EXPECT_EQ(table.child(table.indexOfChild(cell))->text(QAccessible::Name), u"99999/3"_s);
    EXPECT_LE(shown.form.rows->asked, 10);
}

} // namespace zrv::test
