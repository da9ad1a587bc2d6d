#pragma once

#include "platform/text.h"

#include <QObject>

#include <filesystem>
#include <optional>

class QWidget;

namespace zeugnis {

class WindowHost;

/// What the tools of the start page offer around the class folder: another class, the new school
/// year, newly delivered modules, the program itself.
class ClassMenu : public QObject {
    Q_OBJECT

  public:
    /// Without a template there is nothing that a class could be made of or renewed with.
    ClassMenu(WindowHost& host, std::filesystem::path folder,
              std::optional<std::filesystem::path> delivered);

    /// Opens below the button, and does what is chosen.
    void open(QWidget& button);

  private:
    void otherClass();
    void moveUp();
    void showNewModules();
    void countNewModules();
    [[nodiscard]] Text obstacle() const;
    void about();

    WindowHost& m_host;
    std::filesystem::path m_folder;
    std::optional<std::filesystem::path> m_delivered;
    size_t m_newModules = 0;
};

} // namespace zeugnis
