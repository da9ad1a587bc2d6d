#pragma once

#include <QStringList>

class QWidget;

namespace zeugnis {

/// A question whose answers are words of their own. Returns the number of the answer; closing the
/// box gives the last one. The answer `safe` has the keyboard.
int askChoice(QWidget* owner, const QString& text, const QStringList& answers, int safe);

} // namespace zeugnis
