#pragma once

#include "desktop/screen_window.h"
#include "shell/lists.h"

namespace zeugnis {

class ListsView : public ScreenWindow {
  public:
    ListsView(Listen& screen, WindowHost& host, QWidget* below);
};

} // namespace zeugnis
