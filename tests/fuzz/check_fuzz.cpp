// SPDX-License-Identifier: GPL-3.0-or-later

// Throws any bytes at the structure check, as a WH and as a WK file. Beside what the sanitizers see, all ways to the same
// errors and the same report must agree, or the run ends.

#include "files/check_report.h"
#include "tests/fuzz/fuzz_target.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <tuple>

namespace {

using namespace zrv;
using namespace Qt::Literals::StringLiterals;

class Findings : public CheckEvents {
public:
    explicit Findings(bool alone)
        : m_alone(alone)
    {
    }
    bool wantsErrorsAlone() const override { return m_alone; }
    void finding(const Finding &finding) override
    {
        text += QString::number(finding.number) + u' ' + QString::number(finding.line) + u' '
                + QString::number(finding.field) + u' ' + QString::number(finding.offset) + u' '
                + QString::number(int(finding.kind)) + u' ' + finding.value + u'\n';
    }

    QString text;

private:
    bool m_alone;
};

class Whole : public ReportSink {
public:
    void add(QStringView piece) override { text += piece; }
    void endLine() override { text += u"\r\n"; }

    QString text;
};

void expect(bool holds)
{
    if (!holds)
        std::abort();
}

void check(FileKind kind, const QString &path, const CheckOptions &options)
{
    Findings plain(false);
    const CheckOutcome outcome = StructureCheck(rulesOf(kind), path, options).run(plain);
    CheckOptions otherwise = options;
    otherwise.shareBytes = 600;
    for (const auto &[instructions, block, threads] : {std::tuple(Instructions::Plain, 100U, 1U),
                                                       {bestInstructions(), 1000U, 1U},
                                                       {Instructions::Sse2, LineReader::DefaultBlock, 2U}}) {
        otherwise.instructions = hasInstructions(instructions) ? instructions : bestInstructions();
        otherwise.blockUnits = block;
        otherwise.threads = threads;
        Findings alone(true);
        const CheckOutcome quick = StructureCheck(rulesOf(kind), path, otherwise).run(alone);
        expect(plain.text == alone.text && outcome.errors == quick.errors && outcome.records == quick.records
               && outcome.end == quick.end && outcome.line == quick.line && outcome.field == quick.field);
    }
    (void)closingBox(kind, outcome);

    const ReportClock clock = [] { return u"-"_s; };
    CheckReport report(kind, path, options, clock);
    (void)report.run();
    CheckReport shared(kind, path, otherwise, clock);
    (void)shared.run();
    expect(shared.length() == report.length() && shared.lineCount() == report.lineCount());
    Whole whole;
    expect(report.write(whole) && whole.text.size() == report.length());
    QString pieces;
    const qint64 step = report.lineCount() / 3 + 1;
    for (qint64 line = 0; line < report.lineCount(); line += step)
        pieces += (line > 0 ? u"\r\n"_s : QString()) + report.lines(line, step);
    expect(whole.text == pieces || whole.text == pieces + u"\r\n"_s);
    constexpr qint64 Enough = 3;
    qint64 errors = 0;
    for (qint64 line = report.nextError(-1); line >= 0 && errors < Enough; line = report.nextError(line))
        ++errors;
    expect(errors == std::min(Enough, report.errorCount()));
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const QTemporaryDir Folder;
    for (const auto &[kind, name] :
         {std::pair(FileKind::Wh, u"WH138902.TXT"_s), std::pair(FileKind::Wk, u"WK138902.TXT"_s)}) {
        const QString path = Folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(reinterpret_cast<const char *>(data), qint64(size)) < 0)
            return -1;
        file.close();
        check(kind, path, {.onlyErrors = size % 2 == 0, .programVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s});
    }
    return 0;
}
