// SPDX-License-Identifier: GPL-3.0-or-later
// The summary list's key and grid; the month's figures and its payment are in frmKholList_month.cpp, saving and
// deleting in frmKholList_save.cpp.
#include "lists/frmKholList.h"

#include "core/code_combos.h"
#include "core/containers.h"
#include "core/mdlError.h"
#include "core/mdlPublic.h"
#include "core/store/recordset.h"

namespace zrv {

namespace {

const QString MonthList = u"4"_s;
const QString KindList = u"14"_s;

// clang-format off
const QString GridStatement =
    u"SELECT ZRVtbCoding_2.SDesc AS KholListType,ZRVtbKholList.TaxYear,ZRVtbCoding.SDesc AS TaxMonth,Format(JariSumHogog, \"#,##0\") AS JariSumHogog,Format(JariSumMashmol, \"#,##0\") AS JariSumMashmol,Format(JariTax, \"#,##0\") AS JariTax,Format(KarkonanNo, \"#,##0\") AS KarkonanNo,Format(KharejiNo, \"#,##0\") AS KharejiNo,Format(MablagPardakhti, \"#,##0\") AS MablagPardakhti,format(RoznameDate,\"####/##/##\") AS RoznameDate,ZRVtbCoding_1.SDesc AS NahveyePardakht"
    " FROM ((ZRVtbKholList LEFT JOIN ZRVtbCoding ON ZRVtbKholList.TaxMonth = ZRVtbCoding.SCode AND ZRVtbCoding.MCode = '4') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_1 ON ZRVtbKholList.NahveyePardakht = ZRVtbCoding_1.SCode AND ZRVtbCoding_1.MCode = '9') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_2 ON ZRVtbKholList.KholListType = ZRVtbCoding_2.SCode AND ZRVtbCoding_2.MCode = '14'"_s;

/// What the first two rows are called, by the kind of list.
struct RowCaptions {
    QString hogog;
    QString mashmol;
};
const RowCaptions MonthlyRows{u"جمع حقوق و مزاياي نقدي،غير نقدي،عيدي و پاداش پرداختي/تخصيصي : "_s, u"جمع حقوق و مزايـاي نقدي ، غير نقدي ، عيدي و پاداش مشمول ماليات : "_s};
const RowCaptions OtherRows{u"جمع مزاياي غير نقدي يا پاداش : "_s, u"جمع مزاياي غير نقدي يا پاداش مشمول ماليات : "_s};
// clang-format on

/// A column of amounts: sought by its digits, sorted as numbers.
BrowseColumn amountColumn(const QString &field, const QString &caption)
{
    const QString stored = u"ZRVtbKholList."_s + field;
    return {.field = field,
            .caption = caption,
            .leftToRight = true,
            .expression = stored,
            .sortedBy = u"val(Format("_s + stored + u",\"0\"))"_s};
}

} // namespace

/// An empty box steps back over the digits of the one before it, and a stored day that can't be is told.
const DateBoxes::Look frmKholList::RequiredDate{.yearTag = u"+DigitOnly+N"_s,
                                                .monthTag = u"+DigitOnly+N"_s,
                                                .dayTag = u"+DigitOnly+N"_s,
                                                .dayShortensMonth = true,
                                                .judgesShownDay = true};

frmKholList::frmKholList(Program &program)
    : RecordScreen(program, u"frmKholList"_s)
{
    setCaption(u"ورود  و  ويرايش  خلاصه  ليست  ماهانه"_s);
    FormatGrid();
    wireKey();
    wireAmounts();
    dcbNahveyePardakht.onChange = [this] { applyPaymentKind(); };
    cmdSearchBankName.onClick = [this] { cmdSearchBankName_Click(); };
    cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { backToKey(); };
    cmdPrintKhol.onClick = [this] { cmdPrintKhol_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdExit.onClick = [this] { unload(); };
    chkAutoSearch.onClick = [this] { browse.setAutoSearch(chkAutoSearch.isChecked()); };
    browse.onPick = [this] { pickRow(); };
    browse.onDelete = [this] { deleteRow(); };
}

void frmKholList::wireKey()
{
    dcbKholListType.setLocked(true);
    for (Control *fixed : std::initializer_list<Control *>{&dcbKholListType, &TextTFN})
        fixed->setTabStop(false);
    dcbKholListType.onChange = [this] { dcbKholListType_Change(); };
    // Walking out of the last key field accepts the key.
    cmdKeyOk.onClick = cmdKeyOk.onGotFocus = [this] { cmdKeyOk_Click(); };
    cmdKeyReturn.onClick = [this] { unload(); };
}

void frmKholList::Form_Load()
{
    EnableContainer(u"framBrows", *this);
    ReadPayer();
    FillCodeList(m_program, MonthList, dcbTaxMonth);
    FillCodeList(m_program, KindList, dcbKholListType);
    openKeyStage();
    ApplyModeButtons(u"StartProgram", *this);
    dcbKholListType.setBoundText(MonthlyList.toString());
    txtTaxYear.setText(SolarDate(m_platform.today()).left(4));
    txtTaxYear.setFocus();
    browse.reset();
    FillGrid();
}

void frmKholList::ReadPayer()
{
    const Connection connection(m_program.StoreConnectionString);
    const Recordset payer(connection, u"SELECT * FROM ZRVtbKarfarma "_s);
    const int payers = payer.recordCount();
    if (payers == 0)
        messageBox(box::Refusal, u" تــوجه  "_s, u" مشخصات پرداخت کننده حقوق وارد سيستم نگرديده اند "_s);
    else if (payers > 1)
        messageBox(
            box::Refusal, u" تــوجه  "_s,
            u" بيش از يک پرداخت کننده حقوق در سيستم تعريف شده است.لطفا نسبت به حذف تعاريف اضافي اقدام نماييد "_s);
    else
        TextTFN.setText(payer.value(u"TFN").toText());
}

void frmKholList::FormatGrid()
{
    browse.setUp(
        {.all = [] { return GridStatement; },
         .search = [](const QString &condition) { return QString(GridStatement + u" WHERE "_s + condition); }},
        {
            {.field = u"KholListType"_s,
             .caption = u" نــوع خلاصه ليست "_s,
             .expression = u"ZRVtbCoding_2.SDesc"_s,
             .visible = false},
            {.field = u"TaxYear"_s,
             .caption = u" سال "_s,
             .leftToRight = true,
             .expression = u"ZRVtbKholList.TaxYear"_s},
            {.field = u"TaxMonth"_s,
             .caption = u" مـــــاه "_s,
             .expression = u"ZRVtbCoding.SDesc"_s,
             .sortedBy = u"ZRVtbKholList.TaxMonth"_s},
            amountColumn(u"JariSumHogog"_s, u"جمع حقوق و مزاياي پرداختي"_s),
            amountColumn(u"JariSumMashmol"_s, u"جمع حقوق و مزاياي مشمول ماليات"_s),
            amountColumn(u"JariTax"_s, u"جمع مــاليات  متعلقه"_s),
            amountColumn(u"KarkonanNo"_s, u"تعداد کل کارکنان"_s),
            amountColumn(u"KharejiNo"_s, u"تعداد کارکنان خارجي"_s),
            amountColumn(u"MablagPardakhti"_s, u" مبلغ ماليات پرداختي "_s),
            {.field = u"RoznameDate"_s,
             .caption = u" تاريخ روزنامه (تخصيص يا پرداخت) "_s,
             .leftToRight = true,
             .expression = u"ZRVtbKholList.RoznameDate"_s},
            {.field = u"NahveyePardakht"_s, .caption = u"نحوه پرداخت ماليات"_s, .expression = u"ZRVtbCoding_1.SDesc"_s},
        });
}

void frmKholList::FillGrid()
{
    browse.fill();
}

// Key stage --------------------------------------------------------------------------------------------------

/// Another kind can come in with a row of the grid; it isn't kept.
void frmKholList::dcbKholListType_Change()
{
    const bool monthly = dcbKholListType.boundText() == MonthlyList;
    const RowCaptions &captions = monthly ? MonthlyRows : OtherRows;
    lblSumHogog.setCaption(captions.hogog);
    lblSumMashmol.setCaption(captions.mashmol);
    if (!monthly)
        dcbKholListType.setBoundText(MonthlyList.toString());
}

QString frmKholList::salaryCondition() const
{
    return u" WHERE TFN = "_s + quoted(TextTFN.text().trimmed()) + u" AND TaxYear = "_s
           + quoted(txtTaxYear.text().trimmed()) + u" AND TaxMonth = "_s + quoted(dcbTaxMonth.boundText());
}

QString frmKholList::keyCondition() const
{
    return salaryCondition() + u" AND KholListType = "_s + quoted(dcbKholListType.boundText());
}

void frmKholList::cmdKeyOk_Click()
{
    try {
        if (!requiredAreFilled(u"framKey"))
            return;
        // Read before the stage changes, so that a store that can't be read leaves the key as it was typed.
        const Month month = readMonth();
        fillPaymentKinds();
        fillBanks();
        openMonth(month);
    } catch (const RunTimeError &failure) {
        ShowInlineError(m_platform, failure);
    }
}

// Grid -------------------------------------------------------------------------------------------------------

void frmKholList::pickRow()
{
    if (!txtTaxYear.isReachable())
        return;
    dcbKholListType.setText(browse.grid.currentCell(u"KholListType"));
    dcbTaxMonth.setText(browse.grid.currentCell(u"TaxMonth"));
    txtTaxYear.setText(browse.grid.currentCell(u"TaxYear"));
    cmdKeyOk_Click();
}

void frmKholList::deleteRow()
{
    if (!txtTaxYear.isReachable())
        return;
    pickRow();
    // Without its row in hand there is nothing to ask about.
    if (cmdDelete.isEnabled())
        cmdDelete_Click();
    browse.grid.setFocus();
}

} // namespace zrv
