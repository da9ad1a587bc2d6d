#pragma once

#include "documents/window/preview_window.h"

namespace zeugnis::dokumente {

/// The preview of the finished reports, with what is only done with them: their layout, and a file
/// for each child.
class ReportWindow : public PreviewWindow {
    Q_OBJECT

  public:
    /// `neuSchreiben` writes the reports anew from the files; it may fail.
    ReportWindow(Arbeitsverzeichnis programmordner, Nachschauen nachschauen,
                 std::function<void()> neuSchreiben);

  private:
    void changeLayout();
    void writeOneForEach();
    [[nodiscard]] bool mayBeLost(const QString& title, const QString& question);

    Arbeitsverzeichnis m_folder;
    std::function<void()> m_rewrite;
};

} // namespace zeugnis::dokumente
