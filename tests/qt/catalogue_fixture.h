// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Any screen of the program in its window, by its name.

#include "app/catalogue.h"
#include "core/program.h"
#include "core/screen.h"
#include "tests/qt/window_fixture.h"

#include <memory>
#include <string>
#include <vector>

namespace zrv::test {

struct CatalogueWindow {
    explicit CatalogueWindow(const QString &name)
    {
        fillCatalogue(program.catalogue);
        screen = program.catalogue.make(name, program);
        window = std::make_unique<FormWindow>(*screen, platform, nullptr);
    }

    QuietPlatform platform;
    Program program{platform};
    std::unique_ptr<Screen> screen;
    std::unique_ptr<FormWindow> window;
};

/// For tests that are one for each screen.
inline std::vector<std::string> screenNames()
{
    Catalogue catalogue;
    fillCatalogue(catalogue);
    std::vector<std::string> names;
    for (const QString &name : catalogue.names())
        names.push_back(name.toStdString());
    return names;
}

} // namespace zrv::test
