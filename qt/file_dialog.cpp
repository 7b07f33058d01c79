// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/file_dialog.h"

#include "qt/kept_size.h"
#include "qt/look.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

QString FileKinds::type(const QFileInfo &file) const
{
    if (file.isDir())
        return u"پوشه"_s;
    return file.suffix().isEmpty() ? u"فايل"_s : QString(u"فايل "_s + file.suffix());
}

FileDialog::FileDialog(QWidget *parent, const QString &folder, const QString &filter)
    : QFileDialog(parent, QString(), folder, filter)
{
    setObjectName(u"fileDialog"_s);
    // The desktop's own dialogue speaks the desktop's language and direction.
    setOption(DontUseNativeDialog);
    setIconProvider(this);
    findChild<QComboBox *>(u"lookInCombo"_s)->setLayoutDirection(Qt::LeftToRight);
    findChild<QLineEdit *>(u"fileNameEdit"_s)->setLayoutDirection(Qt::LeftToRight);
    // All columns of the list of files are seen, the last one's dates in full.
    findChild<QTreeView *>(u"treeView"_s)->header()->setStretchLastSection(true);
    constexpr int Width = 760;
    resize(QSize(Width, sizeHint().height()).boundedTo(KeptSize::room(*this)));
}

} // namespace zrv
