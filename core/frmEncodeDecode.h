// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// A developer's screen for the text encoding of the files' version field. No menu opens it.
class frmEncodeDecode : public Screen {
public:
    explicit frmEncodeDecode(Program &program);

    // clang-format off
    TextBox txtEncode{*this, u"txtEncode"_s};
    Button cmdEncode{*this, u"cmdEncode"_s, {.caption = u"Encode"_s}};
    TextBox txtDecode{*this, u"txtDecode"_s, {.leftToRight = true}};
    Button cmdDecode{*this, u"cmdDecode"_s, {.caption = u"Decoed"_s}};
    Label lblResult{*this, u"lblResult"_s, {.leftToRight = true}};
    // clang-format on

private:
    void cmdEncode_Click();
    void cmdDecode_Click();
};

} // namespace zrv
