// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "tests/files/check_fixture.h"

namespace zrv {
namespace {

const QString Missing = u" اين فيلد در فايل متني موجود نميباشد "_s;

TEST_F(StructureCheckTest, AGoodFileHasNoErrorInAnyOfItsForms)
{
    EXPECT_EQ(checkWh({payerLine(), payeeLine()}).errors, 0);
    EXPECT_EQ(checkWh({legalPayerLine(), payeeLine(), foreignPayeeLine()}).errors, 0);
    EXPECT_EQ(checkWh({payerLine().cutTo(21), payeeLine().with(14, u"0"_s).with(15, u"بيمه ايران"_s)}).errors, 0);
    EXPECT_EQ(checkWk({summaryLine()}).errors, 0);
    EXPECT_EQ(checkWk({chequeLine()}).errors, 0);
    EXPECT_EQ(outcome.end, CheckEnd::Finished);
    EXPECT_EQ(outcome.records, 1);
}

TEST_F(StructureCheckTest, APayerWithoutAPayeeIsTooFew)
{
    EXPECT_EQ(checkWh({payerLine()}).errors, 1);
    EXPECT_EQ(
        errors(),
        QStringList(u"1 :  فايل متني ليست حقوق حداقل بايد حاوي 2 رکورد باشد و ميان رکوردهاي آن هيچ خط خالي اي نبايد "
                    "وجود داشته باشد.لطفا نسبت به رفع اشکال اقدام نماييد "_s));
}

TEST_F(StructureCheckTest, APayerWithoutALineEndIsNotCalledTooFew)
{
    QByteArray bytes = utf16File({payerLine()});
    bytes.chop(4);
    EXPECT_EQ(check(FileKind::Wh, write(bytes, u"WH138902.TXT"_s)).errors, 0);
    EXPECT_EQ(outcome.records, 1);
}

TEST_F(StructureCheckTest, AnEmptyLineEndsTheRunWithoutAWordBehindTheSecond)
{
    EXPECT_EQ(checkWh({payerLine(), payeeLine(), u""_s, u"nonsense"_s}).errors, 0);
    EXPECT_EQ(outcome.records, 2);
    EXPECT_EQ(checkWh({payerLine(), u""_s, payeeLine()}).errors, 1);
    EXPECT_EQ(checkWk({u""_s, summaryLine()}).errors, 0);
    EXPECT_EQ(outcome.records, 0);
}

TEST_F(StructureCheckTest, NamesAreComparedInCapitals)
{
    const QByteArray good = utf16File({payerLine(), payeeLine()});
    EXPECT_EQ(check(FileKind::Wh, write(good, u"wh138902.txt"_s)).end, CheckEnd::Finished);
    EXPECT_EQ(check(FileKind::Wh, write(good, u"WK138902.TXT"_s)).end, CheckEnd::Refused);
    EXPECT_EQ(report->nextError(-1), 1);
    EXPECT_FALSE(closingBox(FileKind::Wh, outcome));
}

TEST_F(StructureCheckTest, APathBelowTwelveLettersHasAWrongName)
{
    EXPECT_EQ(check(FileKind::Wh, u"WH1.TXT"_s).end, CheckEnd::Refused);
    EXPECT_EQ(
        text(),
        u" - در حال کنترل نام فايل ليست حقوق ... (تاريخ و زمان شروع عمليات کنترل : 1389/03/03 - 10:30:00)\r\n"
        " خطاي شماره 1 :  -- نام گذاري فايل ليست حقوق اشتباه است و يا آنرا صحيح انتخاب ننموده ايد،جهت اجراي عمليات "
        "کنترل ساختار فايل متني ، اصلاح نام آن ضروري ميباشد.قوانين نامگذاري فايل در دفترچه آمده است "_s);
    EXPECT_TRUE(outcome.showsReport);
}

TEST_F(StructureCheckTest, NoFileChosenIsSaidInTheReport)
{
    EXPECT_EQ(check(FileKind::Wk, u""_s).end, CheckEnd::Refused);
    EXPECT_EQ(report->lines(1, 1),
              u" خطاي شماره 1 :  -- ابتدا فايل متني خلاصه ليست حقوق را از مسير مورد نظر انتخاب نماييد"_s);
}

TEST_F(StructureCheckTest, ALineOf33FieldsHasTwoErrors)
{
    EXPECT_EQ(checkWh({payerLine(), payeeLine().cutTo(33)}).errors, 2);
    EXPECT_TRUE(errors()[0].contains(u"34 فيلد وجود داشته باشد"_s));
    EXPECT_TRUE(errors()[0].contains(u"داراي : 33 فيلد"_s));
    EXPECT_EQ(errors()[1], u"2 : "_s + Missing);
}

TEST_F(StructureCheckTest, OfALineThatEndsBeforeItsNationalityTheSecondFieldIsCalledMissingThoughItIsThere)
{
    EXPECT_EQ(checkWh({payerLine(), u"1234567891,x,y"_s}).errors, 1 + 1 + 31);
    EXPECT_TRUE(text().contains(
        u" ++++ در حال کنترل فيلد شماره : 2(نام دريافت کننده حقوق)\r\n  ÷÷÷÷÷>  خطاي شماره 2 : "_s + Missing));
    EXPECT_TRUE(text().contains(u"3(نام خانوادگي دريافت کننده حقوق) = «y»"_s));
}

TEST_F(StructureCheckTest, ANumberIsNoNameAndANameWithANumberIsOne)
{
    EXPECT_EQ(checkWh({payerLine(), payeeLine().with(2, u"12"_s)}).errors, 1);
    EXPECT_TRUE(errors()[0].endsWith(u"کد اسکي اولين کاراکتر نامعتبر : ( 49) ميباشد"_s));
    EXPECT_EQ(checkWh({payerLine(), payeeLine().with(2, u"12a"_s)}).errors, 0);
    EXPECT_EQ(checkWh({payerLine(), payeeLine().with(8, u"1a"_s)}).errors, 1);
    EXPECT_TRUE(errors()[0].endsWith(u"کد اسکي اولين کاراکتر نامعتبر : ( 97) ميباشد"_s));
}

TEST_F(StructureCheckTest, SignsAndDecimalPointsAreNumbers)
{
    EXPECT_EQ(checkWh({payerLine(), payeeLine().with(17, u"1.5"_s).with(18, u"-3"_s).with(19, u"1E3"_s)}).errors, 0);
    EXPECT_EQ(checkWk({summaryLine().with(4, u"1.5"_s)}).errors, 0);
}

TEST_F(StructureCheckTest, AControlFieldThatIsNoBase64IsAWrongCountAndASurplusField)
{
    EXPECT_EQ(checkWh({payerLine().with(22, u"abc"_s), payeeLine()}).errors, 2);
    EXPECT_TRUE(errors()[0].contains(
        u"بايد 21 فيلد وجود داشته باشد.در حاليکه اين خط در فايل متني انتخاب شده داراي : 22 فيلد"_s));
    EXPECT_TRUE(errors()[1].contains(u" اين فيلد با محتوي « abc»  و کد اسکي کاراکتر اول : (97) در ساختار"_s));
    // The surplus field is numbered one beyond its place.
    EXPECT_TRUE(text().contains(u" ++++ در حال کنترل فيلد شماره : 23 از رکورد شماره : 1 در فايل ليست حقوق...\r\n"_s));
}

TEST_F(StructureCheckTest, AnotherVersionInTheControlFieldIsAWrongCountAlone)
{
    EXPECT_EQ(checkWh({payerLine().with(22, u"MS4w"_s), payeeLine()}).errors, 1);
    EXPECT_TRUE(text().contains(
        u"يعني نسخ قبل از : ( نسخه 1.1.38 - 89/03/03 )باشد.نسخه فايل متني موجود 1.0 ميباشد.\r\n      "_s));
    EXPECT_EQ(checkWh({payerLine().and_(u""_s), payeeLine()}).errors, 2);
    EXPECT_TRUE(errors()[1].contains(u"وجود کاماي (،) اضافي"_s));
}

TEST_F(StructureCheckTest, AnEmptyInsuranceNumberEndsTheRunInATypeMismatchAndNoReport)
{
    EXPECT_EQ(checkWh({payerLine(), payeeLine().with(16, u""_s)}).end, CheckEnd::Failed);
    EXPECT_EQ(outcome.failure, error::TypeMismatch);
    EXPECT_EQ(outcome.line, 2);
    EXPECT_EQ(outcome.field, 16);
    EXPECT_FALSE(outcome.showsReport);
    EXPECT_TRUE(closingBox(FileKind::Wh, outcome)->text.startsWith(u"13 < "_s));
    EXPECT_EQ(checkWh({payerLine(), payeeLine().with(16, u"00"_s)}).errors, 1);
    EXPECT_TRUE(errors()[0].contains(u"(ساير) انتخاب شده است"_s));
}

TEST_F(StructureCheckTest, TheFirstTwoLinesCanBeCheckedAlone)
{
    options.firstTwoLines = true;
    EXPECT_EQ(checkWh({payerLine(), payeeLine(), u"bad"_s}).errors, 0);
    EXPECT_EQ(outcome.records, 2);
    EXPECT_TRUE(closingBox(FileKind::Wh, outcome)->text.contains(u"ساختار فايل متني صحيح ميباشد"_s));
    // A summary list knows no such option.
    EXPECT_EQ(checkWk({summaryLine(), summaryLine(), u"bad"_s}).errors, 1);
}

TEST_F(StructureCheckTest, OnlyTheFirstLineOfASummaryListIsCheckedFieldByField)
{
    EXPECT_EQ(checkWk({summaryLine(), QStringList(25, u"x"_s).join(u',')}).errors, 0);
    EXPECT_EQ(checkWk({summaryLine(), QStringList(26, u"x"_s).join(u',')}).errors, 2);
    // A line whose fields aren't checked numbers its surplus from 2.
    EXPECT_TRUE(text().contains(u" ++++ در حال کنترل فيلد شماره : 2 از رکورد شماره : 2 در فايل ليست حقوق...\r\n"_s));
}

TEST_F(StructureCheckTest, EmptyFieldsOfASummaryList)
{
    EXPECT_EQ(checkWk({summaryLine().with(6, u""_s)}).errors, 0);
    EXPECT_EQ(checkWk({summaryLine().with(1, u""_s)}).errors, 2);
    EXPECT_TRUE(errors()[1].endsWith(u": (-1) ميباشد"_s));
}

TEST_F(StructureCheckTest, ABankIsForChequesAlone)
{
    EXPECT_EQ(checkWk({summaryLine().with(22, u"11"_s)}).errors, 1);
    EXPECT_TRUE(errors()[0].contains(u"(غير نقدي) انتخاب نشده است"_s));
    EXPECT_EQ(checkWk({chequeLine().with(20, u""_s)}).errors, 0);
    EXPECT_EQ(checkWk({chequeLine().with(20, u""_s).with(21, u""_s)}).errors, 1);
}

TEST_F(StructureCheckTest, AMannerOfPaymentThatIsNoNumberLeavesTheReportSoFarOnTheScreen)
{
    EXPECT_EQ(checkWk({summaryLine().with(19, u""_s)}).end, CheckEnd::Failed);
    EXPECT_TRUE(outcome.showsReport);
    EXPECT_EQ(outcome.errors, 2);
    EXPECT_TRUE(text().endsWith(u"20(شماره سريال چک) = «» از رکورد شماره : 1 در فايل خلاصه ليست حقوق..."_s));
}

TEST_F(StructureCheckTest, AnEmptyFileIsSaidToBeEmpty)
{
    EXPECT_EQ(check(FileKind::Wh, write({}, u"WH138902.TXT"_s)).end, CheckEnd::Empty);
    EXPECT_FALSE(outcome.showsReport);
    EXPECT_FALSE(closingBox(FileKind::Wh, outcome));
    EXPECT_EQ(check(FileKind::Wk, write(utf16File({}), u"WK138902.TXT"_s)).end, CheckEnd::Empty);
    EXPECT_TRUE(outcome.showsReport);
    EXPECT_TRUE(text().endsWith(
        u"منتظر بمانيد ...  \r\n\r\n خطاي شماره 1 :  فايل ليست حقوق خالي ميباشد و هيچ رکوردي در آن موجود نميباشد"_s));
    EXPECT_EQ(errors().size(), 1);
}

TEST_F(StructureCheckTest, AFileThatIsMissingIsToldFromAFolderThatIs)
{
    check(FileKind::Wh, m_folder.filePath(u"WH138902.TXT"_s));
    EXPECT_EQ(outcome.failure, error::FileNotFound);
    EXPECT_TRUE(closingBox(FileKind::Wh, outcome)->text.startsWith(u"فايل مورد نظر يافت نشد.از وجود فايل ليست حقوق"_s));
    check(FileKind::Wk, m_folder.filePath(u"none/WK138902.TXT"_s));
    EXPECT_EQ(outcome.failure, error::PathNotFound);
    EXPECT_TRUE(closingBox(FileKind::Wk, outcome)->text.startsWith(u"علت يافت نشدن فايل ميتواند"_s));
    check(FileKind::Wh, m_folder.path() + u"/./././././WH"_s);
    EXPECT_EQ(outcome.end, CheckEnd::Refused);
}

} // namespace
} // namespace zrv
