#include "desktop/comfort/check_thread.h"

#include "checks/hunspell_spelling.h"
#include "controls/program.h"
#include "desktop/comfort/class_knowledge.h"
#include "desktop/window_host.h"

#include <optional>
#include <utility>

namespace zeugnis {

CheckThread& CheckThread::of(WindowHost& host) {
    if (auto* thread = host.findChild<CheckThread*>())
        return *thread;
    return *new CheckThread(host.program().directory().programFolder(), &host);
}

CheckThread::CheckThread(std::filesystem::path programFolder, QObject* parent)
    : QObject(parent), m_folder(std::move(programFolder)) {
    readAnew();
    m_thread = std::jthread([this](const std::stop_token& stop) { work(stop); });
}

CheckThread::~CheckThread() = default;

void CheckThread::readAnew() { m_knowledge = std::make_shared<ClassKnowledge>(m_folder); }

void CheckThread::post(Task task) {
    {
        const std::lock_guard guard(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    m_more.notify_one();
}

void CheckThread::work(const std::stop_token& stop) {
    std::optional<std::unique_ptr<Rechtschreibung>> loaded;
    const Dictionary dictionary = [&loaded] {
        if (!loaded)
            loaded = DeutscheRechtschreibung();
        return loaded->get();
    };
    while (true) {
        Task task;
        {
            std::unique_lock lock(m_mutex);
            if (!m_more.wait(lock, stop, [this] { return !m_tasks.empty(); }))
                return;
            if (stop.stop_requested())
                return;
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        task(dictionary);
    }
}

} // namespace zeugnis
