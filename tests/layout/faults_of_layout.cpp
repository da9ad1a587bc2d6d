#include "tests/layout/faults_of_layout.h"

#include "desktop/choice_row.h"
#include "desktop/elided_label.h"
#include "desktop/text_editor.h"
#include "desktop/tinted_button.h"
#include "desktop/word_width.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QTableView>

namespace zeugnis::test {
namespace {

using Faults = std::vector<std::string>;

std::string nameOf(const QWidget& widget) {
    QString name;
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        name = label->text();
    else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        name = button->text();
    if (name.isEmpty())
        name = widget.accessibleName();
    return std::string(widget.metaObject()->className()) + " \"" + name.left(60).toStdString() +
           "\" " + std::to_string(widget.width()) + "x" + std::to_string(widget.height());
}

bool hasRoom(const QWidget& widget, QSize needed) {
    return widget.width() >= needed.width() && widget.height() >= needed.height();
}

bool isWhole(const QLabel& label) {
    if (label.text().isEmpty())
        return true;
    if (qobject_cast<const ElidedLabel*>(&label) != nullptr)
        return label.height() >= label.fontMetrics().height();
    if (!label.wordWrap())
        return hasRoom(label, label.sizeHint());
    return hasRoom(label, {widestWord(label.fontMetrics(), label.text().simplified()),
                           label.heightForWidth(label.width())});
}

bool isWhole(const QListWidget& list) {
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem& item = *list.item(row);
        constexpr int Padding = 12;
        const int text = QFontMetrics(list.font()).horizontalAdvance(item.text()) + Padding;
        const bool fits = list.wordWrap()
                              ? list.visualItemRect(&item).width() <= list.viewport()->width()
                              : text <= list.viewport()->width();
        if (!fits && item.toolTip().isEmpty())
            return false;
    }
    return true;
}

// The heading of the current column is bold; a long name may end in dots, a heading may not.
bool isWhole(const QHeaderView& header) {
    const bool across = header.orientation() == Qt::Horizontal;
    QFont font = header.viewport()->font();
    font.setBold(across);
    const QFontMetrics metrics(font);
    for (int i = 0; i < header.count(); ++i) {
        const auto data = [&](int role) {
            return header.model()->headerData(i, header.orientation(), role).toString();
        };
        const QRect room(0, 0, across ? header.sectionSize(i) : header.width(),
                         across ? header.height() : header.sectionSize(i));
        const QSize text = metrics.size(Qt::TextExpandTabs, data(Qt::DisplayRole));
        if ((text.width() > room.width() || text.height() > room.height()) &&
            (across || data(Qt::ToolTipRole).isEmpty()))
            return false;
    }
    return true;
}

bool isWhole(const TextEditor& editor) {
    if (editor.oneLine())
        return editor.height() >= editor.minimumSizeHint().height();
    return editor.viewport()->height() >= 3 * editor.fontMetrics().lineSpacing() - 2;
}

// A list of names cuts a long one by itself and tells it by its tool tip.
bool isWhole(const QComboBox& list) {
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QRect field = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, &list);
    const QString text = list.currentText();
    const bool mayCut = list.sizeAdjustPolicy() == QComboBox::AdjustToMinimumContentsLengthWithIcon;
    return list.height() >= list.fontMetrics().height() + 2 &&
           (mayCut ||
            list.fontMetrics().elidedText(text, Qt::ElideRight, field.width() - 2) == text);
}

bool isWhole(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return isWhole(*label);
    if (const auto* list = qobject_cast<const QListWidget*>(&widget))
        return isWhole(*list);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return isWhole(*header);
    if (const auto* editor = qobject_cast<const TextEditor*>(&widget))
        return isWhole(*editor);
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return isWhole(*list);
    if (qobject_cast<const ChoiceRow*>(&widget) != nullptr ||
        qobject_cast<const TintedButton*>(&widget) != nullptr)
        return hasRoom(widget, {widget.minimumSizeHint().width(),
                                widget.hasHeightForWidth() ? widget.heightForWidth(widget.width())
                                                           : widget.minimumSizeHint().height()});
    return hasRoom(widget, qobject_cast<const QAbstractButton*>(&widget) != nullptr
                               ? widget.sizeHint()
                               : widget.minimumSizeHint());
}

// What is read or used; a scroll area stands for all that it holds.
bool isOfInterest(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr;
}

bool isInsideAView(const QWidget& widget) {
    for (const QWidget* outer = widget.parentWidget(); outer != nullptr;
         outer = outer->parentWidget())
        if (qobject_cast<const QAbstractScrollArea*>(outer) != nullptr &&
            qobject_cast<const QScrollArea*>(outer) == nullptr)
            return qobject_cast<const QHeaderView*>(&widget) == nullptr ||
                   qobject_cast<const QHeaderView*>(outer) != nullptr;
    return false;
}

// The page that the widget scrolls with, or the window.
const QWidget& groundOf(const QWidget& widget) {
    const QWidget* inner = &widget;
    for (const QWidget* outer = widget.parentWidget(); outer != nullptr && !inner->isWindow();
         outer = outer->parentWidget()) {
        if (const auto* area = qobject_cast<const QScrollArea*>(outer))
            return *area->widget();
        inner = outer;
    }
    return *widget.window();
}

QRect placeOn(const QWidget& ground, const QWidget& widget) {
    return {widget.mapTo(&ground, QPoint(0, 0)), widget.size()};
}

bool canBeSeen(const QWidget& widget) {
    const QWidget& ground = groundOf(widget);
    if (!ground.rect().contains(placeOn(ground, widget)))
        return false;
    if (ground.isWindow())
        return true;
    const QWidget& viewport = *ground.parentWidget();
    return ground.width() <= viewport.width() &&
           viewport.height() >= qMin(ground.height(), widget.fontMetrics().lineSpacing() * 3);
}

void addOverlaps(const std::vector<const QWidget*>& widgets, Faults& faults) {
    for (size_t i = 0; i < widgets.size(); ++i)
        for (size_t j = i + 1; j < widgets.size(); ++j) {
            const QWidget& one = *widgets[i];
            const QWidget& other = *widgets[j];
            const QWidget& ground = groundOf(one);
            if (&ground == &groundOf(other) && !one.isAncestorOf(&other) &&
                !other.isAncestorOf(&one) &&
                placeOn(ground, one).intersects(placeOn(ground, other)))
                faults.push_back(nameOf(one) + " lies on " + nameOf(other));
        }
}

} // namespace

Faults faultsOfLayout(const Sight& sight) {
    Faults faults;
    std::vector<const QWidget*> widgets;
    for (const QWidget* one : sight.window.findChildren<QWidget*>())
        if (one->window() == &sight.window && one->isVisible() && isOfInterest(*one) &&
            !isInsideAView(*one))
            widgets.push_back(one);
    for (const QWidget* one : widgets) {
        if (!isWhole(*one))
            faults.push_back(nameOf(*one) + " is cut, with a least height of " +
                             std::to_string(one->minimumSizeHint().height()) + " and width of " +
                             std::to_string(one->minimumSizeHint().width()));
        if (!canBeSeen(*one))
            faults.push_back(nameOf(*one) + " is out of reach");
    }
    addOverlaps(widgets, faults);
    for (const QWidget* one : sight.always)
        if (one != nullptr && one->isVisible() && !groundOf(*one).isWindow())
            faults.push_back(nameOf(*one) + " has to be scrolled to");
    return faults;
}

} // namespace zeugnis::test
