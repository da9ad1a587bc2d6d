#include "desktop/entry_parts.h"

#include "controls/list_controls.h"
#include "controls/text_box.h"
#include "desktop/binder.h"
#include "desktop/deleted_text.h"
#include "desktop/picture_view.h"
#include "desktop/text_editor.h"
#include "desktop/theme.h"
#include "toolkit/entry_combo.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace zeugnis::entryparts {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("entryparts", text); }

QBoxLayout* titleRow(Binder& binder, const Head& parts) {
    auto* row = new QHBoxLayout;
    addTitle(*row, binder, parts.Purpose, parts.ClassName, theme::Size::Lead);
    row->addWidget(binder.signButton(parts.Help, QStringLiteral("?"), tr("Hilfe"),
                                     QKeySequence::HelpContents));
    return row;
}

QBoxLayout* selectionRow(Binder& binder, const Head& parts, std::initializer_list<Key> sections) {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(pupilList(binder, parts.Pupils), 1);
    for (const Key& section : sections)
        row->addWidget(binder.button(section.Control, section.Mnemonic));
    row->addStretch(1);
    return row;
}

// No higher than the name of the text beside it, so that nothing moves when it comes.
QWidget* deletedText(Binder& binder, TextBox& box, const Button& reset) {
    QWidget* editor = binder.widgetOf(box);
    auto* offer = new QPushButton(tr("Gelöschten Text zurückholen"), editor->parentWidget());
    offer->setObjectName(QStringLiteral("link"));
    offer->setFont(theme::font(theme::Size::Small));
    offer->setFixedHeight(offer->fontMetrics().height());
    offer->setCursor(Qt::PointingHandCursor);
    offer->setToolTip(tr("Strg+Z im Textfeld"));
    new DeletedText(binder, reset, box, *offer);
    return offer;
}

} // namespace

EntryCombo* pupilList(Binder& binder, ComboBox& pupils) {
    constexpr int LeastName = 20; // characters
    constexpr int LongName = 52;
    EntryCombo* widget = binder.combo(pupils, tr("Namensliste"));
    widget->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
    const int letter = widget->fontMetrics().averageCharWidth();
    widget->setMinimumWidth(LeastName * letter);
    widget->setMaximumWidth(LongName * letter);
    widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const QKeySequence key(Qt::ALT | Qt::Key_E);
    widget->setToolTip(tr("Namensliste (%1)").arg(key.toString(QKeySequence::NativeText)));
    auto* shortcut = new QShortcut(key, widget);
    QObject::connect(shortcut, &QShortcut::activated, widget,
                     [widget] { widget->setFocus(Qt::ShortcutFocusReason); });
    widget->setFocus();
    return widget;
}

QBoxLayout* head(Binder& binder, const Head& parts, std::initializer_list<Key> sections) {
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    row->addWidget(binder.picture(parts.Picture, {72, 96}, tr("Bild des Kindes")));
    auto* middle = new QVBoxLayout;
    middle->addLayout(titleRow(binder, parts));
    middle->addLayout(selectionRow(binder, parts, sections));
    row->addLayout(middle, 1);
    return row;
}

// Only with its greatest width the title leaves the rest of the row to what it is about.
void addTitle(QBoxLayout& row, Binder& binder, Label& title, Label& about, theme::Size size) {
    constexpr int All = 1000;
    QLabel* widget = binder.label(title);
    widget->setFont(theme::font(size, QFont::DemiBold));
    binder.follow([widget] {
        const QSize line = widget->fontMetrics().size(Qt::TextSingleLine, widget->text());
        widget->setMaximumWidth(line.width() + 2);
    });
    row.addWidget(widget, All);
    QLabel* beside = binder.label(about);
    beside->setFont(theme::font(size, QFont::DemiBold));
    beside->setWordWrap(false);
    row.addWidget(beside, 1);
}

QLabel* nextStep(Binder& binder, Label& label) {
    QLabel* widget = binder.label(label);
    widget->setFont(theme::font(theme::Size::Heading));
    widget->setAlignment(Qt::AlignCenter);
    widget->setMargin(40);
    // Takes the room of the pages, so that the rows of buttons keep their height.
    widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    return widget;
}

QBoxLayout* reportText(Binder& binder, TextBox& box, const QString& name, const Button& reset) {
    TextEditor* editor = binder.text(box, name);
    editor->setFont(theme::font(theme::Size::Lead));
    // The pages come first, but three lines are always there.
    editor->setMinimumHeight(3 * editor->fontMetrics().lineSpacing() + 12);
    editor->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    auto* caption = new QLabel(name, editor->parentWidget());
    caption->setFont(theme::font(theme::Size::Small));
    caption->setBuddy(editor);
    binder.follow([caption, &box] { caption->setVisible(box.Visible); });
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    auto* above = new QHBoxLayout;
    above->addWidget(caption, 1);
    above->addWidget(deletedText(binder, box, reset));
    column->addLayout(above);
    column->addWidget(editor, 1);
    return column;
}

QWidget* lockSign(Binder& binder, PictureBox& picture) {
    PictureView* sign = binder.picture(picture, {120, 140}, tr("Der Text ist gesperrt."));
    sign->setPixmap(QPixmap(QStringLiteral(":/gesperrt.png")));
    sign->setSign();
    binder.follow([sign, &picture, locked = false]() mutable {
        if (std::exchange(locked, picture.Visible) != picture.Visible)
            spoken::announce(*sign, picture.Visible ? tr("Der Text ist gesperrt.")
                                                    : tr("Die Sperre ist aufgehoben."));
    });
    return sign;
}

QBoxLayout* actions(Binder& binder, const Actions& keys) {
    const auto button = [&](const Key& key) { return binder.button(key.Control, key.Mnemonic); };
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(button(keys.Reset));
    row->addSpacing(16);
    row->addWidget(button(keys.ShowPhrases));
    row->addWidget(button(keys.HidePhrases));
    row->addStretch();
    row->addWidget(button(keys.Save));
    row->addWidget(button(keys.Leave));
    return row;
}

QString lostSinceSaving() {
    return tr("Das Fenster wird geschlossen, ohne zu speichern. Was Sie seit dem letzten Speichern "
              "eingegeben haben, geht verloren.\n\n"
              "Soll es trotzdem geschlossen werden?");
}

} // namespace zeugnis::entryparts
