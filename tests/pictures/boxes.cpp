// SPDX-License-Identifier: GPL-3.0-or-later
// zrvpictures DIR: pictures of what no scenario can wait for: boxes, and a screen that no other opens. take.sh beside
// this file runs it for each look.
// zrvpictures --shrink FROM TO: the same picture with 256 colours at most, which is a third of its size.
#include "core/frmEncodeDecode.h"
#include "qt/form_window.h"
#include "qt/look.h"
#include "tests/forgetful_platform.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace zrv;

class PicturePlatform : public ForgetfulPlatform {
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

int distance(QRgb one, QRgb other)
{
    const int red = qRed(one) - qRed(other);
    const int green = qGreen(one) - qGreen(other);
    const int blue = qBlue(one) - qBlue(other);
    return red * red + green * green + blue * blue;
}

/// At most 256 of the colours, so chosen that none that is seen often, or is unlike all others, is missing.
QList<QRgb> paletteOf(const QHash<QRgb, int> &counts)
{
    struct Candidate {
        QRgb color;
        qint64 count;
        qint64 away = 1 << 18; ///< from the nearest of those that were chosen
    };
    std::vector<Candidate> candidates;
    for (auto color = counts.begin(); color != counts.end(); ++color)
        candidates.push_back({color.key(), color.value()});
    std::ranges::sort(candidates, {}, &Candidate::color);
    QList<QRgb> palette;
    while (palette.size() < 256) {
        const auto next =
            std::ranges::max_element(candidates, {}, [](const Candidate &one) { return one.count * one.away; });
        if (next == candidates.end() || next->away == 0)
            break;
        palette += next->color;
        for (Candidate &candidate : candidates)
            candidate.away = std::min<qint64>(candidate.away, distance(candidate.color, palette.last()));
    }
    return palette;
}

/// The picture with 256 colours; every other one becomes the nearest of these. What is seen of a window is a few flat
/// colours and the edges of letters.
QImage withFewColors(const QImage &picture)
{
    const QImage full = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    const auto eachPixel = [&full](const auto &visit) {
        for (int y = 0; y < full.height(); ++y)
            for (int x = 0; x < full.width(); ++x)
                visit(x, y, full.pixel(x, y));
    };
    eachPixel([&](int, int, QRgb color) { ++counts[color]; });
    const QList<QRgb> palette = paletteOf(counts);
    QHash<QRgb, uint> places;
    QImage few(full.size(), QImage::Format_Indexed8);
    few.setColorTable(palette);
    eachPixel([&](int x, int y, QRgb color) {
        auto place = places.constFind(color);
        if (place == places.constEnd()) {
            const auto nearest =
                std::ranges::min_element(palette, {}, [&](QRgb candidate) { return distance(candidate, color); });
            place = places.insert(color, static_cast<uint>(nearest - palette.begin()));
        }
        few.setPixel(x, y, *place);
    });
    return few;
}

int shrink(const QString &from, const QString &to)
{
    constexpr int Smallest = 0; // of a picture that loses nothing: the hardest packed
    const QImage picture(from);
    if (!picture.isNull() && withFewColors(picture).save(to, "PNG", Smallest))
        return 0;
    std::fprintf(stderr, "can't make %s of %s\n", qPrintable(to), qPrintable(from));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    const QStringList words = QApplication::arguments();
    if (words.size() == 4 && words.at(1) == u"--shrink")
        return shrink(words.at(2), words.at(3));
    if (words.size() != 2) {
        std::fprintf(stderr, "usage: zrvpictures DIR | --shrink FROM TO\n");
        return 2;
    }
    const QString folder = words.at(1);
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
