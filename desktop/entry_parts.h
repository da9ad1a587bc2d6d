#pragma once

#include "desktop/theme.h"

#include <QChar>

#include <initializer_list>

class QBoxLayout;
class QLabel;
class QString;
class QWidget;

namespace zeugnis {

class Binder;
class Button;
class ComboBox;
class EntryCombo;
class Label;
class PictureBox;
class TextBox;
class TextEditor;

/// What the windows of the entry screens have in common. Widgets are made by the window's binder.
namespace entryparts {

/// A button and the letter of its inscription that Alt brings it with.
struct Key {
    Button& Control;
    QChar Mnemonic;
};

struct Head {
    PictureBox& Picture;
    Label& Purpose;
    Label& ClassName;
    Button& Help;
    ComboBox& Pupils;
};

/// The child's picture, what the window is for, and the choice of the child; behind it in the same
/// row the buttons of the sections, if they are few. The choice of the child has the keyboard
/// first.
QBoxLayout* head(Binder& binder, const Head& parts, std::initializer_list<Key> sections);

/// A title and what it is about, in one line if there is room for both.
void addTitle(QBoxLayout& row, Binder& binder, Label& title, Label& about, theme::Size size);

/// The choice of the child, as wide as names are. It has the keyboard first, and Alt+E brings it.
EntryCombo* pupilList(Binder& binder, ComboBox& pupils);

/// The large line that says what to do next, as long as no page is shown.
QLabel* nextStep(Binder& binder, Label& label);

/// A report text with its name above it; both come and go together. What `reset` deletes can be
/// brought back.
QBoxLayout* reportText(Binder& binder, TextBox& box, const QString& name, const Button& reset);

/// The sign that the page takes no choices.
QWidget* lockSign(Binder& binder, PictureBox& picture);

struct Actions {
    Key Reset;
    Key ShowPhrases;
    Key HidePhrases;
    Key Save;
    Key Leave;
};

/// The bottom row.
QBoxLayout* actions(Binder& binder, const Actions& keys);

/// What is lost if the window of a year group is closed by its close box.
QString lostSinceSaving();

} // namespace entryparts
} // namespace zeugnis
