// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/properties.h"

#include <array>
#include <utility>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = std::optional<QString>;

/// The property of controls of one class; controls of other classes have none.
template <class Kind, class Read>
Answer ofKind(const Control &control, Read read)
{
    const auto *const kind = dynamic_cast<const Kind *>(&control);
    return kind ? Answer(read(*kind)) : Answer();
}

Answer codeOf(const Control &control)
{
    if (const auto *combo = dynamic_cast<const Combo *>(&control))
        return combo->boundText();
    return ofKind<ListBox>(control, [](const ListBox &list) {
        return list.listIndex() < 0 ? QString() : list.items()[static_cast<size_t>(list.listIndex())].code;
    });
}

Answer checkedOf(const Control &control)
{
    if (const auto *box = dynamic_cast<const CheckBox *>(&control))
        return flagText(box->isChecked());
    return ofKind<OptionButton>(control, [](const OptionButton &option) { return flagText(option.isChecked()); });
}

Answer countOf(const Control &control)
{
    const std::optional<std::vector<ListItem>> items = listItems(control);
    return items ? Answer(QString::number(items->size())) : Answer();
}

Answer rowsOf(const Control &control)
{
    if (const auto *report = dynamic_cast<const ReportBox *>(&control))
        return QString::number(report->lineCount());
    return ofKind<Grid>(control, [](const Grid &grid) { return QString::number(grid.rowCount()); });
}

QString captionsOf(const Grid &grid)
{
    QStringList captions;
    for (const GridColumn &column : grid.columns())
        captions += column.caption;
    return captions.join(u'|');
}

// clang-format off
const std::array Properties{
    Property{u"text"_s,    [](const Control &c) -> Answer { return c.shownText(); }},
    Property{u"caption"_s, [](const Control &c) { return ofKind<Captioned>(c, [](const Captioned &o) { return o.caption(); }); }},
    Property{u"code"_s,    codeOf},
    Property{u"enabled"_s, [](const Control &c) -> Answer { return flagText(isEnabledThroughout(c)); }},
    Property{u"visible"_s, [](const Control &c) -> Answer { return flagText(c.isShown()); }},
    Property{u"locked"_s,  [](const Control &c) { return ofKind<Edit>(c, [](const Edit &e) { return flagText(e.isLocked()); }); }},
    Property{u"focused"_s, [](const Control &c) -> Answer { return flagText(c.hasFocus()); }},
    Property{u"checked"_s, checkedOf},
    Property{u"default"_s, [](const Control &c) { return ofKind<Button>(c, [](const Button &b) { return flagText(b.isDefault()); }); }},
    Property{u"cancel"_s,  [](const Control &c) { return ofKind<Button>(c, [](const Button &b) { return flagText(b.isCancel()); }); }},
    Property{u"limit"_s,   [](const Control &c) { return ofKind<Edit>(c, [](const Edit &e) { return QString::number(e.maxLength()); }); }},
    Property{u"colour"_s,  [](const Control &c) -> Answer { return QString::number(c.backColor(), 16).rightJustified(6, u'0').toUpper(); }},
    Property{u"tag"_s,     [](const Control &c) -> Answer { return c.tag(); }},
    Property{u"tooltip"_s, [](const Control &c) -> Answer { return c.toolTip(); }},
    Property{u"rows"_s,    rowsOf},
    Property{u"line"_s,    [](const Control &c) { return ofKind<ReportBox>(c, [](const ReportBox &r) { return QString::number(r.currentLine() + 1); }); }},
    Property{u"count"_s,   countOf},
    Property{u"columns"_s, [](const Control &c) { return ofKind<Grid>(c, captionsOf); }},
    Property{u"tab"_s,     [](const Control &c) { return ofKind<Tabs>(c, [](const Tabs &t) { return QString::number(t.page()); }); }},
};
// clang-format on

} // namespace

std::span<const Property> allProperties()
{
    return Properties;
}

const Property *findProperty(QStringView name)
{
    for (const Property &property : Properties)
        if (property.name == name)
            return &property;
    return nullptr;
}

QString flagText(bool flag)
{
    return flag ? u"yes"_s : u"no"_s;
}

QString kindText(ControlKind kind)
{
    switch (kind) {
    case ControlKind::TextBox:
        return u"TextBox"_s;
    case ControlKind::Label:
        return u"Label"_s;
    case ControlKind::Button:
        return u"Button"_s;
    case ControlKind::OptionButton:
        return u"OptionButton"_s;
    case ControlKind::CheckBox:
        return u"CheckBox"_s;
    case ControlKind::ComboBox:
        return u"ComboBox"_s;
    case ControlKind::DataCombo:
        return u"DataCombo"_s;
    case ControlKind::ListBox:
        return u"ListBox"_s;
    case ControlKind::Grid:
        return u"Grid"_s;
    case ControlKind::ReportBox:
        return u"ReportBox"_s;
    case ControlKind::Frame:
        return u"Frame"_s;
    case ControlKind::Picture:
        return u"Picture"_s;
    case ControlKind::Tabs:
        return u"Tabs"_s;
    case ControlKind::StatusPanel:
        return u"StatusPanel"_s;
    case ControlKind::MenuItem:
        return u"MenuItem"_s;
    case ControlKind::Timer:
        return u"Timer"_s;
    }
    return {};
}

bool isEnabledThroughout(const Control &control)
{
    for (const Control *at = &control; at; at = at->container().containerControl())
        if (!at->isEnabled())
            return false;
    return true;
}

std::optional<std::vector<ListItem>> listItems(const Control &control)
{
    if (const auto *combo = dynamic_cast<const Combo *>(&control))
        return combo->items();
    if (const auto *list = dynamic_cast<const ListBox *>(&control))
        return list->items();
    if (const auto *tabs = dynamic_cast<const Tabs *>(&control)) {
        std::vector<ListItem> pages;
        for (qsizetype page = 0; page < tabs->captions().size(); ++page)
            pages.push_back({.shown = tabs->captions()[page], .code = QString::number(page)});
        return pages;
    }
    return {};
}

} // namespace zrv::player
