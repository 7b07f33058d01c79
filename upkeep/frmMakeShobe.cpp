// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/frmMakeShobe.h"

#include "core/basic/run_time_error.h"
#include "core/basic/val.h"
#include "upkeep/branch.h"

#include <limits>

namespace zrv {

namespace {

const QString CountSection = u"ShobeCount"_s;
const QString CountKey = u"ShobeCountKey"_s;
const QString LineEnd = u"\r\n"_s;

} // namespace

frmMakeShobe::frmMakeShobe(Program &program)
    : RecordScreen(program, u"frmMakeShobe"_s)
{
    setCaption(u"ايجاد اتوماتيک شعبه هاي پرداخت کننده حقوق"_s);
    txtNeededShoeb.onChange = [this] {
        lblTotalCount.setCaption(numberText(Val(txtMojodShobe.text()) + Val(txtNeededShoeb.text())));
    };
    cmdUpgrades.onClick = [this] { cmdUpgrades_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmMakeShobe::Form_Load()
{
    txtMojodShobe.setText(m_platform.setting(CountSection, CountKey, u"1"_s));
}

/// The count of branches has 16 bits.
qint16 frmMakeShobe::totalCount() const
{
    const double total = Val(txtMojodShobe.text()) + Val(txtNeededShoeb.text());
    if (total > std::numeric_limits<qint16>::max())
        throw RunTimeError(error::Overflow, u"تعداد کل شعبه ها نميتواند بيشتر از 32767 باشد"_s);
    return static_cast<qint16>(total);
}

void frmMakeShobe::cmdUpgrades_Click()
{
    struct PanelGoesWithTheRun {
        Picture &panel;
        ~PanelGoesWithTheRun() { panel.setVisible(false); }
    };

    if (Val(txtNeededShoeb.text()) == 0) {
        messageBox(box::Critical | box::RightToLeft, u"اخطار"_s, u"لطفا تعداد شعبه هاي مورد نياز را وارد نماييد"_s);
        txtNeededShoeb.setFocus();
        return;
    }
    const int before = static_cast<int>(Val(txtMojodShobe.text()));
    {
        PPICWaitingMessage.setVisible(true);
        const PanelGoesWithTheRun guard{PPICWaitingMessage};
        m_platform.yield();
        const qint16 total = totalCount();
        for (int number = 2; number <= total; ++number)
            makeBranch(m_platform, number);
        m_platform.saveSetting(CountSection, CountKey, QString::number(total));
    }
    messageBox(box::Information | box::RightAligned | box::RightToLeft, QString(),
               u"از شعبه شماره : "_s + QString::number(before + 1) + u" تا شعبه شماره : "_s
                   + QString::number(totalCount()) + u" ايجاد گرديد."_s + LineEnd
                   + u"ميانبرهاي مربوط به شعب بر روي Desktop ايجاد گرديد. "_s + LineEnd
                   + u"پس از اجراي هر يک از شعب نسبت به تعريف پرداخت کننده حقوق با کد شعبه مربوطه اقدام نماييد"_s);
    unload();
}

} // namespace zrv
