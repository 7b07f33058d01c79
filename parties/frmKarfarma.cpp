// SPDX-License-Identifier: GPL-3.0-or-later
#include "parties/frmKarfarma.h"

#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/mdlError.h"
#include "core/mdlPublic.h"
#include "core/store/recordset.h"
#include "core/store/store_error.h"
#include "parties/check_digit.h"
#include "parties/frmKarfarma_texts.h"

#include <array>

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString HeadOffice = u"دفتر مرکزي"_s;

constexpr int NaturalPerson = 1;
constexpr int LegalPerson = 2;

/// The data columns in the order in which a new row names them; the two key columns come before them.
constexpr std::array DataColumns{
    u"MMoadiType", u"SMoadiType", u"MohasebeType", u"Name",        u"Family",     u"ShobeName", u"Tin",
    u"PostCode",   u"CodeHozeh",  u"TelNo",        u"Address",     u"MelliCode1", u"EmzaName1", u"EmzaFamily1",
    u"EmzaSemat1", u"MelliCode2", u"EmzaName2",    u"EmzaFamily2", u"EmzaSemat2", u"EdareName",
};

/// The same in the order in which a change of a row sets them.
constexpr std::array UpdatedColumns{
    u"MMoadiType", u"SMoadiType", u"MohasebeType", u"Name",        u"Family",     u"ShobeName", u"Tin",
    u"PostCode",   u"CodeHozeh",  u"TelNo",        u"Address",     u"MelliCode1", u"EmzaName1", u"EmzaFamily1",
    u"MelliCode2", u"EmzaSemat1", u"EmzaName2",    u"EmzaFamily2", u"EmzaSemat2", u"EdareName",
};

/// Tables whose rows hang from the payer, and what is said when they hold some.
struct Guard {
    QStringView table;
    QStringView message;
};
// clang-format off
constexpr std::array Guards{
    Guard{u"ZRVtbKarkonan", u" به علت تعريف کارکنان براي اين پرداخت کننده حقوق در جدول کارکنان ، عمليات حذف پرداخت کننده حقوق مقدور نميباشد "},
    Guard{u"ZRVtbHogog",    u" به علت وجود ليست حقوق براي اين پرداخت کننده حقوق در جدول ليست حقوق ، عمليات حذف پرداخت کننده حقوق مقدور نميباشد "},
    Guard{u"ZRVtbKholList", u" به علت وجود خلاصه ليست حقوق براي اين پرداخت کننده حقوق در جدول خلاصه ليست ، عمليات حذف پرداخت کننده حقوق مقدور نميباشد "},
};
// clang-format on

const QString GridStatement =
    u"SELECT ZRVtbKarfarma.TFN AS TFN,ZRVtbKarfarma.CodeShobe AS CodeShobe,ZRVtbCoding.SDesc AS MMoadiType,"
    "ZRVtbCoding_1.SDesc AS SMoadiType,ZRVtbCoding_2.SDesc AS MohasebeType,ZRVtbKarfarma.Name AS Name,"
    "ZRVtbKarfarma.Family AS Family,ZRVtbKarfarma.ShobeName AS ShobeName,ZRVtbKarfarma.Tin AS Tin,"
    "ZRVtbKarfarma.PostCode AS PostCode,ZRVtbKarfarma.CodeHozeh AS CodeHozeh,ZRVtbKarfarma.TelNo AS TelNo,"
    "ZRVtbKarfarma.Address AS Address"
    " FROM ((ZRVtbKarfarma LEFT JOIN ZRVtbCoding ON ZRVtbKarfarma.MMoadiType = ZRVtbCoding.SCode and "
    "(ZRVtbCoding.MCode)= '5') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_1 ON ZRVtbKarfarma.SMoadiType = "
    "ZRVtbCoding_1.SCode and (ZRVtbCoding_1.MCode)='6') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_2 ON "
    "ZRVtbKarfarma.MohasebeType = ZRVtbCoding_2.SCode and (ZRVtbCoding_2.MCode)='7'"_s;

/// A number field is replaced by its value when it is left: leading zeros go, and nothing but zeros becomes empty.
void normalizeNumber(Edit &field)
{
    qsizetype digits = 0;
    const QString text = field.text().trimmed();
    while (digits < text.size() && text.at(digits) >= u'0' && text.at(digits) <= u'9')
        ++digits;
    const double value = Val(QStringView(text).first(digits));
    field.setText(value > 0 ? numberText(value) : QString());
}

} // namespace

const QString frmKarfarma::SignatoryTip =
    u"در صورت ايراني بودن صاحب امضا کد ملي 10 رقمي و در صورت خارجي بودن صاحب امضا شماره گذرنامه وي را در اين قسمت "
    "وارد نماييد"_s;

frmKarfarma::frmKarfarma(Program &program)
    : RecordScreen(program, u"frmKarfarma"_s)
{
    setCaption(u"تعريف پرداخت کننده حقوق"_s);
    FormatGrid();
    wireFields();
    browse.onPick = [this] { pickRow(); };
    browse.onDelete = [this] {
        pickRow();
        // In the Data stage the row may not be the payer in hand.
        if (rowIsInHand() && cmdDelete.isEnabled())
            cmdDelete_Click();
        browse.grid.setFocus();
    };
    chkAutoSearch.onClick = [this] { browse.setAutoSearch(chkAutoSearch.isChecked()); };
    cmdKeyOk.onClick = [this] { cmdKeyOk_Click(); };
    cmdKeyReturn.onClick = [this] {
        ClearContainer(u"framKey", *this);
        unload();
    };
    cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { backToKey(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdHelp.onClick = [this] { cmdHelp_Click(); };
    cmdExitHelp.onClick = [this] { cmdExitHelp_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmKarfarma::wireFields()
{
    for (TextBox *field : {&txtTFN, &txtCodeShobe, &txtTin, &txtPostCode, &txtCodeHozeh})
        field->onLostFocus = [field] { normalizeNumber(*field); };
    for (DataCombo *list : {&dcbMMoadiType, &dcbSMoadiType, &dcbMohasebeType})
        list->onKeyDown = [this, list](Key key) {
            if (key == Key::Delete)
                list->setText({});
            else if (key == Key::Escape)
                backToKey();
            else
                return false;
            return true;
        };
    dcbMMoadiType.onChange = [this] { dcbMMoadiType_Change(); };
}

void frmKarfarma::Form_Load()
{
    EnableContainer(u"framBrows", *this);
    openKeyStage();
    cmdDelete.setEnabled(false);
    browse.reset();
    FillMMoadiType();
    FillSMoadiType();
    FillMohasebeType();
    FillGrid();
    // A store has one payer: the screen opens on it.
    if (m_rowCount > 0)
        pickRow();
}

bool frmKarfarma::goBack()
{
    if (!frmHelp.isVisible())
        return RecordScreen::goBack();
    cmdExitHelp_Click();
    return true;
}

void frmKarfarma::FormatGrid()
{
    browse.setUp({.all = [] { return GridStatement; },
                  .search = [](const QString &condition) { return QString(GridStatement + u" WHERE "_s + condition); }},
                 {
                     {u"TFN"_s, u"شماره پرونده"_s, {}, true, u"ZRVtbKarfarma.TFN"_s},
                     {u"CodeShobe"_s, u"کد شعبه"_s, {}, true, u"ZRVtbKarfarma.CodeShobe"_s},
                     {u"MMoadiType"_s, u" نوع مودي "_s, {}, false, u"ZRVtbCoding.SDesc"_s},
                     {u"SMoadiType"_s, u" نوع مودي "_s, {}, false, u"ZRVtbCoding_1.SDesc"_s},
                     {u"MohasebeType"_s, u" نحوه محاسبه "_s, {}, false, u"ZRVtbCoding_2.SDesc"_s},
                     {u"Name"_s, u" نـــام "_s, {}, false, u"ZRVtbKarfarma.Name"_s},
                     {u"Family"_s, u" نام خانوادگي / نام شرکت "_s, {}, false, u"ZRVtbKarfarma.Family"_s},
                     {u"ShobeName"_s, u" نام شعبه "_s, {}, false, u"ZRVtbKarfarma.ShobeName"_s},
                     {u"Tin"_s, u" شماره اقتصادي "_s, {}, true, u"ZRVtbKarfarma.Tin"_s},
                     {u"PostCode"_s, u" کـد پستي "_s, {}, true, u"ZRVtbKarfarma.PostCode"_s},
                     {u"CodeHozeh"_s, u" کـد اداره مالياتي "_s, {}, true, u"ZRVtbKarfarma.CodeHozeh"_s},
                     {u"TelNo"_s, u" تلفن "_s, {}, true, u"ZRVtbKarfarma.TelNo"_s},
                     {u"Address"_s, u" آدرس کارگاه/اداره "_s, {}, false, u"ZRVtbKarfarma.Address"_s},
                 });
}

void frmKarfarma::FillGrid()
{
    browse.fill();
    m_rowCount = browse.rowCount();
}

namespace {

void fillTypeList(Program &program, const QString &list, Combo &combo)
{
    FillFromQuery(program,
                  u"SELECT * FROM ZRVtbCoding "_s + u"WHERE MCode = "_s + quoted(list) + u" ORDER BY val(SCode)"_s,
                  combo, u"SDesc", u"Scode");
    // The same words for all three lists, whichever is empty.
    if (combo.items().empty())
        program.platform.messageBox(box::Refusal, u" تــوجه  "_s, u" اطلاعات پايه مربوط به نوع مودي خالي ميباشد "_s);
}

} // namespace

void frmKarfarma::FillMMoadiType()
{
    fillTypeList(m_program, u"5"_s, dcbMMoadiType);
}

void frmKarfarma::FillSMoadiType()
{
    fillTypeList(m_program, u"6"_s, dcbSMoadiType);
}

void frmKarfarma::FillMohasebeType()
{
    fillTypeList(m_program, u"7"_s, dcbMohasebeType);
}

void frmKarfarma::dcbMMoadiType_Change()
{
    const auto open = [](Edit &field) {
        field.setEnabled(true);
        field.setBackColor(color::RequiredEmpty);
    };
    const auto close = [](Edit &field) {
        field.setText({});
        field.setEnabled(false);
        field.setBackColor(color::Disabled);
    };
    const qint64 type = wholeVal(dcbMMoadiType.boundText());
    if (type == NaturalPerson) {
        txtName.setTag(u"+N+FAOnly"_s);
        open(txtName);
        close(dcbSMoadiType);
        txtTin.setMaxLength(10);
        LabelTIN_CodeMelli.setCaption(u"کد ملي :"_s);
    } else if (type == LegalPerson) {
        txtName.setTag(u"+FAOnly"_s);
        close(txtName);
        open(dcbSMoadiType);
        txtTin.setMaxLength(12);
        LabelTIN_CodeMelli.setCaption(u"شماره اقتصادي(TIN):"_s);
    }
}

bool frmKarfarma::refuse(const QString &text, Control &field, int style)
{
    messageBox(style, Refused, text);
    field.setFocus();
    return false;
}

// Key stage --------------------------------------------------------------------------------------------------

void frmKarfarma::pickRow()
{
    if (!txtTFN.isReachable() || browse.grid.currentRow() < 0)
        return;
    txtTFN.setText(browse.grid.currentCell(u"TFN"));
    txtCodeShobe.setText(browse.grid.currentCell(u"CodeShobe"));
    cmdKeyOk_Click();
}

bool frmKarfarma::rowIsInHand() const
{
    return browse.grid.currentRow() >= 0 && browse.grid.currentCell(u"TFN") == txtTFN.text()
           && browse.grid.currentCell(u"CodeShobe") == txtCodeShobe.text();
}

bool frmKarfarma::keyIsValid()
{
    const QString tfn = txtTFN.text().trimmed();
    if (tfn.size() != 12)
        return refuse(u" کد پرونده 12 رقمي ميباشد "_s, txtTFN);
    if (tfn.startsWith(u'4') || tfn.startsWith(u'5'))
        return refuse(u"کد پرونده(TFN) صحيح نميباشد.احتمالا شما شماره اقتصادي(TIN) را بجاي کد پرونده وارد نموده "
                      "ايد.لطفا اصلاح نماييد"_s,
                      txtTFN, box::RefusalRtl);
    return true;
}

void frmKarfarma::cmdKeyOk_Click()
{
    if (!requiredAreFilled(u"framKey") || !keyIsValid())
        return;
    openDataStage();
    dcbMMoadiType.setFocus();
    const bool headOffice = wholeVal(txtCodeShobe.text()) == 1;
    if (headOffice)
        txtShobeName.setText(HeadOffice);
    txtShobeName.setLocked(headOffice);
    showRecord();
}

void frmKarfarma::showRecord()
{
    const Connection connection(m_program.StoreConnectionString);
    const Recordset payer(connection, u"SELECT * FROM ZRVtbKarfarma"_s + keyCondition());
    m_recordExists = !payer.eof();
    cmdDelete.setEnabled(m_recordExists);
    if (!m_recordExists)
        return;
    if (payer.recordCount() > 1)
        messageBox(box::Refusal, Refused,
                   u" بيش از يک پرداخت کننده حقوق در جدول مربوطه تعريف گرديده است.لطفا با برنامه نويس تماس بگيريد "_s);
    for (const auto column : DataColumns)
        showValue(column, payer.value(column).toText());
    recordIsShown();
}

void frmKarfarma::backToKey()
{
    openKeyStage(false);
    cmdDelete.setEnabled(false);
    txtTFN.setFocus();
}

// Saving -----------------------------------------------------------------------------------------------------

void frmKarfarma::requireSecondSignatory()
{
    // The second signatory is all or nothing. The tags of a screen that has tried to save no longer let Latin
    // letters in, which the fields' own tags did.
    const bool wanted = txtMelliCode2.text().size() >= 2;
    txtMelliCode2.setTag(wanted ? u"+N+DigitOnly"_s : u"+DigitOnly"_s);
    for (TextBox *field : {&txtEmzaName2, &txtEmzaFamily2, &txtEmzaSemat2})
        field->setTag(wanted ? u"+N+FA"_s : u"+FA"_s);
}

bool frmKarfarma::tinIsValid()
{
    const QString tin = txtTin.text().trimmed();
    if (wholeVal(dcbMMoadiType.boundText()) == NaturalPerson) {
        if (!tin.isEmpty() && tin.size() != 10)
            return refuse(u" کد ملي پرداخت کننده حقوق بايد 10 رقمي باشد "_s, txtTin);
        return true;
    }
    if (!tin.isEmpty() && tin.size() != 12)
        return refuse(u" کد اقتصادي بايد 12 رقمي باشد "_s, txtTin);
    if (!tin.startsWith(u'4') && !tin.startsWith(u'5'))
        return refuse(u"شماره اقتصادي (TIN) صحيح نميباشد.احتمالا شما کد پرونده(TFN) را بجاي شماره اقتصادي وارد نموده "
                      "ايد.لطفا اصلاح نماييد"_s,
                      txtTin, box::RefusalRtl);
    return true;
}

bool frmKarfarma::numbersAreValid()
{
    if (!tinIsValid())
        return false;
    if (!txtCodeHozeh.text().isEmpty() && txtCodeHozeh.text().size() != 6)
        return refuse(u" کد اداره امور مالياتي 6 رقمي ميباشد "_s, txtCodeHozeh);
    if (!txtPostCode.text().isEmpty() && txtPostCode.text().size() != 10)
        return refuse(u" کد پستي 10 رقمي ميباشد "_s, txtPostCode);
    if (wholeVal(dcbMMoadiType.boundText()) == NaturalPerson && !isValidNationalCode(txtTin.text()))
        return refuse(u"  کد ملي پرداخت کننده حقوق نامعتبر است  "_s, txtTin);
    return true;
}

void frmKarfarma::cmdDataOk_Click()
{
    try {
        requireSecondSignatory();
        if (!requiredAreFilled(u"framData") || !numbersAreValid())
            return;
        if (!m_recordExists && m_rowCount >= 1) {
            messageBox(box::Refusal, Refused, u"  تعريف بيش از يک پرداخت کننده حقوق مجاز نميباشد "_s);
            return;
        }
        const bool saved = m_recordExists ? UpdateRoutine() : AddRoutine();
        // An insert that failed and was told flips the screen into edit mode all the same.
        m_recordExists = true;
        FillGrid();
        cmdDelete.setEnabled(true);
        if (saved && m_program.showPayer)
            m_program.showPayer(txtName.text() + u" "_s + txtFamily.text() + u" - شعبه "_s + txtShobeName.text()
                                + u" "_s);
    } catch (const RunTimeError &failure) {
        ShowInlineError(m_platform, failure);
    }
}

QString frmKarfarma::keyCondition() const
{
    return u" WHERE TFN = "_s + quoted(txtTFN.text()) + u" AND CodeShobe = "_s + quoted(txtCodeShobe.text());
}

/// False when the store refused the row; the user knows by then.
bool frmKarfarma::AddRoutine()
{
    QString values = quoted(numberText(Val(txtTFN.text()))) + u","_s + quoted(numberText(Val(txtCodeShobe.text())));
    try {
        for (const auto column : DataColumns)
            values += u","_s + valueOf(column);
        Connection(m_program.StoreConnectionString)
            .execute(u"INSERT INTO ZRVtbKarfarma "_s
                     + u"(TFN,CodeShobe,MMoadiType,SMoadiType,MohasebeType,Name,Family,ShobeName,"
                       "Tin,PostCode,CodeHozeh,TelNo,Address,MelliCode1,EmzaName1,EmzaFamily1,EmzaSemat1,"
                       "MelliCode2,EmzaName2,EmzaFamily2,EmzaSemat2,EdareName) "_s
                     + u"VALUES "_s + u"("_s + values + u")"_s);
    } catch (const RunTimeError &failure) {
        if (failure.number() == store_error::ValueTooLong)
            messageBox(box::Refusal, u" تــوجه  "_s, karfarma_texts::BranchColumnTooShort);
        else
            messageBox(box::Warning, u"Add"_s, failure.description());
        return false;
    }
    messageBox(box::Notice, u" توجه "_s, u" اطلاعات پرداخت کننده حقوق ذخيره گرديد "_s);
    return true;
}

/// Likewise.
bool frmKarfarma::UpdateRoutine()
{
    QString changes;
    try {
        for (const auto column : UpdatedColumns)
            changes += (changes.isEmpty() ? u" "_s : u", "_s) + column + u" = "_s + valueOf(column);
        Connection(m_program.StoreConnectionString).execute(u"UPDATE ZRVtbKarfarma Set"_s + changes + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Update"_s, failure.description());
        return false;
    }
    messageBox(box::Notice, u" توجه "_s, u"  بروزرساني اطلاعات پرداخت کننده حقوق انجام گرديد "_s);
    return true;
}

// Deleting ---------------------------------------------------------------------------------------------------

bool frmKarfarma::deletionIsRefused()
{
    QString lines;
    for (const Guard &guard : Guards)
        if (RecordExists(m_program, u"SELECT * FROM "_s + guard.table + u" WHERE TFN = "_s + quoted(txtTFN.text())))
            lines += guard.message + u"\r"_s;
    if (lines.isEmpty())
        return false;
    messageBox(box::Refusal, Refused,
               lines + u"\r"_s
                   + u"جهت انجام عمليات حذف ابتدا مورد(موارد) فوق را حذف نموده و سپس نسبت به حذف پرداخت کننده حقوق "
                     "اقدام فرماييد"_s);
    return true;
}

void frmKarfarma::cmdDelete_Click()
{
    if (deletionIsRefused())
        return;
    if (confirmDelete())
        DeleteRoutine();
    FillGrid();
    backToKey();
}

void frmKarfarma::DeleteRoutine()
{
    try {
        Connection(m_program.StoreConnectionString).execute(u" DELETE From ZRVtbKarfarma "_s + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Delete"_s, failure.description());
    }
}

// Help -------------------------------------------------------------------------------------------------------

void frmKarfarma::cmdHelp_Click()
{
    QString text;
    for (const QStringView line : karfarma_texts::BranchCodeHelp)
        text += line + u"\r\n"_s;
    txtHelpMessage.setText(text);
    framAll.setVisible(false);
    frmHelp.setVisible(true);
    cmdExitHelp.setFocus();
}

void frmKarfarma::cmdExitHelp_Click()
{
    frmHelp.setVisible(false);
    framAll.setVisible(true);
    cmdHelp.setFocus();
}

} // namespace zrv
