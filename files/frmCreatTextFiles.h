// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/record_screen.h"

#include <QElapsedTimer>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

struct MonthFiles;

/// Makes the two electronic files of a month: the summary list (WK) first, then the salary list (WH). It reads the
/// store, writes files, and changes nothing in the store.
class frmCreatTextFiles : public RecordScreen {
public:
    explicit frmCreatTextFiles(Program &program);

    // clang-format off
    Frame framKey{*this, u"framKey"_s};
    Label lblTaxYear{framKey, u"lblTaxYear"_s, {.caption = u"ســــال :"_s}};
    TextBox txtTaxYear{framKey, u"txtTaxYear"_s, {.limit = 4, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblTaxMonth{framKey, u"lblTaxMonth"_s, {.caption = u"مـــــاه :"_s}};
    DataCombo dcbTaxMonth{framKey, u"dcbTaxMonth"_s, {.tag = u"+FA+N"_s}};

    Label lblHogogPath{*this, u"lblHogogPath"_s, {.caption = u"مسير ايجاد فايل حقوق ماهانه : "_s}};
    Label LabelHogogPath{*this, u"LabelHogogPath"_s, {.leftToRight = true}};
    Label lblKholPath{*this, u"lblKholPath"_s, {.caption = u"مسير ايجاد فايل خلاصه ليست : "_s}};
    Label LabelKholPath{*this, u"LabelKholPath"_s, {.leftToRight = true}};
    Label lblHogogRecordsCount{*this, u"lblHogogRecordsCount"_s, {.caption = u"تعداد حقوق بگير منتقل شده به فايل حقوق ماهانه :"_s}};
    Label LabelHogogRecordsCount{*this, u"LabelHogogRecordsCount"_s, {.caption = u"0"_s, .leftToRight = true}};

    Picture PPICWaitingMessage{*this, u"PPICWaitingMessage"_s, {.visible = false}};
    Label LabelWaitingMessage{PPICWaitingMessage, u"LabelWaitingMessage"_s, {.caption = u"در حال ايجاد فايل ، لطفا منتظر بمانيد ...  "_s}};

    Button cmdCreatTextFiles{*this, u"cmdCreatTextFiles"_s, {.caption = u"ايجاد فايلهاي مورد نياز اداره امور مالياتي"_s}};
    Button cmdShowFiles{*this, u"cmdShowFiles"_s, {.caption = u"نمايش مسير فايلها جهت ايجاد CD"_s}};
    Button cmdTextFilesConfig{*this, u"cmdTextFilesConfig"_s, {.caption = u"کنترل و نمايش محتواي فايلهاي ايجاد شده"_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void txtTaxYear_GotFocus();
    void txtTaxYear_LostFocus();
    void dcbTaxMonth_Chosen();
    void cmdCreatTextFiles_Click();
    void cmdShowFiles_Click();
    void cmdTextFilesConfig_Click();

    [[nodiscard]] QString currentYear() const;
    [[nodiscard]] MonthFiles monthFiles() const;
    void showPaths();

    void createKholFile();
    void createHogogFile();
    [[nodiscard]] QString ofTheMonth() const;
    [[nodiscard]] bool onePayer(int payers);
    void refuseIncomplete(int listed, int complete);
    void refuse(const QString &text, int style = box::Refusal);

    void showWaitingMessage();
    void hideWaitingMessage() { PPICWaitingMessage.setVisible(false); }
    void showProgress(int payees);
    void payeeWritten(int payees);
    void drawNow();

    bool m_kholListFound = false;
    QString m_successText;
    QElapsedTimer m_sinceDrawn;
};

} // namespace zrv
