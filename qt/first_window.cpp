// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/first_window.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#include <QWidget>

#include <utility>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LongestWaitMs = 2'000;
constexpr int PauseMs = 20;

/// The same from whichever folder and by whichever link the program is started.
QString serverName(const QString &store)
{
    const QString folder = QFileInfo(QFileInfo(store).path()).canonicalFilePath();
    const QByteArray hash = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256).toHex();
    return u"ZRVClient-"_s + QString::fromLatin1(hash.first(32));
}

} // namespace

FirstWindow::FirstWindow(const QString &store, std::function<void()> raise)
    : m_raise(std::move(raise))
{
    const QString name = serverName(store);
    // Who holds the store's lock is the only one: what bears the name is left of a program that is gone.
    QLocalServer::removeServer(name);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] { answer(); });
    m_server.listen(name);
}

void FirstWindow::answer()
{
    while (QLocalSocket *asking = m_server.nextPendingConnection()) {
        m_raise();
        QObject::connect(asking, &QLocalSocket::disconnected, asking, &QObject::deleteLater);
        asking->write("raised\n");
        asking->flush();
    }
}

bool FirstWindow::comesToTheFront(const QString &store)
{
    const QString name = serverName(store);
    QDeadlineTimer end(LongestWaitMs);
    const auto left = [&end] { return static_cast<int>(end.remainingTime()); };
    while (!end.hasExpired()) {
        QLocalSocket socket;
        socket.connectToServer(name);
        if (socket.waitForConnected(left()))
            return socket.waitForReadyRead(left());
        // The first may have taken the store a moment ago, as after a double click, and not listen yet.
        QThread::msleep(PauseMs);
    }
    return false;
}

void raiseWindows()
{
    const auto raise = [](QWidget *window) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    };
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            raise(window);
    }
    if (QWidget *const uppermost = QApplication::activeModalWidget())
        raise(uppermost);
}

} // namespace zrv
