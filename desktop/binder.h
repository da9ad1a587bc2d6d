#pragma once

#include "controls/control_array.h"
#include "desktop/choice_row.h"
#include "desktop/spoken.h"
#include "desktop/text_editor.h"
#include "desktop/tinted_button.h"

#include <QKeySequence>
#include <QObject>

#include <functional>
#include <map>
#include <vector>

class QFrame;
class QLabel;
class QMouseEvent;
class QTimer;

namespace zeugnis {

class Button;
class CheckBox;
class ComboBox;
class Control;
class EntryCombo;
class EntryList;
class Frame;
class Label;
class ListBox;
class ListControl;
class OptionButton;
class PictureBox;
class PictureView;
class TextBox;
class Timer;
class WindowHost;

/// The members of an array, in order of the index.
template <typename T>
std::vector<const Control*> controlsOf(const ControlArray<T>& array) {
    std::vector<const Control*> controls;
    array.each([&](const T& one) { controls.push_back(&one); });
    return controls;
}

/// Makes the widget of a control and keeps both in step: what the user does goes to the control,
/// what the control says is shown. It only forwards.
class Binder : public QObject {
    Q_OBJECT

  public:
    Binder(WindowHost& host, QWidget& window);

    /// `mnemonic` is the letter of the inscription that Alt brings the button with.
    TintedButton* button(Button& control, QChar mnemonic = {},
                         TintedButton::Role role = TintedButton::Role::Normal);
    /// A button whose picture is a sign; its name, tool tip and key are the view's.
    TintedButton* signButton(Button& control, const QString& sign, const QString& name,
                             const QKeySequence& key = {});
    /// Keeps the lines of the control's inscription, but not its runs of blanks.
    QLabel* label(Label& control);
    QFrame* frame(Frame& control);
    ChoiceRow* option(OptionButton& control);
    ChoiceRow* check(CheckBox& control);
    /// A check box that shows a picture; `name` says what it is of.
    ChoiceRow* pictureCheck(CheckBox& control, const QPixmap& picture, const QString& name);
    TextEditor* text(TextBox& control, const QString& name);
    /// A text box of one line. While it is locked it looks like a text on paper.
    TextEditor* line(TextBox& control, const QString& name);
    /// A text module: as high as its text, on the ground that the control says.
    TextEditor* module(TextBox& control, const QString& name);
    EntryCombo* combo(ComboBox& control, const QString& name);
    /// `word` may show an entry in other words than its own.
    EntryList* list(ListBox& control, const QString& name,
                    std::function<QString(const QString&)> word = {});
    /// A list whose entries the view words.
    EntryList* wordedList(ListControl& control, const QString& name,
                          std::function<QString(int)> word);
    PictureView* picture(PictureBox& control, QSize preferred, const QString& name);
    void timer(Timer& control);

    /// Keeps the control's widget from being pressed as long as `held` says so, although the
    /// control would take it: an accident that nobody means.
    void holdBack(const Control& control, std::function<bool()> held);

    /// Makes one stop of the Tab key of them: the one that is chosen or has had the keyboard.
    void oneStop(const std::vector<const Control*>& controls);

    /// Where the texts belong, such as a child and a page. What was typed at one place is not
    /// undone at another.
    void placeOfTexts(std::function<std::vector<int>()> place) { m_placeNow = std::move(place); }

    /// Something of the view that follows a control and is no widget of it.
    void follow(std::function<void()> refresh) { m_refreshes.push_back(std::move(refresh)); }

    void refresh();
    [[nodiscard]] QWidget* widgetOf(const Control& control) const;
    /// Lets go of all controls: their screen is gone.
    void detach();

  signals:
    /// Around the click of a button that the user presses.
    void clicking(const zeugnis::Control* control);
    void clicked(const zeugnis::Control* control);
    void placeChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void followPlace();
    void add(Control& control, QWidget& widget, std::function<void()> refresh);
    TextEditor* editor(TextBox& control, const QString& name, TextEditor::Lines lines);
    void forwardClicks(Control& control, QAbstractButton& widget);
    void forwardClicks(Control& control, QWidget& plain);
    bool forwardMouse(Control& control, const QMouseEvent& event);
    bool forwardKey(Control& control, const QKeyEvent& event);
    EntryList* entries(ListControl& control, const QString& name,
                       std::function<QStringList()> shown);
    ChoiceRow* choice(Control& control, ChoiceRow::Mark mark, std::function<void(ChoiceRow&)> show);

    WindowHost& m_host;
    QWidget& m_window;
    std::map<const Control*, QWidget*> m_widgets;
    std::map<const QObject*, Control*> m_controls;
    std::map<const Control*, std::function<bool()>> m_held;
    bool m_secondRelease = false;
    std::function<std::vector<int>()> m_placeNow;
    std::vector<int> m_place;
    std::vector<std::function<void()>> m_refreshes;
    std::vector<QTimer*> m_timers;
};

} // namespace zeugnis
