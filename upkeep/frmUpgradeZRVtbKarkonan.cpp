// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/frmUpgradeZRVtbKarkonan.h"

#include "core/basic/number_format.h"
#include "core/mdlError.h"
#include "core/store_rows.h"

#include <algorithm>

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString LineEnd = u"\r\n"_s;
constexpr int RefusalStyle = box::Critical | box::RightAligned | box::RightToLeft;
constexpr int NoticeStyle = box::Information | box::RightAligned | box::RightToLeft;

/// What is told of a job: heading and note of its rows, and what the command that moves them asks first.
struct JobTexts {
    QStringView item;
    QStringView heading;
    QStringView note;
    QStringView question;
};

// clang-format off
constexpr JobTexts Texts[] = {
    {u"01",
     u"ليست کارکناني که مدرک تحصيلي آنها به (بي سواد و کم سواد) تبديل خواهد گرديد",
     u"با اتمام عمليات بروزرساني مدرک تحصيلي کليه افراد زير به (بي سواد و کم سواد) تغيير خواهد يافت.لطفا اقدام لازم جهت يادداشت مشخصات اين افراد و نهايتا اصلاح مدرک تحصيلي اين افراد از (بي سواد و کم سواد) به عبارت صحيح پس از اتمام عمليات بروزرساني توسط فرم تعريف کارکنان را معمول فرماييد",
     u" در صورت تاييد ادامه عمليات مدرک تحصيلي کليه کارکنان با مدرک تحصيلي غير مجاز (با کد بزرگتر از 8) به (بي سواد و کم سواد) تبديل خواهد گرديد."},
    {u"10",
     u"ليست کارکناني که رسته آنها به ساير تبديل خواهد گرديد",
     u"با اتمام عمليات بروزرساني رسته کليه افراد زير به (ساير) تغيير خواهد يافت.لطفا اقدام لازم جهت يادداشت مشخصات اين افراد و نهايتا اصلاح رسته اين افراد از ساير به عبارت صحيح پس از اتمام عمليات بروزرساني توسط فرم تعريف کارکنان را معمول فرماييد",
     u" در صورت تاييد ادامه عمليات رسته کليه کارکنان با رسته غير مجاز (با کد بزرگتر از 9) به (ساير) تبديل خواهد گرديد."},
    {u"13",
     u"ليست کارکناني که نوع معافيت آنها به (عدم معافيت) تبديل خواهد گرديد",
     u"با اتمام عمليات بروزرساني نوع معافيت کليه افراد زير به (عدم معافيت) تغيير خواهد يافت.لطفا اقدام لازم جهت يادداشت مشخصات اين افراد و نهايتا اصلاح نوع معافيت اين افراد از (عدم معافيت) به عبارت صحيح پس از اتمام عمليات بروزرساني توسط فرم تعريف کارکنان را معمول فرماييد",
     u" در صورت تاييد ادامه عمليات معافيت کليه کارکنان با معافيت غير مجاز (با کد بزرگتر از 11) به (عدم معافيت) تبديل خواهد گرديد."},
    {u"15",
     u"ليست کارکناني که نوع استخدام آنها به ساير تبديل خواهد گرديد",
     u"با اتمام عمليات بروزرساني نوع استخدام کليه افراد زير به (ساير) تغيير خواهد يافت.لطفا اقدام لازم جهت يادداشت مشخصات اين افراد و نهايتا اصلاح نوع استخدام اين افراد از ساير به عبارت صحيح پس از اتمام عمليات بروزرساني توسط فرم تعريف کارکنان را معمول فرماييد",
     u" در صورت تاييد ادامه عمليات نوع استخدام کليه کارکنان با نوع استخدام غير مجاز (با کد بزرگتر از 6) به (ساير) تبديل خواهد گرديد."},
    {u"08",
     u"ليست خلاصه ليست هايي که نام بانک آنها به ساير تبديل خواهد گرديد",
     u"با اتمام عمليات بروزرساني نام بانک  کليه خلاصه ليست هاي  زير به (ساير) تغيير خواهد يافت.لطفا اقدام لازم جهت يادداشت مشخصات اين خلاصه ليست ها  و نهايتا اصلاح نام بانک آنها از ساير به عبارت صحيح پس از اتمام عمليات بروزرساني توسط فرم خلاصه ليست را معمول فرماييد",
     u" در صورت تاييد ادامه عمليات کليه نام بانک هاي غير مجاز (با کد بزرگتر از 17) در خلاصه ليست ها، به (ساير) تبديل خواهد گرديد."},
};

struct JobColumn {
    QStringView shown; ///< what the statement names
    QStringView field;
    QStringView caption;
    bool leftToRight = false;
};

constexpr JobColumn PayeeColumns[] = {
    {u"MelliCode",                u"MelliCode",      u" کـد ملي ", true},
    {u"ZRVtbKarkonan.Name",       u"Name",           u" نـــام "},
    {u"ZRVtbKarkonan.Family",     u"Family",         u" نـــام خانوادگي "},
    {u"ZRVtbKarkonan.FatherName", u"FatherName",     u" نـــام پدر "},
    {u"ZRVtbCoding_2.SDesc",      u"Semat",          u" سمت يا شغل "},
    {u"ZRVtbKarkonan.Sabege",     u"Sabege",         u" سابقه ", true},
    {u"ZRVtbCoding_1.SDesc",      u"Madrak",         u" مدرک تحصيلي "},
    {u"ZRVtbCoding_3.SDesc",      u"Rasteh",         u" رسته شغلي "},
    {u"ZRVtbKarkonan.InsuNo",     u"InsuNo",         u" شماره بيمه ", true},
    {u"ZRVtbCoding_4.SDesc",      u"ShakhsMoafCode", u" نوع معافيت "},
    {u"ZRVtbCoding_5.SDesc",      u"EstekhdamType",  u" نوع استخدام "},
    {u"ZRVtbCoding_6.SDesc",      u"KeshvarCode",    u" کشور "},
};

constexpr JobColumn SummaryColumns[] = {
    {u"TFN",      u"TFN",      u" شماره پرونده ", true},
    {u"TaxYear",  u"TaxYear",  u" سال ", true},
    {u"TaxMonth", u"TaxMonth", u" مـــــاه ", true},
    {u"sdesc",    u"sdesc",    u"نام بانک"},
};

/// The code lists that are joined to the payees. The first has no alias, and no column shows it.
struct Joined {
    QStringView column;
    QStringView list;
    QStringView alias;
};

constexpr Joined PayeeLists[] = {
    {u"IDSeri",         u"3",  u"ZRVtbCoding"},
    {u"Madrak",         u"1",  u"ZRVtbCoding_1"},
    {u"Semat",          u"2",  u"ZRVtbCoding_2"},
    {u"Rasteh",         u"10", u"ZRVtbCoding_3"},
    {u"ShakhsMoafCode", u"13", u"ZRVtbCoding_4"},
    {u"EstekhdamType",  u"15", u"ZRVtbCoding_5"},
    {u"KeshvarCode",    u"12", u"ZRVtbCoding_6"},
};
// clang-format on

QString payeesStatement(const ExtendedList &list)
{
    QString columns = u"SELECT MelliCode, ZRVtbKarkonan.Name, ZRVtbKarkonan.Family, ZRVtbKarkonan.FatherName,"_s;
    for (const JobColumn &column : std::span(PayeeColumns).subspan(4)) {
        columns += column.shown + u" AS "_s + column.field;
        columns += &column == std::end(PayeeColumns) - 1 ? u""_s : u","_s;
    }
    QString joined = u"ZRVtbKarkonan"_s;
    for (const auto &[column, number, alias] : PayeeLists) {
        const QString named = alias == u"ZRVtbCoding" ? alias.toString() : QString(u"ZRVtbCoding AS "_s + alias);
        joined = u"("_s + joined + u" LEFT JOIN "_s + named + u" ON ZRVtbKarkonan."_s + column + u" = "_s + alias
                 + u".SCode AND "_s + alias + u".MCode = '"_s + number + u"')"_s;
    }
    return columns + u" FROM "_s + joined + u" WHERE "_s + list.condition;
}

QString summariesStatement(const ExtendedList &list)
{
    return u"SELECT TFN,TaxYear,TaxMonth,sdesc FROM ZRVtbKholList,ZRVtbCoding"_s + u" WHERE "_s
           + u" BankName=scode AND "_s + u" mcode = '8' AND "_s + list.condition;
}

std::vector<GridColumn> gridColumns(std::span<const JobColumn> columns)
{
    std::vector<GridColumn> shown;
    for (const JobColumn &column : columns)
        shown.push_back({column.field.toString(), column.caption.toString(), {}, column.leftToRight});
    return shown;
}

bool isOfBanks(const ExtendedList &list)
{
    return list.column == u"BankName";
}

} // namespace

frmUpgradeZRVtbKarkonan::frmUpgradeZRVtbKarkonan(Program &program)
    : Screen(program, u"frmUpgradeZRVtbKarkonan"_s)
{
    setCaption(u"اصلاح رکوردهاي ايجاد شده توسط کاربر در جداول اطلاعات پايه"_s);
    lstJobs.onItemCheck = [this](int row) { lstJobs_ItemCheck(row); };
    cmdDeleteAndUpdate.onClick = [this] { cmdDeleteAndUpdate_Click(); };
    cmdOnlyDelete.onClick = [this] { cmdOnlyDelete_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmUpgradeZRVtbKarkonan::serve(UpgradeRun &run, const QStringList &jobs)
{
    m_run = &run;
    for (const QString &job : jobs)
        lstJobs.addItem({job, {}});
}

void frmUpgradeZRVtbKarkonan::Form_Activate()
{
    if (!lstJobs.items().empty())
        lstJobs.setListIndex(0);
}

bool frmUpgradeZRVtbKarkonan::Form_QueryUnload(UnloadMode mode)
{
    if (mode == UnloadMode::SystemShutdown || lstJobs.items().empty())
        return true;
    messageBox(RefusalStyle, Refused,
               u"انجام کليه اصلاحات نمايش داده شده در اين فرم الزامي است.پس از انجام کليه موارد موجود در ليست امکان "
               "خروج از فرم موجود ميباشد"_s);
    return false;
}

void frmUpgradeZRVtbKarkonan::lstJobs_ItemCheck(int row)
{
    if (!lstJobs.items()[static_cast<size_t>(row)].checked)
        return;
    // One job at a time.
    for (int other = 0; std::cmp_less(other, lstJobs.items().size()); ++other)
        if (other != row)
            lstJobs.setItemChecked(other, false);
    ShowJob(extendedList(lstJobs.items()[static_cast<size_t>(row)].shown));
}

void frmUpgradeZRVtbKarkonan::ShowJob(const ExtendedList &list)
{
    try {
        fill(list);
    } catch (const RunTimeError &failure) {
        messageBox(box::Plain, u"Delete"_s, failure.description());
    }
}

void frmUpgradeZRVtbKarkonan::fill(const ExtendedList &list)
{
    const JobTexts &texts = *std::ranges::find(Texts, list.item, &JobTexts::item);
    m_question = texts.question + LineEnd + u"آيا  مطمئن  به ادامه عمليات هستيد ؟"_s;
    std::shared_ptr<const RowSource> rows =
        openRows(m_program, isOfBanks(list) ? summariesStatement(list) : payeesStatement(list));
    dbgLetter_Topic.setColumns(
        gridColumns(isOfBanks(list) ? std::span<const JobColumn>(SummaryColumns) : PayeeColumns));
    dbgLetter_Topic.setRows(std::move(rows));
    LabelGridCount.setCaption(Format(QString::number(dbgLetter_Topic.rowCount()), u"#,##0"_s));
    if (dbgLetter_Topic.rowCount() > 0) {
        lblForm.setCaption(texts.heading.toString());
        lblMessage.setCaption(texts.note.toString());
    }
}

int frmUpgradeZRVtbKarkonan::checkedJob()
{
    const auto checked = std::ranges::find(lstJobs.items(), true, &ListItem::checked);
    if (checked != lstJobs.items().end())
        return static_cast<int>(checked - lstJobs.items().begin());
    messageBox(
        RefusalStyle, Refused,
        u"انتخاب يکي از موارد موجود در ليست الزامي ميباشد.لطفا آيتم مورد نظر را تيک زده و سپس عمليات مورد نظر را "
        "اجرا نماييد."_s);
    return -1;
}

void frmUpgradeZRVtbKarkonan::cmdDeleteAndUpdate_Click()
{
    const int row = checkedJob();
    if (row < 0 || messageBox(box::AskYesNo, u"توجه"_s, m_question) != Answer::Yes)
        return;
    const ExtendedList &list = extendedList(lstJobs.items()[static_cast<size_t>(row)].shown);
    if (isOfBanks(list))
        UpdateZRVtbKholList(*m_run);
    else
        UpdateZRVtbKarkonan(*m_run, list.list.toString(), list.highest.toString(), list.replacement.toString());
    finishJob(row);
}

void frmUpgradeZRVtbKarkonan::cmdOnlyDelete_Click()
{
    if (const int row = checkedJob(); row >= 0)
        finishJob(row);
}

/// The list's rows go, whatever became of what hangs on them.
void frmUpgradeZRVtbKarkonan::finishJob(int row)
{
    const ExtendedList &list = extendedList(lstJobs.items()[static_cast<size_t>(row)].shown);
    DeleteZRVtbCodingUserAddedRecords(*m_run, list.list.toString(), list.highest.toString());
    ShowJob(list);
    lstJobs.removeItem(row);
    if (!lstJobs.items().empty())
        messageBox(NoticeStyle, u" اطلاع  "_s,
                   u"عمليات لازم جهت آيتم مورد نظر به پايان رسيد."_s + LineEnd
                       + u"لطفا آيتم بعدي را تيک زده و سپس عمليات مورد نظر را اجرا نماييد."_s);
}

} // namespace zrv
