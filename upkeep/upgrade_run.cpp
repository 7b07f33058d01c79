// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/upgrade_run.h"

#include "core/store/connection.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

void UpgradeRun::execute(const QString &statement) const
{
    Connection(m_program.StoreConnectionString).execute(statement);
}

QString UpgradeRun::isThePayers() const
{
    return u" TFN = "_s + quoted(m_program.PayerTFN);
}

void UpgradeRun::showFailure(const RunTimeError &failure, const QString &routine) const
{
    m_program.platform.messageBox(box::Plain, QString(),
                                  u"error number = "_s + QString::number(failure.number()) + u" Error Desciption = "_s
                                      + failure.description() + u" نام تابع : "_s + routine);
}

} // namespace zrv
