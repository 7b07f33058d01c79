// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/column_labels.h"

#include <algorithm>
#include <array>

namespace zrv {

namespace {

struct ColumnLabel {
    QStringView column;
    QStringView label;
};

// clang-format off
constexpr std::array Labels{
    ColumnLabel{u"TFN", u"شماره پرونده (TFN) :"},
    ColumnLabel{u"CodeShobe", u"کد شعبه :"},
    ColumnLabel{u"MMoadiType", u"نوع مودي :"},
    ColumnLabel{u"MohasebeType", u"نحوه محاسبه ماليات :"},
    ColumnLabel{u"EdareName", u"نام اداره کل :"},
    ColumnLabel{u"Tin", u"شماره اقتصادي(TIN) :"},
    ColumnLabel{u"CodeHozeh", u"کد واحد مالياتي :"},
    ColumnLabel{u"TelNo", u"شماره تلفن :"},
    ColumnLabel{u"Address", u"نشاني :"},
    ColumnLabel{u"MelliCode1", u"شماره ملي/ شماره گذرنامه :"},
    ColumnLabel{u"MelliCode2", u"شماره ملي/ شماره گذرنامه :"},
    ColumnLabel{u"MelliCode", u"شماره ملي حقوق بگير :"},
    ColumnLabel{u"FatherName", u"نام  پدر :"},
    ColumnLabel{u"Semat", u"سمت يا شغل :"},
    ColumnLabel{u"Sabege", u"سابقه(به سال) :"},
    ColumnLabel{u"Madrak", u"آخرين مدرک تحصيلي :"},
    ColumnLabel{u"Rasteh", u"رسته شغلي :"},
    ColumnLabel{u"InsuNo", u"شماره بيمه :"},
    ColumnLabel{u"ShakhsMoafCode", u"معافيت مالياتي مازاد بر ماده 84 ق م م :"},
    ColumnLabel{u"MelliatCode", u"مليت :"},
    ColumnLabel{u"KeshvarCode", u"نام کشور :"},
    ColumnLabel{u"BeginDate", u"تاريخ شروع کار :"},
    ColumnLabel{u"EndDate", u"تاريخ پـايـان کار :"},
    ColumnLabel{u"EstekhdamType", u"نوع استخدام :"},
    ColumnLabel{u"BimehType", u"نوع بيمه :"},
    ColumnLabel{u"HomeAddress", u"نشاني محل سکونت :"},
    ColumnLabel{u"KholListType", u"نوع خلاصه ليست :"},
    ColumnLabel{u"JariTax", u"جمع مـــــــاليات  متعلقه : "},
    ColumnLabel{u"JariBedehiTax", u"بدهي  مــــــالياتي : "},
    ColumnLabel{u"KarkonanNo", u"تعداد کل کارکنان در ماه جاري :"},
    ColumnLabel{u"KharejiNo", u"تعداد کارکنان خارجي :"},
    ColumnLabel{u"NahveyePardakht", u"نحوه پرداخت ماليات :"},
    ColumnLabel{u"ChequeSeriNo", u"شماره سري چک:"},
    ColumnLabel{u"ChequeDate", u"تاريخ چک :"},
    ColumnLabel{u"BankName", u"نام بانک :"},
    ColumnLabel{u"HesabNo", u"شماره حساب :"},
    ColumnLabel{u"MablagPardakhti", u"مبلغ ماليات پرداختي :"},
};
// clang-format on

} // namespace

QString columnLabel(QStringView column)
{
    const auto found = std::ranges::find_if(
        Labels, [column](const ColumnLabel &row) { return row.column.compare(column, Qt::CaseInsensitive) == 0; });
    if (found == Labels.end())
        return {};
    // The colon belongs to the screen's label beside the field.
    QStringView name = found->label.trimmed();
    if (name.endsWith(u':'))
        name.chop(1);
    return name.trimmed().toString();
}

} // namespace zrv
