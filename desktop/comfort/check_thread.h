#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace zeugnis {

class ClassKnowledge;
class Rechtschreibung;
class WindowHost;

/// A thread with the German dictionary and what is known of the class, for checks that must keep no
/// window waiting.
class CheckThread : public QObject {
    Q_OBJECT

  public:
    /// The one that all windows share; made when it is first asked for.
    static CheckThread& of(WindowHost& host);

    CheckThread(std::filesystem::path programFolder, QObject* parent);
    ~CheckThread() override;

    /// Loads the dictionary the first time; null where there is no German one.
    using Dictionary = std::function<const Rechtschreibung*()>;
    /// Must catch its failures.
    using Task = std::function<void(const Dictionary& dictionary)>;

    /// One task after the other, in the order in which they come. What is not begun when the
    /// program ends is left.
    void post(Task task);

    /// What a task is to use of the class, besides; read by the first one.
    [[nodiscard]] const std::shared_ptr<ClassKnowledge>& knowledge() const { return m_knowledge; }
    /// The files of the class may have changed.
    void readAnew();

  signals:
    /// More words are known than before.
    void wordsLearnt();

  private:
    void work(const std::stop_token& stop);

    std::filesystem::path m_folder;
    std::shared_ptr<ClassKnowledge> m_knowledge;
    std::mutex m_mutex;
    std::condition_variable_any m_more;
    std::deque<Task> m_tasks;
    std::jthread m_thread; // the last member, so that it ends before the others
};

} // namespace zeugnis
