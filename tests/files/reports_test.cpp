// SPDX-License-Identifier: GPL-3.0-or-later

// Whole reports compared byte for byte with approved ones. A case is a folder of tests/files/reports, made by
// make_cases.py there: a WH or WK file, and `options` in one line. `approved` is the report as the screen has it, where
// there is one, and the box behind it. One that differs is left beside it with ".received" behind its name; approving it
// is moving it there, after a look at every line.

#include "core/basic/run_time_error.h"
#include "tests/files/check_fixture.h"

#include <QDir>
#include <QRegularExpression>

namespace zrv {
namespace {

const QString ReportsFolder = QStringLiteral(ZRV_SOURCE_DIR "/tests/files/reports");

QStringList caseFolders()
{
    return QDir(ReportsFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A case's folder, read.
struct ReportCase {
    explicit ReportCase(const QString &name)
        : folder(ReportsFolder + u'/' + name)
        , kind(name.startsWith(u"wk") ? FileKind::Wk : FileKind::Wh)
    {
        path = folder + u'/' + QDir(folder).entryList({u"*.TXT"_s}, QDir::Files).value(0);
        const QString words = QString::fromUtf8(bytesOf(folder + u"/options"_s));
        options.onlyErrors = words.contains(u"errors-only"_s);
        options.firstTwoLines = words.contains(u"first-two"_s);
        options.programVersion = CheckedVersion;
    }

    /// The report by these rules, and the box.
    [[nodiscard]] QByteArray received(const FileRules &rules) const
    {
        StructureCheck check(rules, path, options);
        TextSink sink;
        ReportWriter writer(rules, options, StandingClock, sink);
        CheckOutcome outcome = check.run(writer);
        QString text = outcome.showsReport ? sink.text : u"(the report is not shown)\r\n"_s;
        if (const auto box = closingBox(kind, outcome))
            text += u"[box 0x"_s + QString::number(box->style, 16) + u" \""_s + box->title + u"\"]\r\n"_s
                    + QString(box->text).replace(u"\r"_s, u"\r\n"_s) + u"\r\n"_s;
        return text.toUtf8();
    }

    QString folder;
    FileKind kind;
    QString path;
    CheckOptions options;
};

class ApprovedReports : public testing::TestWithParam<std::string> {};

TEST_P(ApprovedReports, AreMadeByteForByte)
{
    const ReportCase one(QString::fromStdString(GetParam()));
    const QByteArray received = one.received(rulesOf(one.kind));
    const QString approved = one.folder + u"/approved"_s;
    if (received == bytesOf(approved)) {
        QFile::remove(approved + u".received"_s);
        return;
    }
    QFile file(approved + u".received"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(received) == received.size());
    ADD_FAILURE() << approved.toStdString() << " differs from the report made; see the .received file beside it";
}

TEST_P(ApprovedReports, AreTheSameWhereTheyAreMadeInPieces)
{
    const ReportCase one(QString::fromStdString(GetParam()));
    TextSink whole;
    ReportWriter writer(rulesOf(one.kind), one.options, StandingClock, whole);
    StructureCheck(rulesOf(one.kind), one.path, one.options).run(writer);

    CheckReport report(one.kind, one.path, one.options, StandingClock);
    const CheckOutcome outcome = report.run();
    EXPECT_EQ(report.length(), whole.text.size());
    QStringList lines = whole.text.split(u"\r\n"_s);
    if (lines.back().isEmpty())
        lines.removeLast();
    ASSERT_EQ(report.lineCount(), lines.size());
    for (qsizetype line = 0; line < lines.size(); ++line)
        ASSERT_EQ(report.lines(line, 1), lines[line]);
    EXPECT_EQ(report.lines(1, 7), lines.mid(1, 7).join(u"\r\n"_s));
    EXPECT_EQ(report.lines(lines.size() - 2, 99), lines.mid(lines.size() - 2).join(u"\r\n"_s));

    static const QRegularExpression Error(u"^(  ÷÷÷÷÷>)?  ?خطاي شماره \\d+ : "_s);
    qint64 line = -1;
    for (qint64 error = 0; error < outcome.errors; ++error) {
        const qint64 next = report.nextError(line);
        ASSERT_GT(next, line);
        EXPECT_TRUE(lines[next].contains(Error)) << lines[next].toStdString();
        line = next;
    }
    EXPECT_EQ(report.nextError(line), -1);
}

INSTANTIATE_TEST_SUITE_P(Cases, ApprovedReports, testing::ValuesIn([] {
                             std::vector<std::string> names;
                             for (const QString &name : caseFolders())
                                 names.push_back(name.toStdString());
                             return names;
                         }()),
                         [](const auto &folderName) { return folderName.param; });

/// The cases that are about one field: their names begin with its kind of line and its number.
std::vector<ReportCase> casesOf(LineKind line, int field)
{
    const QString prefix = (line == LineKind::Payer   ? u"wh_payer_"_s
                            : line == LineKind::Payee ? u"wh_payee_"_s
                                                      : u"wk_"_s)
                           + QString::number(field).rightJustified(2, u'0');
    std::vector<ReportCase> cases;
    for (const QString &name : caseFolders()) {
        if (name.startsWith(prefix))
            cases.emplace_back(name);
    }
    return cases;
}

TEST(ReportRules, EachOneIsMissedByACaseOfItsFieldWhenItIsTakenOut)
{
    for (const FileRules *file : {&whRules(), &wkRules()}) {
        for (LineRules FileRules::*line : {&FileRules::first, &FileRules::rest}) {
            const std::span<const CheckRule> all = (file->*line).rules;
            for (std::size_t taken = 0; taken < all.size(); ++taken) {
                std::vector<CheckRule> rules(all.begin(), all.end());
                rules.erase(rules.begin() + std::ptrdiff_t(taken));
                FileRules less = *file;
                (less.*line).rules = rules;
                const auto cases = casesOf((file->*line).kind, all[taken].field);
                EXPECT_TRUE(std::ranges::any_of(cases, [&](const ReportCase &one) {
                    return one.received(less) != bytesOf(one.folder + u"/approved"_s);
                })) << all[taken].message.toUtf8().constData();
            }
        }
    }
}

} // namespace
} // namespace zrv
