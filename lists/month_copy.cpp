// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/month_copy.h"

#include "core/mdlError.h"
#include "core/store/store_error.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

QString ofTheMonth(const Program &program, const ListMonth &source)
{
    return u" WHERE "_s + u" ZRVtbHogog.TFN = "_s + quoted(program.PayerTFN) + u" AND ZRVtbHogog.TaxYear = "_s
           + quoted(source.year) + u" AND ZRVtbHogog.TaxMonth = "_s + quoted(source.month)
           + u" AND ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode"_s;
}

/// The comparison is one of texts, with the first day of the month: without a month it is with "01", which every date
/// is above.
QString notEndedBefore(const ListMonth &target)
{
    return u" AND (ZRVtbKarkonan.EndDate >= "_s + quoted(QString(target.year + target.month + u"01"_s))
           + u" OR ZRVtbKarkonan.EndDate='' OR ZRVtbKarkonan.EndDate IS NULL)"_s;
}

// clang-format off
QString copyStatement(const Program &program, const ListMonth &source, const ListMonth &target)
{
    return u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NJariHogog,JariEzafeKar,NJariSayerPardakhtiha,NTotalDaramad,NJariMoafiate91,NDaramadeMashmol,GJariHogog,MaskanStatus,MaskanMablagh,OtomobilStatus,OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,PJariHogog,PDaramadeMashmol,NGPTotalDaramadeMashmol,SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax) "_s
           + u"SELECT ZRVtbHogog.TFN,ZRVtbHogog.MelliCode,"_s + quoted(target.year) + u","_s + quoted(target.month)
           + u",NJariHogog,JariEzafeKar,NJariSayerPardakhtiha,NTotalDaramad,NJariMoafiate91,NDaramadeMashmol,GJariHogog,MaskanStatus,MaskanMablagh,OtomobilStatus,OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,PJariHogog,PDaramadeMashmol,NGPTotalDaramadeMashmol,SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax FROM ZRVtbHogog,ZRVtbKarkonan"_s
           + ofTheMonth(program, source) + notEndedBefore(target);
}
// clang-format on

} // namespace

Recordset CountTransferable(const Program &program, const ListMonth &source, const ListMonth &target)
{
    // clang-format off
    return {Connection(program.StoreConnectionString),
            u"SELECT count(*) AS KarkonanNo,Sum(NTotalDaramad)+Sum(GTotalDaramad)+Sum(PJariHogog) AS SUMNGPTotalDaramadeMashmol,sum(FinalDaramadeMashmol) AS SUMFinalDaramadeMashmol,sum(FinalTax) AS SUMFinalTax"_s
            + u" FROM ZRVtbHogog,ZRVtbKarkonan"_s + ofTheMonth(program, source) + notEndedBefore(target)};
    // clang-format on
}

void CopyMonth(const Program &program, const ListMonth &source, const ListMonth &target)
{
    try {
        Connection(program.StoreConnectionString).execute(copyStatement(program, source, target));
    } catch (const RunTimeError &failure) {
        // The number of a key clash stands for other failures as well, which are told in the same words.
        if (failure.number() == store_error::General)
            program.platform.messageBox(
                box::Plain, QString(),
                u"برخي و يا تمام اطلاعات انتخاب شده در مبدا ، در مقصد موجود ميباشد.ادامه عمليات انتقال امکان پذير نميباشد"_s);
        else
            ShowUnknownError(program.platform, failure);
    }
}

} // namespace zrv
