// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/letter_fold.h"
#include "core/forms/controls.h"

#include <utility>

namespace zrv {

Combo::Combo(Container &container, QString name, ControlKind kind, const ComboLook &look)
    : Edit(container, std::move(name), kind)
    , m_listOnly(look.listOnly)
{
    m_maxLength = look.limit;
    m_tag = look.tag;
    m_toolTip = look.toolTip;
    m_visible = look.visible;
}

int Combo::rowWithText(const QString &text) const
{
    for (int row = 0; std::cmp_less(row, m_items.size()); ++row)
        if (m_items[static_cast<size_t>(row)].shown == text)
            return row;
    return -1;
}

void Combo::setItems(std::vector<ListItem> items)
{
    m_items = std::move(items);
    m_index = -1;
    changed(Aspect::Items);
}

void Combo::clear()
{
    setItems({});
    setText({});
}

int Combo::listIndex() const
{
    if (m_text.isEmpty())
        return -1;
    if (m_index >= 0 && m_items[static_cast<size_t>(m_index)].shown == m_text)
        return m_index;
    return rowWithText(m_text);
}

QString Combo::boundText() const
{
    const int row = listIndex();
    return row < 0 ? QString() : m_items[static_cast<size_t>(row)].code;
}

void Combo::setBoundText(const QString &code)
{
    for (int row = 0; std::cmp_less(row, m_items.size()); ++row) {
        const ListItem &item = m_items[static_cast<size_t>(row)];
        if (item.code == code) {
            // Two rows may read alike; the code tells them apart.
            m_index = row;
            assign(item.shown, item.shown.size());
            return;
        }
    }
    m_index = -1;
    assign({}, 0);
}

void Combo::chooseRow(int row)
{
    if (std::cmp_greater_equal(row, m_items.size()))
        return;
    m_index = row;
    const QString text = row < 0 ? QString() : m_items[static_cast<size_t>(row)].shown;
    assign(text, text.size());
    if (onClick)
        onClick();
}

void Combo::insert(const QString &letters)
{
    QString typed = m_text;
    typed.remove(m_selStart, m_selLength);
    typed.insert(m_selStart, letters);
    const qsizetype caret = m_selStart + letters.size();
    if (caret == typed.size()) {
        const QString sought = searchKey(typed);
        for (int row = 0; std::cmp_less(row, m_items.size()); ++row) {
            const QString shown = m_items[static_cast<size_t>(row)].shown;
            if (sought.isEmpty() || !searchKey(shown).startsWith(sought))
                continue;
            m_index = row;
            assign(shown, shown.size());
            select(caret, shown.size() - caret);
            return;
        }
    }
    if (m_listOnly)
        return;
    Edit::insert(letters);
}

void Combo::erase(bool backwards)
{
    Edit::erase(backwards);
    setText(admitted(text()));
}

QString Combo::admitted(const QString &text) const
{
    return m_listOnly && rowWithText(text) < 0 ? QString() : text;
}

} // namespace zrv
