#include "toolkit/entry_call.h"

#include "toolkit/local_calls.h"
#include "toolkit/local_name.h"

#include <QString>

#include <utility>

namespace zeugnis {
namespace {

constexpr const char* Purpose = "text";
constexpr const char* Done = "ok";
constexpr const char* NotDone = "-";
constexpr int Numbers = 3;

} // namespace

EntryCallServer::EntryCallServer(const std::filesystem::path& programFolder,
                                 std::function<bool(const EntryPlace&)> open) {
    localcalls::answer(localName(Purpose, programFolder), *this,
                       [open = std::move(open)](const QByteArray& request) -> QByteArray {
                           const QList<QByteArray> numbers = request.split(' ');
                           return numbers.size() == Numbers &&
                                          open({.child = numbers[0].toInt(),
                                                .isBehaviour = numbers[1].toInt() != 0,
                                                .page = numbers[2].toInt()})
                                      ? Done
                                      : NotDone;
                       });
}

bool callEntry(const std::filesystem::path& programFolder, const EntryPlace& place) {
    const QString request =
        QStringLiteral("%1 %2 %3").arg(place.child).arg(place.isBehaviour ? 1 : 0).arg(place.page);
    return localcalls::call(localName(Purpose, programFolder), request.toLatin1()) == Done;
}

} // namespace zeugnis
