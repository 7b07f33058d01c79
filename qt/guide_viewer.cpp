// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/guide_viewer.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Contents = u"index.html"_s;
const QString Keys = u"keys.html"_s;
constexpr QSize LargestWindow(1100, 1000);
constexpr int BesidePictures = 80; ///< what the window and the page's margins take of a picture's width

/// Qt lays the columns of a table from the left, whichever way its text runs: here the first cell of a row comes last.
QByteArray withMirroredRows(const QByteArray &html)
{
    static const QRegularExpression row(u"(?<=<tr>).*?(?=</tr>)"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression cell(u"<(t[hd])>.*?</\\1>"_s, QRegularExpression::DotMatchesEverythingOption);
    const QString page = QString::fromUtf8(html);
    QString mirrored;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &found : row.globalMatch(page)) {
        QString cells;
        for (const QRegularExpressionMatch &one : cell.globalMatch(found.captured()))
            cells.prepend(one.captured());
        mirrored += QStringView(page).sliced(end, found.capturedStart() - end);
        mirrored += cells;
        end = found.capturedEnd();
    }
    return (mirrored + QStringView(page).sliced(end)).toUtf8();
}

/// Pictures of whole screens fit into the page: they are made smaller, never larger.
class GuidePages : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    [[nodiscard]] QVariant loadResource(int type, const QUrl &name) override
    {
        const QVariant loaded = QTextBrowser::loadResource(type, name);
        if (type == QTextDocument::HtmlResource)
            return withMirroredRows(loaded.toByteArray());
        if (type != QTextDocument::ImageResource)
            return loaded;
        const qreal ratio = devicePixelRatioF();
        const int room = qRound((window()->width() - BesidePictures) * ratio);
        QImage picture = QImage::fromData(loaded.toByteArray());
        if (picture.width() * ratio <= room)
            return picture;
        picture = picture.scaledToWidth(room, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
        return picture;
    }
};

} // namespace

QString guideFolder(const QStringList &candidates)
{
    for (const QString &folder : candidates)
        if (QFileInfo::exists(folder + u'/' + Contents))
            return folder;
    return {};
}

GuideViewer::GuideViewer(const QString &folder, const QString &form, QWidget *parent)
    : QDialog(parent)
    , m_folder(folder)
    , m_pages(new GuidePages(this))
{
    setObjectName(u"guide"_s);
    setWindowTitle(u"راهنما"_s);
    const QSize room = (parent ? parent->screen() : QGuiApplication::primaryScreen())->availableSize();
    resize((room * 9 / 10).boundedTo(LargestWindow));

    auto *const all = new QVBoxLayout(this);
    all->addWidget(m_pages, 1);
    auto *const buttons = new QHBoxLayout;
    all->addLayout(buttons);
    QPushButton &back = addButton(u"guideBack"_s, u"&بازگشت"_s, [this] { m_pages->backward(); });
    addButton(u"guideContents"_s, u"&فهرست راهنما"_s, [this] { showPage(Contents); });
    addButton(u"guideKeys"_s, u"&کليدها"_s, [this] { showPage(Keys); });
    buttons->addStretch(1);
    addButton(u"guideClose"_s, u"&خروج"_s, [this] { reject(); });
    back.setEnabled(false);
    connect(m_pages, &QTextBrowser::backwardAvailable, &back, &QPushButton::setEnabled);

    m_pages->setObjectName(u"guidePages"_s);
    m_pages->setAccessibleName(windowTitle());
    const QString page = form + u".html"_s;
    showPage(QFileInfo::exists(m_folder + u'/' + page) ? page : Contents);
    m_pages->setFocus();
}

QPushButton &GuideViewer::addButton(const QString &name, const QString &caption, const std::function<void()> &action)
{
    auto *const button = new QPushButton(caption, this);
    button->setObjectName(name);
    // Enter follows the link that has the focus.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    static_cast<QBoxLayout *>(layout()->itemAt(1)->layout())->addWidget(button);
    return *button;
}

void GuideViewer::showPage(const QString &page)
{
    m_pages->setSource(QUrl::fromLocalFile(QDir(m_folder).absoluteFilePath(page)));
}

QString GuideViewer::page() const
{
    return m_pages->source().fileName();
}

} // namespace zrv
