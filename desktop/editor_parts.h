#pragma once

#include "desktop/entry_parts.h"

class QBoxLayout;

namespace zeugnis {

template <typename T>
class ControlArray;

/// What the windows of the three editors have in common. Widgets are made by the window's binder.
namespace editorparts {

using entryparts::Key;

/// The least share of its width that a button's inscription takes two lines with, not three.
inline constexpr double TwoLines = 0.65;

/// The title, which takes a double click, and the help at its right.
QBoxLayout* head(Binder& binder, Label& title, Button& help);

/// The buttons that load; they come one after the other, as long as they are shown.
QBoxLayout* loading(Binder& binder, const ControlArray<Button>& buttons);

/// What to mind, in smaller type.
QLabel* hint(Binder& binder, Label& label);

struct Actions {
    Key ShowPlaceholders;
    Key HidePlaceholders;
    Key Save;
    Key Leave;
};

/// The bottom row.
QBoxLayout* actions(Binder& binder, const Actions& keys);

/// What is lost if an editor is closed by its close box.
QString lostByClosing();

} // namespace editorparts
} // namespace zeugnis
