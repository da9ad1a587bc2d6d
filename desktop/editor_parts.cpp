#include "desktop/editor_parts.h"

#include "controls/control_array.h"
#include "desktop/binder.h"
#include "desktop/theme.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>

namespace zeugnis::editorparts {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("editorparts", text); }

} // namespace

QBoxLayout* head(Binder& binder, Label& title, Button& help) {
    auto* row = new QHBoxLayout;
    QLabel* widget = binder.label(title);
    widget->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
    widget->setWordWrap(false);
    widget->setMargin(4); // for the ring around it
    row->addWidget(widget);
    row->addStretch();
    row->addWidget(
        binder.signButton(help, QStringLiteral("?"), tr("Hilfe"), QKeySequence::HelpContents));
    return row;
}

QBoxLayout* loading(Binder& binder, const ControlArray<Button>& buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(binder.button(buttons(0), u'S'));
    row->addWidget(binder.button(buttons(1), u'A'));
    return row;
}

QLabel* hint(Binder& binder, Label& label) {
    QLabel* widget = binder.label(label);
    widget->setFont(theme::font(theme::Size::Small));
    return widget;
}

QBoxLayout* actions(Binder& binder, const Actions& keys) {
    const auto button = [&](const Key& key) { return binder.button(key.Control, key.Mnemonic); };
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(button(keys.ShowPlaceholders));
    row->addWidget(button(keys.HidePlaceholders));
    row->addStretch();
    row->addWidget(button(keys.Save));
    row->addWidget(button(keys.Leave));
    return row;
}

QString lostByClosing() {
    return tr("Das Fenster wird geschlossen, ohne zu speichern. Was Sie seit dem letzten Speichern "
              "an den Textbausteinen geändert haben, geht verloren.\n\n"
              "Soll es trotzdem geschlossen werden?");
}

} // namespace zeugnis::editorparts
