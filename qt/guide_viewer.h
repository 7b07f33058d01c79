// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <functional>

class QPushButton;
class QTextBrowser;

namespace zrv {

/// The users' guide, which F1 opens above a form: its pages, with ways back, to the contents and to the keys. Escape
/// closes it. Nothing of it is remembered.
class GuideViewer : public QDialog {
public:
    /// Opens at the form's page, or at the contents where it has none.
    GuideViewer(const QString &folder, const QString &form, QWidget *parent);

    /// The file's name of the page that is shown.
    [[nodiscard]] QString page() const;

private:
    QPushButton &addButton(const QString &name, const QString &caption, const std::function<void()> &action);
    void showPage(const QString &page);

    QString m_folder;
    QTextBrowser *m_pages;
};

/// The first of these folders that holds the guide's contents; empty when none does.
[[nodiscard]] QString guideFolder(const QStringList &candidates);

} // namespace zrv
