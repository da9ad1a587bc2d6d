#pragma once

#include "desktop/screen_window.h"
#include "review/insertion_window.h"

namespace zeugnis {

class InsertionView : public ScreenWindow {
  public:
    InsertionView(Einfuegungen& screen, WindowHost& host, QWidget* below);
};

} // namespace zeugnis
