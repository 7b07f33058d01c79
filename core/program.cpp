// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program.h"

#include "core/screen.h"

namespace zrv {

std::unique_ptr<Screen> Catalogue::make(const QString &name, Program &program) const
{
    const auto maker = m_makers.find(name);
    return maker == m_makers.end() ? nullptr : maker->second(program);
}

} // namespace zrv
