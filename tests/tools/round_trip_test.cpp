// SPDX-License-Identifier: GPL-3.0-or-later

// Files that the program wrote, checked by the program: of the sample's stores the writer may produce a few errors, and
// they are told to the last one.

#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "files/check_catalogue.h"
#include "files/frmCreatTextFiles.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/files/check_fixture.h"
#include "tools/zrvstore/create.h"

namespace zrv {
namespace {

class Names : public CheckEvents {
public:
    explicit Names(const FileRules &rules)
        : m_rules(rules)
    {
    }
    void finding(const Finding &finding) override
    {
        names += QString::number(finding.line) + u' ' + findingName(m_rules, finding);
    }

    QStringList names;

private:
    const FileRules &m_rules;
};

class FolderPlatform : public QuietPlatform {
public:
    explicit FolderPlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }
    QString programFolder() override { return m_folder; }

private:
    QString m_folder;
};

struct Sample {
    int payees;
    quint64 rng;
};

class RoundTrip : public testing::TestWithParam<Sample> {
protected:
    void SetUp() override
    {
        storetool::createSample(m_folder.path(), {.payees = GetParam().payees, .months = 2, .rng = GetParam().rng});
        execute(u"UPDATE ZRVtbKholList SET NahveyePardakht='2',ChequeSeriNo='12345678',ChequeDate='13890303',"
                "BankName='11',ShobeName='x',HesabNo='1' WHERE TaxMonth='02'"_s);
    }

    void execute(const QString &statement) { Connection(connection()).execute(statement); }
    QString connection() const
    {
        return u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + m_folder.path()
               + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
    }

    void writeMonth(const QString &month)
    {
        FolderPlatform platform(m_folder.path());
        Program program(platform);
        program.StoreConnectionString = connection();
        program.ProgramVersion = CheckedVersion;
        program.PayerTFN = Recordset(Connection(connection()), u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0).toText();
        frmCreatTextFiles screen(program);
        screen.load();
        screen.activate();
        screen.txtTaxYear.setText(u"1389"_s);
        screen.dcbTaxMonth.setBoundText(month);
        ASSERT_TRUE(screen.userClick(screen.cmdCreatTextFiles));
    }

    QString file(const QString &kind, const QString &month) const
    {
        return m_folder.filePath(u"ERSAL/1389"_s + month + u'/' + kind + u"1389"_s + month + u".TXT"_s);
    }

    static QStringList found(FileKind kind, const QString &path)
    {
        Names names(rulesOf(kind));
        const CheckOutcome outcome = StructureCheck(rulesOf(kind), path, {.programVersion = CheckedVersion}).run(names);
        EXPECT_EQ(outcome.end, CheckEnd::Finished) << outcome.description.toStdString();
        return names.names;
    }

    static QStringList linesOf(const QString &path)
    {
        QFile opened(path);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly));
        const QByteArray bytes = opened.readAll();
        return QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData() + 2), (bytes.size() - 2) / 2)
            .split(u"\r\n"_s, Qt::SkipEmptyParts);
    }

    QTemporaryDir m_folder;
};

/// What is wider in the writer's table than the check allows.
QStringList expectedOfPayees(const QStringList &lines)
{
    struct Width {
        int field;
        qsizetype least;
        qsizetype most;
        QString name;
    };
    static const std::vector<Width> Widths = {{5, 0, 2, u"EstekhdamType"_s},
                                              {7, 1, 20, u"Semat"_s},
                                              {9, 1, 1, u"Madrak"_s},
                                              {10, 1, 2, u"Rasteh"_s},
                                              {11, 1, 2, u"ShakhsMoafCode"_s}};
    QStringList expected;
    for (qsizetype line = 1; line < lines.size(); ++line) {
        const QStringList fields = lines[line].split(u',');
        for (const Width &width : Widths) {
            const qsizetype length = fields[width.field - 1].size();
            if (length < width.least || length > width.most)
                expected += QString::number(line + 1) + u" wh.payee."_s + width.name + u".length"_s;
        }
    }
    return expected;
}

TEST_P(RoundTrip, TheSamplesFilesAreSound)
{
    writeMonth(u"01"_s);
    EXPECT_EQ(found(FileKind::Wh, file(u"WH"_s, u"01"_s)), expectedOfPayees(linesOf(file(u"WH"_s, u"01"_s))));
    EXPECT_EQ(found(FileKind::Wk, file(u"WK"_s, u"01"_s)), QStringList());
}

TEST_P(RoundTrip, WhatTheWriterWritesWiderThanTheCheckAllowsIsFound)
{
    execute(u"UPDATE ZRVtbCoding SET SDesc='کارشناس ارشد برنامه ريزي' WHERE MCode='2' AND SCode='3'"_s);
    execute(u"UPDATE ZRVtbKholList SET BankName='1234' WHERE TaxMonth='02'"_s);
    writeMonth(u"02"_s);
    const QStringList expected = expectedOfPayees(linesOf(file(u"WH"_s, u"02"_s)));
    EXPECT_EQ(found(FileKind::Wh, file(u"WH"_s, u"02"_s)), expected);
    EXPECT_TRUE(GetParam().payees < 100 || !expected.isEmpty());
    EXPECT_EQ(found(FileKind::Wk, file(u"WK"_s, u"02"_s)), QStringList(u"1 wk.BankName.length.cheque"_s));
}

TEST_P(RoundTrip, ACommaInAStoredNameIsAFieldTooManyAndShiftsTheOthers)
{
    execute(u"UPDATE ZRVtbKarfarma SET Address='a,b'"_s);
    writeMonth(u"01"_s);
    const QStringList names = found(FileKind::Wh, file(u"WH"_s, u"01"_s));
    ASSERT_GE(names.size(), 3);
    EXPECT_EQ(names[0], u"1 field-count"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, RoundTrip, testing::Values(Sample{1, 1}, Sample{12, 2}, Sample{200, 3}, Sample{200, 4}, Sample{2000, 5}),
    [](const auto &one) {
        return QString(u"Of%1PayeesRng%2"_s).arg(one.param.payees).arg(one.param.rng).toStdString();
    });

} // namespace
} // namespace zrv
