#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace zeugnis {

class Rechtschreibung;
class WindowHost;

/// A thread with the German dictionary, for checks that must keep no window waiting.
class CheckThread : public QObject {
    Q_OBJECT

  public:
    /// The one that all windows share; made when it is first asked for.
    static CheckThread& of(WindowHost& host);

    explicit CheckThread(QObject* parent);
    ~CheckThread() override;

    /// Loads the dictionary the first time; null where there is no German one.
    using Dictionary = std::function<const Rechtschreibung*()>;
    /// Must catch its failures.
    using Task = std::function<void(const Dictionary& dictionary)>;

    /// One task after the other, in the order in which they come. What is not begun when the
    /// program ends is left.
    void post(Task task);

  signals:
    /// More words are known than before.
    void wordsLearnt();

  private:
    void work(const std::stop_token& stop);

    std::mutex m_mutex;
    std::condition_variable_any m_more;
    std::deque<Task> m_tasks;
    std::jthread m_thread; // the last member, so that it ends before the others
};

} // namespace zeugnis
