#include "toolkit/enter_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace zeugnis {

void EnterKey::install(QApplication& application) {
    if (application.findChild<EnterKey*>() == nullptr)
        application.installEventFilter(new EnterKey(&application));
}

bool EnterKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == 0;
    auto* button = isEnter && isPlain ? qobject_cast<QPushButton*>(watched) : nullptr;
    if (button == nullptr)
        return false;
    event->accept(); // first, for the window may go with the click
    button->click();
    return true;
}

} // namespace zeugnis
