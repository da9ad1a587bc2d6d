#pragma once

#include "documents/app/report_list_files.h"
#include "documents/window/report_list_view.h"

#include <QWidget>
#include <functional>

class QLabel;
class QPushButton;

namespace zeugnis::dokumente {

/// Where the teacher fills in absences and grades.
class ReportListWindow : public QWidget {
    Q_OBJECT

  public:
    /// Shows a document as it will be printed.
    using Zeigen = std::function<void(const Dokumentdateien&)>;

    ReportListWindow(Arbeitsverzeichnis verzeichnis, Listenstand stand, Zeigen zeigen,
                     QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget* actionRow();
    QWidget* noticeRow();
    QWidget* statusRow();
    void connectModel();
    void addShortcuts();

    [[nodiscard]] QString openingNotice() const;
    void showState();
    void showCell();
    [[nodiscard]] bool mayClose();
    void showRefusal(const QString& sentence);
    void showNotice(const QString& sentence);
    bool takeTyped();
    void print();
    [[nodiscard]] bool isEdited() const;
    bool writeDocument();

    Zeigen m_zeigen;
    ReportListModel m_model;
    ReportListView* m_view;
    QPushButton* m_undo;
    QPushButton* m_redo;
    QPushButton* m_takeOver;
    QPushButton* m_keepTable;
    QPushButton* m_takeFile;
    QLabel* m_hint;
    QLabel* m_cell;
    QLabel* m_refusal;
    QLabel* m_saved;
    bool m_documentIsStale = false;
};

} // namespace zeugnis::dokumente
