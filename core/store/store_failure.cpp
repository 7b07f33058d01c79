// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_failure.h"

#include "core/store/column_labels.h"
#include "core/store/dialect/sql_text.h"
#include "core/store/store_error.h"

#include <QRegularExpression>

#include <sqlite3.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Explanation {
    int code;
    QStringView text;
};

// What a failure of the file means and how the user mends it; the file's path follows.
constexpr Explanation Explanations[] = {
    // clang-format off
    {SQLITE_BUSY,     u"بانک اطلاعاتي در اختيار برنامه ديگري است . برنامه ديگر را ببنديد و عمليات را تکرار نماييد"},
    {SQLITE_LOCKED,   u"بانک اطلاعاتي در اختيار عمليات ديگري است . عمليات را تکرار نماييد"},
    {SQLITE_NOTADB,   u"فايل بانک اطلاعاتي قابل خواندن نيست . فايل پشتيبان را جايگزين نماييد"},
    {SQLITE_CORRUPT,  u"فايل بانک اطلاعاتي آسيب ديده است . فايل پشتيبان را جايگزين نماييد"},
    {SQLITE_READONLY, u"نوشتن در بانک اطلاعاتي مجاز نيست . دسترسي فايل و پوشه آنرا بررسي نماييد"},
    {SQLITE_PERM,     u"دسترسي به بانک اطلاعاتي مجاز نيست . دسترسي فايل و پوشه آنرا بررسي نماييد"},
    {SQLITE_CANTOPEN, u"بانک اطلاعاتي باز نميشود . وجود فايل و دسترسي پوشه آنرا بررسي نماييد"},
    {SQLITE_FULL,     u"فضاي ديسک کافي نيست . بر روي ديسک فضا ايجاد و عمليات را تکرار نماييد"},
    {SQLITE_IOERR,    u"خواندن يا نوشتن بانک اطلاعاتي ممکن نشد . ديسک را بررسي نماييد"},
    {SQLITE_NOMEM,    u"حافظه کافي نيست . برنامه هاي ديگر را ببنديد و عمليات را تکرار نماييد"},
    // clang-format on
};

RunTimeError tooLong(const QString &message)
{
    static const QRegularExpression check(u"length\\(\"(.+)\"\\)<=([0-9]+)"_s);
    const QRegularExpressionMatch match = check.match(message);
    if (!match.hasMatch())
        return {store_error::General, message};
    const QString column = match.captured(1);
    const QString label = columnLabel(column);
    const QString named =
        label.isEmpty() ? QString(u'«' + column + u'»') : QString(u'«' + label + u"» ("_s + column + u')');
    return {store_error::ValueTooLong, u"مقدار فيلد "_s + named + u" از طول مجاز آن ( "_s + match.captured(2)
                                           + u" حرف ) بلندتر است . مقدار را کوتاه نماييد"_s};
}

} // namespace

QString widthCheck(const QString &column, int width)
{
    return "CHECK(length("_L1 + dialect::sqlName(column) + ")<="_L1 + QString::number(width) + u')';
}

RunTimeError storeFailure(sqlite3 *database, const QString &path, bool whilePreparing)
{
    const int code = sqlite3_extended_errcode(database);
    const QString message = QString::fromUtf8(sqlite3_errmsg(database));
    if (code == SQLITE_CONSTRAINT_CHECK)
        return tooLong(message);
    if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY)
        return {store_error::General,
                u"رکوردي با اين کليد قبلا ذخيره شده است : "_s + message.section(u':', 1).trimmed()};
    for (const Explanation &explanation : Explanations) {
        if ((code & 0xFF) == explanation.code)
            return {store_error::General, explanation.text.toString() + " : "_L1 + path};
    }
    if (whilePreparing)
        return {store_error::Syntax, u"دستور بانک اطلاعاتي خوانا نيست : "_s + message};
    return {store_error::General, message + " : "_L1 + path};
}

} // namespace zrv
