#include "toolkit/entry_call.h"

#include "platform/process.h"
#include "toolkit/local_name.h"

#include <QLocalServer>
#include <QLocalSocket>

namespace zeugnis {
namespace {

constexpr const char* Purpose = "text";
constexpr int ConnectMs = 300;
constexpr int AnswerMs = 1700;
constexpr const char* Done = "ok";
constexpr int Numbers = 3;

} // namespace

EntryCallServer::EntryCallServer(const std::filesystem::path& programFolder,
                                 std::function<bool(const EntryPlace&)> open)
    : m_server(new QLocalServer(this)), m_open(std::move(open)) {
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &EntryCallServer::answer);
    // One that a killed process has left; the folder is locked against a second program.
    const QString name = localName(Purpose, programFolder);
    QLocalServer::removeServer(name);
    m_server->listen(name);
}

void EntryCallServer::answer() {
    while (QLocalSocket* caller = m_server->nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, this, [this, caller] {
            if (!caller->canReadLine())
                return;
            const QList<QByteArray> numbers = caller->readLine().trimmed().split(' ');
            const bool done =
                numbers.size() == Numbers && m_open({.child = numbers[0].toInt(),
                                                     .isBehaviour = numbers[1].toInt() != 0,
                                                     .page = numbers[2].toInt()});
            caller->write(done ? Done : "-");
            caller->disconnectFromServer();
        });
    }
}

bool callEntry(const std::filesystem::path& programFolder, const EntryPlace& place) {
    letOthersComeToFront();
    QLocalSocket socket;
    socket.connectToServer(localName(Purpose, programFolder));
    if (!socket.waitForConnected(ConnectMs))
        return false;
    socket.write(QStringLiteral("%1 %2 %3\n")
                     .arg(place.child)
                     .arg(place.isBehaviour ? 1 : 0)
                     .arg(place.page)
                     .toLatin1());
    return socket.waitForBytesWritten(ConnectMs) && socket.waitForReadyRead(AnswerMs) &&
           socket.readAll() == Done;
}

} // namespace zeugnis
