#pragma once

#include "controls/control.h"

#include <QString>
#include <QStringList>

class QLabel;
class QListWidget;
class QPlainTextEdit;

namespace zeugnis {
class ListControl;
}

/// How the values of controls look on widgets.
namespace zeugnis::shown {

/// The letter underlined where it first stands; nothing is if it does not.
QString withMnemonic(TextView caption, QChar mnemonic);
/// Without the line ends that a list has no use for.
QStringList shownEntries(const ListControl& list);
QString shownLines(TextView caption);

/// The ground, as a rounded patch.
void tint(QLabel& label, Farbwert colour);
void tint(QPlainTextEdit& editor, Farbwert colour);

/// A list that may be in the user's hand: as long as there are as many entries as before, each row
/// stays where it is.
void showEntries(QListWidget& list, const QStringList& entries);

} // namespace zeugnis::shown
