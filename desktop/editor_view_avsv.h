#pragma once

#include "behaviour/avsv_editor.h"
#include "desktop/screen_window.h"

class QBoxLayout;

namespace zeugnis {

class EditorViewAVSV : public ScreenWindow {
  public:
    EditorViewAVSV(GSAVSVAenderung& screen, WindowHost& host, QWidget* below);

  private:
    QBoxLayout* sections();
    QWidget* page();
    QWidget* lines();
    QBoxLayout* categories();

    GSAVSVAenderung& m_editor;
};

} // namespace zeugnis
