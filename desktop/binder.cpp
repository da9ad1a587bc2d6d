#include "desktop/binder.h"

#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "controls/user_actions.h"
#include "desktop/entry_list.h"
#include "desktop/focus_group.h"
#include "desktop/jpeg_pictures.h"
#include "desktop/picture_view.h"
#include "desktop/shown_values.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "toolkit/entry_combo.h"
#include "toolkit/qt_text.h"

#include <QFocusEvent>
#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zeugnis {
namespace {

template <typename Widget>
void setTextIfNew(Widget& widget, const QString& text) {
    if (widget.text() != text)
        widget.setText(text);
}

} // namespace

using namespace shown;

Binder::Binder(WindowHost& host, QWidget& window) : m_host(host), m_window(window) {}

void Binder::add(Control& control, QWidget& widget, std::function<void()> refresh) {
    m_widgets[&control] = &widget;
    m_controls[&widget] = &control;
    widget.installEventFilter(this);
    m_refreshes.emplace_back([this, &control, &widget, show = std::move(refresh), wasHeld = false,
                              tip = Text()]() mutable {
        show();
        const auto held = m_held.find(&control);
        const bool isHeld = held != m_held.end() && held->second();
        if (std::exchange(wasHeld, isHeld) != isHeld)
            widget.setProperty("heldBack", isHeld);
        widget.setEnabled(control.Enabled && !isHeld);
        // A widget without a parent would become a window of its own.
        if (widget.parentWidget() != nullptr)
            widget.setVisible(control.Visible);
        if (tip != control.ToolTip) {
            tip = control.ToolTip;
            widget.setToolTip(qString(tip));
        }
    });
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    const auto found = m_controls.find(watched);
    if (found == m_controls.end())
        return QObject::eventFilter(watched, event);
    Control& control = *found->second;
    if (event->type() == QEvent::FocusIn)
        m_host.focusArrived(control, static_cast<QFocusEvent*>(event)->reason());
    if (!watched->property("plain").toBool())
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return forwardMouse(control, *static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
        return forwardKey(control, *static_cast<QKeyEvent*>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

// Of a double click the first release is the click.
bool Binder::forwardMouse(Control& control, const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton)
        return false;
    if (event.type() == QEvent::MouseButtonDblClick) {
        m_secondRelease = true;
        m_host.run([&] { user::secondClick(control); });
    } else if (event.type() == QEvent::MouseButtonRelease &&
               !std::exchange(m_secondRelease, false)) {
        m_host.run([&] { user::click(control); });
    }
    return true;
}

// What takes a double click can be reached by Tab: Enter clicks, Ctrl+Enter is the double click.
bool Binder::forwardKey(Control& control, const QKeyEvent& event) {
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    if (event.modifiers().testFlag(Qt::ControlModifier))
        m_host.run([&] { user::doubleClick(control); });
    else
        m_host.run([&] { user::click(control); });
    return true;
}

void Binder::forwardClicks(Control& control, QWidget& plain) {
    plain.setProperty("plain", true);
    if (control.onDblClick)
        plain.setFocusPolicy(Qt::TabFocus);
}

void Binder::holdBack(const Control& control, std::function<bool()> held) {
    m_held[&control] = std::move(held);
}

void Binder::forwardClicks(Control& control, QAbstractButton& widget) {
    connect(&widget, &QAbstractButton::clicked, this, [this, &control] {
        if (!m_host.mayAct(control))
            return;
        emit clicking(&control);
        m_host.run([&] { user::click(control); });
        emit clicked(&control);
    });
}

TintedButton* Binder::button(Button& control, QChar mnemonic, TintedButton::Role role) {
    auto* widget = new TintedButton(role, &m_window);
    forwardClicks(control, *widget);
    add(control, *widget, [&control, widget, mnemonic] {
        setTextIfNew(*widget, withMnemonic(control.Caption, mnemonic));
        widget->setTint(theme::fromFarbwert(control.BackColor, QColor()));
    });
    return widget;
}

TintedButton* Binder::signButton(Button& control, const QString& sign, const QString& name,
                                 const QKeySequence& key) {
    auto* widget = new TintedButton(TintedButton::Role::Round, &m_window);
    widget->setText(sign);
    widget->setAccessibleName(name);
    widget->setToolTip(key.isEmpty() ? name : name + QStringLiteral(" (%1)").arg(key.toString()));
    widget->setShortcut(key);
    forwardClicks(control, *widget);
    add(control, *widget, [] {});
    return widget;
}

QLabel* Binder::label(Label& control) {
    auto* widget = new QLabel(&m_window);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    forwardClicks(control, *widget);
    add(control, *widget, [&control, widget] {
        setTextIfNew(*widget, shownLines(control.Caption));
        tint(*widget, control.BackColor);
    });
    return widget;
}

QFrame* Binder::frame(Frame& control) {
    auto* widget = new QFrame(&m_window);
    widget->setAutoFillBackground(true);
    forwardClicks(control, *widget);
    add(control, *widget, [&control, widget] {
        QPalette palette = widget->palette();
        palette.setColor(QPalette::Window,
                         theme::tinted(theme::fromFarbwert(control.BackColor, QColor()),
                                       theme::colours().Surface)
                             .Ground);
        widget->setPalette(palette);
        widget->setAccessibleName(qString(control.Caption));
    });
    return widget;
}

ChoiceRow* Binder::choice(Control& control, ChoiceRow::Mark mark,
                          std::function<void(ChoiceRow&)> show) {
    auto* widget = new ChoiceRow(mark, &m_window);
    forwardClicks(control, *widget);
    add(control, *widget, [&control, widget, values = std::move(show)] {
        values(*widget);
        widget->setTint(theme::fromFarbwert(control.BackColor, QColor()));
    });
    return widget;
}

ChoiceRow* Binder::option(OptionButton& control) {
    return choice(control, ChoiceRow::Mark::Option, [&control](ChoiceRow& row) {
        row.setInscription(qString(control.Caption));
        row.setChecked(control.value());
    });
}

ChoiceRow* Binder::check(CheckBox& control) {
    return choice(control, ChoiceRow::Mark::Check, [&control](ChoiceRow& row) {
        row.setInscription(qString(control.Caption));
        row.setChecked(control.value());
    });
}

ChoiceRow* Binder::pictureCheck(CheckBox& control, const QPixmap& picture, const QString& name) {
    ChoiceRow* widget = check(control);
    widget->setPicture(picture);
    widget->setAccessibleName(name);
    widget->setToolTip(name);
    return widget;
}

TextEditor* Binder::editor(TextBox& control, const QString& name, TextEditor::Lines lines) {
    auto* widget = new TextEditor(control, m_host, &m_window, lines);
    widget->setAccessibleName(name);
    const bool tinted = lines != TextEditor::Lines::One;
    add(control, *widget, [&control, widget, tinted] {
        widget->refresh();
        if (tinted)
            tint(*widget, control.BackColor);
    });
    return widget;
}

TextEditor* Binder::text(TextBox& control, const QString& name) {
    return editor(control, name, TextEditor::Lines::Many);
}

TextEditor* Binder::line(TextBox& control, const QString& name) {
    return editor(control, name, TextEditor::Lines::One);
}

TextEditor* Binder::module(TextBox& control, const QString& name) {
    return editor(control, name, TextEditor::Lines::Grows);
}

EntryCombo* Binder::combo(ComboBox& control, const QString& name) {
    auto* widget = new EntryCombo(&m_window);
    widget->setAccessibleName(name);
    widget->setMaxVisibleItems(25);
    connect(widget, &QComboBox::activated, this, [this, &control](int index) {
        if (m_host.mayAct(control))
            m_host.run([&] { user::pick(control, index); });
    });
    add(control, *widget, [&control, widget] {
        const QSignalBlocker quiet(widget);
        const QStringList entries = shownEntries(control);
        if (widget->property("entries").toStringList() != entries) {
            widget->clear();
            widget->addItems(entries);
            widget->setProperty("entries", entries);
        }
        widget->setCurrentIndex(control.listIndex());
        widget->setPlaceholderText(control.Inscription.empty() ? widget->accessibleName()
                                                               : qString(control.Inscription));
    });
    return widget;
}

EntryList* Binder::list(ListBox& control, const QString& name,
                        std::function<QString(const QString&)> word) {
    EntryList* widget = entries(control, name, [&control, word = std::move(word)] {
        QStringList rows = shownEntries(control);
        if (word)
            std::transform(rows.begin(), rows.end(), rows.begin(), word);
        return rows;
    });
    widget->setWordWrap(true);
    return widget;
}

EntryList* Binder::wordedList(ListControl& control, const QString& name,
                              std::function<QString(int)> word) {
    return entries(control, name, [&control, word = std::move(word)] {
        QStringList rows;
        for (int i = 0; i < static_cast<int>(control.entries().size()); ++i)
            rows << word(i);
        return rows;
    });
}

EntryList* Binder::entries(ListControl& control, const QString& name,
                           std::function<QStringList()> shown) {
    auto* widget = new EntryList(&m_window);
    widget->setAccessibleName(name);
    widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(widget, &EntryList::picked, this,
            [this, &control](int row) { m_host.run([&] { user::pick(control, row); }); });
    add(control, *widget, [&control, widget, rows = std::move(shown)] {
        const QSignalBlocker quiet(widget);
        showEntries(*widget, rows());
        widget->highlight(control.listIndex());
    });
    return widget;
}

PictureView* Binder::picture(PictureBox& control, QSize preferred, const QString& name) {
    auto* widget = new PictureView(preferred, &m_window);
    widget->setAccessibleName(name);
    forwardClicks(control, *widget);
    add(control, *widget, [&control, widget, shown = 0]() mutable {
        if (shown == control.loads())
            return;
        shown = control.loads();
        widget->setPixmap(jpegPicture(control.file()));
    });
    return widget;
}

void Binder::oneStop(const std::vector<const Control*>& controls) {
    auto* group = new FocusGroup(&m_window);
    for (const Control* control : controls)
        group->add(*widgetOf(*control));
    follow([group] { group->chooseStop(); });
}

void Binder::timer(Timer& control) {
    auto* widget = new QTimer(&m_window);
    m_timers.push_back(widget);
    widget->setObjectName(qString(control.fullName()));
    connect(widget, &QTimer::timeout, this,
            [this, &control] { m_host.run([&] { user::tick(control); }); });
    m_refreshes.emplace_back([&control, widget] {
        if (control.Enabled == widget->isActive())
            return;
        if (control.Enabled)
            widget->start(control.Interval);
        else
            widget->stop();
    });
}

void Binder::refresh() {
    for (const auto& refresh : m_refreshes)
        refresh();
    followPlace();
}

void Binder::followPlace() {
    if (!m_placeNow || m_place == m_placeNow())
        return;
    m_place = m_placeNow();
    for (const auto& [control, widget] : m_widgets)
        if (auto* editor = qobject_cast<TextEditor*>(widget))
            editor->forgetHistory();
    emit placeChanged();
}

QWidget* Binder::widgetOf(const Control& control) const {
    const auto found = m_widgets.find(&control);
    return found == m_widgets.end() ? nullptr : found->second;
}

void Binder::detach() {
    for (const auto& [widget, control] : m_controls)
        const_cast<QObject*>(widget)->removeEventFilter(this);
    for (QTimer* timer : m_timers)
        timer->stop();
    m_controls.clear();
    m_widgets.clear();
    m_held.clear();
    m_refreshes.clear();
    m_placeNow = {};
}

} // namespace zeugnis
