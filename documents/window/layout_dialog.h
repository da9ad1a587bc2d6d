#pragma once

#include "documents/content/report_layout.h"
#include "documents/window/page_view.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QComboBox;
class QBoxLayout;
class QLabel;
class QLineEdit;

namespace zeugnis::dokumente {

/// What the school decides about its reports, beside the pages of a child that follow each choice.
class LayoutDialog : public QDialog {
    Q_OBJECT

  public:
    /// Writes a report with this layout and says where. May fail; then the pages stay as they are.
    using Probe = std::function<std::filesystem::path(const Zeugnisaufbau&)>;

    LayoutDialog(const Zeugnisaufbau& aufbau, const std::vector<Text>& bilder, Probe probe,
                 QWidget* parent = nullptr);

    [[nodiscard]] Zeugnisaufbau chosen() const;

  private:
    QWidget* choices(const std::vector<Text>& bilder);
    QWidget* buttons();
    QComboBox* choice(QBoxLayout& form, const QString& label, const QStringList& entries);
    QLineEdit* line(QBoxLayout& form, const QString& label, const QString& hint);
    void show(const Zeugnisaufbau& aufbau);
    void refresh();

    Probe m_probe;
    std::unique_ptr<PdfPages> m_pages;
    PageView* m_view;
    QLabel* m_failure;
    QComboBox* m_order = nullptr;
    QComboBox* m_religion = nullptr;
    QComboBox* m_parents = nullptr;
    QComboBox* m_picture = nullptr;
    QCheckBox* m_names = nullptr;
    QLineEdit* m_head = nullptr;
    QLineEdit* m_lessons = nullptr;
    QLineEdit* m_remedy = nullptr;
};

} // namespace zeugnis::dokumente
