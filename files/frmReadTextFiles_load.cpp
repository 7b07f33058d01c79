// SPDX-License-Identifier: GPL-3.0-or-later
// The contents of the files in the grids, and the search among the payees.
#include "core/basic/run_time_error.h"
#include "core/mdlError.h"
#include "core/store_rows.h"
#include "files/contents_columns.h"
#include "files/frmReadTextFiles_controls.h"

namespace zrv {

namespace {

const QString HogogCaption = u"ليست حقوق"_s;
const QString DetailsFollow = u"و جزئيات ذيل ميباشد"_s;

QString rowsOfTable(const ContentsTable &table)
{
    return u"SELECT * FROM "_s + table.name;
}

/// What is said of a path that is none, and of one whose name is another's.
QString refusalOf(FileKind kind, bool isNone)
{
    if (kind == FileKind::Wh)
        return u"فايل ليست حقوق را صحيح انتخاب ننموده ايد.لطفا فايل صحيح را انتخاب نماييد "_s;
    return isNone ? u"فايل خلاصه ليست حقوق را صحيح انتخاب ننموده ايد.لطفا فايل صحيح را انتخاب نماييد "_s
                  : u"فايل خلاصه ليست را صحيح انتخاب ننموده ايد.لطفا فايل صحيح را انتخاب نماييد "_s;
}

} // namespace

void frmReadTextFiles::wireContents()
{
    dbgKhol.setColumns(summaryContents().gridColumns());
    dbgKarfarma.setColumns(payerContents().gridColumns());
    browse.setUp(
        {.all = [] { return rowsOfTable(payeeContents()); },
         .search = [](const QString &sought) { return QString(rowsOfTable(payeeContents()) + u" WHERE "_s + sought); },
         .countFormat = u"#,##0"_s,
         .open = [this](const QString &select) { return openPayees(select); }},
        payeeContents().browseColumns());
    // Words are always sought as alternatives here.
    browse.chkAnd.setVisible(false);
    browse.onShown = [this](bool areSought) { showHeading(areSought); };
    browse.grid.onHeadClick = [this, panels = browse.grid.onHeadClick](int column) {
        panels(column);
        headClicked();
    };
}

/// A million rows are not searched or sorted in a moment: then it is a run like a check.
std::shared_ptr<const RowSource> frmReadTextFiles::openPayees(const QString &select)
{
    constexpr int QuestionsOfAMoment = 10;
    if (!m_payees)
        return nullptr;
    std::optional<Run> run;
    return openRows(m_payees->rows(select, [&, asked = 0]() mutable {
        if (!run && ++asked > QuestionsOfAMoment)
            run.emplace(*this);
        return !run || run->goesOn();
    }));
}

/// Told on a click that chooses the column of a search, too.
void frmReadTextFiles::headClicked()
{
    if (!browse.OptSort.isChecked())
        messageBox(box::Information, u"  توجه"_s, u"در اين فرم عمليات مرتب سازي فعال نميباشد "_s);
}

void frmReadTextFiles::showHeading(bool areSought)
{
    lblHogog.setCaption(areSought ? u"نمايش محتوي ليست حقوق"_s + u"- تعداد = "_s + QString::number(browse.rowCount())
                                  : m_hogogHeading);
}

// A load ---------------------------------------------------------------------------------------------------------

void frmReadTextFiles::cmdHogogShow_Click()
{
    (void)loadFile(FileKind::Wh);
}

void frmReadTextFiles::cmdKholShow_Click()
{
    (void)loadFile(FileKind::Wk);
}

bool frmReadTextFiles::isRefused(FileKind kind)
{
    const FileControls controls = controlsOf(kind);
    const bool isNone = controls.path.isEmpty();
    if (fileKindOf(controls.path) == kind)
        return false;
    messageBox(box::Refusal, u" اخطار  "_s, refusalOf(kind, isNone));
    if (!isNone) {
        controls.label.setCaption({});
        controls.label.setToolTip({});
    }
    return true;
}

/// False when the contents are not in the grids.
bool frmReadTextFiles::loadFile(FileKind kind)
{
    if (isRefused(kind))
        return false;
    const FileControls controls = controlsOf(kind);
    SSTab1.setPage(controls.contentsPage);
    dropContents(kind);
    std::optional<FileContents> contents;
    try {
        Run run(*this);
        contents = readContents(
            kind, controls.path, CodeWords(m_program.StoreConnectionString),
            [&](qint64 lines, qint64 offset, qint64 fileSize) { return run.goesOn(lines, offset, fileSize); });
    } catch (const RunTimeError &failure) {
        tellLoadFailure(kind, failure);
    }
    if (!contents)
        return false;
    LabelWaitingMessage.setCaption(progressText(contents->rows));
    const FileOddities oddities = contents->oddities;
    try {
        showContents(kind, std::move(*contents));
    } catch (const RunTimeError &failure) {
        ShowInlineError(m_platform, failure);
    }
    tellOddities(oddities);
    return true;
}

void frmReadTextFiles::dropContents(FileKind kind)
{
    controlsOf(kind).shown.clear();
    if (kind == FileKind::Wk) {
        dbgKhol.setRows(nullptr);
        lblKhol.setCaption({});
        return;
    }
    framHogogContents.setCaption(HogogCaption);
    m_payees.reset();
    m_hogogHeading.clear();
    ArrangeSearchBar(false, *this);
    browse.OptNormal.setChecked(true);
    browse.fillAsStored();
    dbgKarfarma.setRows(nullptr);
    for (Label *const label : {&lblKarfarma, &LabelVersion})
        label->setCaption({});
}

void frmReadTextFiles::showContents(FileKind kind, FileContents contents)
{
    m_program.DisplayedTFN = contents.TFN;
    if (kind == FileKind::Wh)
        m_program.DisplayedCodeShobe = contents.CodeShobe;
    m_program.DisplayedTaxYear = contents.TaxYear;
    m_program.DisplayedTaxMonth = contents.TaxMonth;
    m_monthName = contents.monthName;
    const QString file = contents.TFN + u" - کد شعبه "_s + m_program.DisplayedCodeShobe + u" در "_s + m_monthName
                         + u" ماه سال "_s + contents.TaxYear;
    if (kind == FileKind::Wh)
        showHogog(std::move(contents), file);
    else
        showKhol(contents, file);
    controlsOf(kind).shown = controlsOf(kind).path;
    cmdPrint.setEnabled(true);
}

void frmReadTextFiles::showHogog(FileContents contents, const QString &file)
{
    m_hogogMonth = contents.monthName;
    m_hogogYear = contents.TaxYear;
    lblKarfarma.setCaption(u"اين پرداخت کننده حقوق داراي پرونده اي با کد : "_s + file + DetailsFollow);
    LabelVersion.setCaption(contents.version);
    m_hogogHeading = u"ليست حقوق الکترونيکي مربوط به پرونده اي با کد : "_s + file + u" (تعداد کد ملي نامعتبر : "_s
                     + QString::number(contents.invalidCodes) + u" ) "_s;
    framHogogContents.setCaption(HogogCaption + u"-تعداد="_s + QString::number(contents.rows));
    dbgKarfarma.setRows(openRows(contents.payer->rows(rowsOfTable(payerContents()))));
    m_payees = std::move(contents.table);
    browse.fill();
}

void frmReadTextFiles::showKhol(const FileContents &contents, const QString &file)
{
    lblKhol.setCaption(u"خلاصه ليست الکترونيکي آماده شده جهت ارسال مربوط به پرونده اي با کد : "_s + file
                       + DetailsFollow);
    dbgKhol.setRows(openRows(contents.table->rows(rowsOfTable(summaryContents()))));
}

/// As a check tells it, but for two failures.
void frmReadTextFiles::tellLoadFailure(FileKind kind, const RunTimeError &failure)
{
    const QString told = QString::number(failure.number()) + u" < "_s + failure.description() + u" > "_s;
    if (failure.number() == error::InputPastEnd)
        messageBox(box::Plain, {}, u"ساختار فايل متني ليست حقوق صحيح نميباشد\r"_s + told);
    else if (failure.number() == error::FileNotFound && kind == FileKind::Wk)
        messageBox(
            box::Plain, {},
            u"فايل مورد نظر يافت نشد.از وجود فايل خلاصه ليست حقوق در مسير انتخاب شده اطمينان حاصل نموده و سپس مجددا عمليات را اجرا نماييد\r"_s
                + told);
    else if (const auto closing = closingBox(
                 kind, {.end = CheckEnd::Failed, .failure = failure.number(), .description = failure.description()}))
        messageBox(closing->style, closing->title, closing->text);
}

} // namespace zrv
