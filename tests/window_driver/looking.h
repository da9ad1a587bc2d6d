#pragma once

#include <QImage>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QWidget;

/// What an eye sees in a window.
namespace zeugnis::windowdriver {

/// The entry that a list, or the opened list of a box, shows as the chosen one.
std::optional<QString> highlightedEntry(const QWidget& widget);

/// The least contrast between ground and ink of the entries of an opened list, also of the one
/// under the mouse.
double leastContrastIn(QComboBox& combo);

/// The display with all windows that are shown, the one in front last.
QImage displayNow();

/// The keys with Alt that two visible widgets of the window answer to.
std::vector<std::string> doubleMnemonicsOf(const QWidget& window);

/// What must not lie under another window: a button, or a list to open.
bool isButton(const QWidget& widget);

} // namespace zeugnis::windowdriver
