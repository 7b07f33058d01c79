// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"
#include "upkeep/user_codes.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The dialogue of the upgrade for rows that hang on codes which users once added to the lists: list by list they are
/// shown, and either moved to a safe code or left for the user to mend. It can't be left before every list is done.
class frmUpgradeZRVtbKarkonan : public Screen {
public:
    explicit frmUpgradeZRVtbKarkonan(Program &program);

    /// To be called before it is opened: the jobs that a run has found, which go into its log when they are done.
    void serve(UpgradeRun &run, const QStringList &jobs);

    // clang-format off
    ListBox lstJobs{*this, u"lstJobs"_s, {.checkBoxes = true}};
    Label lblForm{*this, u"lblForm"_s};
    Label lblMessage{*this, u"lblMessage"_s};
    Grid dbgLetter_Topic{*this, u"dbgLetter_Topic"_s};
    Label LabelGridCountCaption{*this, u"LabelGridCountCaption"_s, {.caption = u"تعداد : "_s}};
    Label LabelGridCount{*this, u"LabelGridCount"_s};
    Button cmdDeleteAndUpdate{*this, u"cmdDeleteAndUpdate"_s, {.caption = u"حذف اطلاعات پايه نامعتبر در جداول پايه و بروزرساني رکوردهاي وابسته به (ساير) در جداول مرتبط  "_s}};
    Button cmdOnlyDelete{*this, u"cmdOnlyDelete"_s, {.caption = u"فقط حذف اطلاعات پايه نامعتبر در جداول پايه و عدم بروزرساني رکوردهاي وابسته به (ساير) در جداول مرتبط "_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;

private:
    void lstJobs_ItemCheck(int row);
    void ShowJob(const ExtendedList &list);
    void fill(const ExtendedList &list);
    void cmdDeleteAndUpdate_Click();
    void cmdOnlyDelete_Click();
    [[nodiscard]] int checkedJob();
    void finishJob(int row);

    UpgradeRun *m_run = nullptr; ///< there as long as a job is
    QString m_question;          ///< of the job shown
};

} // namespace zrv
