// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/combo_binder.h"

#include "qt/field_edit.h"
#include "qt/form_window.h"
#include "qt/look.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <functional>
#include <vector>

namespace zrv {

ComboBinder::ComboBinder(Combo &combo, FormWindow &window)
    : Binder(combo, window)
    , m_combo(combo)
    , m_widget(new QComboBox(window.groundOf(combo.container())))
    , m_field(new FieldEdit(combo, window, m_widget))
{
    adopt(*m_widget);
    m_widget->setEditable(true);
    m_widget->setLineEdit(m_field);
    // The box would take the focus in the field's place and hand keys on past the form.
    m_field->setFocusProxy(nullptr);
    // Nor may it pick a row by itself when the field is left; the form has completed the text already.
    QObject::disconnect(m_field, &QLineEdit::editingFinished, m_widget, nullptr);
    m_widget->setCompleter(nullptr);
    m_widget->setInsertPolicy(QComboBox::NoInsert);
    m_widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_widget->setMinimumContentsLength(12);
    m_widget->setMaxVisibleItems(12);
    m_field->setFocusPolicy(Qt::TabFocus);
    QObject::connect(m_widget, &QComboBox::activated, m_widget, [this](int row) {
        m_window.enter([this, row] { form().userChoose(m_combo, row); });
        refresh(Aspect::Text);
    });
}

QWidget *ComboBinder::widget() const
{
    return m_widget;
}

QWidget *ComboBinder::input() const
{
    return m_field;
}

bool ComboBinder::keepsKey(const QKeyEvent &event) const
{
    return FieldEdit::keepsKey(event) || Binder::keepsKey(event);
}

/// Room for the widest row, of thousands perhaps: it is among the longest ones.
void ComboBinder::widenList()
{
    constexpr std::size_t Measured = 64;
    std::vector<QStringView> rows;
    for (const ListItem &item : m_combo.items())
        rows.push_back(item.shown);
    const std::size_t count = std::min(Measured, rows.size());
    std::ranges::partial_sort(rows, rows.begin() + std::ptrdiff_t(count), std::ranges::greater(), &QStringView::size);
    QAbstractItemView &view = *m_widget->view();
    int width = 0;
    for (std::size_t i = 0; i < count; ++i)
        width = std::max(width, view.fontMetrics().horizontalAdvance(rows[i].toString()));
    const QStyle &style = *m_widget->style();
    const int beside = 2 * (style.pixelMetric(QStyle::PM_FocusFrameHMargin) + 1 + view.frameWidth())
                       + style.pixelMetric(QStyle::PM_ScrollBarExtent);
    view.setMinimumWidth(std::min(width + beside, m_window.screen()->availableGeometry().width()));
}

void ComboBinder::openList()
{
    if (m_combo.isLocked() || !m_window.pressed(m_combo))
        return;
    const QSignalBlocker quiet(m_widget);
    // The list opens at the row that is shown.
    m_field->quietly([this] { m_widget->setCurrentIndex(m_combo.listIndex()); });
    m_field->showText();
    widenList();
    m_widget->showPopup();
}

bool ComboBinder::special(QEvent &event)
{
    switch (event.type()) {
    case QEvent::Wheel:
        // A wheel over a closed list would change the record that is being looked through.
        event.ignore();
        return true;
    case QEvent::KeyPress: {
        const auto &key = static_cast<const QKeyEvent &>(event);
        const bool altDown =
            key.modifiers() & Qt::AltModifier && (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up);
        if (key.key() != Qt::Key_F4 && !altDown)
            return false;
        openList();
        return true;
    }
    case QEvent::MouseButtonPress:
        // The field handles presses on itself; this is the arrow.
        openList();
        return true;
    default:
        return false;
    }
}

void ComboBinder::refresh(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Items: {
        const QSignalBlocker quiet(m_widget);
        m_field->quietly([this] {
            QStringList shown; // at once: a list of payees may have thousands of rows
            for (const ListItem &item : m_combo.items())
                shown += item.shown;
            m_widget->clear();
            m_widget->addItems(shown);
            m_widget->setCurrentIndex(-1);
        });
        m_field->showText();
        break;
    }
    case Aspect::Text:
        m_field->showText();
        break;
    case Aspect::Selection:
        m_field->showSelection();
        break;
    case Aspect::Locked:
        m_field->showLocked();
        break;
    case Aspect::Colors:
        look::colorField(*m_widget, m_combo.backColor(), m_combo.textColor());
        look::colorField(*m_field, m_combo.backColor(), m_combo.textColor());
        break;
    default:
        Binder::refresh(aspect);
    }
}

} // namespace zrv
