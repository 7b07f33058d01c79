// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/fresh_rows.h"

#include "core/store/new_store.h"

#include <array>
#include <span>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Row {
    QStringView code;
    QStringView description;
};

struct List {
    QStringView number;
    QStringView description;
    std::span<const Row> rows;
};

// clang-format off
constexpr Row List1[] = {
    {u"1", u"بي سواد و کم سواد"},
    {u"2", u"پايان ابتدايي"},
    {u"3", u"پايان راهنمايي"},
    {u"4", u"ديپلم"},
    {u"5", u"فوق ديپلم"},
    {u"6", u"ليسانس"},
    {u"7", u"فوق ليسانس"},
    {u"8", u"دکترا و بالاتر"},
};

constexpr Row List2[] = {
    {u"0", u"ساير"},
    {u"1", u"مدير عامل"},
    {u"2", u"مدير"},
    {u"3", u"کارشناس"},
    {u"4", u"حسابدار"},
    {u"5", u"کارمند اداري"},
    {u"6", u"کارگر"},
    {u"7", u"راننده"},
    {u"8", u"نگهبان"},
};

constexpr Row List4[] = {
    {u"01", u"فروردين"},
    {u"02", u"ارديبهشت"},
    {u"03", u"خرداد"},
    {u"04", u"تير"},
    {u"05", u"مرداد"},
    {u"06", u"شهريور"},
    {u"07", u"مهر"},
    {u"08", u"آبان"},
    {u"09", u"آذر"},
    {u"10", u"دي"},
    {u"11", u"بهمن"},
    {u"12", u"اسفند"},
};

constexpr Row List5[] = {
    {u"1", u"حقيقي"},
    {u"2", u"حقوقي"},
};

constexpr Row List6[] = {
    {u"1", u"وزارتخانه"},
    {u"2", u"موسسه دولتي"},
    {u"3", u"شرکت دولتي"},
    {u"4", u"ساير دستگاه هاي دولتي"},
    {u"5", u"نهادهاي عمومي غير دولتي"},
    {u"6", u"بخش خصوصي"},
    {u"7", u"ساير پرداخت کنندگان حقوق"},
};

constexpr Row List7[] = {
    {u"1", u"محاسبه ماهانه"},
    {u"2", u"محاسبه سالانه"},
};

constexpr Row List8[] = {
    {u"0", u"ساير"},
    {u"1", u"بانک شماره 1"},
    {u"2", u"بانک شماره 2"},
    {u"3", u"بانک شماره 3"},
    {u"4", u"بانک شماره 4"},
    {u"5", u"بانک شماره 5"},
    {u"6", u"بانک شماره 6"},
    {u"7", u"بانک شماره 7"},
    {u"8", u"بانک شماره 8"},
    {u"9", u"بانک شماره 9"},
    {u"10", u"بانک شماره 10"},
    {u"11", u"بانک شماره 11"},
    {u"12", u"بانک شماره 12"},
    {u"13", u"بانک شماره 13"},
    {u"14", u"بانک شماره 14"},
    {u"15", u"بانک شماره 15"},
    {u"16", u"بانک شماره 16"},
    {u"17", u"بانک شماره 17"},
};

constexpr Row List9[] = {
    {u"1", u"نقدي"},
    {u"2", u"غير نقدي - چک"},
    {u"3", u"ارائه ليست بدون پرداخت ماليات"},
};

constexpr Row List10[] = {
    {u"0", u"ساير"},
    {u"1", u"اداري و مالي"},
    {u"2", u"فني و مهندسي"},
    {u"3", u"آموزشي و فرهنگي"},
    {u"4", u"بهداشتي و درماني"},
    {u"5", u"خدماتي"},
    {u"6", u"کشاورزي"},
    {u"7", u"فن آوري اطلاعات"},
    {u"8", u"بازرگاني و فروش"},
    {u"9", u"حقوقي"},
    {u"10", u"حراست و نگهباني"},
    {u"11", u"کارگري"},
    {u"12", u"ترابري"},
    {u"13", u"توليدي"},
    {u"14", u"کنترل کيفي"},
    {u"15", u"تحقيقات"},
    {u"16", u"انبارداري"},
    {u"17", u"قضات"},
    {u"18", u"اعضاهيات علمي دانشگاه وموسسات آموزش عالي وتحقيقاتي"},
};

constexpr Row List11[] = {
    {u"1", u"ايراني"},
    {u"2", u"خارجي"},
};

constexpr Row List12[] = {
    {u"1", u"ايران"},
    {u"2", u"افغانستان"},
    {u"3", u"پاکستان"},
    {u"4", u"عراق"},
    {u"5", u"ترکيه"},
    {u"6", u"ترکمنستان"},
    {u"7", u"آذربايجان"},
    {u"8", u"ارمنستان"},
};

constexpr Row List13[] = {
    {u"0", u"عدم معافيت"},
    {u"1", u"شاغلين در مناطق کمتر توسعه يافته 50 درصد معافيت"},
    {u"2", u"اشخاص معاف - رديف 2"},
    {u"3", u"جانبازان انقلاب اسلامي و جنگ تحميلي"},
    {u"4", u"پرسنل نيروي مسلح اعم از نظامي و انتظامي"},
    {u"5", u"مشمولان قانون استخدامي وزارت اطلاعات"},
    {u"6", u"شاغلين در مناطق آزاد تجاري - صنعتي"},
    {u"7", u"آزاده وجانباز"},
    {u"8", u"بازنشسته - وظيفه و مستمري بگير"},
    {u"9", u"اشخاص معاف - رديف 9"},
    {u"10", u"اشخاص معاف - رديف 10"},
    {u"11", u"اشخاص معاف - رديف 11"},
};

constexpr Row List14[] = {
    {u"1", u"ماهانه"},
};

constexpr Row List15[] = {
    {u"0", u"ساير"},
    {u"1", u"رسمي"},
    {u"2", u"پيماني"},
    {u"3", u"قراردادي"},
    {u"4", u"آزمايشي"},
    {u"5", u"موقت"},
    {u"6", u"روزمزد"},
    {u"7", u"مامور"},
    {u"8", u"ساعتي"},
    {u"9", u"رسمي فصلي"},
    {u"10", u"کارمزدي"},
};

constexpr Row List16[] = {
    {u"0", u"ساير"},
    {u"1", u"تامين اجتماعي"},
    {u"2", u"خدمات درماني"},
    {u"3", u"بيمه نشده"},
};

constexpr Row List17[] = {
    {u"1388", u"50000000"},
};

constexpr Row List18[] = {
    {u"1", u"عدم استفاده از مسکن"},
    {u"2", u"استفاده از مسکن با اثاثيه"},
    {u"3", u"استفاده از مسکن بدون اثاثيه"},
};

constexpr Row List19[] = {
    {u"1", u"عدم استفاده از اتومبيل"},
    {u"2", u"استفاده از اتومبيل با راننده"},
    {u"3", u"استفاده از اتومبيل بدون راننده"},
};

constexpr List Lists[] = {
    {u"1", u"مدرک تحصيلي", List1},
    {u"2", u"سمت يا شغل", List2},
    {u"4", u"ماه", List4},
    {u"5", u"نوع پرداخت کننده اصلي", List5},
    {u"6", u"نوع پرداخت کننده فرعي", List6},
    {u"7", u"نحوه محاسبه ماليات", List7},
    {u"8", u"ليست نام بانکها", List8},
    {u"9", u"نحوه پرداخت", List9},
    {u"10", u"رسته شغلي", List10},
    {u"11", u"مليت", List11},
    {u"12", u"نام کشور", List12},
    {u"13", u"کد اشخاص معاف", List13},
    {u"14", u"نوع خلاصه ليست", List14},
    {u"15", u"نوع استخدام", List15},
    {u"16", u"نوع بيمه", List16},
    {u"17", u"معافيت سالانه ماده 84", List17},
    {u"18", u"وضعيت مسکن", List18},
    {u"19", u"وضعيت اتومبيل", List19},
};
// clang-format on

} // namespace

std::vector<FreshCode> freshCodes()
{
    std::vector<FreshCode> codes;
    for (const List &list : Lists) {
        for (const Row &row : list.rows)
            codes.push_back({list.number, list.description, row.code, row.description});
    }
    return codes;
}

void addFreshRows(NewStore &store, const FirstUser &user)
{
    for (const auto &[list, listName, code, description] : freshCodes())
        store.addRow(u"ZRVtbCoding", std::array<Value, 4>{list.toString(), listName.toString(), code.toString(),
                                                          description.toString()});
    addUser(store, user);
}

void addUser(NewStore &store, const FirstUser &user)
{
    store.addRow(u"User_Defination", std::array<Value, 5>{user.name, user.password, u"مدير"_s, u"سيستم"_s, u"1"_s});
}

QString codeListName(QStringView number)
{
    for (const List &list : Lists)
        if (list.number == number)
            return list.description.toString();
    return {};
}

} // namespace zrv
