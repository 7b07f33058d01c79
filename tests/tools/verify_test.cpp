// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/connection.h"
#include "tests/tools/tool_fixture.h"
#include "tools/zrvstore/salary_sums.h"
#include "tools/zrvstore/verify.h"

namespace zrv::storetool {
namespace {

/// A fault that is planted with SQL, and a line of what verify must say about it.
struct Plant {
    const char *name;
    const char *sql;
    const char *line; ///< from the finding's place to its name
};

void PrintTo(const Plant &plant, std::ostream *stream)
{
    *stream << plant.name;
}

/// The table anew as a file without checks, keys and widths, so that faults fit in which the store itself refuses.
QString loosened(const QString &table)
{
    return u"CREATE TABLE loose AS SELECT * FROM "_s + table + u"; DROP TABLE "_s + table
           + u"; ALTER TABLE loose RENAME TO "_s + table + u';';
}

class PlantedFault : public ToolTest, public testing::WithParamInterface<Plant> {};

TEST_P(PlantedFault, IsFoundAndTheStoreIsSoundWithoutIt)
{
    const QString store = sampleStore();
    ASSERT_EQ(verified(store), QStringList{u"findings: 0"_s});
    Sqlite(store).run(QString::fromUtf8(GetParam().sql));
    const QStringList lines = verified(store);
    EXPECT_TRUE(lines.join(u'\n').contains(QString::fromUtf8(GetParam().line))) << lines.join(u'\n').toStdString();
}

#define FIRST "(SELECT min(rowid) FROM ZRVtbKarkonan)"
#define NATIONAL "WHERE rowid=(SELECT min(rowid) FROM ZRVtbKarkonan WHERE MelliatCode='1')"
#define FOREIGN "WHERE MelliatCode='2'"
#define PAY_OF(code)                                                                                                   \
    "WHERE TaxMonth='01' AND MelliCode=(SELECT min(h.MelliCode) FROM ZRVtbHogog h JOIN ZRVtbKarkonan k ON "            \
    "k.MelliCode=h.MelliCode WHERE " code ")"
#define NOT_EXEMPT PAY_OF("ShakhsMoafCode='0'")
#define HALF PAY_OF("ShakhsMoafCode='1'")
#define EXEMPT PAY_OF("ShakhsMoafCode+0>1")

// clang-format off
constexpr Plant Shapes[] = {
    {"MissingTable", "DROP TABLE ZRVtbHogog", "ZRVtbHogog: is missing [missing-table]"},
    {"MissingColumn", "ALTER TABLE ZRVtbKarkonan DROP COLUMN Sabege", "ZRVtbKarkonan Sabege: is missing [missing-column]"},
    {"ColumnThatCameWithTheUpgrade", "ALTER TABLE ZRVtbKarkonan DROP COLUMN HomeAddress",
     "ZRVtbKarkonan HomeAddress: is missing: an older store, the program's upgrade adds it [missing-column]"},
    {"ColumnThatNothingNeeds", "ALTER TABLE ZRVtbKholList DROP COLUMN GablEzafeTax",
     "note ZRVtbKholList GablEzafeTax: is missing; nothing needs it [missing-column]"},
    {"UnknownColumn", "ALTER TABLE ZRVtbKarkonan ADD COLUMN Dummy TEXT(5)", "ZRVtbKarkonan Dummy: is not of this version [unknown-column]"},
    {"ColumnThatTheUpgradeDrops", "ALTER TABLE ZRVtbHogog ADD COLUMN EzafeTozih TEXT(5)",
     "ZRVtbHogog EzafeTozih: is of an older store, the program's upgrade drops it [unknown-column]"},
    {"ColumnNarrowerThanEver", "ALTER TABLE ZRVtbKarfarma DROP COLUMN EdareName; ALTER TABLE ZRVtbKarfarma ADD COLUMN EdareName TEXT(20)",
     "ZRVtbKarfarma EdareName: 20 wide instead of 50 [column-width]"},
    {"AmountAsWideAsTheUpgradeMakesIt", "ALTER TABLE ZRVtbHogog DROP COLUMN SayereMoafiatha; ALTER TABLE ZRVtbHogog ADD COLUMN SayereMoafiatha TEXT(10)",
     "note ZRVtbHogog SayereMoafiatha: 10 wide instead of 13, as an upgrade leaves it [column-width]"},
    {"KeyWithoutAnIndex", "DROP INDEX ZRVtbKarkonan_key_TFN_MelliCode",
     "ZRVtbKarkonan: nothing keeps the key TFN + MelliCode unique [missing-key]"},
    {"Trigger", "CREATE TRIGGER t AFTER INSERT ON ZRVtbHogog BEGIN DELETE FROM ZRVtbHogog; END", "t: is a trigger that no store has [foreign-object]"},
    {"View", "CREATE VIEW v AS SELECT 1", "v: is a view that no store has [foreign-object]"},
    {"ForeignTable", "CREATE TABLE t(a)", "note t: is a table that no store has [foreign-object]"},
};

constexpr Plant Fields[] = {
    {"UnknownCode", "UPDATE ZRVtbKarkonan SET Rasteh='99' " NATIONAL, "Rasteh: code \"99\" is not in list 10 [unknown-code]"},
    {"CodeWithALeadingZero", "UPDATE ZRVtbKarkonan SET Madrak='01' " NATIONAL, "Madrak: code \"01\" is not in list 1 [unknown-code]"},
    {"UnknownMonth", "UPDATE ZRVtbKholList SET TaxMonth='13' WHERE TaxMonth='03'", "TaxMonth: code \"13\" is not in list 4 [unknown-code]"},
    {"UnknownBank", "UPDATE ZRVtbKholList SET BankName='18' WHERE TaxMonth='02'", "BankName: code \"18\" is not in list 8 [unknown-code]"},
    {"CodeThatLeftItsList", "DELETE FROM ZRVtbCoding WHERE MCode='11' AND SCode='2'", "MelliatCode: code \"2\" is not in list 11 [unknown-code]"},
    {"EmptyCode", "UPDATE ZRVtbKarkonan SET Semat='' " NATIONAL, "Semat: is empty [empty]"},
    {"NullName", "UPDATE ZRVtbKarkonan SET Name=NULL " NATIONAL, "Name: is empty [empty]"},
    {"BlankFamily", "UPDATE ZRVtbKarkonan SET Family='   ' " NATIONAL, "Family: is empty [empty]"},
    {"WrongNationalCode", "UPDATE ZRVtbKarkonan SET MelliCode='1234567890' " NATIONAL, "MelliCode: \"1234567890\" is no valid national code [form]"},
    {"PassportWithASign", "UPDATE ZRVtbKarkonan SET MelliCode='A-123' " FOREIGN, "MelliCode: \"A-123\" is not Latin letters and digits [form]"},
    {"NationalOfAnotherCountry", "UPDATE ZRVtbKarkonan SET KeshvarCode='2' " NATIONAL, "KeshvarCode: \"2\" is not the country of a national [form]"},
    {"ForeignerOfThisCountry", "UPDATE ZRVtbKarkonan SET KeshvarCode='1' " FOREIGN, "KeshvarCode: \"1\" is not the country of a foreigner [form]"},
    {"NoInsuranceNumber", "UPDATE ZRVtbKarkonan SET InsuNo='',BimehType='1' " NATIONAL, "InsuNo: is empty [empty]"},
    {"ShortPostCode", "UPDATE ZRVtbKarkonan SET PostCode='123456789' " NATIONAL, "PostCode: \"123456789\" is not 10 digits [form]"},
    {"PersianDigits", "UPDATE ZRVtbKarkonan SET Sabege='۱۲' " NATIONAL, "Sabege: \"۱۲\" is not plain digits [form]"},
    {"ThirtyFirstOfTheSeventhMonth", "UPDATE ZRVtbKarkonan SET BeginDate='13800731' " NATIONAL, "BeginDate: \"13800731\" is not a date of eight digits [form]"},
    {"ThirteenthMonth", "UPDATE ZRVtbKholList SET RoznameDate='13891301' WHERE TaxMonth='01'", "RoznameDate: \"13891301\" is not a date of eight digits [form]"},
    {"AmountWithSeparators", "UPDATE ZRVtbHogog SET GJariHogog='1,000'", "GJariHogog: \"1,000\" is not plain digits [form]"},
    {"NegativeAmount", "UPDATE ZRVtbHogog SET SayereMoafiatha='-5'", "SayereMoafiatha: \"-5\" is not plain digits [form]"},
    {"CountWithAMisplacedSeparator", "UPDATE ZRVtbKholList SET KharejiNo='1,00' WHERE TaxMonth='01'", "KharejiNo: \"1,00\" is not a number [form]"},
    {"FileNumberThatIsAnEconomicNumber", "UPDATE ZRVtbKarfarma SET TFN='411111111111'", "TFN: \"411111111111\" begins as an economic number does [form]"},
    {"ShortFileNumber", "UPDATE ZRVtbKarfarma SET TFN='11111111111'", "TFN: \"11111111111\" is not 12 digits [form]"},
    {"EconomicNumberThatIsAFileNumber", "UPDATE ZRVtbKarfarma SET Tin='311111111111'", "Tin: \"311111111111\" is no economic number of 12 digits that begins with 4 or 5 [form]"},
    {"NaturalPersonWithAnEconomicNumber", "UPDATE ZRVtbKarfarma SET MMoadiType='1',SMoadiType=''", "is no valid national code, which a natural person has [form]"},
    {"NaturalPersonWithoutAName", "UPDATE ZRVtbKarfarma SET MMoadiType='1',SMoadiType=''", "Name: is empty [empty]"},
    {"LegalPersonWithAFirstName", "UPDATE ZRVtbKarfarma SET Name='x'", "Name: \"x\" is kept for a legal person, which has none [form]"},
    {"HalfASecondSignatory", "UPDATE ZRVtbKarfarma SET EmzaName2=''", "EmzaName2: is empty [empty]"},
    {"TaxUnitOfFiveDigits", "UPDATE ZRVtbKarfarma SET CodeHozeh='12345'", "CodeHozeh: \"12345\" is not 6 digits [form]"},
    {"UserNameWithABlank", "UPDATE User_Defination SET UserNamee='A B'", "User_Defination [A B] UserNamee: \"A B\" is not Latin letters and digits [form]"},
    {"PasswordThatCannotBeTyped", "UPDATE User_Defination SET Passwordd='p w'", "User_Defination [ADMIN] Passwordd: it is not Latin letters and digits [form]"},
    {"AccessLevelTwo", "UPDATE User_Defination SET Access_Level='2'", "Access_Level: \"2\" is neither 0 nor 1 [form]"},
    {"NoSupervisor", "UPDATE User_Defination SET Access_Level='0'", "User_Defination: no user is a supervisor [no-supervisor]"},
    {"ListUnderTwoNames", "UPDATE ZRVtbCoding SET MDesc='x' WHERE MCode='12' AND SCode='3'", "but other rows of the list say \"نام کشور\" [list-name]"},
    {"EmptyList", "DELETE FROM ZRVtbCoding WHERE MCode='7'", "ZRVtbCoding: list 7 has no row [empty-list]"},
    {"MonthOfOneDigit", "UPDATE ZRVtbCoding SET SCode='9' WHERE MCode='4' AND SCode='09'", "SCode: \"9\" is no month of two digits [form]"},
    {"ExemptionThatIsNoAmount", "UPDATE ZRVtbCoding SET SDesc='much' WHERE MCode='17' AND SCode='1388'", "SDesc: \"much\" is no amount [form]"},
    {"TwoPayers", "INSERT INTO ZRVtbKarfarma SELECT '111111111111','2',MMoadiType,SMoadiType,MohasebeType,Name,Family,ShobeName,Tin,PostCode,CodeHozeh,TelNo,Address,MelliCode1,EmzaName1,EmzaFamily1,EmzaSemat1,MelliCode2,EmzaName2,EmzaFamily2,EmzaSemat2,EdareName FROM ZRVtbKarfarma",
     "ZRVtbKarfarma: 2 payers, a store is of one [payer-count]"},
    {"PayeeOfNoPayer", "UPDATE ZRVtbKarkonan SET TFN='111111111111' " NATIONAL, "TFN: no payer has this file number [orphan-tfn]"},
    {"SalaryRowOfNoPayer", "UPDATE ZRVtbHogog SET TFN='111111111111' WHERE TaxMonth='01'", "ZRVtbHogog [111111111111 "},
    {"DataWithoutAnyPayer", "DELETE FROM ZRVtbKarfarma", "TFN: no payer has this file number [orphan-tfn]"},
    {"SalaryRowWithoutItsPayee", "DELETE FROM ZRVtbKarkonan " FOREIGN, "MelliCode: no payee has this code [missing-payee]"},
};

constexpr Plant Sums[] = {
    {"CashTotal", "UPDATE ZRVtbHogog SET NTotalDaramad=NTotalDaramad+1 " EXEMPT, "[row-sum]"},
    {"CashTotalByName", "UPDATE ZRVtbHogog SET JariEzafeKar='7',NTotalDaramad='1' " NOT_EXEMPT, "NTotalDaramad: is 1, the row makes "},
    {"NonCashTotal", "UPDATE ZRVtbHogog SET GTotalDaramad=GTotalDaramad+1 " HALF, "GTotalDaramad: is "},
    {"FlatThatIsNotUsed", "UPDATE ZRVtbHogog SET MaskanStatus='1',MaskanMablagh='9' " NOT_EXEMPT, "MaskanMablagh: is 9, the row makes 0 while its status is 1 [row-sum]"},
    {"CarThatIsNotUsed", "UPDATE ZRVtbHogog SET OtomobilStatus='1',OtomobilMablagh='9' " NOT_EXEMPT, "OtomobilMablagh: is 9, the row makes 0 while its status is 1 [row-sum]"},
    {"CashRemainder", "UPDATE ZRVtbHogog SET NDaramadeMashmol=NDaramadeMashmol+1 " NOT_EXEMPT, " for GMoaf [row-sum]"},
    {"SumOfRemainders", "UPDATE ZRVtbHogog SET NGPTotalDaramadeMashmol=NGPTotalDaramadeMashmol+1 " HALF, " for KTosehe [row-sum]"},
    {"TaxThatIsNotCopied", "UPDATE ZRVtbHogog SET FinalTax='5' " NOT_EXEMPT, "FinalTax: is 5, the row makes "},
    {"TaxOfTheExempt", "UPDATE ZRVtbHogog SET JariTax='5' " EXEMPT, "JariTax: is 5, the row makes 0 for Moaf [row-sum]"},
    {"GrossSumOfTheExempt", "UPDATE ZRVtbHogog SET NGPTotalDaramadeMashmol='5' " EXEMPT, "NGPTotalDaramadeMashmol: is 5, the row makes "},
    {"SummaryCount", "UPDATE ZRVtbKholList SET KarkonanNo='5' WHERE TaxMonth='02'", "KarkonanNo: is 5, the month's salary rows make "},
    {"SummaryPaid", "UPDATE ZRVtbKholList SET JariSumHogog='5' WHERE TaxMonth='02'", "JariSumHogog: is 5, the month's salary rows make "},
    {"SummaryTaxable", "UPDATE ZRVtbKholList SET JariSumMashmol='5' WHERE TaxMonth='02'", "JariSumMashmol: is 5, the month's salary rows make "},
    {"SummaryTax", "UPDATE ZRVtbKholList SET JariTax='5' WHERE TaxMonth='02'", "JariTax: is 5, the month's salary rows make "},
    {"SummaryOfAMonthWithoutSalaries", "DELETE FROM ZRVtbHogog WHERE TaxMonth='03'", "the month's salary rows make 0 [summary-sum]"},
    {"CarriedIntoTheFirstMonth", "UPDATE ZRVtbKholList SET GablTax='5' WHERE TaxMonth='01'", "GablTax: is 5, the earlier months make 0 [carried-sum]"},
    {"CarriedPaid", "UPDATE ZRVtbKholList SET GablSumHogog='5' WHERE TaxMonth='03'", "GablSumHogog: is 5, the earlier months make "},
    {"CarriedTaxable", "UPDATE ZRVtbKholList SET GablSumMashmol='5' WHERE TaxMonth='03'", "GablSumMashmol: is 5, the earlier months make "},
    {"CarriedFromADeletedMonth", "DELETE FROM ZRVtbKholList WHERE TaxMonth='02'", "[carried-sum]"},
    {"ChequeOverNothing", "UPDATE ZRVtbKholList SET MablagPardakhti='0' WHERE TaxMonth='02'", "MablagPardakhti: is 0, and the tax is paid by cheque [payment]"},
    {"ChequeWithoutANumber", "UPDATE ZRVtbKholList SET ChequeSeriNo='' WHERE TaxMonth='02'", "ChequeSeriNo: is empty, and the tax is paid by cheque [payment]"},
    {"BankWithoutACheque", "UPDATE ZRVtbKholList SET BankName='3' WHERE TaxMonth='01'", "BankName: \"3\" stands though no cheque is paid [payment]"},
    {"PaidThoughNothingIs", "UPDATE ZRVtbKholList SET MablagPardakhti='5' WHERE TaxMonth='03'", "MablagPardakhti: is 5, and nothing is paid [payment]"},
};
// clang-format on

const auto nameOfPlant = [](const testing::TestParamInfo<Plant> &info) { return info.param.name; };
INSTANTIATE_TEST_SUITE_P(Shape, PlantedFault, testing::ValuesIn(Shapes), nameOfPlant);
INSTANTIATE_TEST_SUITE_P(Field, PlantedFault, testing::ValuesIn(Fields), nameOfPlant);
INSTANTIATE_TEST_SUITE_P(Sum, PlantedFault, testing::ValuesIn(Sums), nameOfPlant);

using VerifyTest = ToolTest;

TEST_F(VerifyTest, RowsThatTheFileNoLongerRefusesAreFound)
{
    const QString store = sampleStore();
    Sqlite(store).run(loosened(u"ZRVtbKarkonan"_s)
                      + u"INSERT INTO ZRVtbKarkonan SELECT * FROM ZRVtbKarkonan LIMIT 1;"
                        "UPDATE ZRVtbKarkonan SET Name='نامي که از ستون خود بلندتر است' WHERE MelliatCode='2';"
                        "UPDATE ZRVtbKarkonan SET FatherName=x'4142' WHERE MelliatCode='2'"_s);
    const QString lines = verified(store).join(u'\n');
    EXPECT_TRUE(lines.contains(u"2 rows have this key [duplicate-key]"_s)) << lines.toStdString();
    EXPECT_TRUE(lines.contains(u"Name: is 30 characters long, at most 15 [too-long]"_s)) << lines.toStdString();
    EXPECT_TRUE(lines.contains(u"FatherName: is no text [form]"_s)) << lines.toStdString();
    EXPECT_TRUE(lines.contains(u"ZRVtbKarkonan Name: has no width [column-width]"_s)) << lines.toStdString();
}

TEST_F(VerifyTest, AWidthIsCountedInLettersNotInBytes)
{
    const QString store = sampleStore();
    Sqlite(store).run(u"UPDATE ZRVtbKarkonan SET Name='نام پانزده حرفي' " NATIONAL ""_s);
    EXPECT_EQ(Sqlite(store).value(u"SELECT max(length(Name)) FROM ZRVtbKarkonan"_s), u"15"_s);
    EXPECT_EQ(verified(store), QStringList{u"findings: 0"_s});
}

TEST_F(VerifyTest, ColumnsInAnotherOrderMatterWhereInsertsNameNone)
{
    const QString store = sampleStore();
    Sqlite(store).run(u"CREATE TABLE c AS SELECT MCode,MDesc,SDesc,SCode FROM ZRVtbCoding; DROP TABLE ZRVtbCoding;"
                      "ALTER TABLE c RENAME TO ZRVtbCoding"_s);
    EXPECT_TRUE(verified(store).contains(u"ZRVtbCoding: has its columns in another order [column-order]"_s));
}

TEST_F(VerifyTest, ARowReckonedForAFormerExemptionIsOnlyNoted)
{
    const QString store = sampleStore();
    Sqlite(store).run(u"UPDATE ZRVtbKarkonan SET ShakhsMoafCode='7' WHERE ShakhsMoafCode='0';"
                      "UPDATE ZRVtbKarkonan SET ShakhsMoafCode='0' WHERE ShakhsMoafCode='1'"_s);
    const QStringList lines = verified(store);
    EXPECT_EQ(lines.last(), u"findings: 0"_s) << lines.join(u'\n').toStdString();
    const QString all = lines.join(u'\n');
    EXPECT_TRUE(all.contains(u"the row is reckoned for GMoaf, the payee is now Moaf [other-class]"_s));
    EXPECT_TRUE(all.contains(u"the row is reckoned for KTosehe, the payee is now GMoaf [other-class]"_s));
}

TEST_F(VerifyTest, WhatTheScreensMayLeaveIsNoFinding)
{
    const QString store = sampleStore();
    Sqlite(store).run(
        // A count of thousands keeps its separators when a row is new; carried penalties are the user's to leave out.
        u"UPDATE ZRVtbKholList SET GablJarimeDo='',GablJarimeBist=NULL,JariJarimeDo='',BankName=NULL WHERE TaxMonth='03';"
        // An uninsured payee has no number; a cut date is stored as none; amounts may be over-typed.
        "UPDATE ZRVtbKarkonan SET BimehType='3',InsuNo='',EndDate=NULL,BeginDate='',PostCode='',HomeAddress=NULL " NATIONAL
        ";UPDATE ZRVtbKholList SET MablagPardakhti='1' WHERE TaxMonth='01';"
        // An exemption that was accepted before the pay fell below it stays, and the remainder is nothing.
        "UPDATE ZRVtbHogog SET NJariMoafiate91=NTotalDaramad+5,NGPTotalDaramadeMashmol=NGPTotalDaramadeMashmol-"
        "NDaramadeMashmol,NDaramadeMashmol='0' " NOT_EXEMPT ";"
        "INSERT INTO User_Defination VALUES('OP','OP','','','0')"_s);
    EXPECT_EQ(verified(store), QStringList{u"findings: 0"_s});
}

TEST_F(VerifyTest, ACountKeepsItsSeparatorAfterAnInsert)
{
    const QString store = sampleStore({.payees = 1'200, .months = 1});
    Sqlite(store).run(u"UPDATE ZRVtbKholList SET KarkonanNo=substr(KarkonanNo,1,1)||','||substr(KarkonanNo,2)"_s);
    EXPECT_EQ(Sqlite(store).value(u"SELECT KarkonanNo LIKE '1,___' FROM ZRVtbKholList"_s), u"1"_s);
    EXPECT_EQ(verified(store), QStringList{u"findings: 0"_s});
}

TEST_F(VerifyTest, AnOlderStoreIsToldAsSuchAndItsMissingSumsAreNotHeldAgainstIt)
{
    const QString store = sampleStore();
    Sqlite(store).run(u"ALTER TABLE ZRVtbHogog DROP COLUMN NTotalDaramad; ALTER TABLE ZRVtbHogog DROP COLUMN FinalTax;"
                      "ALTER TABLE ZRVtbHogog ADD COLUMN NJariTax TEXT(10); DELETE FROM ZRVtbKholList"_s);
    EXPECT_EQ(
        verified(store),
        (QStringList{
            u"ZRVtbHogog NTotalDaramad: is missing: an older store, the program's upgrade adds it [missing-column]"_s,
            u"ZRVtbHogog FinalTax: is missing: an older store, the program's upgrade adds it [missing-column]"_s,
            u"ZRVtbHogog NJariTax: is of an older store, the program's upgrade drops it [unknown-column]"_s,
            u"findings: 3"_s}));
}

TEST_F(VerifyTest, ABranchCodeOfTwoPlacesIsAnOlderStores)
{
    const QString store = sampleStore();
    Connection(u"Data Source = "_s + store).execute(u"ALTER TABLE ZRVtbKarfarma ALTER COLUMN CodeShobe TEXT(2)"_s);
    EXPECT_EQ(verified(store),
              (QStringList{u"ZRVtbKarfarma CodeShobe: 2 wide instead of 5: an older store, the program's repair widens "
                           "it [column-width]"_s,
                           u"findings: 1"_s}));
}

TEST_F(VerifyTest, TheProgramAnswersWithItsExitCodeAndALastLine)
{
    const QString store = sampleStore();
    EXPECT_EQ(zrvstore({u"verify"_s, in(u"store"_s)}).out, QString(store + u" is sound\n"_s));
    Sqlite(store).run(u"UPDATE ZRVtbHogog SET FinalDaramadeMashmol='x'; DELETE FROM ZRVtbKholList"_s);
    const Outcome few = zrvstore({u"verify"_s, in(u"store"_s)});
    EXPECT_EQ(few.exitCode, 1);
    EXPECT_TRUE(few.out.contains(u" more [form]\n"_s));
    EXPECT_TRUE(few.out.endsWith(u" has findings: 31\n"_s)) << few.out.toStdString();
    const Outcome all = zrvstore({u"verify"_s, in(u"store"_s), u"--all"_s});
    EXPECT_FALSE(all.out.contains(u" more ["_s));
    EXPECT_GT(all.out.count(u'\n'), few.out.count(u'\n'));
}

TEST_F(VerifyTest, PasswordsAreNeverShown)
{
    const QString store = sampleStore();
    Sqlite(store).run(loosened(u"User_Defination"_s)
                      + u"UPDATE User_Defination SET Passwordd='secret word that is too long';"
                        "INSERT INTO User_Defination SELECT * FROM User_Defination"_s);
    const QString lines = verified(store).join(u'\n');
    EXPECT_TRUE(lines.contains(u"[duplicate-key]"_s));
    EXPECT_TRUE(lines.contains(u"[too-long]"_s));
    EXPECT_FALSE(lines.contains(u"secret"_s)) << lines.toStdString();
}

class UnreadableTest : public ToolTest {
protected:
    /// Overwrites so many bytes of a store from `at` on.
    QString damagedStore(qint64 at, qint64 bytes)
    {
        const QString store = sampleStore({.payees = 100}, u"store%1"_s.arg(++m_stores));
        QFile file(store);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        file.write(QByteArray(bytes, '\x5a'));
        return QFileInfo(store).path();
    }
    /// The line on stderr of a run that must answer 2.
    static QString refusal(const QString &folder)
    {
        const Outcome outcome = zrvstore({u"verify"_s, folder});
        EXPECT_EQ(outcome.exitCode, 2) << outcome.out.toStdString();
        EXPECT_EQ(outcome.err.count(u'\n'), 1) << outcome.err.toStdString();
        return outcome.err;
    }

private:
    int m_stores = 0;
};

TEST_F(UnreadableTest, AMissingStoreOrFolderIsNamedAndNotMade)
{
    EXPECT_EQ(refusal(in(u"nowhere"_s)), QString(u"zrvstore: "_s + storeIn(in(u"nowhere"_s)) + u" does not exist\n"_s));
    EXPECT_FALSE(QFile::exists(in(u"nowhere"_s)));
}

TEST_F(UnreadableTest, EmptyShortAndForeignFilesAreNoStores)
{
    QDir().mkpath(in(u"s"_s));
    for (const QByteArray &content :
         {QByteArray(), QByteArray("SQLite format 3\0", 16), QByteArray(5'000, 'x'), QByteArray(5'000, '\0')}) {
        QFile file(storeIn(in(u"s"_s)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        EXPECT_TRUE(refusal(in(u"s"_s)).endsWith(u" is not a store: its head is another one\n"_s));
    }
    QDir().mkpath(in(u"t/DBZorvan.mdb"_s));
    EXPECT_TRUE(refusal(in(u"t"_s)).endsWith(u" is not a file\n"_s));
}

TEST_F(UnreadableTest, ADamagedHeadIsToldFromADamagedPage)
{
    EXPECT_TRUE(refusal(damagedStore(16, 84)).contains(u"is not a store, or its head is damaged"_s));
    EXPECT_TRUE(refusal(damagedStore(8 * 4096, 4096)).contains(u" is damaged"_s));
    EXPECT_TRUE(refusal(damagedStore(100, 500)).contains(u" is damaged"_s)) << "the first page holds the shape";
}

TEST_F(UnreadableTest, ACutStoreIsDamaged)
{
    const QString store = sampleStore({.payees = 100});
    ASSERT_TRUE(QFile::resize(store, QFileInfo(store).size() / 2));
    EXPECT_TRUE(refusal(in(u"store"_s)).contains(u" is damaged"_s));
}

TEST_F(UnreadableTest, ADatabaseOfAnotherProgramIsNoStore)
{
    QDir().mkpath(in(u"s"_s));
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(storeIn(in(u"s"_s))).constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "CREATE TABLE t(a)", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    EXPECT_TRUE(refusal(in(u"s"_s)).endsWith(u" is not a store: it has none of the store's tables\n"_s));
}

TEST_F(UnreadableTest, AStoreThatSomebodyHoldsIsBusy)
{
    const QString store = sampleStore();
    Sqlite writer(store);
    writer.run(u"BEGIN EXCLUSIVE"_s);
    EXPECT_TRUE(refusal(in(u"store"_s)).endsWith(u" is busy: another program is writing to it; try again\n"_s));
    writer.run(u"ROLLBACK"_s);
}

TEST_F(UnreadableTest, AStatementThatACrashLeftHalfDoneIsUndoneAndNotFound)
{
    // A copy of the store and its journal in the middle of a statement is what a power cut leaves.
    const QString store = sampleStore({.payees = 500});
    QDir().mkpath(in(u"cut"_s));
    {
        Sqlite writer(store);
        writer.run(u"PRAGMA cache_size=5; BEGIN; UPDATE ZRVtbHogog SET FinalTax='x'"_s);
        ASSERT_TRUE(QFile::copy(store, storeIn(in(u"cut"_s))));
        ASSERT_TRUE(QFile::copy(store + u"-journal"_s, storeIn(in(u"cut"_s)) + u"-journal"_s));
        writer.run(u"ROLLBACK"_s);
    }
    EXPECT_EQ(verified(storeIn(in(u"cut"_s))), QStringList{u"findings: 0"_s});
    EXPECT_FALSE(QFile::exists(storeIn(in(u"cut"_s)) + u"-journal"_s));
}

TEST(SalarySums, WorkedExamples)
{
    Amounts row{};
    row[NJariHogog] = 12'000'000;
    row[JariEzafeKar] = 1'500'000;
    row[NTotalDaramad] = 13'500'000;
    row[GJariHogog] = 800'000;
    row[MaskanMablagh] = 400'000;
    row[GTotalDaramad] = 1'200'000;
    row[PJariHogog] = 3'000'000;
    Amounts exempt = row;
    exempt[NGPTotalDaramadeMashmol] = 17'700'000;
    EXPECT_EQ(wrongTotal(exempt).amount, AmountCount);
    EXPECT_EQ(wrongRemainder(exempt, Exemption::Moaf).amount, AmountCount);

    row[NJariMoafiate91] = 500'000;
    row[NDaramadeMashmol] = 13'000'000;
    row[GDaramadeMashmol] = 1'000'000;
    row[PDaramadeMashmol] = 2'000'000;
    row[NGPTotalDaramadeMashmol] = 16'000'000;
    row[SayereMoafiatha] = 100'000;
    row[FinalDaramadeMashmol] = 15'000'000;
    row[JariTax] = row[FinalTax] = 950'000;
    EXPECT_EQ(wrongRemainder(row, Exemption::GMoaf).amount, AmountCount);
    row[FinalTax] = 475'000;
    EXPECT_EQ(wrongRemainder(row, Exemption::KTosehe).amount, AmountCount);
    EXPECT_EQ(wrongRemainder(row, Exemption::GMoaf).amount, FinalTax);
    EXPECT_EQ(wrongRemainder(row, Exemption::Moaf).amount, NGPTotalDaramadeMashmol);
}

TEST(SalarySums, ACodeOfSevenExemptsLikeTwoAndAnythingOdd)
{
    EXPECT_EQ(exemptionOf("0"), Exemption::GMoaf);
    EXPECT_EQ(exemptionOf("1"), Exemption::KTosehe);
    for (const char *code : {"2", "7", "11", "99", ""})
        EXPECT_EQ(exemptionOf(code), Exemption::Moaf) << code;
}

} // namespace
} // namespace zrv::storetool
