#pragma once

#include "desktop/screen_window.h"
#include "review/review_screen.h"

class QBoxLayout;

namespace zeugnis {

class ReviewView : public ScreenWindow {
  public:
    ReviewView(GsAnzeige& screen, WindowHost& host, QWidget* below);

  private:
    QBoxLayout* choices();
    QWidget* text();

    GsAnzeige& m_review;
};

} // namespace zeugnis
