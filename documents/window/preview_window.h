#pragma once

#include "documents/app/document_files.h"
#include "documents/window/checks_panel.h"
#include "documents/window/page_view.h"

#include <QWidget>

class QBoxLayout;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace zeugnis {
class FlowRow;
}

namespace zeugnis::dokumente {

/// Shows a document as it will be printed, and offers what can be done with it.
class PreviewWindow : public QWidget {
    Q_OBJECT

  public:
    /// Gives the document's present state; asked at the beginning and whenever the .doc has been
    /// changed by another program. May fail.
    using Nachschauen = std::function<Anzeige()>;

    explicit PreviewWindow(Nachschauen nachschauen, QWidget* parent = nullptr);

    /// Shows beside the pages what to look at before they are printed.
    void showChecks(const ChecksPanel::Quelle& quelle);

  protected:
    void changeEvent(QEvent* event) override;

    /// A further button behind those that every document has.
    QPushButton* addAction(const QString& text, const QString& toolTip);
    [[nodiscard]] const Dokumentdateien& files() const { return m_anzeige.Dateien; }
    void load();
    void goToFinding(const Befund& befund);
    /// To where a finding's text is written.
    virtual void leadToText(const Befund& /*befund*/) {}
    /// The texts of a finding's children side by side.
    virtual void showTwins(const Befund& /*befund*/) {}

  private:
    QWidget* actionRow();
    QWidget* zoomRow();
    QWidget* contentsColumn();
    void addShortcuts();
    QPushButton* button(const QString& text, const QString& toolTip,
                        void (PreviewWindow::*action)());

    void reloadIfChanged();
    void showPosition();
    void goTo(int row);
    [[nodiscard]] int pageOf(const Befund& befund) const;
    void showZoom();
    void chooseZoom(int index);
    void print();
    void saveAs();
    void edit();

    Nachschauen m_nachschauen;
    Anzeige m_anzeige;
    std::filesystem::file_time_type m_stand;
    std::unique_ptr<PdfPages> m_pages;
    std::vector<Inhaltszeile> m_lines;

    FlowRow* m_actions = nullptr;
    QBoxLayout* m_middle;
    PageView* m_view;
    QListWidget* m_contents;
    QComboBox* m_zoom;
    QLabel* m_hint;
    QLabel* m_position;
    QPushButton* m_edit;
    ChecksPanel* m_checks = nullptr;
};

} // namespace zeugnis::dokumente
