// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmAbout.h"

namespace zrv {

frmAbout::frmAbout(Program &program)
    : Screen(program, u"frmAbout"_s)
{
    setCaption(u"درباره ..."_s);
    cmdExit.setCancel(true);
    cmdExit.onClick = [this] { unload(); };
}

void frmAbout::Form_Load()
{
    lblVersion.setCaption(m_program.ProgramVersion);
}

} // namespace zrv
