// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/screen.h"
#include "qt/caption_label.h"
#include "qt/difference.h"
#include "qt/look.h"
#include "tests/qt/catalogue_fixture.h"

#include <QComboBox>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace zrv::test {

namespace {

double light(int part)
{
    const double share = part / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double light(const QColor &color)
{
    return 0.2126 * light(color.red()) + 0.7152 * light(color.green()) + 0.0722 * light(color.blue());
}

/// The contrast ratio by which accessibility rules measure: 1 for alike, 21 for black on white.
double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, bright] = std::minmax({light(one), light(other)});
    return (bright + 0.05) / (dark + 0.05);
}

} // namespace

TEST(Look, TextIsReadableSwitchedOnAndOff)
{
    const QPalette palette = look::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_GE(contrast(palette.color(group, QPalette::Text), palette.color(group, QPalette::Base)), 4.5);
        EXPECT_GE(contrast(palette.color(group, QPalette::WindowText), palette.color(group, QPalette::Window)), 4.5);
        EXPECT_GE(contrast(palette.color(group, QPalette::ButtonText), palette.color(group, QPalette::Button)), 4.5);
    }
    EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    // What is selected in a field that is switched off.
    EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::HighlightedText),
                       palette.color(QPalette::Disabled, QPalette::Highlight)),
              3.0);
}

TEST(Look, DrawingsAreSeenSwitchedOnAndOff)
{
    // Those of buttons take the colour of the highlight, or of switched-off letters.
    const QPalette palette = look::palette();
    for (const QPalette::ColorRole ground : {QPalette::Button, QPalette::Window, QPalette::Light})
        EXPECT_GE(contrast(palette.color(QPalette::Highlight), palette.color(ground)), 4.5);
    EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::ButtonText),
                       palette.color(QPalette::Disabled, QPalette::Button)),
              3.0);
}

TEST(Look, TextIsReadableOnEveryColourThatAScreenGivesAField)
{
    QLineEdit field;
    for (const Color back :
         {color::Field, color::KeyField, color::DataField, color::FramedCombo, color::RequiredEmpty}) {
        look::colorField(field, back, color::Text);
        EXPECT_EQ(field.palette().color(QPalette::Base).rgb() & 0xFFFFFF, back);
        EXPECT_GE(contrast(field.palette().color(QPalette::Text), field.palette().color(QPalette::Base)), 4.5);
    }
}

TEST(Look, AFieldThatIsSwitchedOffIsGreyUnlessItsColourMarksWhatItHolds)
{
    constexpr Color FinalTax = 0xFF8080;
    QLineEdit field;
    field.setPalette(look::palette());
    field.setEnabled(false);
    look::colorField(field, FinalTax, color::Text);
    EXPECT_EQ(field.palette().color(QPalette::Base).rgb() & 0xFFFFFF, FinalTax);
    EXPECT_GE(contrast(field.palette().color(QPalette::Text), field.palette().color(QPalette::Base)), 4.5);
    look::colorField(field, color::DataField, color::Text);
    EXPECT_EQ(field.palette().color(QPalette::Base).rgb() & 0xFFFFFF, color::Disabled);
    EXPECT_EQ(field.palette().color(QPalette::Text), look::palette().color(QPalette::Disabled, QPalette::Text));
}

TEST(Look, TheFocusRingStandsOutFromTheFieldAndTheWindow)
{
    const QPalette palette = look::palette();
    for (const Color back : {color::Window, color::Field, color::KeyField, color::DataField, color::RequiredEmpty})
        EXPECT_GE(contrast(palette.color(QPalette::Highlight), QColor(back)), 3.0);
}

TEST(Look, AScrollBarsHandleStandsOutDarkFromItsGroove)
{
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        QScrollBar bar(orientation);
        bar.setPalette(look::palette());
        bar.setRange(0, 100);
        bar.setPageStep(100);
        bar.resize(orientation == Qt::Vertical ? QSize(14, 300) : QSize(300, 14));
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = orientation;
        option.subControls = QStyle::SC_All;
        option.maximum = bar.maximum();
        option.pageStep = bar.pageStep();
        const auto middleOf = [&](QStyle::SubControl part) {
            return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar).center();
        };
        const QImage seen = bar.grab().toImage();
        const QColor handle = seen.pixelColor(middleOf(QStyle::SC_ScrollBarSlider));
        const QColor groove = seen.pixelColor(middleOf(QStyle::SC_ScrollBarAddPage));
        EXPECT_LT(light(handle), light(groove));
        EXPECT_GE(contrast(handle, groove), 3.0);
    }
}

TEST(Look, NoLetterRunsUnderTheArrowOfACombo)
{
    // The screens run from right to left: the arrow stands at the left.
    QComboBox box;
    box.setEditable(true);
    box.resize(120, 30);
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = true;
    const int end =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).left();
    box.setPalette(look::palette());
    const QImage seen = box.grab().toImage();
    int arrowEnd = 0;
    constexpr int Frame = 4;
    for (int x = Frame; x < seen.width() - Frame; ++x)
        for (int y = Frame; y < seen.height() - Frame; ++y)
            if (contrast(seen.pixelColor(x, y), box.palette().color(QPalette::Base)) > 3)
                arrowEnd = x;
    ASSERT_GT(arrowEnd, 0);
    EXPECT_GE(end, arrowEnd + 4);
}

namespace {

/// Whether the colour is seen in a field's border, at the middle of its side. A field that is hidden has none.
bool hasBorder(QWidget &field, const QColor &color)
{
    const QImage image = field.grab().toImage();
    constexpr int Border = 6;
    for (int x = 0; x < std::min(Border, image.width()); ++x) {
        const QColor seen = image.pixelColor(x, image.height() / 2);
        if (std::abs(seen.red() - color.red()) + std::abs(seen.green() - color.green())
                + std::abs(seen.blue() - color.blue())
            < 90)
            return true;
    }
    return false;
}

QStringList redFields(const QString &screenName)
{
    const CatalogueWindow shown(screenName);
    QStringList names;
    for (const Control *control : shown.screen->controls())
        if (control->kind() == ControlKind::TextBox && hasBorder(*shown.window->inputFor(*control), QColor(0xC62828)))
            names += control->name();
    return names;
}

} // namespace

TEST(Look, FieldsInWhichTypingSearchesHaveARedBorder)
{
    EXPECT_EQ(redFields(u"frmKarkonan"_s), QStringList({u"txtName"_s, u"txtFamily"_s}));
    EXPECT_EQ(redFields(u"frmSrcKarkonan"_s),
              QStringList({u"txtMelliCode"_s, u"txtName"_s, u"txtFamily"_s, u"txtFatherName"_s}));
    EXPECT_EQ(redFields(u"frmKarfarma"_s), QStringList());
}

TEST(Look, RedBorderIsSeenInsideTheFocusRing)
{
    QWidget window;
    auto *const field = new QLineEdit(&window);
    look::makeSearching(*field);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    EXPECT_TRUE(hasBorder(*field, look::palette().color(QPalette::Highlight)));
    EXPECT_TRUE(hasBorder(*field, QColor(0xC62828)));
}

TEST(Look, ACaptionWithoutRoomEndsInDots)
{
    const QString payer = u"شرکت توليدي نمونه نيلگون - شعبه دفتر مرکزي"_s;
    const auto pictureOf = [](const QString &text, int width) {
        CaptionLabel label(false, nullptr);
        label.setText(text);
        label.resize(width, 30);
        return label.grab().toImage();
    };
    const int width = QFontMetrics(QApplication::font()).horizontalAdvance(payer) / 2;
    const QString cut = QFontMetrics(QApplication::font()).elidedText(payer, Qt::ElideRight, width);
    ASSERT_NE(cut, payer);
    QImage plain(pictureOf(payer, width).size(), QImage::Format_RGB32);
    CaptionLabel ground(false, nullptr);
    plain.fill(ground.palette().color(QPalette::Window));
    QPainter painter(&plain);
    painter.setFont(QApplication::font());
    painter.setPen(ground.palette().color(QPalette::WindowText));
    painter.drawText(plain.rect(), Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextForceRightToLeft,
                     cut);
    painter.end();
    EXPECT_EQ(pictureOf(payer, width).convertToFormat(QImage::Format_RGB32), plain);
}

TEST(Look, APathInABoxThatReadsFromTheLeftBeginsWithItsSlash)
{
    look::setUp(*qApp);
    const auto drawn = [](const QString &path) {
        QComboBox box;
        box.setLayoutDirection(Qt::LeftToRight);
        box.addItem(path);
        box.resize(300, 30);
        return box.grab().toImage();
    };
    EXPECT_TRUE(drawn(u"/srv/pay/"_s) == drawn(u"\u200E/srv/pay/\u200E"_s));
    EXPECT_FALSE(drawn(u"/srv/pay/"_s) == drawn(u"srv/pay//"_s));
}

TEST(Look, WhatWasEncodedReadsFromTheLeft)
{
    const CatalogueWindow shown(u"frmEncodeDecode"_s);
    // Its equals signs end it.
    EXPECT_EQ(shown.window->widgetFor(*shown.screen->find(u"lblResult"))->layoutDirection(), Qt::LeftToRight);
}

TEST(Difference, TheOneRunThatDiffersIsFound)
{
    const Difference middle = difference(u"abXcd", u"abYZcd");
    EXPECT_EQ(middle.start, 2);
    EXPECT_EQ(middle.removed, 1);
    EXPECT_EQ(middle.inserted, u"YZ"_s);
    EXPECT_EQ(difference(u"aa", u"aaa").inserted, u"a"_s);
    EXPECT_EQ(difference(u"abc", u"").removed, 3);
    EXPECT_EQ(difference(u"", u"abc").inserted, u"abc"_s);
}

TEST(Difference, ASurrogatePairIsNeverCut)
{
    // Two emoji that share their first half.
    const Difference change = difference(u"a\U0001F600", u"a\U0001F601");
    EXPECT_EQ(change.start, 1);
    EXPECT_EQ(change.inserted, u"\U0001F601"_s);
}

} // namespace zrv::test
