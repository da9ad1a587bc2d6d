#pragma once

#include "documents/content/report_checks.h"

#include <QWidget>
#include <functional>

class QLabel;
class QListWidget;

namespace zeugnis::dokumente {

/// What is to be looked at before the reports are printed. It changes nothing.
class ChecksPanel : public QWidget {
    Q_OBJECT

  public:
    /// May fail; then the panel says why.
    using Pruefen = std::function<std::vector<Befund>()>;

    explicit ChecksPanel(const Pruefen& pruefen, QWidget* parent = nullptr);

  signals:
    void chosen(const Befund& befund);

  private:
    void fill(const Pruefen& pruefen);
    void choose(int row);

    std::vector<Befund> m_befunde;
    QLabel* m_summary;
    QListWidget* m_list;
};

} // namespace zeugnis::dokumente
