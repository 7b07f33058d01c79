// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/check_files.h"

#include "core/basic/run_time_error.h"
#include "core/public/program_version.h"
#include "files/check_catalogue.h"
#include "tools/zrvcheck/file_output.h"
#include "tools/zrvcheck/finding_lines.h"
#include "tools/zrvcheck/utf8_report.h"

#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace zrv::checktool {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Writes a line for each error and keeps the first for the table.
class ErrorLines : public CheckEvents {
public:
    ErrorLines(const FileRules &rules, const CheckOptions &options, FileResult &result, FileOutput *lines)
        : m_rules(rules)
        , m_result(result)
        , m_words(rules, options.programVersion, result.path)
        , m_lines(lines)
    {
    }

    [[nodiscard]] bool wantsErrorsAlone() const override { return true; }
    void finding(const Finding &finding) override
    {
        if (m_result.firstError.isEmpty())
            m_result.firstError = place(finding) + u' ' + findingName(m_rules, finding);
        if (m_lines) {
            m_words.append(finding, m_lines->block());
            m_lines->flushIfFull();
        }
    }

private:
    static QString place(const Finding &finding)
    {
        return QString::number(finding.line) + u':' + QString::number(finding.field);
    }

    const FileRules &m_rules;
    FileResult &m_result;
    FindingLines m_words;
    FileOutput *m_lines;
};

struct OddityWords {
    bool FileOddities::*flag;
    QStringView words;
};

constexpr OddityWords Oddities[] = {
    {&FileOddities::isUtf8, u"it begins with the mark of UTF-8, but electronic files are UTF-16, little-endian"},
    {&FileOddities::isBigEndian,
     u"it begins with the mark of UTF-16, big-endian, but electronic files are little-endian"},
    {&FileOddities::hasNoMark,
     u"it doesn't begin with the mark of UTF-16, little-endian; it is read as such all the same"},
    {&FileOddities::hasOddLength, u"its length is odd; the last byte is left out"},
};

/// What was met beside the errors: an odd way of writing, and what ended the check early.
void addRemarks(const CheckOutcome &outcome, FileResult &result, FileOutput &list)
{
    for (const OddityWords &oddity : Oddities) {
        if (outcome.oddities.*oddity.flag) {
            list.addText(result.path + u": note: "_s + oddity.words + u'\n');
            break;
        }
    }
    if (outcome.end != CheckEnd::Failed)
        return;
    result.isStopped = true;
    // Comparing a text with a number fails for what is in the file; it could be read well enough.
    result.isUnreadable = outcome.failure != error::TypeMismatch;
    const QString place =
        outcome.line > 0 ? u':' + QString::number(outcome.line) + u':' + QString::number(outcome.field) : QString();
    list.addText(result.path + place + u": the check ends here: "_s + QString::number(outcome.failure) + u" < "_s
                 + QString(outcome.description).replace(u'\n', u' ') + u" >\n"_s);
}

FileResult checkFile(const QString &path, const CheckJob &job, FileOutput &list, FileOutput &reports)
{
    const Request &request = job.request;
    const bool writesReport = !request.report.isEmpty();
    const FileRules &rules = rulesOf(fileKindOf(path).value_or(FileKind::Wh));
    const CheckOptions options{.onlyErrors = request.onlyErrors,
                               .firstTwoLines = request.firstTwoLines,
                               .programVersion = CurrentProgramVersion.toString(),
                               .threads = std::max(1U, job.threads / unsigned(job.files.size()))};
    FileResult result{.path = path};
    if (QFileInfo(path).isDir()) {
        result.isStopped = result.isUnreadable = true;
        list.addText(path + u": the folder can't be read\n"_s);
        return result;
    }
    ErrorLines lines(rules, options, result, request.summary || writesReport ? nullptr : &list);
    const CheckOutcome outcome = StructureCheck(rules, path, options).run(lines);
    result.records = outcome.records;
    result.errors = outcome.errors;
    addRemarks(outcome, result, list);
    // Only now is it known whether there is a report.
    if (writesReport && outcome.showsReport) {
        Utf8Report report(rules, options, job.clock, reports);
        const CheckOutcome told = StructureCheck(rules, path, options).run(report);
        if (told.end != outcome.end || told.records != outcome.records || told.errors != outcome.errors) {
            result.isStopped = result.isUnreadable = true;
            list.addText(path + u": the file was changed while its report was written\n"_s);
        }
    }
    return result;
}

/// Takes file after file until none is left, as every other thread does.
void work(const CheckJob &job, std::atomic<std::size_t> &next, std::vector<FileResult> &results, OrderedOutput &list,
          OrderedOutput *reports)
{
    const auto count = static_cast<std::size_t>(job.files.size());
    for (std::size_t place = next++; place < count; place = next++) {
        FileOutput listOfFile(&list, place);
        FileOutput reportOfFile(reports, place);
        results[place] = checkFile(job.files[static_cast<qsizetype>(place)], job, listOfFile, reportOfFile);
        listOfFile.flush();
        reportOfFile.flush();
    }
}

} // namespace

std::vector<FileResult> checkFiles(const CheckJob &job, OrderedOutput &list, OrderedOutput *reports)
{
    std::vector<FileResult> results(static_cast<std::size_t>(job.files.size()));
    std::atomic<std::size_t> next = 0;
    std::exception_ptr failure;
    std::mutex failing;
    const auto guardedWork = [&] {
        try {
            work(job, next, results, list, reports);
        } catch (...) {
            const std::scoped_lock lock(failing);
            failure = std::current_exception();
            next = results.size();
        }
    };
    std::vector<std::jthread> others;
    const std::size_t threads = std::min<std::size_t>(job.threads, results.size());
    for (std::size_t i = 1; i < threads; ++i)
        others.emplace_back(guardedWork);
    guardedWork();
    others.clear();
    if (failure)
        std::rethrow_exception(failure);
    return results;
}

QString tableText(const std::vector<FileResult> &results)
{
    struct Row {
        QString file, records, errors, first;
    };
    std::vector<Row> rows{{u"file"_s, u"records"_s, u"errors"_s, u"first error"_s}};
    for (const FileResult &result : results) {
        const QString early = result.isUnreadable ? u"could not be read"_s : u"stopped early"_s;
        const QString first = result.firstError.isEmpty() && result.isStopped ? early : result.firstError;
        rows.push_back({result.path, QString::number(result.records), QString::number(result.errors), first});
    }
    qsizetype width = 0;
    for (const Row &row : rows)
        width = std::max(width, row.file.size());
    constexpr qsizetype NumberWidth = 9;
    QString text;
    for (const Row &row : rows) {
        const QString line = row.file.leftJustified(width) + u' ' + row.records.rightJustified(NumberWidth) + u' '
                             + row.errors.rightJustified(NumberWidth) + u"  "_s + row.first;
        text += line;
        while (text.endsWith(u' '))
            text.chop(1);
        text += u'\n';
    }
    return text;
}

int exitStatus(const std::vector<FileResult> &results)
{
    if (std::ranges::any_of(results, &FileResult::isUnreadable))
        return 2;
    const auto isFaulty = [](const FileResult &result) { return result.errors > 0 || result.isStopped; };
    return std::ranges::any_of(results, isFaulty) ? 1 : 0;
}

} // namespace zrv::checktool
