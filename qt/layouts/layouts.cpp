// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layouts.h"

#include "qt/form_window.h"
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/plain_layout.h"

namespace zrv {

namespace {

struct Row {
    QLatin1String form;
    void (*layOut)(LayoutBuilder &);
};

// clang-format off
constexpr Row layouts[] = {
    {QLatin1String("frmEnterance_Door"),     layOutEnterance_Door},
    {QLatin1String("frmMain"),               layOutMain},
    {QLatin1String("frmAbout"),              layOutAbout},
    {QLatin1String("frmEncodeDecode"),       layOutEncodeDecode},
    {QLatin1String("frmCreatTextFiles"),     layOutCreatTextFiles},
    {QLatin1String("frmReadTextFiles"),      layOutReadTextFiles},
    {QLatin1String("frmCodingCalls"),        layOutCodingCalls},
    {QLatin1String("frmCoding"),             layOutCoding},
    {QLatin1String("frmUser_Defination"),    layOutUser_Defination},
    {QLatin1String("frmKarfarma"),           layOutKarfarma},
    {QLatin1String("frmKarkonan"),           layOutKarkonan},
    {QLatin1String("frmSrcKarkonan"),        layOutSrcKarkonan},
    {QLatin1String("frmHogog1"),             layOutHogog1},
    {QLatin1String("frmKholList"),           layOutKholList},
    {QLatin1String("frmTransferData"),       layOutTransferData},
    {QLatin1String("frmVersionsFacilities"), layOutVersionsFacilities},
    {QLatin1String("frmUpgradeDatabaseStructureAndUpdateUserRecords"), layOutUpgradeDatabaseStructureAndUpdateUserRecords},
    {QLatin1String("frmUpgradeZRVtbKarkonan"), layOutUpgradeZRVtbKarkonan},
    {QLatin1String("frmUpgrades"), layOutUpgrades},
    {QLatin1String("frmMakeShobe"), layOutMakeShobe},
};
// clang-format on

} // namespace

void layOut(FormWindow &window)
{
    for (const Row &row : layouts) {
        if (window.form().name() == row.form) {
            LayoutBuilder builder(window);
            row.layOut(builder);
            return;
        }
    }
    layOutPlainly(window);
}

} // namespace zrv
