#include "desktop/focus_group.h"

#include "desktop/choice_row.h"
#include "desktop/tinted_button.h"

#include <QKeyEvent>
#include <QScrollArea>

#include <algorithm>

namespace zeugnis {
namespace {

bool isUsable(const QWidget* member) { return !member->isHidden() && member->isEnabled(); }

bool isChosen(const QWidget* member) {
    if (const auto* row = qobject_cast<const ChoiceRow*>(member))
        return row->isChosen();
    const auto* button = qobject_cast<const TintedButton*>(member);
    return button != nullptr && button->marked().value_or(false);
}

template <typename Range, typename Condition>
QWidget* firstOf(const Range& members, Condition condition) {
    const auto found = std::find_if(members.begin(), members.end(), condition);
    return found == members.end() ? nullptr : *found;
}

void bringIntoSight(QWidget& widget) {
    for (QWidget* outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(outer))
            area->ensureWidgetVisible(&widget, 0, 8);
}

} // namespace

void FocusGroup::add(QWidget& member) {
    m_members.push_back(&member);
    member.installEventFilter(this);
}

QWidget* FocusGroup::stop() const {
    if (QWidget* focused = firstOf(m_members, [](const QWidget* one) { return one->hasFocus(); }))
        return focused;
    if (QWidget* chosen =
            firstOf(m_members, [](const QWidget* one) { return isUsable(one) && isChosen(one); }))
        return chosen;
    return firstOf(m_members, isUsable);
}

void FocusGroup::chooseStop() {
    const QWidget* chosen = stop();
    for (QWidget* member : m_members)
        member->setFocusPolicy(member == chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

bool FocusGroup::move(const QWidget& from, const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != 0)
        return false;
    std::vector<QWidget*> usable;
    std::copy_if(m_members.begin(), m_members.end(), std::back_inserter(usable), isUsable);
    const auto at = std::find(usable.begin(), usable.end(), &from) - usable.begin();
    const auto last = static_cast<std::ptrdiff_t>(usable.size()) - 1;
    std::ptrdiff_t to = at;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        to = at - 1;
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        to = at + 1;
        break;
    case Qt::Key_Home:
        to = 0;
        break;
    case Qt::Key_End:
        to = last;
        break;
    default:
        return false;
    }
    if (at > last)
        return true;
    QWidget* next = usable[static_cast<size_t>(std::clamp<std::ptrdiff_t>(to, 0, last))];
    // As by Tab, so that the screens are told of it.
    next->setFocus(Qt::TabFocusReason);
    bringIntoSight(*next);
    return true;
}

bool FocusGroup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        move(*static_cast<QWidget*>(watched), *static_cast<QKeyEvent*>(event)))
        return true;
    if (event->type() == QEvent::FocusIn)
        chooseStop();
    return QObject::eventFilter(watched, event);
}

} // namespace zeugnis
