#pragma once

#include "comfort/class_list_import.h"
#include "comfort/class_list_takeover.h"

#include <QDialog>

class QButtonGroup;
class QLabel;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;

namespace zeugnis {

/// Shows a class list from a spreadsheet, line by line, before it is taken over. What is wrong can
/// be mended in the table; a line that cannot be taken says why.
class ClassListWindow : public QDialog {
    Q_OBJECT

  public:
    /// `present` is the number of children that the list would stand behind; 0 asks nothing.
    ClassListWindow(int present, QWidget* parent);

    /// Shows the list that the text holds.
    void read(const Text& text);
    void readFile(const QString& file);

    /// What is to be taken over, once accepted.
    [[nodiscard]] std::vector<Schueler> children() const { return KinderAus(m_lines); }
    [[nodiscard]] Uebernahme way() const;

  private:
    QWidget* sources();
    QWidget* ways();
    void chooseFile();
    void paste();
    void check();
    void showLine(int row);
    void take(const QTableWidgetItem& item);

    int m_present;
    std::vector<Listenzeile> m_lines;
    QTableWidget* m_table;
    QLabel* m_sentence;
    QButtonGroup* m_ways;
    QPushButton* m_accept;
};

class GsBasis;
class WindowHost;

/// Lets the teacher read a class list into the open master data.
void readClassList(GsBasis& screen, WindowHost& host, QWidget& window);

} // namespace zeugnis
