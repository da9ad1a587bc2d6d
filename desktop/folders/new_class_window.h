#pragma once

#include "comfort/class_list_import.h"
#include "folders/class_folder.h"

#include <QDialog>

#include <filesystem>
#include <functional>
#include <vector>

class QAbstractButton;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace zeugnis {

class ClassFields;
class FolderField;
class PageArea;

/// A new class in five steps, from the school's name to the first child. Each can be left out: then
/// what is suggested there holds. It is accepted once the class is made.
class NewClassWindow : public QDialog {
    Q_OBJECT

  public:
    NewClassWindow(std::filesystem::path delivered, QWidget* owner);

    /// Where the class lies, once accepted.
    [[nodiscard]] std::filesystem::path folder() const;

  private:
    /// One step. `obstacle` says why it cannot be left as it is filled in.
    struct Step {
        QString title;
        QString sentence;
        QWidget* page = nullptr;
        QWidget* first = nullptr; ///< gets the keyboard
        std::function<QString()> obstacle;
        std::function<void()> clear; ///< back to what was suggested
    };

    Step school();
    Step schoolClass();
    Step teacher();
    Step place();
    Step children();
    QWidget* line(QWidget* page, const QString& label, QLineEdit*& field, const QString& hint = {});
    void readList();
    void showStep(size_t step);
    void forward();
    void skip();
    void make();
    void tell(const QString& sentence);
    [[nodiscard]] Klassenangaben whose() const;
    /// None if nothing is filled in.
    [[nodiscard]] std::vector<Listenzeile> firstChild() const;

    std::filesystem::path m_delivered;
    std::vector<Step> m_steps;
    size_t m_step = 0;
    std::vector<Schueler> m_list; ///< from a spreadsheet
    PageArea* m_pages;
    QLabel* m_head;
    QLabel* m_sentence;
    QLabel* m_told;
    QPushButton* m_back;
    QPushButton* m_skip;
    QPushButton* m_next;

    QLineEdit* m_schoolName = nullptr;
    QLineEdit* m_schoolLine = nullptr;
    QLineEdit* m_address = nullptr;
    QLineEdit* m_town = nullptr;
    ClassFields* m_class = nullptr;
    QLineEdit* m_teacher = nullptr;
    QLineEdit* m_conference = nullptr;
    QLineEdit* m_issued = nullptr;
    FolderField* m_folder = nullptr;
    QLabel* m_listTold = nullptr;
    QWidget* m_child = nullptr;
    QLineEdit* m_lastName = nullptr;
    QLineEdit* m_firstName = nullptr;
    QLineEdit* m_birth = nullptr;
    QLineEdit* m_birthPlace = nullptr;
    QRadioButton* m_boy = nullptr;
    QRadioButton* m_girl = nullptr;
};

} // namespace zeugnis
