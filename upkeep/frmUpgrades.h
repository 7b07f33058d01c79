// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/record_screen.h"

#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Five small repairs that a supervisor picks one at a time: a wrong key of the payer, and columns that early stores
/// have too narrow. Each is one statement or four, without a question, behind a dated copy of the store.
class frmUpgrades : public RecordScreen {
public:
    explicit frmUpgrades(Program &program);

    // clang-format off
    OptionButton optUpgrades0{*this, u"optUpgrades(0)"_s, {.caption = u"اصلاح کد شعبه 2 رقمي کمتر از 10"_s}};
    OptionButton optUpgrades1{*this, u"optUpgrades(1)"_s, {.caption = u"اصلاح طول فيلد \"کدشعبه\" از 2 رقم به 5 رقم"_s}};
    OptionButton optUpgrades2{*this, u"optUpgrades(2)"_s, {.caption = u"اصلاح مقدار فيلد \"کد پرونده (TFN)\" از "_s}};
    Label lblOldTFN{*this, u"lblOldTFN"_s, {.leftToRight = true}};
    Label lblNewTFN{*this, u"lblNewTFN"_s, {.caption = u"به "_s}};
    TextBox txtNewTFN{*this, u"txtNewTFN"_s, {.limit = 12, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    OptionButton optUpgrades3{*this, u"optUpgrades(3)"_s, {.caption = u"اصلاح مقدار فيلد \"کد شعبه\" از "_s}};
    Label lblOldCodeShobe{*this, u"lblOldCodeShobe"_s, {.leftToRight = true}};
    Label lblNewCodeShobe{*this, u"lblNewCodeShobe"_s, {.caption = u"به "_s}};
    TextBox txtNewCodeShobe{*this, u"txtNewCodeShobe"_s, {.limit = 5, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    OptionButton optUpgrades4{*this, u"optUpgrades(4)"_s, {.caption = u"اصلاح طول فيلد \"شماره سري چک\" از 6 رقم به 15 قم"_s}};
    TextBox txtLog{*this, u"txtLog"_s, {.multiLine = true, .locked = true}};
    Button cmdUpgrades{*this, u"cmdUpgrades"_s, {.caption = u"شروع عمليات بروزرساني و انجام اصلاحات لازم"_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void choose(int index);
    void cmdUpgrades_Click();
    [[nodiscard]] bool mayBeRepaired();
    void shortenBranchCodes();
    void widenBranchCode();
    void widenChequeNumber();
    void replaceTFN();
    void replaceBranchCode();
    void repair(const QString &statement);
    [[nodiscard]] bool storeHasOnePayer();
    [[nodiscard]] bool newTFNIsValid();
    [[nodiscard]] bool newBranchCodeIsGiven();
    /// The payer's key that this run of the program holds is out of date.
    [[noreturn]] void endProgram(const QString &told);

    const std::array<OptionButton *, 5> m_options;
    int m_choice = 0;
    QString RepairLog; ///< lines of the running repair; an error in it is seen nowhere
};

} // namespace zrv
