#pragma once

#include "platform/text.h"

#include <QObject>

#include <functional>

namespace zeugnis {

class CheckThread;
class Screen;
class ScreenWindow;
class WindowHost;

/// Looks up the words of texts in the background. One for all windows.
class Spelling : public QObject {
    Q_OBJECT

  public:
    /// Made when it is first asked for.
    static Spelling& of(WindowHost& host);

    /// A word by its place in the text, as QTextCursor counts.
    struct Mark {
        int at = 0;
        int length = 0;
    };
    using Marks = std::vector<Mark>;

    /// In a text on a child the words of the modules are known, too; a module is what they are
    /// checked by. `found` comes in the thread of the windows, unless `receiver` is gone by then.
    enum class Purpose { Report, Module };
    void lookUp(const QString& text, Purpose purpose, QObject* receiver,
                std::function<void(const Marks&)> found);
    /// A few, the likeliest first; perhaps none.
    void suggest(const QString& word, QObject* receiver,
                 std::function<void(const QStringList&)> found);

    /// For good, for all classes in this folder. Tells the failure if it cannot be written.
    void learn(const QString& word);

    [[nodiscard]] bool isOn() const { return m_on; }
    void switchOn(bool on);

  signals:
    /// What was looked up may have another answer now.
    void changed();

  private:
    explicit Spelling(WindowHost& host);

    WindowHost& m_host;
    CheckThread& m_thread;
    bool m_on = true;
};

/// Underlines what is misspelt in the texts of entry windows and in the modules of the editors.
/// Nothing in other windows.
void addSpelling(ScreenWindow& window, const Screen& screen, WindowHost& host);

} // namespace zeugnis
