// SPDX-License-Identifier: GPL-3.0-or-later
// zrvpictures DIR: a picture of every screen of the catalogue, as it looks in front of a user. For the eye: nothing is
// tested here.
#include "app/catalogue.h"
#include "core/screen.h"
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

/// Answers every box at once and takes a picture of each screen instead of waiting for a user.
class PicturePlatform : public QtPlatform {
public:
    explicit PicturePlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        Q_UNUSED(title);
        Q_UNUSED(text);
        return style & box::YesNo ? Answer::No : Answer::Ok;
    }
    QDate today() override { return {2010, 5, 24}; }
    QString programFolder() override { return m_folder; }
    QString setting(const QString &section, const QString &key, const QString &fallback) override
    {
        Q_UNUSED(section);
        Q_UNUSED(key);
        return fallback;
    }
    void saveSetting(const QString &section, const QString &key, const QString &value) override
    {
        Q_UNUSED(section);
        Q_UNUSED(key);
        Q_UNUSED(value);
    }

    /// A picture of a real box, which no scenario would wait for.
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
        QtPlatform::messageBox(style, title, text);
    }

protected:
    void waitWhileOpen(Form &form) override
    {
        FormWindow &window = *windowOf(form);
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        save(window, form.name());
    }

private:
    void save(QWidget &window, const QString &name)
    {
        const QString path = m_folder + u"/"_s + name + u".png"_s;
        if (!window.grab().save(path))
            std::fprintf(stderr, "can't write %s\n", qPrintable(path));
        std::printf("%s %dx%d\n", qPrintable(name), window.width(), window.height());
    }

    QString m_folder;
};

void setText(Form &form, const char16_t *name, const QString &text)
{
    Control *const control = form.find(name);
    if (auto *edit = dynamic_cast<Edit *>(control))
        edit->setText(text);
    else if (auto *label = dynamic_cast<Label *>(control))
        label->setCaption(text);
    else if (auto *panel = dynamic_cast<StatusPanel *>(control))
        panel->setText(text);
}

/// What a screen shows in the middle of its work.
void fillSample(Form &form)
{
    if (form.name() == u"frmMain"_s) {
        for (const char16_t *name : {u"cmdCodin_Semat", u"cmdCreatTextFiles", u"cmdHogog", u"cmdKholList",
                                     u"cmdKarkonan", u"cmdSrcMoadi", u"cmdUsres", u"mnuAmaliat", u"mnuBaseInformation"})
            form.find(name)->setEnabled(true);
        setText(form, u"StatusBar1(1)", u"دوشنبه  3 خرداد  1389"_s);
        setText(form, u"StatusBar1(2)", u"شرکت نمونه زروان - شعبه مرکزي"_s);
        setText(form, u"StatusBar1(4)", u"کاربر : مريم کاظمي"_s);
        setText(form, u"StatusBar1(5)", u"ديوان زروان "_s);
    }
    setText(form, u"txtUsernamee", u"ADMIN"_s);
    setText(form, u"txtPasswordd", u"ADMIN"_s);
    setText(form, u"txtEncode", u"1389"_s);
    setText(form, u"lblResult", u"MTM4OQ=="_s);
    setText(form, u"LabelHogogPath", u"/home/maryam/zrv/ERSAL/138902/WH138902.TXT"_s);
    setText(form, u"LabelKholPath", u"/home/maryam/zrv/ERSAL/138902/WK138902.TXT"_s);
    setText(form, u"LabelHogogRecordsCount", u"1240"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    if (application.arguments().size() != 2) {
        std::fprintf(stderr, "usage: zrvpictures DIR\n");
        return 2;
    }
    const QString folder = application.arguments().at(1);
    QDir().mkpath(folder);
    PicturePlatform platform(folder);
    Program program(platform);
    fillCatalogue(program.catalogue);
    program.ProgramVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s;
    for (const QString &name : program.catalogue.names()) {
        const std::unique_ptr<Screen> screen = program.catalogue.make(name, program);
        screen->load();
        fillSample(*screen);
        if (screen->isOpen())
            platform.runModal(*screen);
    }
    platform.takeBox(box::AskYesNo, u"                       حذف "_s, u"  آيا  مطمئن  هستيد ؟"_s, u"box-question"_s);
    platform.takeBox(
        box::RefusalRtl, u" اخطار  "_s,
        u" کاربر گرامي،دقت صفحه نمايش فعلي شما800*600 ميباشد\r\n جهت اجراي صحيح برنامه دقت صفحه نمايش بايد بر "
        "روي  768 * 1024 تنظيم گردد "_s,
        u"box-refusal"_s);
    return 0;
}
