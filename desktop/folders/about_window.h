#pragma once

#include <QDialog>

#include <filesystem>

class QLabel;

namespace zeugnis {

/// What the program is, where the class lies, and where to look for help. "Diagnose speichern"
/// writes what helps to find a fault, without the name or a text of any child.
class AboutWindow : public QDialog {
    Q_OBJECT

  public:
    /// `folder` is that of the open class, or empty.
    AboutWindow(std::filesystem::path folder, QWidget* owner);

    /// Writes the diagnosis into a file.
    void saveTo(const QString& file);

  private:
    void choose();

    std::filesystem::path m_folder;
    QLabel* m_told;
};

} // namespace zeugnis
