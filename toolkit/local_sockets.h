#pragma once

#include "toolkit/local_calls.h"

/// The same as localcalls, by Qt's local sockets.
namespace zeugnis::localsockets {

void answer(const QString& name, QObject& owner, localcalls::Answer answer);
QByteArray call(const QString& name, const QByteArray& request);

} // namespace zeugnis::localsockets
