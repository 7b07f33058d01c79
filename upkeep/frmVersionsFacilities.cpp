// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/frmVersionsFacilities.h"

#include "upkeep/version_history.h"

namespace zrv {

frmVersionsFacilities::frmVersionsFacilities(Program &program)
    : Screen(program, u"frmVersionsFacilities"_s)
{
    setCaption(u"نمايش امکانات اضافه شده در نسخه هاي مختلف نرم افزار"_s);
    cmbVersionsList.onChange = [this] { showChanges(); };
    cmdExit.setCancel(true);
    cmdExit.onClick = [this] { unload(); };
}

void frmVersionsFacilities::Form_Load()
{
    std::vector<ListItem> versions;
    for (const VersionChanges &version : versionHistory())
        versions.push_back({version.header.toString(), {}});
    const int current = static_cast<int>(versions.size()) - 1;
    cmbVersionsList.setItems(std::move(versions));
    cmbVersionsList.chooseRow(current);
}

void frmVersionsFacilities::showChanges()
{
    QString log;
    for (const VersionChanges &version : versionHistory()) {
        if (version.header != cmbVersionsList.text())
            continue;
        for (const QStringView line : version.lines)
            log += line + u"\r\n"_s;
    }
    txtLog.setText(log);
    txtLog.select(0, 0);
}

} // namespace zrv
