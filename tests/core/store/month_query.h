// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// The statement that reads a month for the payees' file, joined to eight code lists.
inline QString monthQuery()
{
    using namespace Qt::Literals::StringLiterals;
    return u"SELECT ZRVtbHogog.MelliCode AS MelliCode,Name,Family,FatherName,EstekhdamType,PostCode,ZRVtbCoding.SDesc AS "
           "Semat,Sabege,Madrak,Rasteh,ShakhsMoafCode,MelliatCode,ZRVtbCoding_1.SDesc AS KeshvarName,BimehType,"
           "ZRVtbCoding_2.SDesc AS BimehName,InsuNo,NJariHogog,NJariMoafiate91,JariEzafeKar,NJariSayerPardakhtiha,"
           "NTotalDaramad,NDaramadeMashmol,GJariHogog,MaskanMablagh,OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,"
           "PJariHogog,PDaramadeMashmol,NGPTotalDaramadeMashmol,SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax "
           "FROM ZRVtbHogog,ZRVtbKarkonan,ZRVtbCoding,ZRVtbCoding as ZRVtbCoding_1,ZRVtbCoding as ZRVtbCoding_2,"
           "ZRVtbCoding as ZRVtbCoding_3,ZRVtbCoding as ZRVtbCoding_4,ZRVtbCoding as ZRVtbCoding_5,ZRVtbCoding as "
           "ZRVtbCoding_6,ZRVtbCoding as ZRVtbCoding_7 WHERE  ZRVtbHogog.TFN = '123456789012' AND ZRVtbHogog.TaxYear = "
           "'1389' AND ZRVtbHogog.TaxMonth = '01' AND ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode AND "
           "ZRVtbKarkonan.Semat = ZRVtbCoding.SCode AND ZRVtbCoding.MCode = '2' AND ZRVtbKarkonan.KeshvarCode = "
           "ZRVtbCoding_1.SCode AND ZRVtbCoding_1.MCode = '12' AND ZRVtbKarkonan.BimehType = ZRVtbCoding_2.SCode AND "
           "ZRVtbCoding_2.MCode = '16' AND ZRVtbKarkonan.Madrak = ZRVtbCoding_3.SCode AND ZRVtbCoding_3.MCode = '1' "
           "AND ZRVtbKarkonan.Rasteh = ZRVtbCoding_4.SCode AND ZRVtbCoding_4.MCode = '10' AND "
           "ZRVtbKarkonan.ShakhsMoafCode = ZRVtbCoding_5.SCode AND ZRVtbCoding_5.MCode = '13' AND "
           "ZRVtbKarkonan.EstekhdamType = ZRVtbCoding_6.SCode AND ZRVtbCoding_6.MCode = '15' AND "
           "ZRVtbKarkonan.KeshvarCode = ZRVtbCoding_7.SCode AND ZRVtbCoding_7.MCode = '12'"_s;
}

} // namespace zrv
