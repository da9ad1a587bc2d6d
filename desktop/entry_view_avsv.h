#pragma once

#include "behaviour/avsv_entry_screen.h"
#include "desktop/screen_window.h"

class QBoxLayout;

namespace zeugnis {

class EntryViewAVSV : public ScreenWindow {
  public:
    EntryViewAVSV(GsArbeitsverhalten& screen, WindowHost& host, QWidget* below);

  private:
    void showSection();
    void showCategory(TintedButton& widget, int category);
    QWidget* choices();
    QBoxLayout* texts();
    QWidget* lines(QWidget& area);

    GsArbeitsverhalten& m_entry;
};

} // namespace zeugnis
