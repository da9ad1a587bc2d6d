#pragma once

#include "folders/class_folder.h"

#include <QDialog>

class QLabel;

namespace zeugnis {

class ClassFields;
class FolderField;

/// Makes the folder of the next half-year or school year out of that of a class. It is accepted
/// once the folder is made.
class MovingUpWindow : public QDialog {
    Q_OBJECT

  public:
    /// `folder` is that of the class, `delivered` what its other files come from.
    MovingUpWindow(std::filesystem::path folder, std::filesystem::path delivered, QWidget* owner);

    /// The new folder, once accepted.
    [[nodiscard]] std::filesystem::path newFolder() const;

  private:
    [[nodiscard]] Klassenangaben next() const;
    void suggest();
    void make();

    std::filesystem::path m_old;
    std::filesystem::path m_delivered;
    Klassenangaben m_whose;
    ClassFields* m_class;
    FolderField* m_folder;
    QLabel* m_told;
};

} // namespace zeugnis
