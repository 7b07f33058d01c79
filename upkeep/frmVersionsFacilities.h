// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// What each version of the program added. It opens on the current one.
class frmVersionsFacilities : public Screen {
public:
    explicit frmVersionsFacilities(Program &program);

    // clang-format off
    Label lblVersionsList{*this, u"lblVersionsList"_s, {.caption = u"مشخصات نسخه نرم افزار :"_s}};
    ComboBox cmbVersionsList{*this, u"cmbVersionsList"_s, {.listOnly = true}};
    TextBox txtLog{*this, u"txtLog"_s, {.multiLine = true, .locked = true}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void showChanges();
};

} // namespace zrv
