#pragma once

#include "platform/text.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

namespace zeugnis {

class Screen;

/// A colour as the tables of the screens give it: 0xBBGGRR.
using Farbwert = std::uint32_t;

/// The window's own colour.
inline constexpr Farbwert Fensterfarbe = 0xF0F0F0;

using Handler = std::function<void()>;

/// What every control of a screen has. A control belongs to its screen for life and is told to it
/// at construction; `container` is a frame of the same screen or null for the window itself.
class Control {
  public:
    Control(Screen& screen, TextView name, std::optional<int> index = {},
            Control* container = nullptr);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] Screen& screen() const { return m_screen; }
    [[nodiscard]] const Text& name() const { return m_name; }
    [[nodiscard]] std::optional<int> index() const { return m_index; }
    [[nodiscard]] Control* container() const { return m_container; }

    /// "Command1(3)", without the screen.
    [[nodiscard]] Text fullName() const;

    /// Whether a user's action would arrive: the screen is shown, and the control and all its
    /// containers are visible and enabled.
    [[nodiscard]] bool reachable() const;

    [[nodiscard]] virtual bool takesFocus() const { return false; }

    bool Visible = true;
    bool Enabled = true;
    Farbwert BackColor = Fensterfarbe;
    Text ToolTip;

    Handler onClick;
    Handler onDblClick;
    Handler onLostFocus;

  private:
    Screen& m_screen;
    Text m_name;
    std::optional<int> m_index;
    Control* m_container;
};

/// A control with an inscription.
class CaptionedControl : public Control {
  public:
    using Control::Control;
    Text Caption;
};

class Label : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
};

class Frame : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
};

class Button : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    [[nodiscard]] bool takesFocus() const override { return true; }
};

class CheckBox : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    [[nodiscard]] bool takesFocus() const override { return true; }
    [[nodiscard]] bool value() const { return m_value; }

    /// Setting another value runs the click handler at once, inside the running handler.
    void setValue(bool value);

  private:
    bool m_value = false;
};

class OptionButton : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    [[nodiscard]] bool takesFocus() const override { return true; }
    [[nodiscard]] bool value() const { return m_value; }

    /// On puts the other options of the container out silently and runs the click handler; off
    /// runs none, and neither does a value that it has already.
    void setValue(bool value);

  private:
    bool m_value = false;
};

/// Shows a picture file of the folder that the program stands in.
class PictureBox : public Control {
  public:
    using Control::Control;

    /// Fails with file-not-found or invalid-picture and then keeps what it shows.
    void load(const Text& fileName);

    /// The name as it was loaded, empty if nothing is shown, and where the file lies.
    [[nodiscard]] const Text& picture() const { return m_picture; }
    [[nodiscard]] const std::filesystem::path& file() const { return m_file; }

    /// Counts the loads: the same file may have other content each time.
    [[nodiscard]] int loads() const { return m_loads; }

  private:
    Text m_picture;
    std::filesystem::path m_file;
    int m_loads = 0;
};

class Timer : public Control {
  public:
    using Control::Control;
    int Interval = 0; ///< milliseconds
    Handler onTimer;
};

} // namespace zeugnis
