#pragma once

#include "desktop/screen_window.h"
#include "review/insertion_window.h"

namespace zeugnis {

class InsertionView : public ScreenWindow {
  public:
    InsertionView(Einfuegungen& screen, WindowHost& host, QWidget* below);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void place() override;
    [[nodiscard]] bool isPlaced() const override;

  private:
    QPoint m_cameUpAt;
};

} // namespace zeugnis
