#include "documents/window/one_window.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QWidget>

namespace zeugnis::dokumente {
namespace {

constexpr int ConnectMs = 300;
constexpr int AnswerMs = 1700;
constexpr const char* Answer = "ok";

// Of the user's own, so that nobody else's window is called.
QString serverName(const std::filesystem::path& document) {
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(document, ignored);
    const QString key = QDir::homePath() + u'\n' +
                        QString::fromStdU16String((whole.empty() ? document : whole).u16string());
    const QByteArray hash =
        QCryptographicHash::hash(key.toLower().toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("zeugnisdokumente-") + QString::fromLatin1(hash.left(24));
}

} // namespace

OneWindow::OneWindow(const std::filesystem::path& document, QWidget& window)
    : m_server(new QLocalServer(this)), m_window(window) {
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &OneWindow::comeToFront);
    const QString name = serverName(document);
    if (m_server->listen(name) || bringToFront(document))
        return;
    // Left by a process that was killed.
    QLocalServer::removeServer(name);
    m_server->listen(name);
}

bool OneWindow::bringToFront(const std::filesystem::path& document) {
    QLocalSocket socket;
    socket.connectToServer(serverName(document));
    return socket.waitForConnected(ConnectMs) && socket.waitForReadyRead(AnswerMs) &&
           socket.readAll() == Answer;
}

void OneWindow::comeToFront() {
    while (QLocalSocket* caller = m_server->nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write(Answer);
        caller->disconnectFromServer();
    }
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

} // namespace zeugnis::dokumente
