#include "toolkit/local_sockets.h"

#include "platform/process.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>

#include <utility>

namespace zeugnis::localsockets {
namespace {

constexpr int ConnectMs = 300;
constexpr int AnswerMs = 1700;

// Who has waited too long may be gone when the answer is there.
void reply(const QPointer<QLocalSocket>& caller, const localcalls::Answer& answer) {
    QLocalSocket* socket = caller.data();
    if (socket == nullptr || !socket->canReadLine())
        return;
    const QByteArray told = answer(socket->readLine().trimmed());
    socket = caller.data();
    if (socket == nullptr)
        return;
    socket->write(told);
    socket->disconnectFromServer();
}

} // namespace

void answer(const QString& name, QObject& owner, localcalls::Answer answer) {
    auto* server = new QLocalServer(&owner);
    server->setSocketOptions(QLocalServer::UserAccessOption);
    const auto take = [server, answer = std::move(answer)] {
        while (QLocalSocket* caller = server->nextPendingConnection()) {
            QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
            const auto replyTo = [caller = QPointer(caller), answer] { reply(caller, answer); };
            QObject::connect(caller, &QLocalSocket::readyRead, server, replyTo);
            replyTo(); // to what has come already
        }
    };
    QObject::connect(server, &QLocalServer::newConnection, &owner, take);
    if (server->listen(name) || !call(name, {}).isEmpty())
        return;
    // Left by a process that was killed.
    QLocalServer::removeServer(name);
    server->listen(name);
}

QByteArray call(const QString& name, const QByteArray& request) {
    letOthersComeToFront();
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(ConnectMs))
        return {};
    socket.write(request + '\n');
    return socket.waitForBytesWritten(ConnectMs) && socket.waitForReadyRead(AnswerMs)
               ? socket.readAll()
               : QByteArray();
}

} // namespace zeugnis::localsockets
