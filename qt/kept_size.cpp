// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/kept_size.h"

#include "qt/qt_platform.h"

#include <QScreen>
#include <QSize>
#include <QWidget>

#include <utility>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Section = u"WindowSizes"_s;
const QString Maximised = u"maximised"_s;

/// Width and height, and whether the window fills its display; the size is the one that it goes back to then.
QString described(const QWidget &window)
{
    const QSize size = window.isMaximized() ? window.normalGeometry().size() : window.size();
    const QString figures = QString::number(size.width()) + u' ' + QString::number(size.height());
    return window.isMaximized() ? QString(figures + u' ' + Maximised) : figures;
}

} // namespace

QSize KeptSize::room(const QWidget &window)
{
    return window.screen()->availableSize() - QSize(8, 40);
}

KeptSize::KeptSize(QWidget &window, QtPlatform &platform, QString name)
    : m_window(window)
    , m_platform(platform)
    , m_name(std::move(name))
{
    const QStringList words = platform.setting(Section, m_name, {}).split(u' ');
    const QSize kept(words.value(0).toInt(), words.value(1).toInt());
    if (!kept.isEmpty() && kept.boundedTo(room(window)) == kept) {
        window.resize(kept);
        const Qt::WindowStates others = window.windowState() & ~Qt::WindowMaximized;
        window.setWindowState(words.value(2) == Maximised ? others | Qt::WindowMaximized : others);
    }
    m_opened = described(window);
}

KeptSize::~KeptSize()
{
    if (const QString left = described(m_window); left != m_opened)
        m_platform.saveSetting(Section, m_name, left);
}

} // namespace zrv
