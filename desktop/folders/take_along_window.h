#pragma once

#include <QDialog>

#include <filesystem>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zeugnis {

class FolderField;

/// Copies a class folder to another place, for example from a stick, and compares what was copied.
/// It is accepted once the copy stands.
class TakeAlongWindow : public QDialog {
    Q_OBJECT

  public:
    explicit TakeAlongWindow(QWidget* owner);

    /// Takes a folder as the one to copy.
    void setSource(const std::filesystem::path& source);

    /// The copy, once accepted.
    [[nodiscard]] std::filesystem::path folder() const;

  private:
    void choose();
    void copy();

    QLineEdit* m_from;
    FolderField* m_to;
    QLabel* m_told;
    QPushButton* m_copy;
};

} // namespace zeugnis
