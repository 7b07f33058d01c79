// SPDX-License-Identifier: GPL-3.0-or-later
// The two keys of the salary list, the month and the payee. The amounts are in frmHogog1_amounts.cpp, saving and
// deleting in frmHogog1_save.cpp, the grid in frmHogog1_grid.cpp.
#include "lists/frmHogog1.h"

#include "core/basic/number_format.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/kept_copies.h"
#include "core/mdlError.h"
#include "core/mdlPublic.h"
#include "core/store/connection.h"

#include <utility>

namespace zrv {

namespace {

const QString MonthList = u"4"_s;
const QString HousingList = u"18"_s;
const QString CarList = u"19"_s;
constexpr int YearDigits = 4;
constexpr int AskRightToLeft = box::AskYesNo | box::RightAligned | box::RightToLeft;
const QString LineEnd = u"\r"_s;

/// The Delete key empties a list's choice; its other keys are the form's.
bool emptiedBy(Key key, Combo &list)
{
    if (key != Key::Delete)
        return false;
    list.setText({});
    return true;
}

} // namespace

frmHogog1::frmHogog1(Program &program)
    : RecordScreen(program, u"frmHogog1"_s, u"framKey1"_s)
{
    setCaption(u"ورود و ويرايش اطلاعات حقوق و مزاياي ماهانه دريافت کنندگان حقوق"_s);
    FormatGrid();
    wireKeys();
    wireAmounts();
    wireGrid();
    cmdExit.onClick = [this] { unload(); };
}

void frmHogog1::wireKeys()
{
    txtTaxYear.onGotFocus = [this] { txtTaxYear_GotFocus(); };
    txtTaxYear.onLostFocus = [this] { txtTaxYear_LostFocus(); };
    cmdKeyOk.onClick = [this] { cmdKeyOk_Click(); };
    cmdKeyReturn.onClick = [this] { unload(); };
    dcbMelliCode.onChange = [this] { dcbMelliCode_Change(); };
    cmdSearchMoadi.onClick = [this] { cmdSearchMoadi_Click(); };
    cmdKeyOk1.onClick = [this] { cmdKeyOk1_Click(); };
    cmdKeyReturn1.onClick = [this] { cmdKeyReturn1_Click(); };
    textMelliCode.setTabStop(false);
    // In the lists of the two keys Enter confirms and Escape goes back, while both walk through the form elsewhere.
    dcbTaxMonth.onKeyDown = [this](Key key) {
        if (key == Key::Enter)
            cmdKeyOk_Click();
        else if (key == Key::Escape)
            cmdKeyReturn.onClick();
        else
            return emptiedBy(key, dcbTaxMonth);
        return true;
    };
    dcbMelliCode.onKeyDown = [this](Key key) {
        if (key == Key::Enter)
            cmdKeyOk1_Click();
        else if (key == Key::Escape)
            cmdKeyReturn1_Click();
        else
            return emptiedBy(key, dcbMelliCode);
        return true;
    };
    for (DataCombo *list : {&dcbMaskanStatus, &dcbOtomobilStatus})
        list->onKeyDown = [list](Key key) { return emptiedBy(key, *list); };
}

void frmHogog1::Form_Load()
{
    DisableContainer(u"framKey1", *this);
    DisableContainer(u"framData", *this);
    EnableContainer(u"framKey", *this);
    EnableContainer(u"framBrows", *this);
    ApplyModeButtons(u"StartProgram", *this);
    cmdPrintHogh.setEnabled(false);
    cmdKeyOk.setDefault(true);
    browse.reset();
    browse.OptSort.setChecked(true);
    FillCodeList(m_program, MonthList, dcbTaxMonth);
    FillCodeList(m_program, HousingList, dcbMaskanStatus);
    FillCodeList(m_program, CarList, dcbOtomobilStatus);
    txtTaxYear.setText(currentYear());
    FillGrid();
}

/// Runs a routine of the payee's stages; what it lets go is told in their own box, and the stage goes on.
void frmHogog1::reporting(const std::function<void()> &routine)
{
    try {
        routine();
    } catch (const RunTimeError &failure) {
        ShowInlineError(m_platform, failure);
    }
}

// The month --------------------------------------------------------------------------------------------------

QString frmHogog1::currentYear() const
{
    return SolarDate(m_platform.today()).left(YearDigits);
}

ListMonth frmHogog1::chosenMonth() const
{
    return {txtTaxYear.text().trimmed(), dcbTaxMonth.boundText()};
}

void frmHogog1::txtTaxYear_GotFocus()
{
    if (!txtTaxYear.text().trimmed().isEmpty())
        return;
    txtTaxYear.setText(currentYear());
    txtTaxYear.selectAll();
}

void frmHogog1::txtTaxYear_LostFocus()
{
    const QString year = txtTaxYear.text().trimmed();
    if (!year.isEmpty() && year.size() < YearDigits)
        txtTaxYear.setText(FullYear(year));
    if (txtTaxYear.text().size() == YearDigits)
        FillGrid();
}

/// cmdKeyOk: the payees of the month are there to choose from. False when a key is missing.
bool frmHogog1::acceptMonth()
{
    if (!requiredAreFilled(u"framKey"))
        return false;
    // Read before the stage changes, so that a store that can't be read leaves the keys as they were typed.
    FillFromQuery(m_program, payeesOf(chosenMonth()), dcbMelliCode, u"FN", u"MelliCode");
    const bool isNew = !RecordExists(m_program, u"SELECT * FROM ZRVtbHogog"_s + monthCondition());
    cmdKeyOk.setDefault(false);
    DisableContainer(u"framKey", *this);
    EnableContainer(u"framKey1", *this);
    cmdPrintHogh.setEnabled(true);
    if (dcbMelliCode.items().empty()) {
        messageBox(box::Refusal, u" تــوجه  "_s, u" مشخصات دريافت کنندگان حقوق وارد سيستم نگرديده اند "_s);
        return true;
    }
    if (isNew && !carryMonth())
        return true;
    showPayee(0);
    dcbMelliCode.setFocus();
    FillGrid();
    return true;
}

/// The payees whose work didn't end before the first day of the month; dates are compared as texts.
QString frmHogog1::payeesOf(const ListMonth &month) const
{
    return u"SELECT MelliCode,Family + ' ' + Name + ' (' + MelliCode + ')' as FN FROM ZRVtbKarkonan "_s
           + u" WHERE (EndDate >= "_s + quoted(QString(month.year + month.month + u"01"_s))
           + u" OR EndDate='' OR EndDate IS NULL)"_s
           + (browse.OptNormal.isChecked() ? QString() : u" ORDER BY Family,Name"_s);
}

/// The month of the year that has rows and the highest number; nothing when none has.
std::optional<ListItem> frmHogog1::lastMonthWithRows(const QString &year) const
{
    const Recordset last(Connection(m_program.StoreConnectionString),
                         u"SELECT SCode,SDesc FROM ZRVtbCoding,"_s
                             + u"(SELECT MAX(TaxMonth) as maxMonth FROM ZRVtbHogog"_s + u" WHERE "_s + u" TFN = "_s
                             + quoted(m_program.PayerTFN) + u" AND TaxYear = "_s + quoted(year) + u") as SQ1"_s
                             + u" WHERE MCode = '4'"_s + u" AND SQ1.maxMonth = SCode"_s);
    if (last.eof())
        return std::nullopt;
    return ListItem{last.value(u"SDesc").toText(), last.value(u"SCode").toText()};
}

/// Offers to carry the year's last month with rows into the chosen one, which has none; it may be a later month. False
/// when there is nothing to carry.
bool frmHogog1::carryMonth()
{
    const ListMonth chosen = chosenMonth();
    const std::optional<ListItem> last = lastMonthWithRows(chosen.year);
    if (!last) {
        // clang-format off
        messageBox(box::Refusal, u" اخطار  "_s, u" در صورت وجود اطلاعات ليست حقوق حداقل يک ماه در هر سال ، قابليت انتقال اتوماتيک اطلاعات از يک ماه به ماه هاي ديگر فعال ميگردد. در هيچ کدام از ماههاي سال انتخاب شده ، اطلاعات وارد نگرديده است . لذا نسبت به ورود دستي اطلاعات اقدام نماييد و يا از آيتم (عمليات انتقال سالانه اطلاعات) موجود در منوي عمليات از فرم اصلي جهت انتقال اتوماتيک اطلاعات از يک سال به سال ديگر استفاده نماييد"_s);
        // clang-format on
        return false;
    }
    if (messageBox(AskRightToLeft, QString(), carryQuestion(*last)) != Answer::Yes)
        return true;
    PPICWaitingMessage.setVisible(true);
    m_platform.yield();
    const bool goesOn = keepCopyBeforeStep(m_program);
    if (goesOn)
        CopyMonth(m_program, {chosen.year, last->code}, chosen);
    PPICWaitingMessage.setVisible(false);
    if (!goesOn)
        return true;
    // CopyMonth tells its failures itself, and none comes back; this comes in either case.
    messageBox(box::Notice, u" تــوجه  "_s, u" عمليات انتقال اطلاعات با موفقيت به پايان رسيد "_s);
    return true;
}

QString frmHogog1::carryQuestion(const ListItem &last) const
{
    const ListMonth chosen = chosenMonth();
    const Recordset totals = CountTransferable(m_program, {chosen.year, last.code}, chosen);
    const auto sum = [&totals](QStringView name) { return Format(totals.value(name).toText(), u"#,##0"); };
    // clang-format off
    return u"کاربر گرامي ، براي "_s + dcbTaxMonth.text() + u" ماه اطلاعات حقوق وارد نشده است "_s + LineEnd
           + u"آيا مايل به انتقال اطلاعات از آخرين ماه داراي ليست حقوق ("_s + last.shown + u") به اين ماه و ويرايش آنها ميباشيد ؟"_s + LineEnd
           + u"مشخصات ليست حقوق قابل انتقال از  "_s + last.shown + u" ماه با در نظر گرفتن تاريخ پايان کار کارکنان به قرار زير است : "_s + LineEnd
           + u"تعداد کارکنان قابل انتقال : "_s + totals.value(u"KarkonanNo").toText() + LineEnd
           + u"جمع کل حقوق و مزاياي نقدي،غير نقدي و عيدي و پاداش پس از کسر معافيت ماده  91: "_s + sum(u"SUMNGPTotalDaramadeMashmol") + LineEnd
           + u"جمع کل درآمد مشمول ماليات(پس از کسر معافيت ماده 84 و ساير معافيت ها) : "_s + sum(u"SUMFinalDaramadeMashmol") + LineEnd
           + u"جمع کل ماليات قابل پرداخت : "_s + sum(u"SUMFinalTax") + LineEnd
           + u"در صورت عدم تاييد انتقال اتوماتيک فقط اسامي کارکنان منتقل گرديده و ساير اطلاعات حقوقي آنها بايد توسط کارير وارد گردد."_s;
    // clang-format on
}

// The payee --------------------------------------------------------------------------------------------------

/// Shows a payee of the list by its place; a place behind the last one shows nobody and begins the list anew.
void frmHogog1::showPayee(int row)
{
    const bool passedTheEnd = std::cmp_greater_equal(row, dcbMelliCode.items().size());
    m_payee = passedTheEnd ? 0 : row;
    if (!passedTheEnd)
        dcbMelliCode.chooseRow(row);
}

void frmHogog1::dcbMelliCode_Change()
{
    if (const int row = dcbMelliCode.listIndex(); row >= 0)
        m_payee = row;
    textMelliCode.setText(dcbMelliCode.boundText());
    dcbMelliCode.setToolTip(
        u"اسامي کليه دريافت کنندگان حقوقي که در فرم تعريف دريافت کننده حقوق ، تاريخ پايان کار آنها خالي و يا بعد از "_s
        + dcbTaxMonth.text() + u"  ماه سال  "_s + txtTaxYear.text() + u" ميباشد ، در اين ليست قابل انتخاب ميباشد "_s);
}

void frmHogog1::cmdSearchMoadi_Click()
{
    m_program.SearchCallerName = u"frmHogog"_s;
    openScreen(u"frmSrcKarkonan"_s);
    const QString code = std::exchange(m_program.SelectedMelliCode, QString());
    if (code.isEmpty() || code == u"-1")
        return;
    dcbMelliCode.setBoundText(code);
    if (dcbMelliCode.text().isEmpty())
        messageBox(box::Refusal, u" اطلاع "_s,
                   u"  کاربر گرامي ، تاريخ پايان کار دريافت کننده حقوق انتخاب شده سپري شده است"_s);
    dcbMelliCode.setFocus();
}

void frmHogog1::cmdKeyReturn1_Click()
{
    ClearContainer(u"framKey1", *this);
    DisableContainer(u"framKey1", *this);
    ClearContainer(u"framKey", *this);
    EnableContainer(u"framKey", *this);
    cmdPrintHogh.setEnabled(false);
    cmdKeyOk.setEnabled(true);
    FillGrid();
    txtTaxYear.setFocus();
}

} // namespace zrv
