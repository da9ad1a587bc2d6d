#pragma once

#include "desktop/binder.h"
#include "platform/text.h"
#include "toolkit/window_place.h"

#include <QWidget>

namespace zeugnis {

class Screen;
class WindowHost;
struct WindowPlace;

/// The window of one screen: arranges the widgets that its binder makes. A view derives from it,
/// builds its layout in the constructor and holds no logic.
class ScreenWindow : public QWidget {
    Q_OBJECT

  public:
    /// `below` is the window that this one stays above, or null.
    ScreenWindow(Screen& screen, WindowHost& host, QWidget* below);

    /// Shows what the screen's controls say.
    void refresh();
    /// Gives the keyboard to the control's widget, if it is not there already. False if the widget
    /// cannot take it now.
    bool showFocus(const Control& control);
    /// The widget that shows the control, or null if none does.
    [[nodiscard]] QWidget* widgetOf(const Control& control) const {
        return m_binder.widgetOf(control);
    }
    /// Something that follows the screen's controls and stands beside their widgets.
    void follow(std::function<void()> refresh) { m_binder.follow(std::move(refresh)); }
    /// Asks, if something would be lost by closing the window.
    bool mayClose();
    /// Presses the button that the key brings with Alt, in this window, with the window in front.
    bool pressMnemonic(const QKeySequence& key);
    /// Closes for good; the screen is gone.
    void detach();
    /// Puts the mark of what is not saved into the title; from then on closing asks only with it.
    void showSaved(bool saved);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    /// Puts the window where it comes up, as long as it has no place of its own.
    virtual void place();
    [[nodiscard]] virtual bool isPlaced() const { return testAttribute(Qt::WA_Moved); }

    /// The size that suits the window with the usual font.
    using Growth = windowplace::Growth;
    void wishSize(QSize size, Growth growth = Growth::WithDisplay);
    /// How the screen's window was left when it was open before, or null.
    [[nodiscard]] const WindowPlace* placed() const;

    /// What is lost if the user closes the window by its close box; without a text nothing is, nor
    /// while the window tells that all is saved.
    void warnBeforeClosing(const QString& whatIsLost) { m_lostByClosing = whatIsLost; }

    [[nodiscard]] Binder& bind() { return m_binder; }
    [[nodiscard]] WindowHost& host() const { return m_host; }

  private:
    void keepOnTop(bool onTop);
    void passKeyboardOn(QWidget* before);

    Screen* m_screen;
    Text m_name;
    WindowHost& m_host;
    Binder m_binder;
    QSize m_wished;
    Growth m_growth = Growth::None;
    QString m_lostByClosing;
    bool m_tellsSaved = false;
    int m_raises = 0;
    bool m_refreshing = false;
};

} // namespace zeugnis
