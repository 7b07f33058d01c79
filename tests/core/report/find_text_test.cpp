// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/report/find_text.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv::report {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Pages of texts. It counts how often a page was made.
class Texts : public Report {
public:
    explicit Texts(std::vector<QStringList> pages)
        : Report(u"texts"_s, {}, A4Portrait)
        , m_pages(std::move(pages))
    {
    }
    [[nodiscard]] int pageCount() const override { return static_cast<int>(m_pages.size()); }
    [[nodiscard]] Page page(int number) const override
    {
        ++made;
        Page page;
        page.items.push_back(Line{{0, 0}, {10, 0}});
        for (const QString &text : m_pages.at(static_cast<size_t>(number)))
            page.items.push_back(Text{.box = {0, 0, 10, 10}, .text = text});
        return page;
    }
    mutable int made = 0;

private:
    std::vector<QStringList> m_pages;
};

std::optional<Place> first(const Report &report, QStringView sought)
{
    return findText(report, sought, {});
}

TEST(FindText, NamesPageAndItemOfTheFirstPlace)
{
    const Texts report({{u"a"_s, u"b"_s}, {u"c"_s, u"xbx"_s}});
    EXPECT_EQ(first(report, u"c"), (Place{1, 1}));
    EXPECT_EQ(first(report, u"b"), (Place{0, 2}));
}

TEST(FindText, GoesOnBehindTheLastPlaceAndAroundTheEnd)
{
    const Texts report({{u"b"_s, u"b"_s}, {u"b"_s}});
    EXPECT_EQ(findText(report, u"b", Place{0, 1}), (Place{0, 2}));
    EXPECT_EQ(findText(report, u"b", Place{0, 2}), (Place{1, 1}));
    EXPECT_EQ(findText(report, u"b", Place{1, 1}), (Place{0, 1}));
}

TEST(FindText, FindsTheOnlyPlaceAgain)
{
    const Texts report({{u"a"_s}, {u"b"_s, u"c"_s}, {u"d"_s}});
    EXPECT_EQ(findText(report, u"b", Place{1, 1}), (Place{1, 1}));
}

TEST(FindText, FindsNothingWhereThereIsNothing)
{
    const Texts report({{u"a"_s}, {u"b"_s}});
    EXPECT_EQ(first(report, u"z"), std::nullopt);
    EXPECT_EQ(findText(report, u"z", Place{1, 1}), std::nullopt);
    EXPECT_EQ(first(report, u""), std::nullopt);
    EXPECT_EQ(first(report, u"  "), std::nullopt);
}

TEST(FindText, TakesEitherYehKafDigitsAndCommas)
{
    const Texts report({{u"كريمي"_s, u"1,234,567"_s}});
    EXPECT_EQ(first(report, u"کریمی"), (Place{0, 1}));
    EXPECT_EQ(first(report, u"1234567"), (Place{0, 2}));
    EXPECT_EQ(first(report, u"۱۲۳۴"), (Place{0, 2}));
}

TEST(FindText, MakesNoPageBehindTheOneThatHoldsIt)
{
    const Texts report({{u"a"_s}, {u"b"_s}, {u"c"_s}, {u"d"_s}});
    EXPECT_TRUE(first(report, u"b"));
    EXPECT_EQ(report.made, 2);
}

TEST(TextOf, APageIsItsTextsALineEach)
{
    Page page;
    page.items = {Text{.box = {0, 0, 1, 1}, .text = u"one"_s}, Line{{0, 0}, {1, 1}}, Text{.box = {0, 0, 1, 1}},
                  BarCode{{0, 0, 1, 1}, u"1,2,3"_s}};
    EXPECT_EQ(textOf(page), u"one\n1,2,3");
}

} // namespace
} // namespace zrv::report
