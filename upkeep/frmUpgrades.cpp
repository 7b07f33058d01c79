// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/frmUpgrades.h"

#include "core/basic/run_time_error.h"
#include "core/basic/val.h"
#include "core/kept_copies.h"
#include "core/store/recordset.h"
#include "parties/number_field.h"

namespace zrv {

namespace {

const QString LineEnd = u"\r\n"_s;
const QString Refused = u" اخطار  "_s;
const QString Told = u"اطلاع"_s;

/// A table whose rows bear the payer's number, and what is told when they have the new one.
struct Renamed {
    QStringView statement;
    QStringView told;
};

// clang-format off
constexpr QStringView Explanations[] = {
    u" با انتخاب اين گزينه و زدن دکمه (شروع عمليات بروزرساني) کدهاي شعبه دو رقمي کمتر از 10 در جدول کارفرما به يک رقمي تبديل ميگردد(مثلا 01 به 1 تبديل ميگردد)",
    u" با انتخاب اين گزينه و زدن دکمه (شروع عمليات بروزرساني) طول فيلد (کد شعبه) از دو رقم به 5 رقم افزايش يافته و امکان تعريف 999999 شعبه براي يک پرداخت کننده حقوق فراهم ميگردد.",
    u" با انتخاب اين گزينه و ورود مقدار TFN جديد و کليک دکمه (شروع عمليات بروزرساني) کد پرونده جديد جايگزين کد پرونده قديم ميشود",
    u" با انتخاب اين گزينه و ورود مقدار کد شعبه جديد و کليک دکمه (شروع عمليات بروزرساني) کد شعبه جديد جايگزين کد شعبه قديم ميشود",
    u" با انتخاب اين گزينه و زدن دکمه (شروع عمليات بروزرساني) طول فيلد (شماره سري چک) از 6 رقم به 15 رقم افزايش ميابد.",
};

constexpr QStringView Failures[] = {
    u" خطاي ناشناخته در تبديل کدهاي شعبه دو رقمي کمتر از 10 مانند(01) به يک رقمي(1) رخ داده است",
    u" خطاي ناشناخته در تغيير طول فيلد (کد شعبه) از 2 به 5 رخ داده است",
    u" خطاي ناشناخته در تبديل کد پرونده قبلي به کد پرونده جديد رخ داده است",
    u" خطاي ناشناخته در تبديل کد شعبه قبلي به کد شعبه جديد رخ داده است",
    u" خطاي ناشناخته در تغيير طول فيلد (شماره سري چک) از 6 به 15 رخ داده است",
};

constexpr Renamed TablesOfThePayer[] = {
    {u"UPDATE ZRVtbKarfarma Set TFN = ", u" کد پرونده قبلي با موفقيت به کد پرونده جديد در جدول تعريف پرداخت کننده حقوق تبديل گرديد"},
    {u"UPDATE ZRVtbKarkonan Set TFN = ", u" کد پرونده قبلي با موفقيت به کد پرونده جديد در جدول تعريف دريافت کننده حقوق تبديل گرديد"},
    {u"UPDATE ZRVtbHogog Set TFN = ",    u" کد پرونده قبلي با موفقيت به کد پرونده جديد در جدول ليست حقوق تبديل گرديد"},
    {u"UPDATE ZRVtbKholList Set TFN = ", u" کد پرونده قبلي با موفقيت به کد پرونده جديد در جدول خلاصه ليست حقوق تبديل گرديد"},
};
// clang-format on

/// A number as it stands in a statement: bare, without leading zeros.
QString literal(const Edit &field)
{
    return numberText(Val(field.text()));
}

} // namespace

frmUpgrades::frmUpgrades(Program &program)
    : RecordScreen(program, u"frmUpgrades"_s)
    , m_options{&optUpgrades0, &optUpgrades1, &optUpgrades2, &optUpgrades3, &optUpgrades4}
{
    setCaption(u" بروز رساني ساختار بانک اطلاعاتي "_s);
    for (int index = 0; OptionButton * option : m_options) {
        option->onClick = [this, index] { choose(index); };
        ++index;
    }
    for (TextBox *field : {&txtNewTFN, &txtNewCodeShobe})
        field->onLostFocus = [field] { normalizeNumber(*field); };
    cmdUpgrades.onClick = [this] { cmdUpgrades_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmUpgrades::Form_Load()
{
    lblOldTFN.setCaption(m_program.PayerTFN);
    lblOldCodeShobe.setCaption(m_program.PayerCodeShobe);
    optUpgrades0.setChecked(true);
}

void frmUpgrades::choose(int index)
{
    m_choice = index;
    RepairLog.clear();
    txtLog.setText(Explanations[index].toString());
    txtLog.select(0, 0);
    txtNewTFN.setEnabled(index == 2);
    txtNewCodeShobe.setEnabled(index == 3);
}

void frmUpgrades::cmdUpgrades_Click()
{
    constexpr void (frmUpgrades::*Repairs[])() = {
        &frmUpgrades::shortenBranchCodes, &frmUpgrades::widenBranchCode,   &frmUpgrades::replaceTFN,
        &frmUpgrades::replaceBranchCode,  &frmUpgrades::widenChequeNumber,
    };
    try {
        if (mayBeRepaired() && keepCopyBeforeStep(m_program))
            (this->*Repairs[m_choice])();
    } catch (const RunTimeError &failure) {
        RepairLog += Failures[m_choice] + LineEnd + failure.description();
    }
}

/// The two repairs of the payer's key ask for one payer and for a new key.
bool frmUpgrades::mayBeRepaired()
{
    if (m_choice == 2)
        return storeHasOnePayer() && newTFNIsValid();
    if (m_choice == 3)
        return storeHasOnePayer() && newBranchCodeIsGiven();
    return true;
}

void frmUpgrades::repair(const QString &statement)
{
    Connection(m_program.StoreConnectionString).execute(statement);
}

// The columns ------------------------------------------------------------------------------------------------

/// Of the payer alone: a code that is padded in other tables stays as it is.
void frmUpgrades::shortenBranchCodes()
{
    repair(u"UPDATE ZRVtbKarfarma Set codeshobe = cstr(val(codeshobe)) "_s);
    messageBox(box::RefusalRtl, Told, u" کدهاي شعبه دو رقمي کمتر از 10 مانند(01) به يک رقمي(1) تبديل گرديد"_s);
}

void frmUpgrades::widenBranchCode()
{
    repair(u"ALTER TABLE ZRVtbKarfarma ALTER COLUMN CodeShobe TEXT(5)"_s);
    messageBox(box::Refusal, Told, u" طول فيلد (کد شعبه) با موفقيت از 2 به 5 تغيير پيدا نمود"_s);
}

void frmUpgrades::widenChequeNumber()
{
    repair(u"ALTER TABLE ZRVtbKholList ALTER COLUMN ChequeSeriNo TEXT(15)"_s);
    messageBox(box::Refusal, Told, u" طول فيلد (شماره سري چک) با موفقيت از 6 به 15 تغيير پيدا نمود"_s);
}

// The payer's key --------------------------------------------------------------------------------------------

/// Without a payer nothing is told.
bool frmUpgrades::storeHasOnePayer()
{
    const int payers =
        Recordset(Connection(m_program.StoreConnectionString), u"SELECT * FROM ZRVtbKarfarma"_s).recordCount();
    if (payers > 1)
        messageBox(box::RefusalRtl, Told,
                   u" به علت تعريف بيش از يک کد پرونده در جدول کارفرما امکان انجام اين عمليات وجود ندارد"_s);
    return payers == 1;
}

bool frmUpgrades::newTFNIsValid()
{
    const QString number = txtNewTFN.text().trimmed();
    if (number.size() != 12)
        messageBox(box::Refusal, Refused, u" کد پرونده جديد بايد 12 رقمي باشد.لطفا اصلاح نماييد "_s);
    else if (number.startsWith(u'4') || number.startsWith(u'5'))
        messageBox(
            box::RefusalRtl, Refused,
            u"کد پرونده(TFN) صحيح نميباشد.احتمالا شما شماره اقتصادي(TIN) را بجاي کد پرونده وارد نموده ايد.لطفا اصلاح نماييد"_s);
    else
        return true;
    txtNewTFN.setFocus();
    return false;
}

bool frmUpgrades::newBranchCodeIsGiven()
{
    if (!txtNewCodeShobe.text().trimmed().isEmpty())
        return true;
    messageBox(box::Refusal, Refused, u" کد شعبه جديد نميتواند خالي باشد.لطفا اصلاح نماييد "_s);
    txtNewCodeShobe.setFocus();
    return false;
}

void frmUpgrades::replaceTFN()
{
    // Tables that are changed stay changed when a later one fails.
    for (const auto &[statement, told] : TablesOfThePayer) {
        repair(statement + literal(txtNewTFN));
        RepairLog += told + LineEnd;
    }
    endProgram(RepairLog);
}

void frmUpgrades::replaceBranchCode()
{
    repair(u"UPDATE ZRVtbKarfarma Set CodeShobe = "_s + literal(txtNewCodeShobe));
    endProgram(u" کد شعبه قبلي با موفقيت به کد شعبه جديد در جدول تعريف پرداخت کننده حقوق تبديل گرديد"_s);
}

void frmUpgrades::endProgram(const QString &told)
{
    messageBox(
        box::Notice, Told,
        told
            + u"بابستن اين فرم شما بصورت اتوماتيک از برنامه خارج خواهيد شد.جهت ادامه کار لطفا مجددا برنامه را اجرا نماييد "_s);
    throw ProgramEnd{};
}

} // namespace zrv
