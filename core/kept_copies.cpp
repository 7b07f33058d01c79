// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/kept_copies.h"

#include "core/basic/run_time_error.h"
#include "core/mdlPublic.h"
#include "core/store/connection.h"
#include "core/store/soundness.h"
#include "core/store/store_backups.h"
#include "core/store/store_error.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

void keepCopy(const Program &program)
{
    Platform &platform = program.platform;
    backUpStore(storeFilePath(program.StoreConnectionString),
                SolarDate(platform.today(), true) + u'-' + platform.timeOfDay().toString(u"HHmmss"_s));
}

} // namespace

bool keepCopyBeforeStep(const Program &program)
{
    try {
        keepCopy(program);
        return true;
    } catch (const RunTimeError &failure) {
        return program.platform.messageBox(box::AskYesNo, u"اخطار"_s,
                                           u"پيش از اين عمليات نسخه پشتيبان از بانک اطلاعاتي ايجاد نگرديد. شرح خطا : "_s
                                               + u"\r\n"_s + failure.description() + u"\r\n"_s
                                               + u"آيا مايل به ادامه عمليات بدون نسخه پشتيبان ميباشيد ؟"_s)
               == Answer::Yes;
    }
}

void keepCopyBesideAnother(const Program &program)
{
    try {
        keepCopy(program);
    } catch (const RunTimeError &) {
        // The way back is the step's own copy, or the user has just said to do without one.
    }
}

void refuseDamagedStore(const Program &program)
{
    const QString store = storeFilePath(program.StoreConnectionString);
    if (soundnessOf(store) != Soundness::Damaged)
        return;
    const QString copy = newestSoundBackup(store);
    throw RunTimeError(store_error::General,
                       u"فايل بانک اطلاعاتي آسيب ديده است . فايل پشتيبان را جايگزين نماييد : "_s + store + u"\r\n"_s
                           + (copy.isEmpty() ? u"هيچ نسخه پشتيبان سالمي در پوشه Backups وجود ندارد"_s
                                             : u"آخرين نسخه پشتيبان سالم : "_s + copy));
}

void keepCopyAtLeaving(const Program &program)
{
    if (program.UserFullName.isEmpty())
        return;
    try {
        keepCopy(program);
    } catch (const RunTimeError &failure) {
        program.platform.messageBox(
            box::Refusal, u" اخطار  "_s,
            u"هنگام خروج نسخه پشتيبان از بانک اطلاعاتي ايجاد نگرديد. اطلاعات شما تغييري نکرده است. شرح خطا : "_s
                + u"\r\n"_s + failure.description());
    }
}

} // namespace zrv
