#pragma once

#include <QObject>

#include <filesystem>

class QLocalServer;
class QWidget;

namespace zeugnis::dokumente {

/// A document is open in one window at a time, although each is a process of its own: who is asked
/// for a document that is open already brings the window of the other to the front.
class OneWindow : public QObject {
    Q_OBJECT

  public:
    /// Answers for the document from now on. If nobody can be asked on this machine, documents open
    /// twice, and nothing else happens.
    OneWindow(const std::filesystem::path& document, QWidget& window);

    /// True if the document was open and its window has come to the front. Returns at the latest
    /// after two seconds.
    static bool bringToFront(const std::filesystem::path& document);

  private:
    void comeToFront();

    QLocalServer* m_server;
    QWidget& m_window;
};

} // namespace zeugnis::dokumente
