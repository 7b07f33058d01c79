// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/controls.h"

#include <QStringList>

#include <optional>

namespace zrv {

/// A report of any length whose lines are made when they are looked at. Lines count from 0, letters are UTF-16 units.
/// Each call may raise a RunTimeError, where what the report tells of is no longer there.
class ReportLines {
public:
    virtual ~ReportLines() = default;

    [[nodiscard]] virtual qint64 lineCount() = 0;
    /// Letters of the whole report, CR LF counted as two.
    [[nodiscard]] virtual qint64 length() = 0;
    /// The lines from `first` on, as many as there are up to `count`, joined by CR LF without one at the end.
    [[nodiscard]] virtual QString lines(qint64 first, qint64 count) = 0;
    /// The next line behind `line` that tells an error; -1 when there is none. With -1 the first of all.
    [[nodiscard]] virtual qint64 nextError(qint64 line) = 0;
};

/// Some lines of a report that follow each other.
struct ReportPage {
    qint64 first = 0;
    QStringList lines;
    std::vector<bool> tellsError; ///< for each line
};

struct ReportBoxLook {
    QString spokenName = {}; ///< what a screen reader calls it
    QString toolTip = {};
    bool visible = true;
};

/// A text that is only read, of any length: of a long report no more is in memory than what is in view. One line is
/// current, and all from the anchor to it are marked. F8 goes to the next error, Ctrl+F opens a field in which a word
/// is sought, and F3 goes on with it.
///
///     ReportBox txtHogogStructure{*this, u"txtHogogStructure"_s};
///
///     txtHogogStructure.onSearching = [this] { platform().yield(); };
///     txtHogogStructure.setLines(std::make_shared<CheckLines>(…));
///
/// A report that raises a RunTimeError is gone: the error's description stands in its place.
class ReportBox : public Control, public Container {
public:
    ReportBox(Container &container, QString name, const ReportBoxLook &look = {});
    ~ReportBox() override;

    [[nodiscard]] const QString &spokenName() const { return m_spokenName; }

    /// Another report, or none. The lines are asked for from now on, whenever the program yields: nobody else may be at
    /// work with what they are made of.
    void setLines(std::shared_ptr<ReportLines> lines);
    /// A plain text; its lines end with CR, LF or CR LF. None of them tells an error.
    void setText(const QString &text);

    [[nodiscard]] qint64 lineCount() const { return m_lineCount; }
    /// The whole text up to 1,048,576 letters; of a longer one the lines that have room in these.
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString shownText() const override { return text(); }

    /// What a view shows; asks the report for these lines and no others, and not again for those asked for last.
    const ReportPage &page(qint64 first, qint64 count);

    /// -1 without lines.
    [[nodiscard]] qint64 currentLine() const { return m_line; }
    /// The line where marking began; the current one when no other is marked.
    [[nodiscard]] qint64 anchorLine() const { return m_anchor; }
    /// Marks from one line to another, which becomes current. Lines beyond an end are that end.
    void select(qint64 anchor, qint64 line);
    void setCurrentLine(qint64 line) { select(line, line); }
    /// The marked lines, each with a CR LF behind it when there are several; nothing if they have more letters.
    [[nodiscard]] std::optional<QString> selectedText(qint64 mostLetters);

    /// Makes the next line current that tells an error, behind the last one the first again. False if none does.
    bool goToNextError();

    /// The first line from `fromLine` on that has the word, whichever yeh or kaf either is written with; -1 if there is
    /// none, or when `goOn`, asked now and then with the number of lines gone through, wanted to stop.
    [[nodiscard]] qint64 find(const QString &word, qint64 fromLine, const std::function<bool(qint64)> &goOn = {});
    /// The field for a word, and away with it.
    void openFind();
    void closeFind();
    /// Makes the next line current that has the word in the field, behind the last one the first again.
    void findNext();

    /// How far PageUp and PageDown go; told by the view.
    void setPageLines(qint64 count) { m_pageLines = count; }

    /// Enter or a double click on a line.
    std::function<void(qint64 line)> onLineDoubleClick;
    /// Called now and then while a word is sought; to let the display and the stop button work.
    std::function<void()> onSearching;

    [[nodiscard]] Form &containerForm() override { return form(); }
    [[nodiscard]] Control *containerControl() override { return this; }

private:
    friend class Form;

    bool press(Key key);
    bool pressInFind(Key key);
    [[nodiscard]] static qint64 findInPart(qint64 first, const QString &part, const QString &key);
    void take(std::shared_ptr<ReportLines> lines);

    QString m_spokenName;
    std::shared_ptr<ReportLines> m_lines;
    qint64 m_lineCount = 0;
    qint64 m_line = -1;
    qint64 m_anchor = -1;
    qint64 m_pageLines = 20;
    ReportPage m_page;
    qint64 m_pageCount = 0; ///< lines that the page was asked for
    bool m_isSearching = false;
    bool m_stops = false;

    Picture m_bar;
    Label m_label;
    TextBox m_word;
    Button m_next;
};

} // namespace zrv
