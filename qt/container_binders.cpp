// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/container_binders.h"

#include "qt/form_window.h"
#include "qt/look.h"
#include "qt/style.h"

#include <QGroupBox>
#include <QPainter>
#include <QTabBar>
#include <QTabWidget>

namespace zrv {

namespace {

/// A picture box that holds nothing is the program's mark.
class PictureArea : public QWidget {
public:
    PictureArea(const Picture &picture, QWidget *parent)
        : QWidget(parent)
        , m_picture(picture)
    {
    }
    [[nodiscard]] QSize sizeHint() const override
    {
        return m_picture.children().empty() ? look::markSize(*this) : QWidget::sizeHint();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event);
        if (!m_picture.children().empty())
            return;
        QPainter painter(this);
        QRect mark(QPoint(), sizeHint().boundedTo(size()));
        mark.moveCenter(rect().center());
        look::paintMark(painter, mark);
    }

private:
    const Picture &m_picture;
};

} // namespace

FrameBinder::FrameBinder(Frame &frame, FormWindow &window)
    : Binder(frame, window)
    , m_frame(frame)
{
    QWidget *const ground = window.groundOf(frame.container());
    if (auto *tabs = qobject_cast<QTabWidget *>(ground)) {
        const QStringList &captions = static_cast<const Tabs *>(frame.container().containerControl())->captions();
        m_page = new QWidget;
        tabs->addTab(m_page, captions.value(tabs->count()));
        adopt(*m_page);
    } else {
        m_box = new QGroupBox(ground);
        adopt(*m_box);
    }
}

QWidget *FrameBinder::widget() const
{
    return m_box ? m_box : m_page;
}

void FrameBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Caption && m_box) {
        m_box->setTitle(m_frame.caption());
    } else if (aspect == Aspect::Caption && !m_frame.caption().isEmpty()) {
        // A page whose caption changes has one of its own; until then its tab has what the tab control gave it.
        auto *const tabs = static_cast<QTabWidget *>(m_window.groundOf(m_frame.container()));
        tabs->setTabText(tabs->indexOf(m_page), m_frame.caption());
    } else if (aspect == Aspect::Colors && m_box) {
        // A frame's colour is its line's. A palette would hand it on to all that lies inside.
        if (m_frame.textColor() != color::Text)
            m_box->setProperty(FrameLineColor, QColor(m_frame.textColor()));
        m_box->update();
    } else if (aspect != Aspect::Visible || m_box) {
        Binder::refresh(aspect); // Which page is seen is the tab widget's.
    }
}

PictureBinder::PictureBinder(Picture &picture, FormWindow &window)
    : Binder(picture, window)
    , m_widget(new PictureArea(picture, window.groundOf(picture.container())))
{
    adopt(*m_widget);
}

QWidget *PictureBinder::widget() const
{
    return m_widget;
}

TabsBinder::TabsBinder(Tabs &tabs, FormWindow &window)
    : Binder(tabs, window)
    , m_tabs(tabs)
    , m_widget(new QTabWidget(window.groundOf(tabs.container())))
{
    adopt(*m_widget);
    m_widget->setFocusPolicy(Qt::NoFocus);
    m_widget->tabBar()->setFocusPolicy(Qt::TabFocus);
    QObject::connect(m_widget, &QTabWidget::currentChanged, m_widget, [this](int page) {
        if (page == m_tabs.page())
            return;
        m_window.enter([this, page] { form().userPage(m_tabs, page); });
        refresh(Aspect::Page);
    });
}

QWidget *TabsBinder::widget() const
{
    return m_widget;
}

QWidget *TabsBinder::input() const
{
    return m_widget->tabBar();
}

void TabsBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Page) {
        if (m_tabs.page() < m_widget->count())
            m_widget->setCurrentIndex(m_tabs.page());
    } else {
        Binder::refresh(aspect);
    }
}

} // namespace zrv
