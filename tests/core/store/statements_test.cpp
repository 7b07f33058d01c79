// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/store/month_query.h"
#include "tests/core/store/store_fixture.h"

namespace zrv {

/// A store with a payer, payees and a month of salary rows.
class Statements : public StoreTest {
protected:
    Statements()
    {
        execute(u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe,MMoadiType,SMoadiType,MohasebeType,Name,Family,ShobeName,"
                "Tin,PostCode,CodeHozeh,TelNo,Address,MelliCode1,EmzaName1,EmzaFamily1,EmzaSemat1,"
                "MelliCode2,EmzaName2,EmzaFamily2,EmzaSemat2,EdareName) VALUES ('123456789012','1','2','6','1','علي',"
                "'نمونه','دفتر مرکزي','411111111111','1111111111','123456','021','تهران','1','a','b','c','2','d','e',"
                "'f','اداره')"_s);
        addPayee(u"1000000001", u"پرويز", u"چمني", u"");
        addPayee(u"1000000002", u"بهرام", u"پاينده", u"13890515");
        addPayee(u"1000000003", u"بهرام", u"گلي", u"13890430");
        execute(u"UPDATE ZRVtbKarkonan Set EndDate = null WHERE MelliCode = '1000000001'"_s);
        for (const QStringView code : {u"1000000003", u"1000000001", u"1000000002"})
            addSalary(code, u"01", u"0500");
    }

    void addPayee(QStringView code, QStringView name, QStringView family, QStringView endDate)
    {
        execute("INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,FatherName,PostCode,Semat,Sabege,Madrak,Rasteh,"
                "InsuNo,ShakhsMoafCode,MelliatCode,KeshvarCode,BeginDate,EndDate,EstekhdamType,BimehType,HomeAddress) "
                "VALUES ('123456789012',"_L1
                + quoted(code) + u',' + quoted(name) + u',' + quoted(family)
                + ",'p','','1','2','4','2','9','0','1','1','13800101',"_L1 + quoted(endDate) + ",'1','1','')"_L1);
    }

    void addSalary(QStringView code, QStringView month, QStringView amount)
    {
        execute("INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NTotalDaramad,GTotalDaramad,PJariHogog,"
                "FinalDaramadeMashmol,FinalTax) VALUES ('123456789012',"_L1
                + quoted(code) + ",'1389',"_L1 + quoted(month) + u',' + quoted(amount) + ",' 20','','7','0')"_L1);
    }
};

TEST_F(Statements, LoginComparesWithoutRegardToCase)
{
    const QStringList admin{u"ADMIN|ADMIN|مدير|سيستم|1"_s};
    EXPECT_EQ(rows(u"SELECT * FROM User_Defination WHERE Usernamee = 'admin' AND Passwordd  = 'aDmIn'"_s), admin);
    EXPECT_TRUE(rows(u"SELECT * FROM User_Defination WHERE Usernamee = 'admin' AND Passwordd  = 'x'"_s).isEmpty());
}

TEST_F(Statements, UserGridShowsTheLevelByItsTruth)
{
    execute(u"INSERT INTO User_Defination VALUES ('B','1','n','f','0')"_s);
    EXPECT_EQ(rows(u"SELECT UserNamee,Name,Family,IIf(Access_Level,\"سوپروايزر\",\"کاربر\") FROM User_Defination "
                   "ORDER BY UserNamee"_s),
              (QStringList{u"ADMIN|مدير|سيستم|سوپروايزر"_s, u"B|n|f|کاربر"_s}));
}

TEST_F(Statements, PayerTestJoinsNestedInBrackets)
{
    const QString joins =
        u" FROM ((ZRVtbKarfarma LEFT JOIN ZRVtbCoding ON ZRVtbKarfarma.MMoadiType = ZRVtbCoding.SCode and "
        "(ZRVtbCoding.MCode)= '5')  LEFT JOIN ZRVtbCoding AS ZRVtbCoding_1 ON ZRVtbKarfarma.SMoadiType = "
        "ZRVtbCoding_1.SCode  and (ZRVtbCoding_1.MCode)='6' ) left JOIN ZRVtbCoding AS ZRVtbCoding_2 ON "
        "ZRVtbKarfarma.MohasebeType = ZRVtbCoding_2.SCode and (ZRVtbCoding_2.MCode)='7'"_s;
    const QString select =
        u"SELECT ZRVtbKarfarma.TFN as TFN,ZRVtbKarfarma.MMoadiType, ZRVtbCoding.SDesc AS MMoadiTypeDesc,"
        "ZRVtbKarfarma.SMoadiType,ZRVtbCoding_1.SDesc AS SMoadiTypeDesc,ZRVtbKarfarma.MohasebeType,"
        "ZRVtbCoding_2.SDesc AS MohasebeTypeDesc,ZRVtbKarfarma.Name, ZRVtbKarfarma.Family,"
        "ZRVtbKarfarma.CodeShobe, ZRVtbKarfarma.ShobeName, ZRVtbKarfarma.Tin,ZRVtbKarfarma.PostCode,"
        "ZRVtbKarfarma.CodeHozeh,TelNo,ZRVtbKarfarma.Address"_s;
    EXPECT_EQ(rows(select + joins),
              QStringList{u"123456789012|2|حقوقي|6|بخش خصوصي|1|محاسبه ماهانه|علي|نمونه|1|دفتر مرکزي|411111111111|"
                          "1111111111|123456|021|تهران"_s});
    execute(u"UPDATE ZRVtbKarfarma Set SMoadiType = '9'"_s);
    EXPECT_TRUE(rows(select + joins).value(0).contains("|9|NULL|1|"_L1)) << "an unknown code keeps its row";
    execute(u"ALTER TABLE ZRVtbKarfarma DROP COLUMN ShobeName "_s);
    EXPECT_EQ(errorOf(select + joins), store_error::MissingColumn);
}

TEST_F(Statements, SalaryGridComputesAmountsAndAColumnThatIsAlwaysStars)
{
    EXPECT_EQ(rows(u"SELECT ZRVtbHogog.TaxYear as TaxYear,ZRVtbCoding.SDesc AS TaxMonth,ZRVtbHogog.MelliCode AS "
                   "MelliCode,val(ZRVtbHogog.NTotalDaramad)+val(ZRVtbHogog.GTotalDaramad)+val(ZRVtbHogog.PJariHogog) "
                   "AS JariSumHogog ,IIF(ZRVtbHogog.MelliCode,\"*****\",\"*****\") AS CodeMelliState FROM (ZRVtbHogog "
                   "LEFT JOIN ZRVtbKarkonan ON ZRVtbHogog.MelliCode=ZRVtbKarkonan.MelliCode) LEFT JOIN ZRVtbCoding ON "
                   "ZRVtbHogog.TaxMonth = ZRVtbCoding.SCode and ZRVtbCoding.MCode='4' WHERE ZRVtbHogog.TFN = "
                   "'123456789012' ORDER BY Family,Name"_s),
              (QStringList{u"1389|فروردين|1000000002|520|*****"_s, u"1389|فروردين|1000000001|520|*****"_s,
                           u"1389|فروردين|1000000003|520|*****"_s}));
}

TEST_F(Statements, PayeeListJoinsNameWithPlus)
{
    EXPECT_EQ(rows(u"SELECT MelliCode,Family + ' ' + Name + ' (' + MelliCode + ')' as FN FROM ZRVtbKarkonan  WHERE "
                   "(EndDate >= '13890501' OR EndDate='' OR EndDate IS NULL) ORDER BY Family,Name"_s),
              (QStringList{u"1000000002|پاينده بهرام (1000000002)"_s, u"1000000001|چمني پرويز (1000000001)"_s}));
}

TEST_F(Statements, LastMonthComesFromAQueryInTheFromClause)
{
    addSalary(u"1000000001", u"03", u"1");
    EXPECT_EQ(rows(u"SELECT SCode,SDesc FROM ZRVtbCoding,(SELECT MAX(TaxMonth) as maxMonth FROM ZRVtbHogog WHERE  TFN "
                   "= '123456789012' AND TaxYear = '1389') as SQ1 WHERE MCode = '4' AND SQ1.maxMonth = SCode"_s),
              QStringList{u"03|خرداد"_s});
    EXPECT_EQ(rows(u"SELECT SCode,SDesc FROM ZRVtbCoding,(SELECT Distinct TaxMonth FROM ZRVtbHogog WHERE  TFN = "
                   "'123456789012' AND TaxYear = '1389' ORDER BY TaxMonth DESC) as SQ1 WHERE MCode = '4' AND "
                   "SQ1.TaxMonth = SCode"_s),
              (QStringList{u"01|فروردين"_s, u"03|خرداد"_s}));
    EXPECT_EQ(rows(u"SELECT Distinct TaxYear FROM ZRVtbHogog WHERE  TFN = '123456789012' ORDER BY TaxYear DESC"_s),
              QStringList{u"1389"_s});
}

TEST_F(Statements, MonthSumsCountTextAmountsWithZerosAndBlanks)
{
    const QString select = u"SELECT count(*) AS KarkonanNo,Sum(NTotalDaramad)+Sum(GTotalDaramad)+Sum(PJariHogog) AS "
                           "JariSumHogog,sum(FinalDaramadeMashmol) AS JariSumMashmol,sum(FinalTax) AS JariTax FROM "
                           "ZRVtbHogog WHERE TFN = '123456789012' AND TaxYear = '1389' AND TaxMonth = "_s;
    EXPECT_EQ(rows(select + "'01'"_L1), QStringList{u"3|1560|21|0"_s});
    EXPECT_EQ(rows(select + "'02'"_L1), QStringList{u"0|NULL|NULL|NULL"_s});
}

TEST_F(Statements, EndedPayeeIsLeftOutOfTheTransferAndABlankOrNullEndIsNot)
{
    const QString from = u" FROM ZRVtbHogog,ZRVtbKarkonan WHERE  ZRVtbHogog.TFN = '123456789012' AND "
                         "ZRVtbHogog.TaxYear = '1389' AND ZRVtbHogog.TaxMonth = '01' AND ZRVtbHogog.MelliCode = "
                         "ZRVtbKarkonan.MelliCode AND (ZRVtbKarkonan.EndDate >= '%101' OR ZRVtbKarkonan.EndDate='' OR "
                         "ZRVtbKarkonan.EndDate IS NULL)"_s;
    const QString count = u"SELECT count(*) AS KarkonanNo,Sum(NTotalDaramad)+Sum(GTotalDaramad)+Sum(PJariHogog) AS "
                          "SUMNGPTotalDaramadeMashmol,sum(FinalDaramadeMashmol) AS SUMFinalDaramadeMashmol,"
                          "sum(FinalTax) AS SUMFinalTax"_s;
    EXPECT_EQ(rows(count + from.arg(u"138905"_s)), QStringList{u"2|1040|14|0"_s});
    EXPECT_EQ(rows(count + from.arg(u"138904"_s)), QStringList{u"3|1560|21|0"_s}) << "an end within the month stays";
    EXPECT_EQ(rows(count + from.arg(QString())), QStringList{u"3|1560|21|0"_s}) << "no target month excludes nobody";

    const QString copy =
        u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NJariHogog,JariEzafeKar,NJariSayerPardakhtiha,"
        "NTotalDaramad,NJariMoafiate91,NDaramadeMashmol,GJariHogog,MaskanStatus,MaskanMablagh,OtomobilStatus,"
        "OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,PJariHogog,PDaramadeMashmol,NGPTotalDaramadeMashmol,"
        "SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax) SELECT ZRVtbHogog.TFN,ZRVtbHogog.MelliCode,'1389',"
        "'05',NJariHogog,JariEzafeKar,NJariSayerPardakhtiha,NTotalDaramad,NJariMoafiate91,NDaramadeMashmol,"
        "GJariHogog,MaskanStatus,MaskanMablagh,OtomobilStatus,OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,"
        "PJariHogog,PDaramadeMashmol,NGPTotalDaramadeMashmol,SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax"_s
        + from.arg(u"138905"_s);
    EXPECT_EQ(execute(copy), 2);
    EXPECT_EQ(rows(u"SELECT MelliCode,NTotalDaramad,GTotalDaramad FROM ZRVtbHogog WHERE TaxMonth='05'"_s),
              (QStringList{u"1000000001|0500| 20"_s, u"1000000002|0500| 20"_s}))
        << "rows are copied as they stand and in the order of entry";
    EXPECT_EQ(errorOf(copy), store_error::General) << "a row of the target month exists";
    EXPECT_EQ(value(u"SELECT count(*) FROM ZRVtbHogog"_s), Value(qint64(5)));
}

TEST_F(Statements, SummaryGridFormatsAmountsAndDates)
{
    execute(
        u"INSERT INTO ZRVtbKholList (TFN,KholListType,TaxYear,TaxMonth,JariSumHogog,JariSumMashmol,JariTax,"
        "JariJarimeDo,JariJarimeBist,JariBedehiTax,GablSumHogog,GablSumMashmol,GablTax,GablJarimeDo,GablJarimeBist,"
        "GablBedehiTax,RoznameDate,KarkonanNo,KharejiNo,NahveyePardakht,ChequeSeriNo,ChequeDate,BankName,ShobeName,"
        "HesabNo,MablagPardakhti) VALUES ('123456789012','1','1389','01','1234567','','0','','','','','','','','','',"
        "'13890303','1,234','','1','','','','','','')"_s);
    EXPECT_EQ(rows(u"SELECT ZRVtbCoding_2.SDesc AS KholListType,ZRVtbKholList.TaxYear,ZRVtbCoding.SDesc AS TaxMonth,"
                   "Format(JariSumHogog, \"#,##0\") AS JariSumHogog,Format(JariSumMashmol, \"#,##0\") AS "
                   "JariSumMashmol,Format(JariTax, \"#,##0\") AS JariTax,Format(KarkonanNo, \"#,##0\") AS KarkonanNo,"
                   "Format(KharejiNo, \"#,##0\") AS KharejiNo,Format(MablagPardakhti, \"#,##0\") AS MablagPardakhti,"
                   "format(RoznameDate,\"####/##/##\") AS RoznameDate,ZRVtbCoding_1.SDesc AS NahveyePardakht from "
                   "((ZRVtbKholList LEFT JOIN ZRVtbCoding ON ZRVtbKholList.TaxMonth=ZRVtbCoding.SCode AND "
                   "ZRVtbCoding.MCode='4') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_1 ON ZRVtbKholList.NahveyePardakht="
                   "ZRVtbCoding_1.SCode AND ZRVtbCoding_1.MCode='9') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_2 ON "
                   "ZRVtbKholList.KholListType=ZRVtbCoding_2.SCode AND ZRVtbCoding_2.MCode='14'"_s),
              QStringList{u"ماهانه|1389|فروردين|1,234,567||0|1,234|||1389/03/03|نقدي"_s});
}

TEST_F(Statements, SummaryReportTrimsTheBankAndTellsTheWayOfPaymentInThreeColumns)
{
    execute(u"INSERT INTO ZRVtbKholList (TFN,KholListType,TaxYear,TaxMonth,JariSumHogog,NahveyePardakht,BankName) "
            "VALUES ('123456789012','1','1389','01','5','2','3 ')"_s);
    EXPECT_EQ(rows(u"SELECT ZRVtbKholList.TFN,' خلاصه ليست ماليات بر حقوق ' AS KholListType,TaxYear,"
                   "ZRVtbCoding_1.SDesc AS TaxMonth,ZRVtbKarfarma.name + ' ' + ZRVtbKarfarma.Family + ' - شعبه ' + "
                   "ZRVtbKarfarma.ShobeName AS KarfarmaName,ZRVtbKarfarma.Address AS Address,JariSumHogog,"
                   "IIF(VAL(NahveyePardakht)=1,1,0) AS NAGHDY,IIF(VAL(NahveyePardakht)=2,1,0) AS GNAGHDY,"
                   "IIF(VAL(NahveyePardakht)=3,1,0) AS ADAMEPARDAKHT,ZRVtbCoding_2.SDesc AS BankName,"
                   "ZRVtbKholList.ShobeName,HesabNo FROM (((ZRVtbKholList LEFT JOIN ZRVtbCoding ON "
                   "ZRVtbKholList.KholListType=ZRVtbCoding.SCode AND ZRVtbCoding.MCode='14') LEFT JOIN ZRVtbCoding AS "
                   "ZRVtbCoding_1 ON ZRVtbKholList.TaxMonth=ZRVtbCoding_1.SCode AND ZRVtbCoding_1.MCode='4') LEFT JOIN "
                   "ZRVtbCoding AS ZRVtbCoding_2 ON trim(ZRVtbKholList.BankName)=ZRVtbCoding_2.SCode AND "
                   "ZRVtbCoding_2.MCode='8') LEFT JOIN ZRVtbKarfarma ON ZRVtbKarfarma.TFN=ZRVtbKholList.TFN WHERE "
                   "ZRVtbKholList.TFN='123456789012' AND KholListType='1' AND TaxYear='1389' AND TaxMonth='01'"_s),
              QStringList{u"123456789012| خلاصه ليست ماليات بر حقوق |1389|فروردين|علي نمونه - شعبه دفتر مرکزي|تهران|5|"
                          "0|1|0|بانک شماره 3|NULL|NULL"_s});
    EXPECT_EQ(rows(u"SELECT SUM(JariSumHogog)AS GablSumHogog,SUM(JariSumMashmol) AS GablSumMashmol,SUM(JariTax) AS "
                   "GablTax FROM ZRVtbKholList WHERE TFN = '123456789012' AND KholListType = '1' AND TaxYear = '1389' "
                   "AND Val(TaxMonth) < 2"_s),
              QStringList{u"5|NULL|NULL"_s});
}

TEST_F(Statements, BaseDataGridAndItsNextFreeCode)
{
    EXPECT_EQ(rows(u"SELECT val(SCode) AS SCode,SDesc FROM ZRVtbCoding where val(MCode) = val('9') ORDER BY "
                   "val(SCode)"_s),
              (QStringList{u"1|نقدي"_s, u"2|غير نقدي - چک"_s, u"3|ارائه ليست بدون پرداخت ماليات"_s}));
    EXPECT_EQ(value(u"SELECT max(val(SCode)) FROM ZRVtbCoding where val(MCode) = val('10')"_s), Value(qint64(18)));
    EXPECT_TRUE(value(u"SELECT max(val(SCode)) FROM ZRVtbCoding where val(MCode) = val('3')"_s).isNull());
}

TEST_F(Statements, SearchOrdersByTheNameOfAResult)
{
    const QStringList found = rows(u"SELECT val(SCode) AS SCode,SDesc FROM ZRVtbCoding WHERE  MCode = '8' AND (SDesc "
                                   "LIKE '%بانك%' And SDesc LIKE '%شماره%') ORDER BY SCode "_s);
    ASSERT_EQ(found.size(), 17);
    EXPECT_EQ(found[1], u"2|بانک شماره 2"_s);
    EXPECT_EQ(found[9], u"10|بانک شماره 10"_s) << "by number, since the result of that name is one";
}

TEST_F(Statements, BaseDataRowsAreAddedChangedAndDeleted)
{
    execute(u"INSERT INTO ZRVtbCoding VALUES ('2','سمت يا شغل','50','ناظر')"_s);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding VALUES ('2','سمت يا شغل','50','ديگر')"_s), store_error::General);
    EXPECT_EQ(execute(u"UPDATE ZRVtbCoding Set MDesc = 'x',SDesc = 'y' WHERE SCode = '50' AND MCode = '2'"_s), 1);
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbCoding WHERE MCode = '2' AND Sdesc = 'Y'"_s), QStringList{u"2|x|50|y"_s});
    EXPECT_EQ(execute(u" DELETE From ZRVtbCoding  WHERE SCode = '50' AND MCode = '2'"_s), 1);
    EXPECT_EQ(execute(u"DELETE FROM ZRVtbCoding WHERE MCode = '10' AND val(SCode) >9"_s), 9);
}

TEST_F(Statements, UpgradeComputesFindsAndRenumbers)
{
    execute(u"UPDATE ZRVtbHogog Set NtotalDaramad = val(NJariHogog) + val(JariEzafeKar) + val(NJariSayerPardakhtiha) "
            "WHERE TFN = '123456789012'"_s);
    EXPECT_EQ(value(u"SELECT NTotalDaramad FROM ZRVtbHogog"_s), Value(u"0"_s)) << "blanks and NULL count as nothing";
    execute(u"UPDATE ZRVtbHogog Set NDaramadeMashmol = val(NTotalDaramad) - val(NJariMoafiate91) WHERE TFN = "
            "'123456789012'"_s);
    EXPECT_EQ(execute(u"UPDATE ZRVtbHogog Set NJariHogog = '0' WHERE NJariHogog is null AND TFN = '123456789012'"_s),
              3);
    EXPECT_EQ(rows(u"SELECT * from ZRVtbKarkonan WHERE  (((Val([Madrak]))>8)) "_s).size(), 0);
    execute(u"UPDATE ZRVtbKarkonan Set Madrak = '9'"_s);
    EXPECT_EQ(rows(u"SELECT * from ZRVtbKarkonan WHERE  (((Val([Madrak]))>8)) "_s).size(), 3);
    EXPECT_EQ(execute(u"UPDATE ZRVtbKarkonan Set Madrak = '1' WHERE  TFN = '123456789012' AND  val(Madrak) > 8"_s), 3);
    EXPECT_EQ(execute(u"UPDATE ZRVtbKarkonan Set ShakhsMoafCode = '0' WHERE ShakhsMoafCode = '7' OR ShakhsMoafCode = "
                      "'8' OR ShakhsMoafCode = '9' OR ShakhsMoafCode = '10'"_s),
              0);
    EXPECT_EQ(execute(u"UPDATE ZRVtbKholList Set BankName = '-1' WHERE  TFN = '123456789012' AND  "
                      "(ZRVtbKholList.BankName) Is Null "_s),
              0);
    EXPECT_EQ(execute(u"UPDATE ZRVtbKholList Set BankName = null WHERE  TFN = '1' AND  BankName='-1' "_s), 0);
    EXPECT_TRUE(rows(u"SELECT TFN,TaxYear,TaxMonth,sdesc FROM ZRVtbKholList,ZRVtbCoding WHERE  BankName=scode AND  "
                     "mcode = '8' AND  (((Val([BankName]))>17)) "_s)
                    .isEmpty());
    EXPECT_EQ(execute(u" DELETE From ZRVtbHogog "_s), 3);
}

TEST_F(Statements, RepairsRewriteKeysWithBareNumbers)
{
    execute(u"UPDATE ZRVtbKarfarma Set CodeShobe = '01'"_s);
    execute(u"UPDATE ZRVtbKarfarma Set codeshobe = cstr(val(codeshobe)) "_s);
    EXPECT_EQ(value(u"SELECT CodeShobe FROM ZRVtbKarfarma"_s), Value(u"1"_s));
    execute(u"UPDATE ZRVtbHogog Set TFN = 987654321098"_s);
    EXPECT_EQ(value(u"SELECT TFN FROM ZRVtbHogog"_s), Value(u"987654321098"_s));
    execute(u"UPDATE ZRVtbKarfarma Set CodeShobe = 12"_s);
    EXPECT_EQ(value(u"SELECT CodeShobe FROM ZRVtbKarfarma"_s), Value(u"12"_s));
}

TEST_F(Statements, PayeeSearchOrdersPassportsByTheirLeadingDigits)
{
    execute(u"UPDATE ZRVtbKarkonan Set MelliCode = '7A9' WHERE MelliCode = '1000000003'"_s);
    EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbKarkonan WHERE Name LIKE '%ب%' ORDER BY val(MelliCode) "_s),
              (QStringList{u"7A9"_s, u"1000000002"_s}));
}

TEST_F(Statements, WriterQueryDropsAPayeeWhoseCodeIsUnknown)
{
    const QString query = monthQuery();
    const auto codes = [&] {
        QStringList list;
        for (const QString &row : rows(query))
            list.append(row.section(u'|', 0, 0));
        return list;
    };
    EXPECT_EQ(codes(), (QStringList{u"1000000003"_s, u"1000000001"_s, u"1000000002"_s})) << "in the order of entry";
    EXPECT_EQ(rows(query).value(0).section(u'|', 6, 14), u"مدير عامل|2|4|2|0|1|ايران|1|تامين اجتماعي"_s);
    execute(u"UPDATE ZRVtbKarkonan Set Rasteh = '99' WHERE MelliCode = '1000000001'"_s);
    execute(u"UPDATE ZRVtbKarkonan Set KeshvarCode = '' WHERE MelliCode = '1000000002'"_s);
    EXPECT_EQ(codes(), QStringList{u"1000000003"_s});
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbHogog,ZRVtbKarkonan WHERE  ZRVtbHogog.TFN = '123456789012' AND "
                   "ZRVtbHogog.TaxYear = '1389' AND ZRVtbHogog.TaxMonth = '01' AND ZRVtbHogog.MelliCode = "
                   "ZRVtbKarkonan.MelliCode"_s)
                  .size(),
              3);
}

} // namespace zrv
