// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmEncodeDecode.h"

#include "core/mdlEncriptDecript.h"

namespace zrv {

frmEncodeDecode::frmEncodeDecode(Program &program)
    : Screen(program, u"frmEncodeDecode"_s)
{
    setCaption(u"Encode / Decode"_s);
    cmdEncode.onClick = [this] { cmdEncode_Click(); };
    cmdDecode.onClick = [this] { cmdDecode_Click(); };
}

void frmEncodeDecode::cmdEncode_Click()
{
    lblResult.setCaption(EncodeBase64(txtEncode.text()));
}

void frmEncodeDecode::cmdDecode_Click()
{
    lblResult.setCaption(DecodeBase64(txtDecode.text()));
}

} // namespace zrv
