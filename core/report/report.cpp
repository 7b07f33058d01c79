// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/report/report.h"

namespace zrv::report {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Box {
    QRectF operator()(const auto &item) const { return item.box; }
    QRectF operator()(const Line &line) const { return QRectF(line.from, line.to).normalized(); }
};

struct Read {
    QString operator()(const Text &text) const { return text.text; }
    QString operator()(const BarCode &code) const { return code.text; }
    QString operator()(const auto &) const { return {}; }
};

} // namespace

QRectF boxOf(const Item &item)
{
    return std::visit(Box{}, item);
}

QString textOf(const Item &item)
{
    return std::visit(Read{}, item);
}

QString textOf(const Page &page)
{
    QStringList texts;
    for (const Item &item : page.items)
        if (const QString text = textOf(item); !text.isEmpty())
            texts += text;
    return texts.join(u'\n');
}

} // namespace zrv::report
