#pragma once

#include "folders/class_folder.h"

#include <QDate>
#include <QWidget>

#include <filesystem>

class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace zeugnis {

/// Class, school year and half-year, to fill in.
class ClassFields : public QWidget {
    Q_OBJECT

  public:
    explicit ClassFields(QWidget* parent);

    void fill(const Klassenangaben& whose);
    /// As long as nobody has chosen a half-year, the one whose report comes next on that day.
    void guessHalf(QDate today);
    /// Puts in what the fields say, and leaves the rest alone.
    void read(Klassenangaben& whose) const;

  signals:
    void changed();

  private:
    QLineEdit* m_class;
    QLineEdit* m_year;
    QRadioButton* m_first;
    QRadioButton* m_second;
    bool m_halfChosen = false;
};

/// The place of a new folder: a name to write, or to choose on the disk.
class FolderField : public QWidget {
    Q_OBJECT

  public:
    /// `name` is what a screen reader calls the line.
    FolderField(const QString& name, QWidget* parent);

    /// Stands in the line as long as nobody has written another.
    void suggest(const std::filesystem::path& folder);
    [[nodiscard]] std::filesystem::path folder() const;
    /// Why no new folder can be made there, as a sentence; empty if nothing speaks against it.
    [[nodiscard]] QString obstacle() const;

  private:
    void choose();

    QLineEdit* m_line;
    bool m_written = false;
};

/// Documents/Zeugnisse of the teacher, where classes are suggested to lie.
std::filesystem::path classesFolder();

/// A folder of this name that is not there yet: "3a 2026-27-2", "... (2)".
std::filesystem::path freeClassFolder(const Text& name,
                                      const std::filesystem::path& in = classesFolder());

/// What is suggested for a new class of this school year.
Klassenangaben likelyClass();

/// A form whose labels stand above their fields where the window is narrow.
QFormLayout* newForm(QWidget* page);

/// Asks for a folder that is there; empty if none is chosen. Afterwards the keyboard is back where
/// it was, also where there are several windows.
QString askForFolder(QWidget& owner, const QString& title, const std::filesystem::path& start = {});

/// Keeps the height that large type needs, which rows of a form forget.
void keepWhole(QLineEdit& line);

/// A label that wraps, for sentences.
QLabel* sentenceLabel(const QString& text, QWidget* parent);

} // namespace zeugnis
