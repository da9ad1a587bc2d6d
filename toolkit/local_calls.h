#pragma once

#include <QByteArray>

#include <functional>

class QObject;
class QString;

/// Questions and answers between the programs of one user on this machine. They go over Qt's
/// network part, which brings ten more libraries along: a program that shall start fast has them
/// loaded by its first question instead (LOADS_SOCKETS).
namespace zeugnis::localcalls {

/// The reply to a line; never empty.
using Answer = std::function<QByteArray(const QByteArray& request)>;

/// Answers under this name as long as `owner` lives. If another program does already, it is asked
/// with an empty line and goes on. If nobody can be asked on this machine, nothing happens.
void answer(const QString& name, QObject& owner, Answer answer);

/// The reply of the program that answers under this name; empty if there is none. Returns at the
/// latest after two seconds. `request` is one line without its end.
QByteArray call(const QString& name, const QByteArray& request = {});

/// What the module that is loaded gives.
struct Sockets {
    decltype(&answer) toAnswer = nullptr;
    decltype(&call) toCall = nullptr;
};

} // namespace zeugnis::localcalls
