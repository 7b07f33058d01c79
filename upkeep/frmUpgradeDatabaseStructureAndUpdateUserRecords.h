// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"
#include "upkeep/upgrade_run.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Carries a store of an older version up to this one in a single run: copies it, alters its tables, fills the new
/// columns, rewrites the base data and repairs the rows that hang on it. A step that fails is logged and passed over;
/// the copy is the only way back, put in place by hand. Leaving the screen ends the program.
class frmUpgradeDatabaseStructureAndUpdateUserRecords : public Screen {
public:
    explicit frmUpgradeDatabaseStructureAndUpdateUserRecords(Program &program);

    // clang-format off
    Button cmdUpgradeStructure{*this, u"cmdUpgradeStructure"_s, {.caption = u"انجام عمليات بروز رساني ساختار بانک اطلاعاتي و ايجاد رکوردهاي جديد در جداول اطلاعات پايه"_s}};
    CheckBox chkDelete{*this, u"chkDelete"_s, {.caption = u"Delete prevRecord"_s, .checked = true, .visible = false}};
    TextBox txtLog{*this, u"txtLog"_s, {.multiLine = true, .locked = true}};
    Picture PPICWaitingMessage{*this, u"PPICWaitingMessage"_s, {.visible = false}};
    Label LabelWaitingMessage{PPICWaitingMessage, u"LabelWaitingMessage"_s, {.caption = u"در حال انجام عمليات ، لطفا منتظر بمانيد ...  "_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    bool Form_QueryUnload(UnloadMode mode) override;

private:
    /// How the run stands with the copy that it began with.
    enum class SafetyCopy { Made, GivenUp, Required };

    void cmdUpgradeStructure_Click();
    void cmdExit_Click();
    [[nodiscard]] bool safetyCopyIsSettled(UpgradeRun &run);
    void alterTables(UpgradeRun &run);
    void fillBranch(UpgradeRun &run);
    void findPayer();
    void rewriteBaseData(UpgradeRun &run);
    void repairUserCodes(UpgradeRun &run);
    void deleteEarlierLists(UpgradeRun &run);

    SafetyCopy m_safetyCopy = SafetyCopy::Made;
};

} // namespace zrv
