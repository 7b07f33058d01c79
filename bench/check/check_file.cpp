// SPDX-License-Identifier: GPL-3.0-or-later

// Checks one WH file the way zrvcheck does, with instructions of one's choice:
//
//     bench_check best|avx2|sse2|plain|none THREADS FILE
//
// "none" looks at every line field by field. Its last line is the peak memory as the system tells it.
// bench/check/run.py starts it.

#include "core/public/program_version.h"
#include "files/structure_check.h"

#include <QFile>

#include <cstdio>
#include <optional>

namespace {

using namespace zrv;

class Count : public CheckEvents {
public:
    explicit Count(bool errorsAlone)
        : m_errorsAlone(errorsAlone)
    {
    }
    [[nodiscard]] bool wantsErrorsAlone() const override { return m_errorsAlone; }
    void finding(const Finding &) override {}

private:
    bool m_errorsAlone;
};

std::optional<Instructions> instructionsNamed(QByteArrayView name)
{
    if (name == "avx2")
        return Instructions::Avx2;
    if (name == "sse2")
        return Instructions::Sse2;
    if (name == "plain")
        return Instructions::Plain;
    return name == "best" || name == "none" ? std::optional(bestInstructions()) : std::nullopt;
}

void printPeakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            std::puts(line.constData());
    }
}

} // namespace

int main(int argc, char **argv)
{
    const std::optional<Instructions> instructions = argc == 4 ? instructionsNamed(argv[1]) : std::nullopt;
    if (!instructions || !hasInstructions(*instructions))
        return 2;
    Count events(QByteArrayView(argv[1]) != "none");
    const CheckOptions options{.programVersion = CurrentProgramVersion.toString(),
                               .threads = QByteArray(argv[2]).toUInt(),
                               .instructions = *instructions};
    const CheckOutcome outcome = StructureCheck(whRules(), QFile::decodeName(argv[3]), options).run(events);
    std::printf("%lld lines, %lld errors\n", static_cast<long long>(outcome.records),
                static_cast<long long>(outcome.errors));
    printPeakMemory();
    return outcome.end == CheckEnd::Finished ? 0 : 1;
}
