// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/spoken_field.h"

#include <QAccessibleWidget>
#include <QGlyphRun>
#include <QLineEdit>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>

namespace zrv {

namespace {

constexpr int AtEnd = -1;
constexpr int AtCursor = -2;

class SpokenField : public QAccessibleWidget, public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
public:
    explicit SpokenField(QLineEdit &line)
        : QAccessibleWidget(&line, QAccessible::EditableText)
        , m_line(line)
    {
    }

    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = m_line.isReadOnly();
        state.editable = !state.readOnly;
        state.passwordEdit = isSecret();
        state.selectableText = true;
        state.hasPopup = true;
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text part) const override
    {
        if (part == QAccessible::Value)
            return isSecret() ? QString(m_line.text().size(), u'*') : m_line.text();
        const QString told = QAccessibleWidget::text(part);
        return told.isEmpty() && part == QAccessible::Description ? m_line.placeholderText() : told;
    }
    void setText(QAccessible::Text part, const QString &text) override
    {
        if (part == QAccessible::Value && !m_line.isReadOnly())
            m_line.setText(text);
        else
            QAccessibleWidget::setText(part, text);
    }

    // Reading
    [[nodiscard]] int characterCount() const override { return static_cast<int>(m_line.text().size()); }
    [[nodiscard]] QString text(int begin, int end) const override
    {
        return isSecret() || begin > end ? QString() : m_line.text().mid(begin, end - begin);
    }
    [[nodiscard]] QString textAtOffset(int place, QAccessible::TextBoundaryType unit, int *begin,
                                       int *end) const override
    {
        return told(partAt(meant(place), unit), begin, end);
    }
    [[nodiscard]] QString textBeforeOffset(int place, QAccessible::TextBoundaryType unit, int *begin,
                                           int *end) const override
    {
        const Part here = partAt(meant(place), unit);
        return told(here.begin > 0 ? partAt(here.begin - 1, unit) : Part(), begin, end);
    }
    [[nodiscard]] QString textAfterOffset(int place, QAccessible::TextBoundaryType unit, int *begin,
                                          int *end) const override
    {
        const Part here = partAt(meant(place), unit);
        const bool hasNext = here.end >= 0 && here.end < characterCount();
        return told(hasNext ? partAt(here.end, unit) : Part(), begin, end);
    }
    [[nodiscard]] QString attributes(int place, int *begin, int *end) const override
    {
        Q_UNUSED(place);
        *begin = 0;
        *end = characterCount();
        return {};
    }

    // Cursor and selection
    [[nodiscard]] int cursorPosition() const override { return m_line.cursorPosition(); }
    void setCursorPosition(int place) override { m_line.setCursorPosition(place); }
    [[nodiscard]] int selectionCount() const override { return m_line.hasSelectedText() ? 1 : 0; }
    void selection(int index, int *begin, int *end) const override
    {
        const bool isThere = index == 0 && m_line.hasSelectedText();
        *begin = isThere ? m_line.selectionStart() : 0;
        *end = isThere ? m_line.selectionEnd() : 0;
    }
    void addSelection(int begin, int end) override { setSelection(0, begin, end); }
    void setSelection(int index, int begin, int end) override
    {
        if (index == 0)
            m_line.setSelection(begin, end - begin);
    }
    void removeSelection(int index) override
    {
        if (index == 0)
            m_line.deselect();
    }

    // Places on the display
    [[nodiscard]] QRect characterRect(int place) const override
    {
        if (place < 0 || place >= characterCount())
            return {};
        // The widget tells only where its cursor is; from there it is as far as in the same line laid out alone.
        const QString shown = m_line.displayText();
        QTextLayout layout(shown, m_line.font());
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setTextDirection(m_line.layoutDirection());
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(QWIDGETSIZE_MAX);
        layout.endLayout();
        QRectF letter;
        for (const QGlyphRun &run : line.glyphRuns(place, 1))
            letter |= run.boundingRect();
        const QRect cursor = m_line.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const qreal origin = cursor.center().x() - line.cursorToX(m_line.cursorPosition());
        const QRect room(qRound(origin + letter.x()), cursor.top(), qRound(letter.width()), cursor.height());
        const QRect inView = room & m_line.rect();
        return {m_line.mapToGlobal(inView.topLeft()), inView.size()};
    }
    [[nodiscard]] int offsetAtPoint(const QPoint &point) const override
    {
        const QPoint inside = m_line.mapFromGlobal(point);
        return m_line.rect().contains(inside) ? m_line.cursorPositionAt(inside) : -1;
    }
    void scrollToSubstring(int begin, int end) override
    {
        m_line.setCursorPosition(end);
        m_line.setCursorPosition(begin);
    }

    // Writing
    void deleteText(int begin, int end) override { replaceText(begin, end, {}); }
    void insertText(int place, const QString &text) override { replaceText(place, place, text); }
    void replaceText(int begin, int end, const QString &text) override
    {
        if (!m_line.isReadOnly())
            m_line.setText(m_line.text().replace(begin, end - begin, text));
    }

private:
    struct Part {
        int begin = -1;
        int end = -1;
    };

    /// The letter, the word, the sentence there; of greater units a line holds one.
    [[nodiscard]] Part partAt(int place, QAccessible::TextBoundaryType unit) const
    {
        const QString whole = m_line.text();
        const int length = characterCount();
        if (length == 0 || place < 0 || place > length)
            return {};
        if (unit > QAccessible::SentenceBoundary)
            return {0, length};
        if (place == length && unit == QAccessible::CharBoundary)
            return {};
        QTextBoundaryFinder finder(unit == QAccessible::CharBoundary   ? QTextBoundaryFinder::Grapheme
                                   : unit == QAccessible::WordBoundary ? QTextBoundaryFinder::Word
                                                                       : QTextBoundaryFinder::Sentence,
                                   whole);
        const auto isEdge = [&] {
            return finder.boundaryReasons() & (QTextBoundaryFinder::StartOfItem | QTextBoundaryFinder::EndOfItem);
        };
        // Behind the last letter it is still the last word that is spoken of.
        const int inside = std::min(place, length - 1);
        finder.setPosition(inside);
        int begin = inside;
        while (begin > 0 && !isEdge())
            begin = static_cast<int>(finder.toPreviousBoundary());
        finder.setPosition(inside);
        int end = 0;
        do
            end = static_cast<int>(finder.toNextBoundary());
        while (end > 0 && end < length && !isEdge());
        return {std::max(0, begin), end > 0 ? end : length};
    }
    [[nodiscard]] QString told(const Part &part, int *begin, int *end) const
    {
        *begin = isSecret() ? -1 : part.begin;
        *end = isSecret() ? -1 : part.end;
        return part.begin < 0 ? QString() : text(part.begin, part.end);
    }
    [[nodiscard]] bool isSecret() const { return m_line.echoMode() != QLineEdit::Normal; }
    [[nodiscard]] int meant(int place) const
    {
        return place == AtEnd ? characterCount() : place == AtCursor ? cursorPosition() : place;
    }

    QLineEdit &m_line;
};

QAccessibleInterface *fieldFor(const QString &className, QObject *object)
{
    if (className != QLatin1String("QLineEdit"))
        return nullptr;
    return new SpokenField(*static_cast<QLineEdit *>(object));
}

} // namespace

void speakForFields()
{
    QAccessible::installFactory(fieldFor);
}

} // namespace zrv
