#pragma once

#include "controls/control.h"

class QString;
class QWidget;

/// What the windows tell a screen reader.
namespace zeugnis::spoken {

/// Lets choice rows, buttons, pictures and frames tell what they are. Once per application.
void install();

/// The widget is a decoration: nothing is told of it.
void silence(QWidget& decoration);

/// Sets the description, and tells of it only if it is new.
void describe(QWidget& widget, const QString& description);

/// Says a sentence at once, whatever has the keyboard. It becomes the name of the widget.
void announce(QWidget& sign, const QString& sentence);

/// A colour of lines and grades in words; empty if it has none.
QString colourName(Farbwert colour);

} // namespace zeugnis::spoken
