#pragma once

#include "folders/module_update.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

namespace zeugnis {

/// Newly delivered modules beside own ones, row by row: delivered before, own, delivered now. A row
/// is taken where its box is ticked; at first that is so where nobody has changed the text.
class ModuleUpdateWindow : public QDialog {
    Q_OBJECT

  public:
    /// Both stand in their program folders, and `school` may be watched. `obstacle` says why
    /// nothing may be written now, as a sentence, and is asked at the press.
    ModuleUpdateWindow(Arbeitsverzeichnis school, Arbeitsverzeichnis delivered,
                       std::function<Text()> obstacle, QWidget* owner);

    /// The rows, in their order.
    [[nodiscard]] const std::vector<Modultext>& texts() const { return m_texts; }
    [[nodiscard]] QTableWidget& table() { return *m_table; }

  private:
    void showTexts();
    [[nodiscard]] std::vector<Modultext> chosen() const;
    void tickAll(bool ticked);
    void count();
    void take();

    Arbeitsverzeichnis m_class;
    Arbeitsverzeichnis m_delivered;
    std::function<Text()> m_obstacle;
    std::vector<Modultext> m_texts;
    QTableWidget* m_table;
    QLabel* m_told;
    QPushButton* m_take;
};

} // namespace zeugnis
