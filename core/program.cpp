// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program.h"

#include "core/screen.h"

namespace zrv {

std::unique_ptr<Screen> Catalogue::make(const QString &name, Program &program) const
{
    const auto maker = m_makers.find(name);
    return maker == m_makers.end() ? nullptr : maker->second(program);
}

std::vector<QString> Catalogue::names() const
{
    std::vector<QString> names;
    for (const auto &entry : m_makers)
        names.push_back(entry.first);
    return names;
}

} // namespace zrv
