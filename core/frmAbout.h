// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Who made the program and which version it is.
class frmAbout : public Screen {
public:
    explicit frmAbout(Program &program);

    // clang-format off
    Label LabelFormHeader{*this, u"LabelFormHeader"_s, {.caption = u"فــــرم  دربــاره  سيستم  و  تماس  با  ما"_s}};
    Picture picLogo{*this, u"picLogo"_s};
    Label lblOwner{*this, u"lblOwner"_s, {.caption = u"ديوان زروان "_s}};
    Label lblVersion{*this, u"lblVersion"_s};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خــروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;
};

} // namespace zrv
