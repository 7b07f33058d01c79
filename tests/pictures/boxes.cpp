// SPDX-License-Identifier: GPL-3.0-or-later
// zrvpictures DIR: pictures of what no scenario can wait for: boxes, and a screen that no other opens. take.sh beside
// this file runs it for each look.
#include "core/frmEncodeDecode.h"
#include "qt/form_window.h"
#include "qt/look.h"
#include "qt/qt_platform.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>

#include <cstdio>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace zrv;

class PicturePlatform : public QtPlatform {
public:
    explicit PicturePlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }

    void takeBox(int style, const QString &title, const QString &text, const QString &name)
    {
        QTimer::singleShot(300, qApp, [this, name] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (auto *shown = qobject_cast<QMessageBox *>(widget)) {
                    save(*shown, name);
                    shown->close();
                }
            }
        });
        messageBox(style, title, text);
    }

protected:
    /// A picture of each screen instead of waiting for a user.
    void waitWhileOpen(Form &form) override
    {
        QCoreApplication::processEvents();
        save(*windowOf(form), form.name());
    }

private:
    void save(QWidget &window, const QString &name)
    {
        const QString path = m_folder + u"/"_s + name + u".png"_s;
        if (!window.grab().save(path))
            std::fprintf(stderr, "can't write %s\n", qPrintable(path));
    }

    QString m_folder;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    if (QApplication::arguments().size() != 2) {
        std::fprintf(stderr, "usage: zrvpictures DIR\n");
        return 2;
    }
    const QString folder = QApplication::arguments().at(1);
    QDir().mkpath(folder);
    PicturePlatform platform(folder);
    Program program(platform);
    frmEncodeDecode encode(program);
    encode.load();
    encode.txtEncode.setText(u"1389"_s);
    encode.userClick(encode.cmdEncode);
    platform.runModal(encode);
    platform.takeBox(box::AskYesNo, u"                       حذف "_s, u"  آيا  مطمئن  هستيد ؟"_s, u"box-question"_s);
    platform.takeBox(
        box::RefusalRtl, u" اخطار  "_s,
        u" کاربر گرامي،دقت صفحه نمايش فعلي شما800*600 ميباشد\r\n جهت اجراي صحيح برنامه دقت صفحه نمايش بايد بر "
        "روي  768 * 1024 تنظيم گردد "_s,
        u"box-refusal"_s);
    return 0;
}
