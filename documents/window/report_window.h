#pragma once

#include "documents/content/class_summary.h"
#include "documents/window/preview_window.h"

namespace zeugnis::dokumente {

/// The preview of the finished reports, with what is only done with them: their layout, a file
/// for each child, the sheet for the conference and the texts as a table.
class ReportWindow : public PreviewWindow {
    Q_OBJECT

  public:
    /// `neuSchreiben` writes the reports anew from the files, `konferenzblatt` writes and shows the
    /// sheet for the conference; both may fail.
    ReportWindow(Arbeitsverzeichnis programmordner, Nachschauen nachschauen,
                 std::function<void()> neuSchreiben, std::function<void()> konferenzblatt);

  protected:
    void leadToText(const Befund& befund) override;
    void showTwins(const Befund& befund) override;

  private:
    bool callText(const std::optional<Fundort>& place) const;
    void changeLayout();
    void writeOneForEach();
    void showConferenceSheet();
    void saveTexts();
    [[nodiscard]] bool mayBeLost(const QString& title, const QString& question);

    Arbeitsverzeichnis m_folder;
    std::function<void()> m_rewrite;
    std::function<void()> m_conferenceSheet;
};

} // namespace zeugnis::dokumente
