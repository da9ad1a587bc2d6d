#include "toolkit/local_sockets.h"

#include <utility>

namespace zeugnis::localcalls {

void answer(const QString& name, QObject& owner, Answer answer) {
    localsockets::answer(name, owner, std::move(answer));
}

QByteArray call(const QString& name, const QByteArray& request) {
    return localsockets::call(name, request);
}

} // namespace zeugnis::localcalls
