// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Small WH and WK files for the tests of the structure check, good ones at first, and what the check says of them.

#include "files/check_report.h"
#include "tests/print_text.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

inline const QString CheckedVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s;
inline const QString ControlOfVersion = u"KCDk087lIDEuMS4zOCAtIDg5LzAzLzAzICk="_s;
inline const ReportClock StandingClock = [] { return u"1389/03/03 - 10:30:00"_s; };

/// Keeps a report as a text.
class TextSink : public ReportSink {
public:
    void add(QStringView piece) override { text += piece; }
    void endLine() override { text += u"\r\n"; }

    QString text;
};

/// A line of fields, counted from 1.
struct TestLine {
    QStringList fields;

    TestLine with(int field, const QString &value) const
    {
        TestLine changed = *this;
        changed.fields[field - 1] = value;
        return changed;
    }
    TestLine cutTo(int count) const { return {fields.first(count)}; }
    TestLine and_(const QString &value) const { return {fields + QStringList(value)}; }
    operator QString() const { return fields.join(u','); }
};

inline TestLine payerLine()
{
    return {{u"123456789012"_s,
             u"01"_s,
             u"1389"_s,
             u"02"_s,
             u"1"_s,
             u""_s,
             u"علي"_s,
             u"رضايي"_s,
             u"مرکزي"_s,
             u"1234567891"_s,
             u"1234567890"_s,
             u"02188776655"_s,
             u"تهران خيابان آزادي"_s,
             u""_s,
             u"حسن"_s,
             u"کريمي"_s,
             u"مدير"_s,
             u""_s,
             u""_s,
             u""_s,
             u""_s,
             ControlOfVersion}};
}

inline TestLine legalPayerLine()
{
    return payerLine().with(5, u"2"_s).with(6, u"1"_s).with(7, u""_s).with(10, u"411111111111"_s);
}

inline TestLine payeeLine()
{
    TestLine line{{u"1234567891"_s, u"مريم"_s, u"احمدي"_s, u"رضا"_s, u"1"_s, u"1234567890"_s, u"کارمند"_s, u"5"_s,
                   u"4"_s, u"3"_s, u"1"_s, u"1"_s, u""_s, u"1"_s, u""_s, u"12345678"_s}};
    for (int field = 17; field <= 34; ++field)
        line.fields += u"1000000"_s;
    return line;
}

inline TestLine foreignPayeeLine()
{
    return payeeLine().with(1, u"A1234567"_s).with(12, u"2"_s).with(13, u"افغانستان"_s);
}

inline TestLine summaryLine()
{
    TestLine line{{u"123456789012"_s, u"1389"_s, u"02"_s}};
    for (int field = 4; field <= 15; ++field)
        line.fields += u"25000000"_s;
    return {line.fields
            + QStringList{u"13890303"_s, u"12"_s, u"0"_s, u"1"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"500"_s}};
}

inline TestLine chequeLine()
{
    return summaryLine()
        .with(19, u"2"_s)
        .with(20, u"123456"_s)
        .with(21, u"13890303"_s)
        .with(22, u"11"_s)
        .with(23, u"مرکزي"_s)
        .with(24, u"1234567890123"_s);
}

/// The bytes of a file of these lines, each with its CR LF.
inline QByteArray utf16File(const QStringList &lines)
{
    QString text(QChar(QChar::ByteOrderMark));
    for (const QString &line : lines)
        text += line + u"\r\n"_s;
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

class StructureCheckTest : public testing::Test {
protected:
    QString write(const QByteArray &bytes, const QString &name)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }

    /// Checks a file and keeps its report.
    CheckOutcome check(FileKind kind, const QString &path)
    {
        report = std::make_unique<CheckReport>(kind, path, options, StandingClock);
        outcome = report->run();
        return outcome;
    }
    CheckOutcome checkWh(const QStringList &lines)
    {
        return check(FileKind::Wh, write(utf16File(lines), u"WH138902.TXT"_s));
    }
    CheckOutcome checkWk(const QStringList &lines)
    {
        return check(FileKind::Wk, write(utf16File(lines), u"WK138902.TXT"_s));
    }

    [[nodiscard]] QString text() const { return report->lines(0, report->lineCount()); }
    /// The report's lines that tell an error, without the mark before the number.
    [[nodiscard]] QStringList errors() const
    {
        QStringList found;
        for (qint64 line = report->nextError(-1); line >= 0; line = report->nextError(line))
            found += report->lines(line, 1).remove(u"  ÷÷÷÷÷>  خطاي شماره "_s);
        return found;
    }

    CheckOptions options{.programVersion = CheckedVersion};
    std::unique_ptr<CheckReport> report;
    CheckOutcome outcome;
    QTemporaryDir m_folder;
};

} // namespace zrv
