// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"

namespace zrv {

/// A platform on which nothing happens, to build the few that a test needs on.
class QuietPlatform : public Platform {
public:
    Answer messageBox(int, const QString &, const QString &) override { return Answer::Ok; }
    void runModal(Form &) override {}
    std::optional<QString> openFileDialog(const QString &, const QString &) override { return {}; }
    void viewFile(const QString &) override {}
    void preview(const Report &) override {}
    QSize displaySize() override { return {1280, 1024}; }
    QDate today() override { return {2010, 5, 24}; }
    QTime timeOfDay() override { return {10, 30}; }
    QString programFolder() override { return {}; }
    QString programFile() override { return {}; }
    QString desktopFolder() override { return {}; }
    QString setting(const QString &, const QString &, const QString &fallback) override { return fallback; }
    void saveSetting(const QString &, const QString &, const QString &) override {}
    quint32 keyboardLayout() override { return 0; }
    void activateKeyboardLayout(quint32) override {}
    void yield() override {}
    ToolEnd runTool(const QString &, const QStringList &) override { return {}; }
};

} // namespace zrv
