#include "toolkit/one_window.h"

#include "platform/process.h"
#include "toolkit/local_name.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QWidget>

namespace zeugnis {
namespace {

constexpr const char* Purpose = "window";
constexpr int ConnectMs = 300;
constexpr int AnswerMs = 1700;
constexpr const char* Answer = "ok";

} // namespace

OneWindow::OneWindow(const std::filesystem::path& opened, std::function<QWidget*()> window)
    : m_server(new QLocalServer(this)), m_window(std::move(window)) {
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &OneWindow::comeToFront);
    const QString name = localName(Purpose, opened);
    if (m_server->listen(name) || bringToFront(opened))
        return;
    // Left by a process that was killed.
    QLocalServer::removeServer(name);
    m_server->listen(name);
}

bool OneWindow::bringToFront(const std::filesystem::path& opened) {
    letOthersComeToFront();
    QLocalSocket socket;
    socket.connectToServer(localName(Purpose, opened));
    return socket.waitForConnected(ConnectMs) && socket.waitForReadyRead(AnswerMs) &&
           socket.readAll() == Answer;
}

void OneWindow::comeToFront() {
    while (QLocalSocket* caller = m_server->nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write(Answer);
        caller->disconnectFromServer();
    }
    QWidget* window = m_window();
    if (window == nullptr)
        return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace zeugnis
