#pragma once

#include "desktop/screen_window.h"
#include "shell/start_page.h"

class QBoxLayout;
class QGridLayout;

namespace zeugnis {

class StartView : public ScreenWindow {
  public:
    StartView(GsStart& screen, WindowHost& host, QWidget* below);

  private:
    QWidget* sidePanel();
    QBoxLayout* mainArea();
    QWidget* works();
    QBoxLayout* helpRow();
    QWidget* formerStates();
    QWidget* classMenu();
    QWidget* newModules();

    GsStart& m_start;
};

} // namespace zeugnis
