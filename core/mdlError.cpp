// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/mdlError.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

void ShowUnknownError(Platform &platform, const RunTimeError &failure)
{
    platform.messageBox(box::RightToLeft, u"اخطار"_s,
                        u"خطاي ناشناخته با جزئيات زير رخ داده است : "_s + u"\r"_s + u"شماره خطا : "_s
                            + QString::number(failure.number()) + u"\r"_s + u"شرح خطا : "_s + failure.description());
}

void ShowInlineError(Platform &platform, const RunTimeError &failure)
{
    platform.messageBox(box::Plain, QString(),
                        u"Unknown Error : "_s + QString::number(failure.number()) + u" < "_s + failure.description()
                            + u" > "_s);
}

} // namespace zrv
