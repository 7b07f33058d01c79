// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/old_store.h"

#include "core/basic/run_time_error.h"
#include "core/basic/safe_file.h"
#include "core/store/store_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView OldCodePage = u"old-code-page";

struct Word {
    QStringView name;
    QStringView text;
};

/// Why an old store isn't taken over, by the name that zrvstore gives the reason, and what the user can do about it.
constexpr Word Reasons[] = {
    // clang-format off
    {u"in-use",           u"فايل بانک اطلاعاتي نسخه قديمي در برنامه ديگري باز است . آن برنامه را ببنديد و دوباره وارد شويد"},
    {u"no-file",          u"فايل بانک اطلاعاتي نسخه قديمي خوانده نميشود . دسترسي فايل را بررسي نماييد"},
    {u"can-not-write",    u"ايجاد بانک اطلاعاتي ممکن نشد . فضاي ديسک و دسترسي پوشه برنامه را بررسي نماييد"},
    {u"too-large",        u"فايل بانک اطلاعاتي نسخه قديمي بزرگتر از حد مجاز است"},
    {u"version",          u"فايل بانک اطلاعاتي با نسخه ديگري از Access ساخته شده است . آنرا با قالب Access 2000 ذخيره نماييد"},
    {u"password",         u"فايل بانک اطلاعاتي نسخه قديمي کلمه عبور دارد . کلمه عبور فايل را در Access حذف نماييد"},
    {u"missing-table",    u"در فايل بانک اطلاعاتي نسخه قديمي جدولي از جداول برنامه وجود ندارد"},
    {u"missing-column",   u"در فايل بانک اطلاعاتي نسخه قديمي فيلدي از فيلدهاي برنامه وجود ندارد"},
    {u"column-type",      u"نوع فيلدي در فايل بانک اطلاعاتي نسخه قديمي با برنامه سازگار نيست"},
    {u"duplicate-key",    u"در فايل بانک اطلاعاتي نسخه قديمي رکورد تکراري وجود دارد . رکورد تکراري را حذف نماييد"},
    {u"empty",            u"در فايل بانک اطلاعاتي نسخه قديمي رکوردي بدون کليد وجود دارد . آنرا اصلاح نماييد"},
    {u"letters",          u"در فايل بانک اطلاعاتي نسخه قديمي متني با حروف ناخوانا وجود دارد . آنرا اصلاح نماييد"},
    {OldCodePage,         u"در فايل بانک اطلاعاتي نسخه قديمي متني با حروف کد صفحه قديمي وجود دارد"},
    // clang-format on
};
constexpr QStringView Damaged = u"فايل بانک اطلاعاتي نسخه قديمي آسيب ديده است . فايل پشتيبان را جايگزين نماييد";
constexpr QStringView NoTool = u"برنامه zrvstore در پوشه برنامه پيدا نشد و يا کار آن به پايان نرسيد";

/// The tables by the names that users know.
constexpr Word Tables[] = {
    // clang-format off
    {u"ZRVtbKarfarma",   u"پرداخت کننده حقوق"},
    {u"ZRVtbKarkonan",   u"دريافت کنندگان حقوق"},
    {u"ZRVtbHogog",      u"ليست حقوق"},
    {u"ZRVtbKholList",   u"خلاصه ليست حقوق"},
    {u"ZRVtbCoding",     u"اطلاعات پايه"},
    {u"User_Defination", u"کاربران سيستم"},
    // clang-format on
};

/// Only what the file begins with is looked at; a pipe under the store's name isn't waited for.
bool isOldStore(const QString &path)
{
    constexpr QByteArrayView magic("\0\1\0\0Standard Jet DB\0", 20);
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && file.read(magic.size()) == magic;
}

/// The name of the reason, which stands in brackets at the end of what zrvstore says.
QString reasonOf(const ToolEnd &end)
{
    static const QRegularExpression name(u"\\[([a-z-]+)\\]\\s*$"_s);
    return name.match(end.errors).captured(1);
}

[[noreturn]] void fail(const ToolEnd &end)
{
    if (end.exitCode < 0)
        throw RunTimeError(store_error::General, NoTool.toString());
    const auto known = std::ranges::find(Reasons, reasonOf(end), &Word::name);
    const QStringView reason = known == std::end(Reasons) ? Damaged : known->text;
    throw RunTimeError(store_error::General, reason + u'\r' + end.errors.trimmed());
}

/// The program does not convert such texts by itself: whether they may stay as they are is the user's to say.
bool mayStayAsStored(Platform &platform)
{
    return platform.messageBox(box::AskYesNo, u"توجه"_s,
                               u"در فايل بانک اطلاعاتي نسخه قديمي متنهايي با حروف کد صفحه قديمي وجود دارد که به صورت"
                               " ناخوانا نمايش داده ميشوند . آيا مايليد که اين متنها به همان صورت منتقل گردند ؟"_s)
           == Answer::Yes;
}

/// One line for each table: its name and how many rows were taken over.
QString tableLines(const QString &report)
{
    QString lines;
    for (const Word &table : Tables) {
        const QRegularExpression rows(u'^' + table.name + u": ([0-9]+) rows$", QRegularExpression::MultilineOption);
        lines += u"\r\n" + table.text + u" : " + rows.match(report).captured(1);
    }
    return lines;
}

/// Keeps the report of a store with doubts beside the old file; the text that tells of it. Where it can't be kept the
/// text says why: the store is taken over by then, and nobody comes by here again.
QString doubtsOf(const QString &report, const QDir &folder, const QString &oldFile)
{
    const QString name = QFileInfo(oldFile).completeBaseName() + u".txt"_s;
    const QByteArray utf8 = report.toUtf8();
    try {
        SafeFile file(folder.filePath(name));
        file.write(utf8.constData(), std::size_t(utf8.size()));
        file.commit();
    } catch (const RunTimeError &error) {
        return u"\r\nدر اطلاعات منتقل شده موارد مشکوک وجود دارد و فهرست آنها ذخيره نگرديد . شرح خطا : "_s
               + error.description();
    }
    return u"\r\nدر اطلاعات منتقل شده موارد مشکوک وجود دارد . فهرست آنها در فايل "_s + name
           + u" ذخيره گرديد ، لطفا آنها را بررسي نماييد"_s;
}

} // namespace

void takeOverOldStore(Platform &platform)
{
    const QDir folder(platform.programFolder());
    const QString path = folder.filePath(u"DBZorvan.mdb"_s);
    if (!isOldStore(path))
        return;
    const QStringList words = {u"takeover"_s, path, folder.path()};
    ToolEnd end = platform.runTool(u"zrvstore"_s, words);
    if (reasonOf(end) == OldCodePage && end.exitCode == 2 && mayStayAsStored(platform))
        end = platform.runTool(u"zrvstore"_s, words + QStringList{u"--as-stored"_s});
    if (end.exitCode != 0 && end.exitCode != 1)
        fail(end);
    static const QRegularExpression kept(u"^the old file is kept as (.+)$"_s, QRegularExpression::MultilineOption);
    const QString oldFile = kept.match(end.output).captured(1);
    QString text = u"بانک اطلاعاتي نسخه قديمي برنامه منتقل گرديد . فايل اصلي با نام "_s + oldFile
                   + u" در پوشه برنامه نگهداري ميشود"_s + tableLines(end.output);
    if (end.exitCode == 1)
        text += doubtsOf(end.output, folder, oldFile);
    platform.messageBox(box::Notice, u"توجه"_s, text);
}

} // namespace zrv
