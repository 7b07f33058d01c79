// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/report_box.h"

#include "core/basic/letter_fold.h"
#include "core/basic/run_time_error.h"
#include "core/forms/form.h"

#include <algorithm>
#include <utility>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 MostShownLetters = 1048576;
constexpr qint64 Batch = 1024; ///< lines that are asked for at once where many are gone through

const QString LineEnd = u"\r\n"_s;
const QString Sought = u"جستجو : "_s;
const QString NotFound = u"يافت نشد : "_s;
const QString Stopped = u"جستجو متوقف شد : "_s;
const QString Next = u"بعدي"_s;
const QString Stop = u"توقف"_s;

QString searching(qint64 line, qint64 count)
{
    return u"در حال جستجو ("_s + QString::number(100 * line / count) + u"%) : "_s;
}

/// A text that is all there.
class PlainLines : public ReportLines {
public:
    explicit PlainLines(const QString &text)
        : m_text(text)
    {
        qsizetype begin = 0;
        for (qsizetype at = 0; at < text.size(); ++at) {
            if (text[at] != u'\r' && text[at] != u'\n')
                continue;
            m_lines += text.sliced(begin, at - begin);
            if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
                ++at;
            begin = at + 1;
        }
        if (begin < text.size())
            m_lines += text.sliced(begin);
    }

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] qint64 lineCount() override { return m_lines.size(); }
    [[nodiscard]] qint64 length() override { return m_text.size(); }
    [[nodiscard]] QString lines(qint64 first, qint64 count) override { return m_lines.mid(first, count).join(LineEnd); }
    [[nodiscard]] qint64 nextError(qint64) override { return -1; }

private:
    QString m_text;
    QStringList m_lines;
};

} // namespace

ReportBox::ReportBox(Container &container, QString name, const ReportBoxLook &look)
    : Control(container, std::move(name), ControlKind::ReportBox, true)
    , m_spokenName(look.spokenName)
    , m_bar(*this, this->name() + u"_FindBar"_s, {.visible = false})
    , m_label(m_bar, this->name() + u"_FindLabel"_s, {.caption = Sought})
    , m_word(m_bar, this->name() + u"_Find"_s, {.limit = 100})
    , m_next(m_bar, this->name() + u"_FindNext"_s, {.caption = Next, .toolTip = u"F3"_s})
{
    m_toolTip = look.toolTip;
    m_visible = look.visible;
    onDblClick = [this] {
        if (m_line >= 0 && onLineDoubleClick)
            onLineDoubleClick(m_line);
    };
    m_word.onKeyDown = [this](Key key) { return pressInFind(key); };
    m_word.onChange = [this] { m_label.setCaption(Sought); };
    m_next.onClick = [this] {
        m_stops = m_isSearching;
        if (!m_isSearching)
            findNext();
    };
    m_next.onKeyDown = [this](Key key) { return key != Key::Enter && pressInFind(key); };
}

ReportBox::~ReportBox() = default;

void ReportBox::take(std::shared_ptr<ReportLines> lines)
{
    m_lines = std::move(lines);
    m_lineCount = m_lines ? m_lines->lineCount() : 0;
    m_line = m_anchor = m_lineCount > 0 ? 0 : -1;
    m_page = {};
    m_pageCount = 0;
    m_stops = true; // A search that is under way was one in the report before.
    changed(Aspect::Text);
}

void ReportBox::setLines(std::shared_ptr<ReportLines> lines)
{
    try {
        take(std::move(lines));
    } catch (const RunTimeError &failure) {
        setText(failure.description());
    }
}

void ReportBox::setText(const QString &text)
{
    take(text.isEmpty() ? nullptr : std::make_shared<PlainLines>(text));
}

QString ReportBox::text() const
{
    if (!m_lines)
        return {};
    if (const auto *const plain = dynamic_cast<const PlainLines *>(m_lines.get()))
        return plain->text();
    QString text;
    try {
        for (qint64 first = 0; first < m_lineCount; first += Batch) {
            text += (first > 0 ? LineEnd : QString()) + m_lines->lines(first, Batch);
            if (text.size() > MostShownLetters) {
                const qsizetype end = text.lastIndexOf(LineEnd, MostShownLetters);
                text.truncate(end < 0 ? MostShownLetters : end);
                return text;
            }
        }
        if (text.size() < m_lines->length())
            text += LineEnd;
    } catch (const RunTimeError &failure) {
        return failure.description();
    }
    return text;
}

const ReportPage &ReportBox::page(qint64 first, qint64 count)
{
    if (first == m_page.first && count == m_pageCount)
        return m_page;
    m_page = {.first = first, .lines = {}, .tellsError = {}};
    m_pageCount = count;
    const qint64 end = std::min(m_lineCount, first + count);
    if (first < 0 || first >= end)
        return m_page;
    try {
        m_page.lines = m_lines->lines(first, end - first).split(LineEnd);
        // A report that gives more lines than were asked for, or fewer, must not lead beyond the page.
        m_page.lines.resize(end - first);
        m_page.tellsError.assign(static_cast<std::size_t>(end - first), false);
        for (qint64 line = m_lines->nextError(first - 1); line >= 0 && line < end; line = m_lines->nextError(line))
            m_page.tellsError.at(static_cast<std::size_t>(line - first)) = true;
    } catch (const RunTimeError &failure) {
        setText(failure.description());
        return page(0, count);
    }
    return m_page;
}

void ReportBox::select(qint64 anchor, qint64 line)
{
    const qint64 last = m_lineCount - 1;
    if (last < 0)
        return;
    anchor = std::clamp<qint64>(anchor, 0, last);
    line = std::clamp<qint64>(line, 0, last);
    if (anchor == m_anchor && line == m_line)
        return;
    m_anchor = anchor;
    m_line = line;
    changed(Aspect::CurrentRow);
}

std::optional<QString> ReportBox::selectedText(qint64 mostLetters)
{
    QString text;
    if (m_line < 0)
        return text;
    const qint64 first = std::min(m_anchor, m_line);
    const qint64 last = std::max(m_anchor, m_line);
    if (last - first > mostLetters)
        return {};
    try {
        for (qint64 at = first; at <= last; at += Batch) {
            text += m_lines->lines(at, std::min(Batch, last + 1 - at));
            if (first < last)
                text += LineEnd;
            if (text.size() > mostLetters)
                return {};
        }
    } catch (const RunTimeError &failure) {
        setText(failure.description());
        return QString();
    }
    return text;
}

bool ReportBox::goToNextError()
{
    if (!m_lines)
        return false;
    try {
        qint64 error = m_lines->nextError(m_line);
        if (error < 0)
            error = m_lines->nextError(-1);
        if (error < 0)
            return false;
        setCurrentLine(error);
    } catch (const RunTimeError &failure) {
        setText(failure.description());
        return false;
    }
    return true;
}

// Search ---------------------------------------------------------------------------------------------------------

/// A line of the part that has the key; -1 for none.
qint64 ReportBox::findInPart(qint64 first, const QString &part, const QString &key)
{
    // Few parts have it anywhere: only these are looked at line by line.
    if (!searchKey(part).contains(key))
        return -1;
    const QStringList lines = part.split(LineEnd);
    const auto found = std::ranges::find_if(lines, [&](const QString &line) { return searchKey(line).contains(key); });
    return found == lines.end() ? -1 : first + (found - lines.begin());
}

qint64 ReportBox::find(const QString &word, qint64 fromLine, const std::function<bool(qint64)> &goOn)
{
    const QString key = searchKey(word);
    if (key.isEmpty())
        return -1;
    const std::shared_ptr<ReportLines> lines = m_lines;
    for (qint64 first = std::max<qint64>(0, fromLine); first < m_lineCount; first += Batch) {
        const qint64 found = findInPart(first, lines->lines(first, Batch), key);
        if (found >= 0)
            return found;
        if (goOn && !goOn(std::min(first + Batch, m_lineCount)))
            return -1;
    }
    return -1;
}

void ReportBox::openFind()
{
    m_label.setCaption(Sought);
    m_bar.setVisible(true);
    m_word.setFocus();
    m_word.selectAll();
}

void ReportBox::closeFind()
{
    m_bar.setVisible(false);
    setFocus();
}

void ReportBox::findNext()
{
    if (m_isSearching || m_line < 0 || searchKey(m_word.text()).isEmpty())
        return;
    Control *const liveBefore = form().liveWhileBusy();
    form().setLiveWhileBusy(&m_next);
    m_isSearching = true;
    m_stops = false;
    m_next.setCaption(Stop);
    const auto goOn = [this](qint64 line) {
        m_label.setCaption(searching(line, m_lineCount));
        if (onSearching)
            onSearching();
        return !m_stops;
    };
    QString ends = Sought;
    try {
        qint64 found = find(m_word.text(), m_line + 1, goOn);
        if (found < 0 && !m_stops)
            found = find(m_word.text(), 0, [&](qint64 line) { return goOn(line) && line <= m_line; });
        if (found >= 0)
            setCurrentLine(found);
        else
            ends = m_stops ? Stopped : NotFound;
    } catch (const RunTimeError &failure) {
        setText(failure.description());
    }
    m_isSearching = false;
    m_next.setCaption(Next);
    m_label.setCaption(ends);
    form().setLiveWhileBusy(liveBefore);
}

// Keys -----------------------------------------------------------------------------------------------------------

/// Keys that stay with the field for a word, whatever the screen does with them elsewhere.
bool ReportBox::pressInFind(Key key)
{
    switch (key) {
    case Key::Enter:
    case Key::F3:
        findNext();
        return true;
    case Key::F8:
        goToNextError();
        return true;
    case Key::Escape:
        closeFind();
        return true;
    default:
        return false;
    }
}

bool ReportBox::press(Key key)
{
    switch (key) {
    case Key::Up:
        setCurrentLine(m_line - 1);
        return true;
    case Key::Down:
        setCurrentLine(m_line + 1);
        return true;
    case Key::PageUp:
        setCurrentLine(m_line - m_pageLines);
        return true;
    case Key::PageDown:
        setCurrentLine(m_line + m_pageLines);
        return true;
    case Key::Find:
        openFind();
        return true;
    case Key::F3:
        m_bar.isVisible() ? findNext() : openFind();
        return true;
    case Key::F8:
        goToNextError();
        return true;
    case Key::Enter:
        if (m_line < 0 || !onLineDoubleClick)
            return false;
        onLineDoubleClick(m_line);
        return true;
    default:
        return false;
    }
}

} // namespace zrv
