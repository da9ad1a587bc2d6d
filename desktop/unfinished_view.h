#pragma once

#include "desktop/screen_window.h"

namespace zeugnis {

class UnfinishedView : public ScreenWindow {
  public:
    UnfinishedView(Screen& screen, WindowHost& host, QWidget* below);
};

} // namespace zeugnis
