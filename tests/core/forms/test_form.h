// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/basic/run_time_error.h"
#include "core/forms/form.h"

#include <QStringList>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Two fields, two buttons and a label, and a diary of what the form's rules were told.
class TestForm : public Form {
public:
    TestForm()
        : Form(u"frmTest"_s)
    {
        watch(first);
        watch(second);
        watch(ok);
        watch(back);
        ok.onClick = [this] { diary << u"click ok"_s; };
        back.onClick = [this] { diary << u"click back"_s; };
    }

    Label label{*this, u"lblFirst"_s};
    TextBox first{*this, u"txtFirst"_s, {.limit = 5}};
    Frame frame{*this, u"fraRest"_s};
    TextBox second{frame, u"txtSecond"_s};
    Button ok{frame, u"cmdOk"_s};
    Button back{frame, u"cmdBack"_s};

    QStringList diary;
    std::function<void(int &)> preview;
    std::function<bool(UnloadMode)> query;

    QStringList takeDiary() { return std::exchange(diary, {}); }

protected:
    void Form_Load() override { diary << u"load"_s; }
    void Form_Activate() override { diary << u"activate"_s; }
    void Form_KeyPress(int &keyAscii) override
    {
        if (preview)
            preview(keyAscii);
    }
    bool Form_QueryUnload(UnloadMode mode) override { return !query || query(mode); }
    void Form_Unload() override { diary << u"unload"_s; }
    void failed(const RunTimeError &failure) override { diary << u"failed "_s + QString::number(failure.number()); }

private:
    void watch(Control &control)
    {
        control.onGotFocus = [this, &control] { diary << u"enter "_s + control.name(); };
        control.onLostFocus = [this, &control] { diary << u"leave "_s + control.name(); };
    }
};

/// A form as the user finds it: loaded, shown, the diary empty.
struct OpenForm : TestForm {
    OpenForm()
    {
        load();
        activate();
        diary.clear();
    }
};

inline void type(Form &form, const QString &text)
{
    for (const QChar letter : text)
        form.userLetter(letter);
}

} // namespace zrv
