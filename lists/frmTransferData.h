// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/record_screen.h"
#include "lists/month_copy.h"

#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Copies the payer's salary list of one month into another month, also of another year: the way to begin a new year.
/// What will be copied is shown first, and only what was just shown can be copied.
class frmTransferData : public RecordScreen {
public:
    explicit frmTransferData(Program &program);

    // clang-format off
    Frame framKey{*this, u"framKey"_s};
    Label lblSourceYear{framKey, u"lblSourceYear"_s, {.caption = u"سال مبدا :"_s}};
    DataCombo dcbSourceYear{framKey, u"dcbSourceYear"_s, {.tag = u"+DigitOnly"_s}};
    Label lblSourceMonth{framKey, u"lblSourceMonth"_s, {.caption = u"ماه مبدا :"_s}};
    DataCombo dcbSourceMonth{framKey, u"dcbSourceMonth"_s, {.tag = u"+FA"_s}};
    Label lblDestinationYear{framKey, u"lblDestinationYear"_s, {.caption = u"سال مقصد :"_s}};
    TextBox txtDestinationYear{framKey, u"txtDestinationYear"_s, {.limit = 5, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblDestinationMonth{framKey, u"lblDestinationMonth"_s, {.caption = u"ماه مقصد :"_s}};
    DataCombo dcbDestinationMonth{framKey, u"dcbDestinationMonth"_s, {.tag = u"+FA"_s}};

    Button cmdDisplayInformation{*this, u"cmdDisplayInformation"_s, {.caption = u"نمايش اطلاعات قابل انتقال از سال و ماه مبدا به مقصد"_s}};

    Frame framData{*this, u"framData"_s};
    Label lblSource{framData, u"lblSource"_s, {.caption = u"وضعيت اطلاعات در مبدا"_s, .toolTip = u" اين ستون خلاصه وضعيت اطلاعات موجود در مبدا را نمايش ميدهد"_s}};
    Label lblTarget{framData, u"lblTarget"_s, {.caption = u"قابل انتقال به مقصد"_s}};
    Label lblTedadKarkonan{framData, u"lblTedadKarkonan"_s, {.caption = u"تعداد کل کارکنان  "_s}};
    TextBox txtSourceTedadKarkonan{framData, u"txtSourceTedadKarkonan"_s, {.locked = true, .leftToRight = true}};
    TextBox txtTargetTedadKarkonan{framData, u"txtTargetTedadKarkonan"_s, {.locked = true, .leftToRight = true}};
    Label lblSumNaghdi{framData, u"lblSumNaghdi"_s, {.caption = u"جمع حقوق و مزاياي نقدي،غير نقدي،عيدي و پاداش پرداختي/تخصيصي "_s}};
    TextBox txtSourceSumNaghdi{framData, u"txtSourceSumNaghdi"_s, {.locked = true, .leftToRight = true}};
    TextBox txtTargetSumNaghdi{framData, u"txtTargetSumNaghdi"_s, {.locked = true, .leftToRight = true}};
    Label lblMoaf{framData, u"lblMoaf"_s, {.caption = u"جمع حقوق و مزايـاي نقدي ، غير نقدي ، عيدي و پاداش مشمول ماليات "_s}};
    TextBox txtSourceMoaf{framData, u"txtSourceMoaf"_s, {.locked = true, .leftToRight = true}};
    TextBox txtTargetMoaf{framData, u"txtTargetMoaf"_s, {.locked = true, .leftToRight = true}};
    Label lblSumTax{framData, u"lblSumTax"_s, {.caption = u"جمع مـــــــاليات  متعلقه "_s}};
    TextBox txtSourceSumTax{framData, u"txtSourceSumTax"_s, {.locked = true, .leftToRight = true}};
    TextBox txtTargetSumTax{framData, u"txtTargetSumTax"_s, {.locked = true, .leftToRight = true}};

    Picture PPICWaitingMessage{*this, u"PPICWaitingMessage"_s, {.visible = false}};
    Label LabelWaitingMessage{PPICWaitingMessage, u"LabelWaitingMessage"_s, {.caption = u"در حال انتقال اطلاعات ليست حقوق از مبداء به مقصد لطفا تا پايان عمليات منتظر بمانيد ..."_s}};

    Button cmdTransferData{*this, u"cmdTransferData"_s, {.caption = u"شروع عمليات انتقال ليست حقوق از سال و ماه مبدا به مقصد"_s, .enabled = false}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;
    void Form_Activate() override;
    /// Escape closes the screen from wherever it is pressed.
    bool goBack() override;

private:
    /// One figure of both columns, and the column of the count that it shows.
    struct Figure {
        QStringView column;
        TextBox *source;
        TextBox *target;
        QStringView picture = {}; ///< empty: shown as it comes
    };

    void dcbSourceYear_Change();
    void txtDestinationYear_LostFocus();
    void keyChanged();
    void cmdDisplayInformation_Click();
    void cmdTransferData_Click();

    [[nodiscard]] ListMonth source() const;
    [[nodiscard]] ListMonth target() const;
    void showFigures(TextBox *Figure::*side, const Recordset &counted);
    void clearFigures();
    [[nodiscard]] bool mayBeTransferred();

    // clang-format off
    const std::array<Figure, 4> m_figures = {{
        {u"KarkonanNo",                  &txtSourceTedadKarkonan, &txtTargetTedadKarkonan},
        {u"SUMNGPTotalDaramadeMashmol",  &txtSourceSumNaghdi,     &txtTargetSumNaghdi, u"#,##0"},
        {u"SUMFinalDaramadeMashmol",     &txtSourceMoaf,          &txtTargetMoaf,      u"#,##0"},
        {u"SUMFinalTax",                 &txtSourceSumTax,        &txtTargetSumTax,    u"#,##0"},
    }};
    // clang-format on
};

} // namespace zrv
