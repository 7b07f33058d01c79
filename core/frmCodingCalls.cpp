// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmCodingCalls.h"

#include "core/code_combos.h"
#include "core/containers.h"
#include "core/frmCoding.h"

namespace zrv {

namespace {

// The note speaks of the two frames by their colours.
constexpr Color FixedLists = 0xC62828;
constexpr Color OwnLists = 0x1565C0;

} // namespace

frmCodingCalls::frmCodingCalls(Program &program)
    : RecordScreen(program, u"frmCodingCalls"_s)
{
    setCaption(lblForm.caption());
    framFixed.setTextColor(FixedLists);
    framOwn.setTextColor(OwnLists);
    struct Opens {
        Button &button;
        QString list;
        QString name;
    };
    for (const Opens &row : std::initializer_list<Opens>{
             {cmdBank, u"8"_s, u"ليست نام بانکها"_s},
             {cmdEstekhdam, u"15"_s, u"نوع استخدام"_s},
             {cmdKeshvar, u"12"_s, u"نام کشور"_s},
             {cmdMadrak, u"1"_s, u"مدرک تحصيلي"_s},
             {cmdMoafiat, u"17"_s, u"معافيت سالانه ماده 84"_s},
             {cmdRasteh, u"10"_s, u"رسته شغلي"_s},
             {cmdSemat, u"2"_s, u"سمت يا شغل"_s},
             {Command1, u"13"_s, u"کد اشخاص معاف"_s},
         })
        row.button.onClick = [this, list = row.list, name = row.name] { openList(list, name); };
    cmdOk.onClick = [this] { cmdOk_Click(); };
    cmdExit.onClick = [this] { unload(); };
    cmdExit.setCancel(true);
}

void frmCodingCalls::Form_Load()
{
    EnableContainer(u"framKey", *this);
    FillMasterList(m_program, dcbMCode);
}

void frmCodingCalls::openList(const QString &list, const QString &name)
{
    frmCoding screen(m_program, list, name);
    openModal(screen);
}

void frmCodingCalls::cmdOk_Click()
{
    // Nothing chosen, or a text that is no list's: there is nothing to open.
    if (dcbMCode.boundText().isEmpty()) {
        messageBox(box::Refusal, u" اخطار  "_s, u"لطفا يکي از موارد ليست شرح کد را انتخاب نماييد"_s);
        dcbMCode.setFocus();
        return;
    }
    openList(dcbMCode.boundText(), dcbMCode.text());
}

} // namespace zrv
