// SPDX-License-Identifier: GPL-3.0-or-later
// The payee's key, lists and grid; saving and deleting are in frmKarkonan_save.cpp.
#include "parties/frmKarkonan.h"

#include "core/code_combos.h"
#include "core/containers.h"
#include "core/public/check_digit.h"
#include "core/store/recordset.h"
#include "parties/payee_columns.h"
#include "parties/payee_grid.h"

#include <QScopedValueRollback>

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString NationalCode = u"1"_s; ///< of the nationality list; 2 is a foreigner
const QString ForeignerCode = u"2"_s;
const QString HomeCountry = u"1"_s;
const QString UsualOrder = u" ORDER BY ZRVtbKarkonan.Family,ZRVtbKarkonan.Name"_s;

/// What the choice of nationality makes of the key field.
struct KeyLook {
    QString caption;
    QString toolTip;
    QString tag;
};

const KeyLook NationalKey{u"شماره ملي حقوق بگير :"_s, u"شماره ملي دريافت کننده حقوق را در اين فيلد وارد نماييد"_s,
                          u"+DigitOnly+N"_s};
const KeyLook PassportKey{u"شماره گذرنامه حقوق بگير :"_s,
                          u"درصورتيکه شماره گذرنامه بيش از 10 رقم باشد،10 رقم سمت راست شماره مذکور را در اين فيلد وارد "
                          "نماييد"_s,
                          u"+DigitOnly+N+EN"_s};

enum class Filled { Kept, Emptied };

/// A field that a list's choice asks for, or has no use for.
void open(TextBox &field)
{
    field.setEnabled(true);
    field.setBackColor(color::RequiredEmpty);
}

void close(TextBox &field, Filled text)
{
    field.setBackColor(color::Disabled);
    if (text == Filled::Emptied)
        field.setText({});
    field.setEnabled(false);
}

} // namespace

frmKarkonan::frmKarkonan(Program &program)
    : RecordScreen(program, u"frmKarkonan"_s)
{
    setCaption(u"تعريف دريافت کننده حقوق"_s);
    FormatGrid();
    wireKey();
    wireLists();
    wireGrid();
    cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { backToKey(false); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmKarkonan::wireKey()
{
    optIrani.onClick = optKhareji.onClick = [this] { nationality_Click(); };
    txtMelliCode.onChange = [this] { txtMelliCode_Change(); };
    // Enter confirms the key here, while it walks on everywhere else.
    txtMelliCode.onKeyDown = [this](Key key) {
        if (key != Key::Enter || !cmdKeyOk.isReachable())
            return false;
        cmdKeyOk_Click();
        return true;
    };
    cmdKeyOk.onClick = [this] { cmdKeyOk_Click(); };
    cmdKeyReturn.onClick = [this] {
        ClearContainer(u"framKey", *this);
        unload();
    };
}

std::vector<frmKarkonan::CodeField> frmKarkonan::codeFields()
{
    return {
        {dcbMadrak, u"1"_s},
        {dcbSemat, u"2"_s},
        {dcbRasteh, u"10"_s, true},
        {dcbMelliatCode, u"11"_s},
        {dcbKeshvarCode, u"12"_s},
        {dcbShakhsMoafCode, u"13"_s},
        {dcbEstekhdamType, u"15"_s, true},
        {dcbBimehType, u"16"_s, true},
    };
}

void frmKarkonan::wireLists()
{
    for (const CodeField &field : codeFields())
        field.combo.onKeyDown = [this, &list = field.combo](Key key) { return listKey(list, key); };
    dcbMelliatCode.onChange = [this] { dcbMelliatCode_Change(); };
    dcbSemat.onChange = [this] { dcbSemat_Change(); };
    dcbBimehType.onChange = [this] { dcbBimehType_Change(); };
    // Their descriptions are longer than the box.
    for (DataCombo *list : {&dcbRasteh, &dcbShakhsMoafCode})
        list->onChange = [list] { list->setToolTip(list->text()); };
}

void frmKarkonan::wireGrid()
{
    for (TextBox *name : {&txtName, &txtFamily})
        name->onChange = [this] { nameChanged(); };
    chkAutoSearch.onClick = [this] { chkAutoSearch_Click(); };
    browse.onPick = [this] { pickRow(); };
    browse.onDelete = [this] { deleteRow(); };
    // Enter leaves the choice of nationality as it is; a double click makes it the row's.
    browse.grid.onDblClick = [this] {
        if (!txtMelliCode.isReachable() || browse.grid.currentRow() < 0)
            return;
        (browse.grid.currentCell(u"MelliatCode") == ForeignNationality ? optKhareji : optIrani).setChecked(true);
        pickRow();
    };
}

void frmKarkonan::Form_Load()
{
    EnableContainer(u"framBrows", *this);
    nationality_Click();
    openKeyStage();
    ApplyModeButtons(u"StartProgram", *this);
    chkAutoSearch.setEnabled(false);
    txtMelliCode_Change();
    txtMelliCode.setFocus();
    browse.reset();
    for (const CodeField &field : codeFields())
        FillCodeListByValue(m_program, field.list, field.combo, field.descending);
    FillGrid();
}

void frmKarkonan::FormatGrid()
{
    browse.setUp({.all = payeeSelect,
                  .order = UsualOrder,
                  .search = [](const QString &condition) { return QString(payeeSelect() + u" WHERE "_s + condition); }},
                 payeeColumns(u"کدملي/گذرنامه"_s));
}

void frmKarkonan::FillGrid()
{
    browse.fill();
}

bool frmKarkonan::refuse(const QString &text, Control &field)
{
    messageBox(box::Refusal, Refused, text);
    field.setFocus();
    return false;
}

// Key stage --------------------------------------------------------------------------------------------------

void frmKarkonan::nationality_Click()
{
    const KeyLook &look = optKhareji.isChecked() ? PassportKey : NationalKey;
    lblMelliCode.setCaption(look.caption);
    lblMelliCode.setToolTip(look.toolTip);
    txtMelliCode.setToolTip(look.toolTip);
    txtMelliCode.setTag(look.tag);
}

void frmKarkonan::txtMelliCode_Change()
{
    const bool hasCode = !txtMelliCode.text().trimmed().isEmpty() && txtMelliCode.isEnabled();
    cmdKeyOk.setEnabled(hasCode);
    cmdKeyOk.setDefault(hasCode);
}

bool frmKarkonan::keyIsValid()
{
    if (!requiredAreFilled(u"framKey"))
        return false;
    return optKhareji.isChecked() || isValidNationalCode(txtMelliCode.text())
           || refuse(u"  کد ملي وارد شده نامعتبر است  "_s, txtMelliCode);
}

void frmKarkonan::cmdKeyOk_Click()
{
    if (!keyIsValid())
        return;
    // Read before the stage changes, so that a store that can't be read leaves the key as it was typed.
    const Connection connection(m_program.StoreConnectionString);
    const Recordset payee(connection, u"SELECT * FROM ZRVtbKarkonan"_s + keyCondition());
    dcbMelliatCode.setBoundText(optKhareji.isChecked() ? ForeignerCode : NationalCode);
    cmdKeyOk.setDefault(false);
    openDataStage();
    dcbMelliatCode.setEnabled(false);
    dcbMelliatCode_Change();
    chkAutoSearch.setEnabled(true);
    txtName.setFocus();
    m_recordExists = !payee.eof();
    cmdDelete.setEnabled(m_recordExists);
    if (m_recordExists)
        showRecord(payee);
    else
        dcbRasteh.setToolTip({});
}

void frmKarkonan::showRecord(const Recordset &payee)
{
    {
        const QScopedValueRollback<bool> writing(m_namesAreTyped, false);
        for (const QStringView column : PayeeDataColumns) {
            const QString stored = payee.value(column).toText();
            if (column == u"BeginDate")
                BeginDate.show(stored);
            else if (column == u"EndDate")
                EndDate.show(stored);
            else
                showValue(column, stored);
        }
        recordIsShown();
    }
    txtName.selectAll();
    // One search for both names, once all is shown.
    nameChanged();
}

// Lists ------------------------------------------------------------------------------------------------------

bool frmKarkonan::listKey(Combo &list, Key key)
{
    if (key == Key::Escape)
        backToKey(false);
    else if (key == Key::Delete || key == Key::Backspace)
        list.setText({});
    else
        return false;
    return true;
}

void frmKarkonan::dcbMelliatCode_Change()
{
    if (dcbMelliatCode.text().isEmpty())
        return;
    if (dcbMelliatCode.boundText() == NationalCode) {
        dcbKeshvarCode.setBoundText(HomeCountry);
        dcbKeshvarCode.setEnabled(false);
    } else if (!txtMelliCode.isEnabled()) {
        dcbKeshvarCode.setEnabled(true);
        dcbKeshvarCode.setText({});
    }
}

void frmKarkonan::dcbSemat_Change()
{
    if (dcbSemat.boundText() == u"0")
        open(txtSematSayer);
    else
        close(txtSematSayer, Filled::Emptied);
}

void frmKarkonan::dcbBimehType_Change()
{
    const QString code = dcbBimehType.boundText();
    const bool uninsured = code == u"3";
    if (!uninsured)
        LabelBimeNO.setCaption(code == u"2" ? u"شماره مستخدم :"_s : u"شماره بيمه :"_s);
    if (uninsured)
        close(txtInsuNo, Filled::Emptied);
    else
        open(txtInsuNo);
    if (code == u"0")
        open(txtBimehSayer);
    else
        close(txtBimehSayer, code == u"1" || code == u"2" || uninsured ? Filled::Emptied : Filled::Kept);
}

// Grid -------------------------------------------------------------------------------------------------------

void frmKarkonan::nameChanged()
{
    if (m_namesAreTyped && chkAutoSearch.isChecked())
        AutoSearch();
}

void frmKarkonan::AutoSearch()
{
    QStringList clauses;
    for (const QStringView column : {u"Name", u"Family"})
        if (const QString text = fieldOf(column).text(); !text.isEmpty())
            clauses += column + u" LIKE "_s + quoted(QString(u'%' + text + u'%'));
    browse.show(payeeSelect() + (clauses.isEmpty() ? QString() : u" WHERE "_s + clauses.join(u" AND ")),
                browse.OptNormal.isChecked() ? QString() : UsualOrder);
}

void frmKarkonan::chkAutoSearch_Click()
{
    if (!chkAutoSearch.isChecked())
        browse.fillAsStored();
}

void frmKarkonan::pickRow()
{
    if (!txtMelliCode.isReachable())
        return;
    txtMelliCode.setText(browse.grid.currentCell(u"MelliCode"));
    cmdKeyOk_Click();
}

/// The nationality stays as chosen: a foreigner's row meets the check of national codes while optIrani is set.
void frmKarkonan::deleteRow()
{
    if (!txtMelliCode.isReachable())
        return;
    txtMelliCode.setText(browse.grid.currentCell(u"MelliCode"));
    cmdDelete.setEnabled(true);
    cmdKeyOk_Click();
    cmdDelete_Click();
    browse.grid.setFocus();
}

} // namespace zrv
