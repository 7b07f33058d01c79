// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/start.h"

#include "core/store/store_backups.h"
#include "qt/first_window.h"

#include <QDir>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Refusal = u" اخطار  "_s;

QString holderOf(const StoreLock &lock)
{
    return u"\r\n"_s + u"کامپيوتر : "_s + lock.machine() + u"\r\n"_s + u"شماره پردازه : "_s
           + QString::number(lock.process());
}

} // namespace

const QString PortableSign = u"portable.txt"_s;

bool isFirstStart(Platform &platform, bool isInstalledForAll)
{
    const QDir folder(platform.programFolder());
    if (isInstalledForAll)
        return !folder.exists();
    return folder.exists(PortableSign) && !folder.exists(u"DBZorvan.mdb"_s)
           && !QFileInfo::exists(backupFolder(folder.filePath(u"DBZorvan.mdb"_s)));
}

bool makeFirstStore(Platform &platform)
{
    const QString folder = platform.programFolder();
    const ToolEnd end = platform.runTool(u"zrvstore"_s, {u"create"_s, folder});
    // Of two programs that are started at once the other may have been quicker.
    if (end.exitCode != 0 && !QFileInfo::exists(folder + u"/DBZorvan.mdb"_s)) {
        platform.messageBox(box::Refusal, Refusal,
                            u"بانک اطلاعاتي برنامه ايجاد نگرديد . پوشه : "_s + folder + u"\r\n"_s
                                + end.errors.trimmed());
        return false;
    }
    return true;
}

void tellOfFirstStore(Platform &platform)
{
    platform.messageBox(box::Notice, u"توجه"_s,
                        u"بانک اطلاعاتي برنامه در پوشه زير ايجاد گرديد : "_s + u"\r\n"_s + platform.programFolder()
                            + u"\r\n"_s + u"نام کاربري : ADMIN"_s + u"\r\n"_s + u"رمز عبور : ADMIN"_s);
}

bool mayRun(Platform &platform, const QString &store, StoreLock &lock)
{
    switch (lock.state()) {
    case StoreLock::State::HeldHere:
        if (!FirstWindow::comesToTheFront(store))
            platform.messageBox(box::Refusal, Refusal,
                                u"برنامه هم اکنون با همين بانک اطلاعاتي در حال اجرا است"_s + holderOf(lock));
        return false;
    case StoreLock::State::HeldAfar:
        if (platform.messageBox(
                box::AskYesNo, Refusal,
                u"اين بانک اطلاعاتي در کامپيوتر ديگري باز است و يا برنامه در آن به درستي بسته نشده است"_s
                    + holderOf(lock) + u"\r\n"_s
                    + u"آيا اطمينان داريد که برنامه در آن کامپيوتر بسته است و مايل به ادامه ميباشيد ؟"_s)
            != Answer::Yes)
            return false;
        lock.takeOver();
        return true;
    case StoreLock::State::Held:
    case StoreLock::State::Impossible:
        return true;
    }
    return true;
}

} // namespace zrv
