#include "platform/write_watcher.h"

#include <exception>

namespace zeugnis {

WriteUnit::WriteUnit(WriteWatcher* watcher)
    : m_watcher(watcher), m_exceptions(std::uncaught_exceptions()) {
    if (m_watcher != nullptr)
        m_watcher->unitBegins();
}

WriteUnit::~WriteUnit() {
    if (m_watcher != nullptr)
        m_watcher->unitEnds(std::uncaught_exceptions() > m_exceptions);
}

} // namespace zeugnis
