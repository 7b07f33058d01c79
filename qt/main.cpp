// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/catalogue.h"
#include "core/store/store_lock.h"
#include "qt/first_window.h"
#include "qt/look.h"
#include "qt/qt_platform.h"

#include <QApplication>

namespace {

using namespace zrv;
using namespace Qt::Literals::StringLiterals;

QString holderOf(const StoreLock &lock)
{
    return u"\r\n"_s + u"کامپيوتر : "_s + lock.machine() + u"\r\n"_s + u"شماره پردازه : "_s
           + QString::number(lock.process());
}

/// One program works on a store at a time. A later start brings the first to the front, or says where it runs.
bool mayRun(Platform &platform, const QString &store, StoreLock &lock)
{
    const QString title = u" اخطار  "_s;
    switch (lock.state()) {
    case StoreLock::State::HeldHere:
        if (!FirstWindow::comesToTheFront(store))
            platform.messageBox(box::Refusal, title,
                                u"برنامه هم اکنون با همين بانک اطلاعاتي در حال اجرا است"_s + holderOf(lock));
        return false;
    case StoreLock::State::HeldAfar:
        if (platform.messageBox(
                box::AskYesNo, title,
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

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    QtPlatform platform;
    const QString store = platform.programFolder() + u"/DBZorvan.mdb"_s;
    StoreLock lock(store);
    if (!mayRun(platform, store, lock))
        return 0;
    const FirstWindow first(store, raiseWindows);
    runProgram(platform);
    return 0;
}
