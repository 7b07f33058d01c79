// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/catalogue.h"
#include "core/screen.h"
#include "qt/icons.h"
#include "qt/look.h"
#include "tests/qt/catalogue_fixture.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>

#include <set>

namespace zrv::test {

namespace {

constexpr int Side = 48;

/// The colour of the most covered pixel of a drawing; not valid when nothing is drawn.
QColor inkOf(const QIcon &icon, QIcon::Mode mode, QIcon::State state = QIcon::Off)
{
    const QImage image =
        icon.pixmap(QSize(Side, Side), 1, mode, state).toImage().convertToFormat(QImage::Format_ARGB32);
    QColor ink;
    int covered = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor seen = image.pixelColor(x, y); seen.alpha() > covered) {
                covered = seen.alpha();
                ink = seen;
            }
    return ink;
}

QStringList drawings()
{
    // The files are linked in with the first one that is painted.
    (void)inkOf(look::icon(u"exit"_s), QIcon::Normal);
    return QDir(u":/icons"_s).entryList();
}

} // namespace

TEST(Icons, EveryDrawingIsReadWholeAndLiesInsideItsSquare)
{
    ASSERT_FALSE(drawings().isEmpty());
    for (const QString &name : drawings()) {
        QFile file(u":/icons/"_s + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray svg = file.readAll();
        EXPECT_TRUE(svg.contains(R"(viewBox="0 0 24 24")")) << qPrintable(name);
        EXPECT_TRUE(svg.contains(R"(stroke-width="1.6")")) << qPrintable(name);
        const auto lines = look::readDrawing(svg);
        ASSERT_TRUE(lines) << qPrintable(name);
        // With what the line's own width adds.
        EXPECT_TRUE(QRectF(0.8, 0.8, 22.4, 22.4).contains(lines->controlPointRect())) << qPrintable(name);
    }
}

TEST(Icons, ADrawingOfOtherMeansIsNotReadByHalves)
{
    const auto read = [](const char *inside) {
        return look::readDrawing(QByteArray("<svg>") + inside + "</svg>").has_value();
    };
    EXPECT_TRUE(read(R"(<path d="M 1 2 L 3 4 C 1 2 3 4 5 6 Z"/>)"));
    EXPECT_FALSE(read(R"(<path d="M 1 2 Q 3 4 5 6"/>)"));
    EXPECT_FALSE(read(R"(<path d="M 1 2 L 3"/>)"));
    EXPECT_FALSE(read(R"(<path d="M 1 2 L 3 x"/>)"));
    EXPECT_FALSE(read(R"(<path d="M 1 2 L 3 4"/><ellipse rx="3" ry="2"/>)"));
    EXPECT_FALSE(read(R"(<path d="M 1 2 L 3 4">)"));
    EXPECT_FALSE(read(""));
}

TEST(Icons, EachButtonOfTheMainFormBearsADrawingOfItsOwn)
{
    const CatalogueWindow shown(u"frmMain"_s);
    std::set<QString> seen;
    for (const Control *control : shown.screen->controls()) {
        if (control->kind() != ControlKind::Button)
            continue;
        const QIcon icon = static_cast<QAbstractButton *>(shown.window->widgetFor(*control))->icon();
        EXPECT_TRUE(inkOf(icon, QIcon::Normal).isValid()) << qPrintable(control->name());
        EXPECT_TRUE(seen.insert(icon.name()).second) << qPrintable(control->name());
    }
    EXPECT_EQ(seen.size(), 11U);
}

TEST(Icons, EveryDrawingThatAButtonBearsIsThere)
{
    QuietPlatform platform;
    Program program(platform);
    fillCatalogue(program.catalogue);
    const QStringList there = drawings();
    std::set<QString> used;
    for (const QString &name : program.catalogue.names()) {
        const std::unique_ptr<Screen> screen = program.catalogue.make(name, program);
        for (const Control *control : screen->controls())
            if (const QString icon = look::iconName(name, control->name()); !icon.isEmpty()) {
                EXPECT_TRUE(there.contains(icon + u".svg"_s)) << qPrintable(control->name());
                used.insert(icon + u".svg"_s);
            }
    }
    for (const QString &name : there)
        EXPECT_TRUE(used.contains(name)) << qPrintable(name) << " is drawn for nobody";
}

TEST(Icons, EnteringTheProgramIsNoSaving)
{
    EXPECT_EQ(look::iconName(u"frmKarkonan"_s, u"cmdDataOk"_s), u"save"_s);
    EXPECT_EQ(look::iconName(u"frmEnterance_Door"_s, u"cmdDataOk"_s), QString());
}

TEST(Icons, DrawingsHaveTheColoursOfThePalette)
{
    const QPalette palette = look::palette();
    const QIcon icon = look::icon(u"save"_s);
    EXPECT_EQ(inkOf(icon, QIcon::Normal).rgb(), palette.color(QPalette::Highlight).rgb());
    EXPECT_EQ(inkOf(icon, QIcon::Normal, QIcon::On).rgb(), palette.color(QPalette::HighlightedText).rgb());
    EXPECT_EQ(inkOf(icon, QIcon::Disabled).rgb(), palette.color(QPalette::Disabled, QPalette::ButtonText).rgb());
}

} // namespace zrv::test
