// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/check_digit.h"
#include "tests/tools/tool_fixture.h"
#include "tools/sample/dice.h"
#include "tools/sample/numbers.h"

#include <QRegularExpression>

#include <set>

namespace zrv::storetool {
namespace {

class SampleTest : public ToolTest {
protected:
    /// Rows of the larger sample that break a condition which every row must meet.
    QStringList breaking(const QString &table, const QString &condition)
    {
        if (m_store.isEmpty())
            m_store = sampleStore({.payees = 400, .months = 12, .year = 1390, .rng = 7}, u"larger"_s);
        return Sqlite(m_store).run(u"SELECT * FROM "_s + table + u" WHERE NOT ("_s + condition + u") LIMIT 3"_s);
    }
    QString fromLarger(const QString &select)
    {
        (void)breaking(u"ZRVtbKarfarma"_s, u"1"_s);
        return Sqlite(m_store).value(select);
    }

    QString m_store;
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST_F(SampleTest, OldStoreHasTheOldColumnsAndCodesAndOnlyCodesOfItsOwnLists)
{
    Sqlite store(sampleStore({.payees = 200, .months = 2, .year = 1389, .rng = 3, .old = true}, u"old"_s));
    EXPECT_EQ(store.value(u"SELECT count(*) FROM pragma_table_info('ZRVtbKarfarma') WHERE name IN "
                          "('CodeShobe','ShobeName','EdareName')"_s),
              u"0"_s);
    EXPECT_EQ(store.value(u"SELECT count(*) FROM pragma_table_info('ZRVtbHogog')"_s), u"16"_s);
    EXPECT_EQ(store.value(u"SELECT count(DISTINCT MCode) FROM ZRVtbCoding WHERE MCode IN ('18','19')"_s), u"0"_s);
    for (const auto &[column, list] : {std::pair{"Rasteh", "10"}, std::pair{"EstekhdamType", "15"},
                                       std::pair{"ShakhsMoafCode", "13"}, std::pair{"BimehType", "16"}})
        EXPECT_EQ(store.value(QString::fromLatin1("SELECT count(*) FROM ZRVtbKarkonan WHERE %1 NOT IN "
                                                  "(SELECT SCode FROM ZRVtbCoding WHERE MCode='%2')")
                                  .arg(QLatin1String(column), QLatin1String(list))),
                  u"0"_s)
            << column;
}

TEST(Dice, ThrowsAreTheSameOnEveryMachine)
{
    sample::Dice dice(1, "person", 0);
    const QList<int> throws = {dice.below(1'000'000), dice.below(1'000'000), dice.below(1'000'000)};
    EXPECT_EQ(throws, (QList<int>{688606, 264111, 139977}));
}

TEST(Dice, ReachesEachSideAndNoOther)
{
    sample::Dice dice(3, "sides", 0);
    QList<int> counts(6);
    for (int i = 0; i < 6'000; ++i)
        ++counts[dice.below(6)];
    for (const int count : counts) {
        EXPECT_GT(count, 850);
        EXPECT_LT(count, 1'150);
    }
}

TEST(Dice, ShuffledNumbersRepeatNoneAndKeepBelowTheirCount)
{
    for (const quint64 count : {quint64(1), quint64(2), quint64(5), quint64(1'000), quint64(4'097)}) {
        std::set<quint64> seen;
        for (quint64 i = 0; i < count; ++i) {
            const quint64 number = sample::shuffled(i, count, 9);
            EXPECT_LT(number, count);
            seen.insert(number);
        }
        EXPECT_EQ(quint64(seen.size()), count);
    }
}

TEST(SampleNumbers, NationalCodesAreValidDistinctAndKeepTheirFirstDigit)
{
    std::set<std::string> seen;
    for (int number = 0; number < 20'000; ++number) {
        const std::string code = sample::nationalCode({.rng = 5}, number);
        EXPECT_TRUE(isValidNationalCode(QString::fromStdString(code))) << code;
        EXPECT_NE(code.front(), '0');
        seen.insert(code);
    }
    EXPECT_EQ(seen.size(), 20'000u);
}

TEST(SampleNumbers, PassportsHaveLettersAndDigitsAndAreDistinct)
{
    static const QRegularExpression form(u"^[A-Z][0-9]{8}$"_s);
    std::set<std::string> seen;
    for (int number = 0; number < 10'000; ++number) {
        seen.insert(sample::passportNumber({}, number));
        EXPECT_TRUE(form.match(QString::fromStdString(sample::passportNumber({}, number))).hasMatch());
    }
    EXPECT_EQ(seen.size(), 10'000u);
}

TEST_F(SampleTest, TheSamePlanGivesTheSameFileByteForByte)
{
    const sample::Plan plan = {.payees = 50, .months = 4, .year = 1389, .rng = 42};
    const QString first = sampleStore(plan, u"a"_s);
    const QString second = sampleStore(plan, u"b"_s);
    EXPECT_EQ(bytesOf(first), bytesOf(second));
    sample::Plan other = plan;
    other.rng = 43;
    EXPECT_NE(bytesOf(first), bytesOf(sampleStore(other, u"c"_s)));
}

TEST_F(SampleTest, TheProgramsDefaultsAreThePlansDefaults)
{
    EXPECT_EQ(zrvstore({u"sample"_s, in(u"a"_s)}).exitCode, 0);
    EXPECT_EQ(
        zrvstore({u"sample"_s, in(u"b"_s), u"--payees=12"_s, u"--months=3"_s, u"--year=1389"_s, u"--rng=1"_s}).exitCode,
        0);
    EXPECT_EQ(bytesOf(storeIn(in(u"a"_s))), bytesOf(storeIn(in(u"b"_s))));
    EXPECT_EQ(verified(storeIn(in(u"a"_s))), QStringList{u"findings: 0"_s});
}

TEST_F(SampleTest, SamplesOfAllSizesAndYearsVerify)
{
    int folder = 0;
    for (const sample::Plan &plan : {sample::Plan{.payees = 1, .months = 1}, sample::Plan{.payees = 1, .months = 12},
                                     sample::Plan{.payees = 13, .months = 2, .year = 1388, .rng = 0},
                                     sample::Plan{.payees = 130, .months = 12, .year = 1300, .rng = ~quint64(0)},
                                     sample::Plan{.payees = 25, .months = 5, .year = 1499}})
        EXPECT_EQ(verified(sampleStore(plan, QString::number(++folder))), QStringList{u"findings: 0"_s}) << folder;
}

TEST_F(SampleTest, TheSmallestUsualSampleHasOneOfEachKind)
{
    Sqlite store(sampleStore());
    EXPECT_EQ(store.value(u"SELECT count(*) FROM ZRVtbKarkonan"_s), u"12"_s);
    EXPECT_EQ(store.value(u"SELECT count(*) FROM ZRVtbKarkonan WHERE MelliatCode='2' AND KeshvarCode<>'1'"_s), u"1"_s);
    EXPECT_EQ(store.value(u"SELECT count(*) FROM ZRVtbKarkonan WHERE EndDate BETWEEN '1' AND '13881231'"_s), u"1"_s);
    EXPECT_EQ(store.value(u"SELECT count(*) FROM ZRVtbKarkonan WHERE EndDate LIKE '1389%'"_s), u"1"_s);
    EXPECT_EQ(store.value(u"SELECT count(*) FROM ZRVtbKarkonan WHERE BeginDate LIKE '1389%'"_s), u"1"_s);
    EXPECT_EQ(store.value(u"SELECT count(DISTINCT min(ShakhsMoafCode+0,2)) FROM ZRVtbKarkonan"_s), u"3"_s);
    EXPECT_EQ(store.run(u"SELECT TaxMonth,NahveyePardakht FROM ZRVtbKholList ORDER BY rowid"_s),
              (QStringList{u"01|1"_s, u"02|2"_s, u"03|3"_s}));
    EXPECT_EQ(store.value(u"SELECT count(*)>8 FROM ZRVtbCoding WHERE MCode='2'"_s), u"1"_s);
}

TEST_F(SampleTest, ThePayerIsALegalPersonUnderTheRulesOfItsScreen)
{
    const QString digits12 = u" GLOB '[0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9]'"_s;
    EXPECT_EQ(breaking(u"ZRVtbKarfarma"_s,
                       u"TFN"_s + digits12 + u" AND substr(TFN,1,1) NOT IN ('0','4','5') AND Tin"_s + digits12
                           + u" AND substr(Tin,1,1) IN ('4','5') AND CodeShobe='1' AND ShobeName='دفتر مرکزي'"
                             " AND MMoadiType='2' AND SMoadiType<>'' AND Name='' AND Family<>'' AND length(CodeHozeh)=6"
                             " AND length(PostCode)=10 AND substr(PostCode,1,1)<>'0' AND TelNo<>'' AND Address<>''"
                             " AND length(MelliCode1)=10 AND EmzaName1<>'' AND EmzaFamily1<>'' AND EmzaSemat1<>''"
                             " AND length(MelliCode2)=10 AND EmzaName2<>'' AND EmzaFamily2<>'' AND EmzaSemat2<>''"_s),
              QStringList());
}

TEST_F(SampleTest, SalarySumsHoldClassByClassWhenReckonedAnew)
{
    EXPECT_EQ(breaking(u"ZRVtbHogog"_s, u"NTotalDaramad=NJariHogog+JariEzafeKar+NJariSayerPardakhtiha"
                                        " AND GTotalDaramad=GJariHogog+MaskanMablagh+OtomobilMablagh"
                                        " AND (MaskanStatus<>'1' OR MaskanMablagh='0')"
                                        " AND (OtomobilStatus<>'1' OR OtomobilMablagh='0')"_s),
              QStringList());
    const QString withPayee = u"ZRVtbHogog h JOIN ZRVtbKarkonan k ON k.MelliCode=h.MelliCode"_s;
    const QString remainders = u"NDaramadeMashmol=max(NTotalDaramad-NJariMoafiate91,0)"
                               " AND NGPTotalDaramadeMashmol=NDaramadeMashmol+GDaramadeMashmol+PDaramadeMashmol"_s;
    EXPECT_EQ(breaking(withPayee, u"ShakhsMoafCode<>'0' OR (FinalTax=JariTax AND "_s + remainders + u')'),
              QStringList());
    EXPECT_EQ(breaking(withPayee, u"ShakhsMoafCode<>'1' OR (FinalTax=JariTax/2 AND "_s + remainders + u')'),
              QStringList());
    EXPECT_EQ(breaking(withPayee, u"ShakhsMoafCode IN ('0','1') OR (NGPTotalDaramadeMashmol="
                                  "NTotalDaramad+GTotalDaramad+PJariHogog AND '00000000'=NJariMoafiate91||"
                                  "NDaramadeMashmol||GDaramadeMashmol||PDaramadeMashmol||FinalDaramadeMashmol||"
                                  "JariTax||FinalTax||SayereMoafiatha)"_s),
              QStringList());
}

TEST_F(SampleTest, AmountsAreWholeRialsOfAtMostTenDigits)
{
    for (const QString &column :
         {u"NJariHogog"_s, u"JariEzafeKar"_s, u"NTotalDaramad"_s, u"NJariMoafiate91"_s, u"GTotalDaramad"_s,
          u"PJariHogog"_s, u"NGPTotalDaramadeMashmol"_s, u"SayereMoafiatha"_s, u"FinalDaramadeMashmol"_s, u"JariTax"_s})
        EXPECT_EQ(breaking(u"ZRVtbHogog"_s, column + u" NOT GLOB '*[^0-9]*' AND length("_s + column
                                                + u") BETWEEN 1 AND 10 AND ("_s + column + u"+0)="_s + column),
                  QStringList())
            << column.toStdString();
}

TEST_F(SampleTest, NobodyIsPaidAfterTheMonthOfLeavingOrBeforeTheMonthOfComing)
{
    const QString withPayee = u"ZRVtbHogog h JOIN ZRVtbKarkonan k ON k.MelliCode=h.MelliCode"_s;
    EXPECT_EQ(breaking(withPayee, u"EndDate='' OR EndDate>=TaxYear||TaxMonth||'01'"_s), QStringList());
    EXPECT_EQ(breaking(withPayee, u"BeginDate<=TaxYear||TaxMonth||'31'"_s), QStringList());
    EXPECT_NE(fromLarger(u"SELECT count(*) FROM ZRVtbKarkonan WHERE EndDate LIKE '1390%'"_s), u"0"_s);
}

TEST_F(SampleTest, RowsOfAMonthLieTogetherInTheOrderOfThePayees)
{
    EXPECT_EQ(fromLarger(u"SELECT count(*) FROM (SELECT TaxMonth<>lag(TaxMonth) OVER (ORDER BY rowid) AS changed"
                         " FROM ZRVtbHogog) WHERE changed"_s),
              u"11"_s);
    EXPECT_EQ(fromLarger(u"SELECT count(*) FROM (SELECT k.rowid<lag(k.rowid) OVER (PARTITION BY h.TaxMonth ORDER BY"
                         " h.rowid) AS back FROM ZRVtbHogog h JOIN ZRVtbKarkonan k ON k.MelliCode=h.MelliCode)"
                         " WHERE back"_s),
              u"0"_s);
}

TEST_F(SampleTest, SummariesAddUpTheirMonthAndCarryTheMonthsBefore)
{
    EXPECT_EQ(
        breaking(u"ZRVtbKholList s"_s,
                 u"(KarkonanNo,JariSumHogog,JariSumMashmol,JariTax)=(SELECT ''||count(*),"
                 "''||sum(NTotalDaramad+GTotalDaramad+PJariHogog),''||sum(0+FinalDaramadeMashmol),''||sum(0+FinalTax)"
                 " FROM ZRVtbHogog h WHERE h.TaxMonth=s.TaxMonth)"_s),
        QStringList());
    EXPECT_EQ(breaking(u"ZRVtbKholList s"_s,
                       u"(GablSumHogog,GablSumMashmol,GablTax)=(SELECT ''||ifnull(sum(0+JariSumHogog),0),"
                       "''||ifnull(sum(0+JariSumMashmol),0),''||ifnull(sum(0+JariTax),0) FROM ZRVtbKholList e"
                       " WHERE e.TaxMonth<s.TaxMonth)"_s),
              QStringList());
    EXPECT_EQ(breaking(u"ZRVtbKholList s"_s,
                       u"KharejiNo=(SELECT ''||count(*) FROM ZRVtbHogog h JOIN ZRVtbKarkonan k"
                       " ON k.MelliCode=h.MelliCode WHERE h.TaxMonth=s.TaxMonth AND MelliatCode='2')"_s),
              QStringList());
}

TEST_F(SampleTest, PaymentsTakeTurnsAndAChequeHasAllItsFields)
{
    EXPECT_EQ(breaking(u"ZRVtbKholList"_s, u"NahveyePardakht=''||((TaxMonth-1)%3+1)"_s), QStringList());
    EXPECT_EQ(breaking(u"ZRVtbKholList"_s,
                       u"CASE NahveyePardakht WHEN '2' THEN ChequeSeriNo<>'' AND length(ChequeDate)=8 AND BankName<>''"
                       " AND ShobeName<>'' AND HesabNo<>'' AND MablagPardakhti<>'0' AND ChequeDate>RoznameDate"
                       " ELSE ChequeSeriNo||ChequeDate||BankName||ShobeName||HesabNo='' END"_s),
              QStringList());
    EXPECT_EQ(
        breaking(
            u"ZRVtbKholList"_s,
            u"MablagPardakhti=''||CASE NahveyePardakht WHEN '3' THEN 0 ELSE"
            " JariTax+JariJarimeDo+JariJarimeBist+JariBedehiTax END AND RoznameDate LIKE TaxYear||TaxMonth||'__'"_s),
        QStringList());
}

TEST_F(SampleTest, WhatGoesIntoTheFilesKeepsToTheirNarrowerLimits)
{
    EXPECT_EQ(breaking(u"ZRVtbCoding"_s, u"MCode<>'2' OR length(SDesc) BETWEEN 1 AND 20"_s), QStringList());
    EXPECT_EQ(breaking(u"ZRVtbKarkonan"_s, u"InsuNo+0>0 AND BimehType IN ('1','2','4') AND length(Sabege) IN (1,2)"
                                           " AND length(Name) BETWEEN 1 AND 15 AND length(FatherName) BETWEEN 1 AND 15"
                                           " AND instr(Name||Family||FatherName,',')=0"_s),
              QStringList());
    EXPECT_EQ(breaking(u"ZRVtbKholList"_s, u"length(ChequeSeriNo)<=6 AND length(BankName)<=2"_s), QStringList());
}

TEST_F(SampleTest, PersianTextsStandInTheLettersOfTheCodePage)
{
    const QString texts = fromLarger(u"SELECT (SELECT group_concat(Name||Family||FatherName||ifnull(HomeAddress,''))"
                                     " FROM ZRVtbKarkonan)||(SELECT group_concat(SDesc) FROM ZRVtbCoding)"_s);
    EXPECT_GT(texts.size(), 10'000);
    for (const QChar letter : {QChar(0x06CC), QChar(0x0643), QChar(0x200C), QChar(0x06C0)})
        EXPECT_FALSE(texts.contains(letter)) << int(letter.unicode());
}

} // namespace
} // namespace zrv::storetool
