#include "tests/window_driver/widget_check.h"

#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "desktop/choice_row.h"
#include "desktop/text_editor.h"
#include "desktop/text_line_ends.h"
#include "desktop/tinted_button.h"
#include "toolkit/qt_text.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QListWidget>

namespace zeugnis::windowdriver {
namespace {

using Difference = std::optional<std::string>;

Difference unlessEqual(const char* what, const QString& shown, const QString& said) {
    if (shown == said)
        return std::nullopt;
    return std::string(what) + " shows \"" + shown.toStdString() + "\" for \"" +
           said.toStdString() + "\"";
}

Difference unlessEqual(const char* what, int shown, int said) {
    return unlessEqual(what, QString::number(shown), QString::number(said));
}

QString withoutMnemonic(QString text) {
    const QChar placeholder(0xE000);
    text.replace(QStringLiteral("&&"), placeholder).remove(u'&');
    return text.replace(placeholder, QStringLiteral("&"));
}

QString simplifiedLines(TextView caption) { return qString(caption).simplified(); }

bool visibleInModel(const Control& control) {
    if (!control.screen().shown())
        return false;
    for (const Control* one = &control; one != nullptr; one = one->container())
        if (!one->Visible)
            return false;
    return true;
}

bool enabledInModel(const Control& control) {
    for (const Control* one = &control; one != nullptr; one = one->container())
        if (!one->Enabled)
            return false;
    return true;
}

Difference inState(const Control& control, const QWidget& widget) {
    if (Difference difference = unlessEqual("visible", widget.isVisible(), visibleInModel(control)))
        return difference;
    if (isHeldBack(widget))
        return std::nullopt;
    return unlessEqual("enabled", widget.isEnabled(), enabledInModel(control));
}

Difference inCaption(const CaptionedControl& control, const QWidget& widget) {
    const QString said = qString(control.Caption);
    if (const auto* row = qobject_cast<const ChoiceRow*>(&widget))
        return unlessEqual("caption", row->inscription(), said);
    if (const auto* button = qobject_cast<const TintedButton*>(&widget))
        return button->showsSign() ? std::nullopt
                                   : unlessEqual("caption", withoutMnemonic(button->text()), said);
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return unlessEqual("caption", label->text().simplified(), simplifiedLines(control.Caption));
    return unlessEqual("caption", widget.accessibleName(), said);
}

Difference inValue(bool said, const QWidget& widget) {
    return unlessEqual("value", dynamic_cast<const QAbstractButton&>(widget).isChecked(), said);
}

Difference inText(const TextBox& box, const QWidget& widget) {
    const auto& editor = dynamic_cast<const TextEditor&>(widget);
    QString said = documentText(box.text());
    if (editor.oneLine())
        said.replace(u'\n', u' ');
    if (Difference difference = unlessEqual("text", editor.documentText(), said))
        return difference;
    return unlessEqual("locked", editor.isReadOnly(), box.Locked);
}

Difference inList(const ListControl& list, const QWidget& widget) {
    const auto entries = static_cast<int>(list.entries().size());
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        if (Difference difference = unlessEqual("entries", combo->count(), entries))
            return difference;
        for (int i = 0; i < entries; ++i)
            if (combo->itemText(i) != qString(list.entries()[static_cast<size_t>(i)]))
                return "entry " + std::to_string(i) + " reads otherwise";
        return unlessEqual("picked entry", combo->currentIndex(), list.listIndex());
    }
    const auto& rows = dynamic_cast<const QListWidget&>(widget);
    if (Difference difference = unlessEqual("entries", rows.count(), entries))
        return difference;
    const QModelIndexList selected = rows.selectionModel()->selectedIndexes();
    return unlessEqual("picked entry", selected.isEmpty() ? -1 : selected.front().row(),
                       list.listIndex());
}

} // namespace

bool isHeldBack(const QWidget& widget) { return widget.property("heldBack").toBool(); }

Difference differenceBetween(const Control& control, const QWidget& widget) {
    if (Difference difference = inState(control, widget))
        return difference;
    if (!control.ToolTip.empty() && widget.toolTip() != qString(control.ToolTip))
        return "the tool tip reads otherwise";
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return inText(*box, widget);
    if (const auto* list = dynamic_cast<const ListControl*>(&control))
        return inList(*list, widget);
    if (const auto* check = dynamic_cast<const CheckBox*>(&control))
        if (Difference difference = inValue(check->value(), widget))
            return difference;
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        if (Difference difference = inValue(option->value(), widget))
            return difference;
    if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control))
        return inCaption(*captioned, widget);
    return std::nullopt;
}

} // namespace zeugnis::windowdriver
