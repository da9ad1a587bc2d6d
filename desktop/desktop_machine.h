#pragma once

#include "platform/machine.h"

#include <functional>

class QWidget;

namespace zeugnis {

/// Message and input boxes as windows with German buttons.
class DesktopDialogs : public Dialogs {
  public:
    Antwort message(const Meldung& meldung) override;
    std::optional<Text> input(const Text& title, const Text& prompt) override;

    /// Runs before a box comes up, so that the windows behind it show the present state.
    std::function<void()> beforeBox;
    /// Runs after a box was answered.
    std::function<void(const Meldung& meldung, Antwort answer)> afterBox;
    /// The window that a box belongs to.
    std::function<QWidget*()> parent;

  private:
    QWidget* prepare();
};

class DesktopClipboard : public Clipboard {
  public:
    void clear() override;
    void setText(const Text& text) override;
    Text text() override;
};

class DesktopPictures : public Pictures {
  public:
    bool canShow(const std::filesystem::path& file) override;
};

} // namespace zeugnis
