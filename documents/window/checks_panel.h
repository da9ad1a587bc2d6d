#pragma once

#include "documents/content/report_checks.h"

#include <QWidget>
#include <functional>

class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace zeugnis::dokumente {

/// What is to be looked at before the reports are printed, child by child.
class ChecksPanel : public QWidget {
    Q_OBJECT

  public:
    /// Each may fail; then the panel says why. The last two may be missing.
    struct Quelle {
        std::function<std::vector<Befund>()> Pruefen;
        std::function<void(const Befund&)> Gesehen; ///< it is not to be shown again
        std::function<void(const Befund&)> Lernen;  ///< its words are right
    };

    explicit ChecksPanel(Quelle quelle, QWidget* parent = nullptr);

    /// Looks at the texts anew.
    void check();

  signals:
    void chosen(const Befund& befund);
    /// The text is to be opened where it is written.
    void leading(const Befund& befund);
    /// The texts of twins are to be shown side by side.
    void comparing(const Befund& befund);

  private:
    QWidget* buttons();
    void lead();
    void compare();
    void show();
    void choose(const QListWidgetItem* item);
    void finish(const std::function<void(const Befund&)>& how);
    void followSelection();
    [[nodiscard]] const Befund* findingOf(const QListWidgetItem* item) const;

    Quelle m_quelle;
    std::vector<Befund> m_befunde;
    QLabel* m_summary;
    QComboBox* m_kind;
    QListWidget* m_list;
    QPushButton* m_text = nullptr;
    QPushButton* m_seen = nullptr;
    QPushButton* m_learn = nullptr;
    QPushButton* m_compare = nullptr;
};

} // namespace zeugnis::dokumente
