// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/catalogue.h"

#include "core/basic/run_time_error.h"
#include "core/frmAbout.h"
#include "core/frmCodingCalls.h"
#include "core/frmEncodeDecode.h"
#include "core/frmEnterance_Door.h"
#include "core/frmMain.h"
#include "core/frmUser_Defination.h"
#include "core/kept_copies.h"
#include "files/frmCreatTextFiles.h"
#include "files/frmReadTextFiles.h"
#include "lists/frmHogog1.h"
#include "lists/frmKholList.h"
#include "lists/frmTransferData.h"
#include "parties/frmKarfarma.h"
#include "parties/frmKarkonan.h"
#include "parties/frmSrcKarkonan.h"
#include "upkeep/frmMakeShobe.h"
#include "upkeep/frmUpgradeDatabaseStructureAndUpdateUserRecords.h"
#include "upkeep/frmUpgradeZRVtbKarkonan.h"
#include "upkeep/frmUpgrades.h"
#include "upkeep/frmVersionsFacilities.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

template <class ScreenClass>
std::unique_ptr<Screen> makeScreen(Program &program)
{
    return std::make_unique<ScreenClass>(program);
}

} // namespace

void fillCatalogue(Catalogue &catalogue)
{
    catalogue.add(u"frmEnterance_Door"_s, makeScreen<frmEnterance_Door>);
    catalogue.add(u"frmMain"_s, makeScreen<frmMain>);
    catalogue.add(u"frmAbout"_s, makeScreen<frmAbout>);
    catalogue.add(u"frmEncodeDecode"_s, makeScreen<frmEncodeDecode>);
    catalogue.add(u"frmCodingCalls"_s, makeScreen<frmCodingCalls>);
    catalogue.add(u"frmUser_Defination"_s, makeScreen<frmUser_Defination>);
    catalogue.add(u"frmKarfarma"_s, makeScreen<frmKarfarma>);
    catalogue.add(u"frmKarkonan"_s, makeScreen<frmKarkonan>);
    catalogue.add(u"frmSrcKarkonan"_s, makeScreen<frmSrcKarkonan>);
    catalogue.add(u"frmHogog1"_s, makeScreen<frmHogog1>);
    catalogue.add(u"frmKholList"_s, makeScreen<frmKholList>);
    catalogue.add(u"frmTransferData"_s, makeScreen<frmTransferData>);
    catalogue.add(u"frmCreatTextFiles"_s, makeScreen<frmCreatTextFiles>);
    catalogue.add(u"frmReadTextFiles"_s, makeScreen<frmReadTextFiles>);
    catalogue.add(u"frmUpgradeDatabaseStructureAndUpdateUserRecords"_s,
                  makeScreen<frmUpgradeDatabaseStructureAndUpdateUserRecords>);
    catalogue.add(u"frmUpgradeZRVtbKarkonan"_s, makeScreen<frmUpgradeZRVtbKarkonan>);
    catalogue.add(u"frmUpgrades"_s, makeScreen<frmUpgrades>);
    catalogue.add(u"frmMakeShobe"_s, makeScreen<frmMakeShobe>);
    catalogue.add(u"frmVersionsFacilities"_s, makeScreen<frmVersionsFacilities>);
}

void runProgram(Platform &platform)
{
    Program program(platform);
    fillCatalogue(program.catalogue);
    try {
        const std::unique_ptr<Screen> login = program.catalogue.make(u"frmEnterance_Door"_s, program);
        login->load();
        if (login->isOpen())
            platform.runModal(*login);
    } catch (const ProgramEnd &) {
        // The screens are gone by now; what is left of the run goes with this routine.
    }
    keepCopyAtLeaving(program);
}

} // namespace zrv
