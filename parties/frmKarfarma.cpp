// SPDX-License-Identifier: GPL-3.0-or-later
#include "parties/frmKarfarma.h"

#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/store/recordset.h"
#include "parties/frmKarfarma_texts.h"
#include "parties/number_field.h"
#include "parties/payer_columns.h"

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString HeadOffice = u"دفتر مرکزي"_s;

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
    for (const auto column : PayerDataColumns)
        showValue(column, payer.value(column).toText());
    recordIsShown();
}

void frmKarfarma::backToKey()
{
    openKeyStage(false);
    cmdDelete.setEnabled(false);
    txtTFN.setFocus();
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
