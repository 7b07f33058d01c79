// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmCoding.h"

#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/mdlPublic.h"
#include "core/store/recordset.h"

#include <array>
#include <utility>

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString ExemptionList = u"17"_s; ///< its codes are years and its descriptions amounts
const QString CountryList = u"12"_s;
const QString HomeCountry = u"1"_s;
const QString SearchOrder = u" ORDER BY SCode "_s;

/// Where a code of a list may be in use, so that it must stay. The other lists have no guard.
struct Guard {
    QStringView list;
    QStringView table;
    QStringView column;
    QStringView message;
};

// clang-format off
constexpr std::array Guards{
    Guard{u"8",  u"ZRVtbKholList", u"BankName",       u" به علت وجود اين بانک در خلاصه ليست حقوق ، عمليات حذف مقدور نميباشد "},
    Guard{u"10", u"ZRVtbKarkonan", u"Rasteh",         u" به علت استفاده از اين رسته در اطلاعات دريافت کننده گان حقوق، عمليات حذف مقدور نميباشد "},
    Guard{u"15", u"ZRVtbKarkonan", u"EstekhdamType",  u" به علت استفاده از اين نوع استخدام در اطلاعات دريافت کننده گان حقوق، عمليات حذف مقدور نميباشد "},
    Guard{u"12", u"ZRVtbKarkonan", u"KeshvarCode",    u" به علت استفاده از نام اين کشور در اطلاعات دريافت کننده گان حقوق، عمليات حذف مقدور نميباشد "},
    Guard{u"1",  u"ZRVtbKarkonan", u"Madrak",         u" به علت استفاده از اين مدرک در اطلاعات دريافت کننده گان حقوق، عمليات حذف مقدور نميباشد "},
    Guard{u"2",  u"ZRVtbKarkonan", u"Semat",          u" به علت استفاده از اين شفل در اطلاعات دريافت کننده گان حقوق، عمليات حذف مقدور نميباشد "},
    Guard{u"13", u"ZRVtbKarkonan", u"ShakhsMoafCode", u" به علت استفاده از اين نوع معافيت در اطلاعات دريافت کننده گان حقوق، عمليات حذف مقدور نميباشد "},
};
// clang-format on

} // namespace

frmCoding::frmCoding(Program &program, QString list, QString listName)
    : RecordScreen(program, u"frmCoding"_s)
    , m_list(std::move(list))
    , m_listName(std::move(listName))
{
    const bool years = m_list == ExemptionList;
    if (years) {
        lblSCode.setCaption(u"سال : "_s);
        lblSDesc.setCaption(u"مبلغ معافيت ساليانه(ريال) : "_s);
    }
    browse.setUp({.all =
                      [this] {
                          return QString(u"SELECT val(SCode) AS SCode,SDesc FROM ZRVtbCoding where val(MCode) = val("_s
                                         + quoted(m_list) + u")"_s);
                      },
                  .order = u" ORDER BY val(SCode)"_s,
                  .search = [this](const QString &condition) { return searchStatement(condition); },
                  .searchOrder = SearchOrder,
                  .report = FailureReport::ErrorBox},
                 {{u"SCode"_s, years ? u" سال "_s : u"  كـد "_s, {}, true},
                  {u"SDesc"_s, years ? u" مبلغ معافيت ساليانه(ريال) "_s : u" شرح کـــــد "_s,
                   years ? u"#,##0"_s : QString(), years}});
    browse.onPick = [this] {
        if (!txtSCode.isReachable())
            return;
        txtSCode.setText(browse.grid.currentCell(u"SCode"));
        cmdKeyOk_Click();
    };
    browse.onDelete = [this] {
        if (!txtSCode.isReachable())
            return;
        browse.onPick();
        if (cmdDelete.isEnabled())
            cmdDelete_Click();
    };

    txtSCode.onChange = [this] { txtSCode_Change(); };
    txtSCode.onDblClick = [this] { txtSCode_DblClick(); };
    txtSCode.onKeyDown = [this](Key key) {
        if (key != Key::Enter)
            return false;
        if (txtSCode.text().trimmed().isEmpty())
            txtSCode_DblClick();
        else
            cmdKeyOk.setFocus();
        return true;
    };
    cmdKeyOk.onClick = [this] { cmdKeyOk_Click(); };
    cmdKeyReturn.onClick = [this] { leaveKeyStage(cmdContinue); };
    cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { backToKey(); };
    cmdContinue.onClick = [this] {
        takeUpKeyStage(cmdContinue, txtSCode);
        txtSCode_Change();
    };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmCoding::Form_Load()
{
    txtMCode.setText(m_list);
    txtMDesc.setText(m_listName);
    lblForm.setCaption(u"تعريف "_s + m_listName);
    setCaption(lblForm.caption());
    EnableContainer(u"framBrows", *this);
    openKeyStage(false);
    ApplyModeButtons(u"StartProgram", *this);
    browse.reset();
    txtSCode_Change();
    browse.fill();
}

void frmCoding::txtSCode_Change()
{
    const bool hasCode = !txtSCode.text().trimmed().isEmpty();
    cmdKeyOk.setEnabled(hasCode && txtSCode.isEnabled());
    cmdKeyOk.setDefault(hasCode && txtSCode.isEnabled());
}

void frmCoding::txtSCode_DblClick()
{
    const Connection connection(m_program.StoreConnectionString);
    const Recordset last(connection, u"SELECT max(val(SCode)) FROM ZRVtbCoding where val(MCode) = val("_s
                                         + quoted(m_list) + u")"_s);
    const Value highest = last.value(0);
    txtSCode.setText(highest.isNull() ? u"1"_s : QString::number(wholeVal(highest.toText()) + 1));
}

void frmCoding::cmdKeyOk_Click()
{
    const QString code = txtSCode.text().trimmed();
    if (code.isEmpty()) {
        messageBox(box::Refusal, Refused, u"  ورود مقدار كــد الزامي است "_s);
        txtSCode.setFocus();
        return;
    }
    cmdKeyOk.setDefault(false);
    openDataStage();
    txtSDesc.setFocus();
    const Connection connection(m_program.StoreConnectionString);
    const Recordset row(connection, u"SELECT * FROM ZRVtbCoding"_s + u" WHERE SCode = "_s + quoted(code) + u" AND "_s
                                        + u"MCode = "_s + quoted(m_list));
    m_recordExists = !row.eof();
    cmdDelete.setEnabled(m_recordExists);
    if (m_recordExists) {
        txtSDesc.setText(row.value(u"SDesc").toText());
        txtSDesc.selectAll();
    }
}

void frmCoding::cmdDataOk_Click()
{
    if (!requiredAreFilled(u"framData"))
        return;
    if (m_recordExists)
        UpdateRoutine();
    else if (RecordIsDuplicate())
        return;
    else
        AddRoutine();
    m_lastCode = txtSCode.text().trimmed();
    backToKey();
}

void frmCoding::backToKey()
{
    cmdDelete.setEnabled(false);
    openKeyStage();
    txtSCode_Change();
    txtSCode.setFocus();
    browse.fill();
}

void frmCoding::AddRoutine()
{
    Connection(m_program.StoreConnectionString)
        .execute(u"INSERT INTO ZRVtbCoding VALUES "_s + u"("_s + quoted(m_list) + u","_s + quoted(m_listName) + u","_s
                 + quoted(txtSCode.text().trimmed()) + u","_s + quoted(txtSDesc.text().trimmed()) + u")"_s);
}

void frmCoding::UpdateRoutine()
{
    Connection(m_program.StoreConnectionString)
        .execute(u"UPDATE ZRVtbCoding Set MDesc = "_s + quoted(m_listName) + u",SDesc = "_s
                 + quoted(txtSDesc.text().trimmed()) + u" WHERE SCode = "_s + quoted(txtSCode.text().trimmed())
                 + u" AND "_s + u"MCode = "_s + quoted(m_list));
}

void frmCoding::DeleteRoutine()
{
    Connection(m_program.StoreConnectionString)
        .execute(u" DELETE From ZRVtbCoding "_s + u" WHERE SCode = "_s + quoted(txtSCode.text().trimmed()) + u" AND "_s
                 + u"MCode = "_s + quoted(m_list));
}

QString frmCoding::searchStatement(const QString &condition) const
{
    return u"SELECT val(SCode) AS SCode,SDesc FROM ZRVtbCoding"_s + u" WHERE "_s + u" MCode = "_s + quoted(m_list)
           + u" AND ("_s + condition + u")"_s;
}

/// Looks for the same description in the list; if it is there, says so and shows those like it.
bool frmCoding::RecordIsDuplicate()
{
    const QString description = txtSDesc.text().trimmed();
    if (!RecordExists(m_program, u"SELECT * FROM ZRVtbCoding"_s + u" WHERE MCode = "_s + quoted(m_list) + u" AND "_s
                                     + u"Sdesc = "_s + quoted(description)))
        return false;
    messageBox(box::Refusal, Refused,
               u" عبارت ( "_s + description
                   + u" ) قبلا تعريف شده است.لطفا از تعريف مجدد عبارتهاي تکراري اکيدا خودداري نماييد"_s + u"\r\n"_s
                   + u"جهت اطلاع ، عبارتهاي مشابه تعريف شده قبلي در ليست زير نمايش داده شده است"_s);
    browse.show(searchStatement(browse.wordCondition(u"SDesc"_s, searchWords(description), true)), SearchOrder);
    return true;
}

bool frmCoding::deletionIsRefused()
{
    const QString code = txtSCode.text().trimmed();
    if (m_list == CountryList && code == HomeCountry) {
        messageBox(box::Refusal, Refused, u" حذف کشور ايران امکانپذير نميباشد "_s);
        return true;
    }
    for (const Guard &guard : Guards) {
        if (guard.list != m_list)
            continue;
        if (!RecordExists(m_program,
                          u"SELECT * FROM "_s + guard.table + u" WHERE "_s + guard.column + u" = "_s + quoted(code)))
            continue;
        messageBox(box::Refusal, Refused,
                   guard.message + u"\r"_s
                       + u"جهت انجام عمليات حذف ابتدا مورد(موارد) فوق را حذف نموده و سپس نسبت به حذف کد مورد نظر "
                         "اقدام نماييد اقدام فرماييد"_s);
        return true;
    }
    return false;
}

void frmCoding::cmdDelete_Click()
{
    if (deletionIsRefused())
        return;
    if (confirmDelete())
        DeleteRoutine();
    backToKey();
}

} // namespace zrv
