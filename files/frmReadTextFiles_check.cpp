// SPDX-License-Identifier: GPL-3.0-or-later
// The checks of the structure: their runs, their reports and the log.
#include "core/basic/run_time_error.h"
#include "core/basic/safe_file.h"
#include "core/mdlPublic.h"
#include "files/checked_lines.h"
#include "files/contents_columns.h"
#include "files/frmReadTextFiles_controls.h"
#include "files/report_writer.h"

#include <QDir>

#include <thread>

namespace zrv {

namespace {

constexpr qint64 DrawEveryMs = 50;
const QString WaitingText = u"در حال خواندن و کنترل صحت اطلاعات فايل متني ، لطفا منتظر بمانيد ...  "_s;
const QString LogFolder = u"/ErrorLog"_s;

/// The box of a log that can't be made, which is that of a check's failures.
ClosingBox logFailure(const RunTimeError &failure)
{
    return *closingBox(FileKind::Wh,
                       {.end = CheckEnd::Failed, .failure = failure.number(), .description = failure.description()});
}

} // namespace

// A run -------------------------------------------------------------------------------------------------------

frmReadTextFiles::Run::Run(frmReadTextFiles &screen)
    : m_screen(screen)
    , m_focused(screen.activeControl())
    , m_couldPrint(screen.cmdPrint.isEnabled())
{
    for (Control *const control : std::initializer_list<Control *>{&screen.framFiles, &screen.framHogog,
                                                                   &screen.framKhol, &screen.cmdPrint, &screen.cmdExit})
        control->setEnabled(false);
    screen.LabelWaitingMessage.setCaption(WaitingText);
    screen.LabelWaitingShare.setCaption({});
    screen.PPICWaitingMessage.setVisible(true);
    screen.cmdCancel.onClick = [this] { m_isCancelled = true; };
    screen.setLiveWhileBusy(&screen.cmdCancel);
    draw();
}

frmReadTextFiles::Run::~Run()
{
    m_screen.setLiveWhileBusy(nullptr);
    m_screen.cmdCancel.onClick = nullptr;
    for (Control *const control : std::initializer_list<Control *>{&m_screen.framFiles, &m_screen.framHogog,
                                                                   &m_screen.framKhol, &m_screen.cmdExit})
        control->setEnabled(true);
    m_screen.cmdPrint.setEnabled(m_couldPrint);
    if (m_screen.cmdCancel.hasFocus() && m_focused)
        m_focused->setFocus();
    m_screen.PPICWaitingMessage.setVisible(false);
}

bool frmReadTextFiles::Run::goesOn(qint64 records, qint64 offset, qint64 fileSize)
{
    if (m_sinceDrawn.elapsed() < DrawEveryMs)
        return !m_isCancelled;
    m_screen.LabelWaitingMessage.setCaption(progressText(records));
    m_screen.LabelWaitingShare.setCaption(QString::number(fileSize > 0 ? offset * 100 / fileSize : 0) + u" %"_s);
    draw();
    return !m_isCancelled;
}

bool frmReadTextFiles::Run::goesOn()
{
    if (m_sinceDrawn.elapsed() >= DrawEveryMs)
        draw();
    return !m_isCancelled;
}

void frmReadTextFiles::Run::draw()
{
    m_screen.m_platform.yield();
    m_sinceDrawn.start();
}

// A check --------------------------------------------------------------------------------------------------------

void frmReadTextFiles::cmdCheckHogogStructure_Click()
{
    checkStructure(FileKind::Wh);
}

void frmReadTextFiles::cmdCheckKholStructure_Click()
{
    checkStructure(FileKind::Wk);
}

/// After a check the keyboard is still at the check's button, and the first thing asked for is the first error: F8 finds
/// it from wherever the keyboard is, and takes it there, so that Enter leads on to the field.
bool frmReadTextFiles::Form_KeyDown(Key key)
{
    if (key != Key::F8)
        return false;
    ReportBox *const box = SSTab1.page() == HogogStructurePage  ? &txtHogogStructure
                           : SSTab1.page() == KholStructurePage ? &txtKholStructure
                                                                : nullptr;
    // The report and its field for a word have keys of their own.
    if (!box || (activeControl() && activeControl()->name().startsWith(box->name())))
        return false;
    if (box->goToNextError())
        box->setFocus();
    return true;
}

CheckOptions frmReadTextFiles::checkOptions(FileKind kind) const
{
    const bool isWh = kind == FileKind::Wh;
    return {.onlyErrors = (isWh ? chkDisplayOnlyHogogErrors : chkDisplayOnlyKholErrors).isChecked(),
            .firstTwoLines = isWh && chkTowFirstLineAreChecked.isChecked(),
            .programVersion = m_program.ProgramVersion,
            .threads = std::thread::hardware_concurrency()};
}

void frmReadTextFiles::checkStructure(FileKind kind)
{
    if (isLogged(kind) && !beginLog())
        return;
    const FileControls controls = controlsOf(kind);
    controls.box.setLines(nullptr);
    controls.report.reset();
    SSTab1.setPage(controls.reportPage);

    const auto report = std::make_shared<CheckReport>(kind, controls.path, checkOptions(kind), [this] {
        return QString(SolarDate(m_platform.today()) + u" - "_s + m_platform.timeOfDay().toString(u"HH:mm:ss"_s));
    });
    const CheckOutcome outcome = runCheck(*report);
    // Of a run that its user ended, too, what it had found by then is of use.
    const bool isShown = outcome.showsReport || outcome.end == CheckEnd::Cancelled;
    // A summary list's report is there when the box tells of the end; a salary list's comes behind box and log.
    if (isShown && kind == FileKind::Wk)
        showReport(kind, report);
    if (const std::optional<ClosingBox> closing = closingBox(kind, outcome))
        messageBox(closing->style, closing->title, closing->text);
    tellOddities(outcome.oddities);
    // Before the report is on the screen: it has one reader at a time.
    if (isLogged(kind) && outcome.end == CheckEnd::Finished)
        writeLog(*report);
    if (isShown && kind == FileKind::Wh)
        showReport(kind, report);
}

void frmReadTextFiles::showReport(FileKind kind, const std::shared_ptr<CheckReport> &report)
{
    const FileControls controls = controlsOf(kind);
    controls.report = report;
    controls.checked = controls.path;
    controls.box.setLines(std::make_shared<CheckedLines>(report));
}

CheckOutcome frmReadTextFiles::runCheck(CheckReport &report)
{
    Run run(*this);
    CheckOutcome outcome = report.run(
        [&](const CheckPlace &place) { return run.goesOn(place.state.records, place.offset, report.fileSize()); });
    LabelWaitingMessage.setCaption(progressText(outcome.records));
    return outcome;
}

/// Such a file is read like any other; its reader is told why nothing in it is as it should be.
void frmReadTextFiles::tellOddities(const FileOddities &oddities)
{
    if (!oddities.isUtf8 && !oddities.isBigEndian)
        return;
    messageBox(box::Notice, u"توجه"_s,
               u"کدگذاري اين فايل "_s + (oddities.isUtf8 ? u"UTF-8"_s : u"UTF-16 BE"_s)
                   + u" است و محتوي آن درست خوانده نميشود. فايلهاي الکترونيکي بايد با کدگذاري UTF-16 LE ذخيره شوند"_s);
}

// The log --------------------------------------------------------------------------------------------------------

QString frmReadTextFiles::logPath() const
{
    return QDir::toNativeSeparators(m_platform.programFolder() + LogFolder + u"/HogogErrorLog.TXT"_s);
}

void frmReadTextFiles::chkCreatHogogErrorLogFile_Click()
{
    LabelHogogTextErrorLogPath.setCaption(chkCreatHogogErrorLogFile.isChecked() ? logPath() : QString());
}

void frmReadTextFiles::cmdShowErrorLogFile_Click()
{
    m_platform.viewFile(logPath());
}

bool frmReadTextFiles::isLogged(FileKind kind) const
{
    return kind == FileKind::Wh && chkCreatHogogErrorLogFile.isChecked();
}

/// The log of a run that doesn't come to its end is empty, and none of an earlier run. False where it can't be made:
/// then nothing is checked, and what an earlier run has shown stays.
bool frmReadTextFiles::beginLog()
{
    try {
        EnsureFolder(m_platform.programFolder() + LogFolder);
        SafeFile(logPath()).commit();
        return true;
    } catch (const RunTimeError &failure) {
        const ClosingBox told = logFailure(failure);
        messageBox(told.style, told.title, told.text);
        return false;
    }
}

void frmReadTextFiles::writeLog(CheckReport &report)
{
    try {
        Run run(*this);
        SafeFile file(logPath());
        ReportLog log(file);
        if (!report.write(log, [&] { return run.goesOn(); }))
            return;
        log.finish();
        file.commit();
    } catch (const RunTimeError &failure) {
        const ClosingBox told = logFailure(failure);
        messageBox(told.style, told.title, told.text);
    }
}

// From the report to the contents --------------------------------------------------------------------------------

/// Shows the record and the field that a line of the report speaks of.
void frmReadTextFiles::showPlace(FileKind kind, qint64 line)
{
    const FileControls controls = controlsOf(kind);
    const ReportPlace place = controls.report ? controls.report->placeOf(line) : ReportPlace();
    if (place.record == 0 || !hasContents(kind))
        return;
    const bool isWh = kind == FileKind::Wh;
    const bool isPayer = isWh && place.record == 1;
    Grid &grid = isPayer ? dbgKarfarma : isWh ? browse.grid : dbgKhol;
    const ContentsTable &table = isPayer ? payerContents() : isWh ? payeeContents() : summaryContents();
    if (isWh && !isPayer) {
        browse.OptNormal.setChecked(true);
        browse.fillAsStored();
    }
    SSTab1.setPage(isPayer ? KarfarmaPage : controls.contentsPage);
    const qint64 row = place.record - (isWh && !isPayer ? 2 : 1);
    if (row < grid.rowCount())
        grid.setCurrent(static_cast<int>(row), table.columnOf(place.field));
    grid.setFocus();
}

/// Whether the grids show what the report speaks of; they are filled if they don't.
bool frmReadTextFiles::hasContents(FileKind kind)
{
    const FileControls controls = controlsOf(kind);
    return controls.shown == controls.checked || (controls.path == controls.checked && loadFile(kind));
}

} // namespace zrv
