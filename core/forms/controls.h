// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/edit.h"

#include <QStringList>

#include <memory>

namespace zrv {

/// Controls are declared in a screen as members that read like the screen itself:
///
///     Frame framKey{*this, u"framKey"_s, {.caption = u"…"_s}};
///     TextBox txtTFN{framKey, u"txtTFN"_s, {.limit = 12, .tag = u"+DigitOnly+N"_s}};

struct TextBoxLook {
    int limit = 0;
    QString tag = {};
    QString toolTip = {};
    QChar password = {}; ///< shown instead of each letter
    bool multiLine = false;
    bool locked = false;
    bool visible = true;
    bool leftToRight = false; ///< digits, codes and Latin texts, whatever is typed first
};

class TextBox : public Edit {
public:
    TextBox(Container &container, QString name, const TextBoxLook &look = {});

    [[nodiscard]] QChar passwordLetter() const { return m_look.password; }
    [[nodiscard]] bool isMultiLine() const { return m_look.multiLine; }

private:
    TextBoxLook m_look;
};

struct ButtonLook {
    QString caption = {};
    QString toolTip = {};
    bool enabled = true;
    bool visible = true;
};

/// A control with words of its own on it.
class Captioned : public Control {
public:
    [[nodiscard]] const QString &caption() const { return m_caption; }
    void setCaption(const QString &caption);
    [[nodiscard]] QString shownText() const override { return m_caption; }

protected:
    Captioned(Container &container, QString name, ControlKind kind, bool takesFocus, const ButtonLook &look);

private:
    QString m_caption;
};

struct LabelLook {
    QString caption = {};
    QString toolTip = {};
    bool visible = true;
    bool leftToRight = false; ///< paths and codes
};

class Label : public Captioned {
public:
    Label(Container &container, QString name, const LabelLook &look = {});

    [[nodiscard]] bool isLeftToRight() const { return m_leftToRight; }

private:
    bool m_leftToRight;
};

class Button : public Captioned {
public:
    Button(Container &container, QString name, const ButtonLook &look = {});

    /// Enter anywhere on the form clicks its default button, unless the focused control has a use for Enter.
    [[nodiscard]] bool isDefault() const;
    void setDefault(bool on);
    /// Escape anywhere on the form clicks its Cancel button.
    [[nodiscard]] bool isCancel() const;
    void setCancel(bool on);
};

struct ChoiceLook {
    QString caption = {};
    QString toolTip = {};
    bool checked = false;
    bool enabled = true;
    bool visible = true;
};

class CheckBox : public Captioned {
public:
    CheckBox(Container &container, QString name, const ChoiceLook &look = {});

    [[nodiscard]] bool isChecked() const { return m_checked; }
    /// Ticks or clears it; onClick runs on a change, whoever made it.
    void setChecked(bool checked);

private:
    bool m_checked;
};

/// One of a group: those that lie in the same container. Choosing one clears the others.
class OptionButton : public Captioned {
public:
    OptionButton(Container &container, QString name, const ChoiceLook &look = {});

    [[nodiscard]] bool isChecked() const { return m_checked; }
    /// Chooses it (onClick runs on a change) or clears it without a word.
    void setChecked(bool checked);

private:
    bool m_checked;
};

/// A row of a list: what is shown and the code behind it.
struct ListItem {
    QString shown;
    QString code;
    bool checked = false;
};

struct ComboLook {
    int limit = 0;
    QString tag = {};
    QString toolTip = {};
    bool listOnly = false; ///< the text can only be one of the rows (drop-down style)
    bool visible = true;
};

/// A combo box: a text and a list of rows with codes. In a data combo the rows come from the store and the
/// bound text is the chosen row's code; a combo box's rows are the screen's own.
///
/// Typing completes: the first row that begins with what was typed becomes the text, with the added part
/// selected, so that a few letters choose a row.
class Combo : public Edit {
public:
    [[nodiscard]] const std::vector<ListItem> &items() const { return m_items; }
    /// New rows. The text stays; the bound text follows it.
    void setItems(std::vector<ListItem> items);
    /// Empties rows and text.
    void clear();

    /// Place of the row whose text is shown, -1 for none.
    [[nodiscard]] int listIndex() const;
    /// Chooses a row as a user does: text, onChange, onClick. -1 empties the text.
    void chooseRow(int row);

    /// Code of the row shown; empty when the text is no row's.
    [[nodiscard]] QString boundText() const;
    /// Shows the row with this code, or nothing when no row has it.
    void setBoundText(const QString &code);

    void insert(const QString &letters) override;
    void erase(bool backwards) override;
    /// What a text that isn't whole becomes where only the rows' texts are taken: nothing.
    [[nodiscard]] QString admitted(const QString &text) const;
    [[nodiscard]] bool isListOnly() const { return m_listOnly; }

protected:
    Combo(Container &container, QString name, ControlKind kind, const ComboLook &look);

private:
    [[nodiscard]] int rowWithText(const QString &text) const;

    std::vector<ListItem> m_items;
    int m_index = -1; ///< the row last chosen; it tells rows apart that read alike
    bool m_listOnly;
};

class ComboBox : public Combo {
public:
    ComboBox(Container &container, QString name, const ComboLook &look = {})
        : Combo(container, std::move(name), ControlKind::ComboBox, look)
    {
    }
};

class DataCombo : public Combo {
public:
    DataCombo(Container &container, QString name, const ComboLook &look = {})
        : Combo(container, std::move(name), ControlKind::DataCombo, look)
    {
    }
};

struct ListBoxLook {
    bool checkBoxes = false;
    bool visible = true;
};

class ListBox : public Control {
public:
    ListBox(Container &container, QString name, const ListBoxLook &look = {});

    [[nodiscard]] const std::vector<ListItem> &items() const { return m_items; }
    void setItems(std::vector<ListItem> items);
    void addItem(const ListItem &item);
    void removeItem(int row);
    void clear();
    [[nodiscard]] bool hasCheckBoxes() const { return m_checkBoxes; }

    [[nodiscard]] int listIndex() const { return m_index; }
    /// Makes a row current, -1 for none; onClick runs on a change.
    void setListIndex(int row);
    /// Ticks a row; onItemCheck runs on a change.
    void setItemChecked(int row, bool checked);
    [[nodiscard]] QString shownText() const override;

    std::function<void(int row)> onItemCheck;

private:
    std::vector<ListItem> m_items;
    int m_index = -1;
    bool m_checkBoxes;
};

struct FrameLook {
    QString caption = {};
    bool visible = true;
};

class Frame : public Captioned, public Container {
public:
    Frame(Container &container, QString name, const FrameLook &look = {});

    [[nodiscard]] Form &containerForm() override { return form(); }
    [[nodiscard]] Control *containerControl() override { return this; }
};

/// A picture box used as a container, and the main form's background.
class Picture : public Control, public Container {
public:
    Picture(Container &container, QString name, const FrameLook &look = {});

    [[nodiscard]] Form &containerForm() override { return form(); }
    [[nodiscard]] Control *containerControl() override { return this; }
};

/// A tab control. Its pages are frames that lie in it, one a page, in order; only the current one is shown.
class Tabs : public Control, public Container {
public:
    Tabs(Container &container, QString name, QStringList captions);

    [[nodiscard]] const QStringList &captions() const { return m_captions; }
    /// Current page from 0. onClick runs on a change.
    [[nodiscard]] int page() const { return m_page; }
    void setPage(int page);
    [[nodiscard]] Form &containerForm() override { return form(); }
    [[nodiscard]] Control *containerControl() override { return this; }

private:
    QStringList m_captions;
    int m_page = 0;
};

/// One panel of the status bar.
class StatusPanel : public Control {
public:
    /// The panel takes the room that the others leave, or what its text needs.
    enum class Size { Content, Spring };
    StatusPanel(Container &container, QString name, Size size);

    [[nodiscard]] const QString &text() const { return m_text; }
    void setText(const QString &text);
    [[nodiscard]] QString shownText() const override { return m_text; }
    [[nodiscard]] Size size() const { return m_size; }
    void setSize(Size size);

private:
    QString m_text;
    Size m_size;
};

/// A menu of the form's bar, an item of such a menu, or (caption "-") a separator. Its container is the form for
/// a menu and the menu for an item.
class MenuItem : public Captioned, public Container {
public:
    MenuItem(Container &container, QString name, const ButtonLook &look);

    [[nodiscard]] bool isSeparator() const { return caption() == QLatin1String("-"); }
    [[nodiscard]] Form &containerForm() override { return form(); }
    [[nodiscard]] Control *containerControl() override { return this; }
};

/// Ticks while its form is open; only the window side makes it run.
class Timer : public Control {
public:
    Timer(Container &container, QString name, int intervalMs);

    [[nodiscard]] int interval() const { return m_interval; }
    std::function<void()> onTimer;

private:
    int m_interval;
};

} // namespace zrv
