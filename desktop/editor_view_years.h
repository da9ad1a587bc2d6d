#pragma once

#include "desktop/editor_groups.h"
#include "desktop/screen_window.h"
#include "editors/editor12.h"
#include "editors/editor34.h"

class QVBoxLayout;

namespace zeugnis {

/// The window of an editor of a pair of years: both are built from the same parts.
class EditorViewYears : public ScreenWindow {
  public:
    EditorViewYears(GSAenderung12& screen, WindowHost& host, QWidget* below);
    EditorViewYears(GSAenderung34& screen, WindowHost& host, QWidget* below);

  private:
    struct Parts {
        Bausteineditor& Editor;
        Label& Title;
        Button& Help;
        const ControlArray<TextBox>& Info;
        const ControlArray<Button>& Load;
        Label& NextStep;
        Label& Hint;
        const ControlArray<Button>& Placeholders;
        Button& Save;
        Button& Leave;
    };

    void build(const Parts& parts, const std::vector<EditorPage>& pages);
    QWidget* loadRow(const Parts& parts);
    QWidget* besideNote(const Bausteineditor& editor);
    QWidget* info(TextBox& box, const QString& name);
    QLayout* pageButtons(const std::vector<EditorPage>& pages);
    QWidget* page(const Bausteineditor& editor, const EditorPage& one);
    QVBoxLayout* column(const Bausteineditor& editor, const std::vector<BoxGroup>& groups);
    void addGroup(QVBoxLayout& column, const Bausteineditor& editor, const BoxGroup& group);
    QLayout* boxRow(const Bausteineditor& editor, const BoxGroup& group, TextBox& box, int number);
};

} // namespace zeugnis
