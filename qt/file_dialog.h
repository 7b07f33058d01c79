// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDialog>
#include <QFileIconProvider>

namespace zrv {

/// What Qt's own dialogue calls the kinds of files, of which its translation says nothing.
class FileKinds : public QFileIconProvider {
public:
    [[nodiscard]] QString type(const QFileInfo &file) const override;
};

/// Asks for a file in Persian, whatever the desktop's language; its paths and names read from the left.
class FileDialog : private FileKinds, public QFileDialog {
public:
    FileDialog(QWidget *parent, const QString &folder, const QString &filter);
};

} // namespace zrv
