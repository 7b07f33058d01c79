// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A report's page as text, to be compared with an approved one: an item a line, with its place in millimetres.

#include "core/report/report.h"
#include "tests/print_text.h"

#include <QFile>

#include <cmath>
#include <gtest/gtest.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

struct Written {
    [[nodiscard]] static QString number(double millimetres)
    {
        return QString::number(std::round(millimetres * 100) / 100, 'g', 8);
    }
    [[nodiscard]] static QString place(const QRectF &box)
    {
        return number(box.left()) + u',' + number(box.top()) + u' ' + number(box.width()) + u'x' + number(box.height());
    }

    QString operator()(const report::Text &text) const
    {
        const QStringView side = text.side == report::Side::Right    ? u"right"
                                 : text.side == report::Side::Centre ? u"centre"
                                                                     : u"left";
        return u"text "_s + place(text.box) + u' ' + number(text.points) + (text.bold ? u" bold "_s : u" "_s) + side
               + (text.leftToRight ? u" ltr "_s : u" rtl "_s)
               + (text.control.isEmpty() ? u"-"_s : text.control.toString()) + u" ["_s + text.text + u']';
    }
    QString operator()(const report::Line &line) const
    {
        return u"line "_s + number(line.from.x()) + u',' + number(line.from.y()) + u" to "_s + number(line.to.x())
               + u',' + number(line.to.y()) + u" width "_s + number(line.width);
    }
    QString operator()(const report::Frame &frame) const
    {
        return (frame.tinted ? u"tinted frame "_s : u"frame "_s) + place(frame.box);
    }
    QString operator()(const report::BarCode &code) const
    {
        return u"bar code "_s + place(code.box) + u' ' + code.control.toString() + u" ["_s + code.text + u']';
    }
    QString operator()(const report::CheckMark &mark) const
    {
        return u"check "_s + place(mark.box) + u' ' + mark.control.toString() + (mark.ticked ? u" [x]"_s : u" [ ]"_s);
    }
    QString operator()(const report::Emblem &emblem) const
    {
        return u"emblem "_s + place(emblem.box) + u' ' + emblem.control.toString();
    }
};

inline QString writtenPage(const report::Page &page)
{
    QString text;
    for (const report::Item &item : page.items)
        text += std::visit(Written{}, item) + u'\n';
    return text;
}

inline QString writtenReport(const Report &report)
{
    QString text = report.name() + u" ["_s + report.title() + u"] "_s + Written::number(report.paper().width()) + u'x'
                   + Written::number(report.paper().height()) + u'\n';
    for (int page = 0; page < report.pageCount(); ++page)
        text += u"page "_s + QString::number(page + 1) + u'\n' + writtenPage(report.page(page));
    return text;
}

/// A text that differs from the approved one is left beside it with ".received" behind its name; approving it is moving
/// it there, after a look at every line.
inline void compareWithApproved(const QString &received, const QString &path)
{
    QFile approved(path);
    const bool readable = approved.open(QIODevice::ReadOnly);
    if (readable && QString::fromUtf8(approved.readAll()) == received) {
        QFile::remove(path + u".received"_s);
        return;
    }
    QFile file(path + u".received"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(received.toUtf8()) > 0);
    ADD_FAILURE() << path.toStdString() << " differs from what was made; see the .received file beside it";
}

/// The texts of a control on a page, in order.
inline QStringList textsOf(const report::Page &page, QStringView control)
{
    QStringList texts;
    for (const report::Item &item : page.items)
        if (const auto *text = std::get_if<report::Text>(&item); text && text->control == control)
            texts += text->text;
    return texts;
}

/// Every item lies on the paper, and none that is read reaches into another.
inline void expectApart(const Report &report, int number)
{
    constexpr double Touch = 1e-6;
    const report::Page page = report.page(number);
    const QRectF printable = QRectF(QPointF(), report.paper()).adjusted(4, 4, -4, -4);
    std::vector<report::Item> read;
    for (const report::Item &item : page.items) {
        const QRectF box = report::boxOf(item);
        EXPECT_TRUE(printable.contains(box.topLeft()) && printable.contains(box.bottomRight()))
            << std::visit(Written{}, item).toStdString();
        if (!std::holds_alternative<report::Line>(item) && !std::holds_alternative<report::Frame>(item))
            read.push_back(item);
    }
    for (size_t one = 0; one < read.size(); ++one)
        for (size_t other = one + 1; other < read.size(); ++other) {
            const QRectF common = report::boxOf(read[one]).intersected(report::boxOf(read[other]));
            EXPECT_FALSE(common.width() > Touch && common.height() > Touch)
                << std::visit(Written{}, read[one]).toStdString() << "\n"
                << std::visit(Written{}, read[other]).toStdString();
        }
}

} // namespace zrv
