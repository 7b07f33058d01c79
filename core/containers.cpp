// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/containers.h"

#include <array>
#include <span>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Paint { Keep, Container, Cream, LightGreen };

/// What happens to the controls whose name begins so; an empty prefix is any name.
struct Rule {
    QStringView prefix;
    Paint paint;
    std::span<const Rule> inside = {};
};

// clang-format off
constexpr std::array InsideFramedPicture{
    Rule{u"txt", Paint::Container},
    Rule{u"Lbl", Paint::Container},
};
constexpr std::array InsideFrame{
    Rule{u"cmd", Paint::Keep},
    Rule{u"lbl", Paint::Keep},
    Rule{u"LBl", Paint::Keep},
    Rule{u"UpD", Paint::Keep},
    Rule{u"txt", Paint::Container},
    Rule{u"opt", Paint::Container},
    Rule{u"dcb", Paint::Container},
    Rule{u"cmb", Paint::LightGreen},
    Rule{u"pic", Paint::Container, InsideFramedPicture},
};
constexpr std::array InsidePainted{Rule{u"", Paint::Container}};
constexpr std::array InsideKept{Rule{u"", Paint::Keep}};
constexpr std::array InContainer{
    Rule{u"cmd", Paint::Keep},
    Rule{u"lbl", Paint::Keep},
    Rule{u"Opt", Paint::Keep},
    Rule{u"UpD", Paint::Keep},
    Rule{u"chk", Paint::Keep},
    Rule{u"txt", Paint::Container},
    Rule{u"Lbl", Paint::Container},
    Rule{u"opt", Paint::Container},
    Rule{u"dcb", Paint::Container},
    Rule{u"cmb", Paint::Container},
    Rule{u"lst", Paint::Container},
    Rule{u"dbg", Paint::Cream},
    Rule{u"pic", Paint::Container, InsidePainted},
    Rule{u"Pic", Paint::Keep,      InsideKept},
    Rule{u"fra", Paint::Keep,      InsideFrame},
    Rule{u"SST", Paint::Keep,      InsideFrame},
};
// clang-format on

bool isSkipped(const Control &control)
{
    const QString &name = control.name();
    return name.startsWith("mnu"_L1) || name.startsWith("Data"_L1) || name.startsWith("tmr"_L1)
           || name == "CheckDigit1"_L1 || name == "CommonDialog1"_L1;
}

std::vector<Control *> controlsIn(QStringView container, Form &form)
{
    std::vector<Control *> found;
    for (Control *control : form.controls()) {
        const Control *const around = control->container().containerControl();
        if (around && around->name() == container && !isSkipped(*control))
            found.push_back(control);
    }
    return found;
}

Color colorOf(Paint paint, Color ofContainer)
{
    switch (paint) {
    case Paint::Cream:
        return color::DataField;
    case Paint::LightGreen:
        return color::FramedCombo;
    default:
        return ofContainer;
    }
}

Color colorOfContainer(QStringView container)
{
    const QStringView begin = container.first(std::min<qsizetype>(6, container.size()));
    return begin == u"framKe" || begin == u"FramKe" || begin == u"picKey" ? color::KeyField : color::DataField;
}

/// Walks the controls by the rules; `act` does the one thing that this walk is for.
template <typename Act>
void walk(const std::vector<Control *> &controls, std::span<const Rule> rules, const Act &act)
{
    for (Control *control : controls) {
        if (isSkipped(*control))
            continue;
        for (const Rule &rule : rules) {
            if (!control->name().startsWith(rule.prefix))
                continue;
            act(*control, rule.paint);
            if (auto *const inner = dynamic_cast<Container *>(control); inner && !rule.inside.empty())
                walk(inner->children(), rule.inside, act);
            break;
        }
    }
}

enum class Depth { Container, Inside };

void clearControls(const std::vector<Control *> &controls, Depth depth)
{
    for (Control *control : controls) {
        const QString &name = control->name();
        if (isSkipped(*control))
            continue;
        if (name.startsWith("lbD"_L1)) {
            if (auto *const label = dynamic_cast<Label *>(control))
                label->setCaption({});
        } else if (name.startsWith("cmb"_L1) && depth == Depth::Inside) {
            if (auto *const combo = dynamic_cast<Combo *>(control))
                combo->clear();
        } else if (name.startsWith("list"_L1)) {
            if (auto *const list = dynamic_cast<ListBox *>(control))
                list->setListIndex(-1);
        } else if (name.startsWith("chk"_L1)) {
            if (auto *const box = dynamic_cast<CheckBox *>(control))
                box->setChecked(false);
        } else if (name.startsWith("pic"_L1) || name.startsWith("fra"_L1)) {
            if (auto *const inner = dynamic_cast<Container *>(control))
                clearControls(inner->children(), Depth::Inside);
        } else if (auto *const edit = dynamic_cast<Edit *>(control)) {
            for (const auto prefix : {"txt"_L1, "tex"_L1, "dcb"_L1, "msk"_L1, "DC"_L1, "cmb"_L1})
                if (name.startsWith(prefix))
                    edit->setText({});
        }
    }
}

void switchButton(Form &form, QStringView name, bool on)
{
    if (Control *const button = form.find(name))
        button->setEnabled(on);
}

} // namespace

void EnableContainer(QStringView container, Form &form)
{
    const Color ofContainer = colorOfContainer(container);
    walk(controlsIn(container, form), InContainer, [&](Control &control, Paint paint) {
        control.setEnabled(true);
        if (paint != Paint::Keep)
            control.setBackColor(colorOf(paint, ofContainer));
    });
    ApplyModeButtons(container, form);
}

void DisableContainer(QStringView container, Form &form)
{
    walk(controlsIn(container, form), InContainer, [](Control &control, Paint) { control.setEnabled(false); });
}

void ClearContainer(QStringView container, Form &form)
{
    clearControls(controlsIn(container, form), Depth::Container);
}

void ApplyModeButtons(QStringView mode, Form &form)
{
    if (mode == u"FramKey") {
        switchButton(form, u"cmdKeyOk", false);
    } else if (mode == u"StartProgram") {
        switchButton(form, u"cmdExit", true);
        switchButton(form, u"cmdDelete", false);
    }
}

RequiredFields CheckRequired(QStringView container, Form &form)
{
    RequiredFields result;
    const auto look = [&result](const std::vector<Control *> &controls) {
        for (Control *control : controls) {
            auto *const field = dynamic_cast<Edit *>(control);
            if (!field || !field->tag().contains("+N"_L1) || !field->isReachable())
                continue;
            const bool empty = field->text().trimmed().isEmpty();
            field->setBackColor(empty ? color::RequiredEmpty : color::DataField);
            if (empty && (!result.firstEmpty || field->tabIndex() < result.firstEmpty->tabIndex()))
                result.firstEmpty = field;
        }
    };
    const std::vector<Control *> direct = controlsIn(container, form);
    look(direct);
    for (Control *control : direct)
        if (control->name().startsWith("pic"_L1) || control->name().startsWith("fra"_L1))
            if (auto *const inner = dynamic_cast<Container *>(control))
                look(inner->children());
    return result;
}

} // namespace zrv
