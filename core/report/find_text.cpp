// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/report/find_text.h"

#include "core/basic/keyboard_letters.h"
#include "core/basic/letter_fold.h"
#include "core/basic/text.h"

#include <utility>

namespace zrv::report {

namespace {

QString keyOf(QStringView text)
{
    QString letters;
    for (const QChar letter : trimBlanks(text))
        if (letter != u',')
            letters += keyboardLetter(letter);
    return searchKey(letters);
}

} // namespace

std::optional<Place> findText(const Report &report, QStringView sought, const std::optional<Place> &after)
{
    const QString key = keyOf(sought);
    if (key.isEmpty())
        return {};
    const int pages = report.pageCount();
    const Place start = after.value_or(Place{0, -1});
    // The page of the start is looked through twice: behind the start, and at the end before it.
    for (int step = 0; step <= pages; ++step) {
        const int number = (start.page + step) % pages;
        const Page page = report.page(number);
        for (int item = step == 0 ? start.item + 1 : 0; std::cmp_less(item, page.items.size()); ++item)
            if (keyOf(textOf(page.items[static_cast<size_t>(item)])).contains(key))
                return Place{number, item};
    }
    return {};
}

} // namespace zrv::report
