// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/plain_layout.h"

#include "qt/form_window.h"
#include "qt/look.h"

#include <QGridLayout>
#include <QLabel>

namespace zrv {

namespace {

constexpr int PairsPerLine = 2;
constexpr int Columns = 2 * PairsPerLine;
constexpr int LongestCaption = 60; ///< letters; a longer text is a remark that wraps

bool hasKind(const Control &control, ControlKind kind)
{
    return control.kind() == kind;
}

/// A field, or a label that shows a value: what a caption stands before.
bool isValue(const Control &control)
{
    return dynamic_cast<const Edit *>(&control) || control.name().startsWith(u"lbD");
}

bool isTitle(const Control &control)
{
    return control.name() == u"lblForm" || control.name() == u"LabelFormHeader";
}

bool takesWholeLine(const Control &control)
{
    return dynamic_cast<const Container *>(&control) || hasKind(control, ControlKind::Grid)
           || hasKind(control, ControlKind::ListBox);
}

/// Fills a grid cell by cell; whatever doesn't fit on the rest of a line begins the next.
class Lines {
public:
    explicit Lines(QGridLayout &grid)
        : m_grid(grid)
    {
        for (int pair = 0; pair < PairsPerLine; ++pair)
            grid.setColumnStretch(2 * pair + 1, 1);
    }

    void addPair(QWidget &caption, QWidget &value)
    {
        begin(2);
        m_grid.addWidget(&caption, m_line, m_column, Qt::AlignTrailing | Qt::AlignVCenter);
        m_grid.addWidget(&value, m_line, m_column + 1);
        m_column += 2;
    }
    void addSingle(QWidget &widget, int columns)
    {
        begin(columns);
        m_grid.addWidget(&widget, m_line, m_column, 1, columns);
        m_column += columns;
    }
    void addLine(QLayout *layout)
    {
        begin(Columns);
        m_grid.addLayout(layout, m_line, 0, 1, Columns);
        m_column = Columns;
    }

private:
    void begin(int columns)
    {
        if (m_column + columns <= Columns)
            return;
        ++m_line;
        m_column = 0;
    }

    QGridLayout &m_grid;
    int m_line = 0;
    int m_column = 0;
};

/// The controls of a container that lie on its ground; bars, timers and the pages of tabs lie elsewhere.
std::vector<Control *> placedIn(const FormWindow &window, const Container &container)
{
    std::vector<Control *> placed;
    for (Control *control : container.children())
        if (window.widgetFor(*control) && !hasKind(*control, ControlKind::StatusPanel))
            placed.push_back(control);
    return placed;
}

void layOutContainer(const FormWindow &window, Container &container)
{
    const std::vector<Control *> controls = placedIn(window, container);
    for (Control *control : controls)
        if (auto *inner = dynamic_cast<Container *>(control); inner && !hasKind(*control, ControlKind::ReportBox))
            layOutContainer(window, *inner);
    if (container.containerControl() && hasKind(*container.containerControl(), ControlKind::Tabs))
        return;
    auto *const grid = new QGridLayout;
    Lines lines(*grid);
    for (size_t place = 0; place < controls.size(); ++place) {
        Control &control = *controls[place];
        QWidget &widget = *window.widgetFor(control);
        const Control *const next = place + 1 < controls.size() ? controls[place + 1] : nullptr;
        if (hasKind(control, ControlKind::Label) && next && isValue(*next)) {
            QWidget &value = *window.widgetFor(*next);
            lines.addPair(widget, value);
            static_cast<QLabel &>(widget).setBuddy(&value);
            ++place;
        } else if (hasKind(control, ControlKind::Button)) {
            auto *const buttons = new QHBoxLayout;
            for (; place < controls.size() && hasKind(*controls[place], ControlKind::Button); ++place)
                buttons->addWidget(window.widgetFor(*controls[place]));
            --place;
            buttons->addStretch(1);
            lines.addLine(buttons);
        } else if (isTitle(control)) {
            look::makeHeading(widget);
            lines.addSingle(widget, Columns);
        } else {
            const bool isLong = hasKind(control, ControlKind::Label) && control.shownText().size() > LongestCaption;
            if (isLong)
                static_cast<QLabel &>(widget).setWordWrap(true);
            lines.addSingle(widget, isLong || takesWholeLine(control) ? Columns : 2);
        }
    }
    window.groundOf(container)->setLayout(grid);
}

} // namespace

void layOutPlainly(FormWindow &window)
{
    layOutContainer(window, window.form());
}

} // namespace zrv
