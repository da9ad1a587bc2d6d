#include "desktop/spoken.h"

#include "desktop/choice_row.h"
#include "desktop/picture_view.h"
#include "desktop/tinted_button.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QFrame>

#include <algorithm>
#include <array>

namespace zeugnis::spoken {
namespace {

constexpr const char* Silent = "silent";

QString tr(const char* text) { return QCoreApplication::translate("spoken", text); }

QString withoutMnemonic(QString text) {
    const QChar placeholder(0xE000);
    text.replace(QStringLiteral("&&"), placeholder).remove(u'&');
    return text.replace(placeholder, u'&').simplified();
}

class Decoration : public QAccessibleWidget {
  public:
    explicit Decoration(QWidget* widget) : QAccessibleWidget(widget, QAccessible::NoRole) {}
    [[nodiscard]] QString text(QAccessible::Text /*kind*/) const override { return {}; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

// A frame with a name is a part of the window, one without is none.
class Part : public QAccessibleWidget {
  public:
    explicit Part(QWidget* widget) : QAccessibleWidget(widget) {}
    [[nodiscard]] QAccessible::Role role() const override {
        return widget()->accessibleName().isEmpty() ? QAccessible::Client : QAccessible::Grouping;
    }
};

class Picture : public QAccessibleWidget {
  public:
    explicit Picture(PictureView& picture) : QAccessibleWidget(&picture) {}
    [[nodiscard]] QAccessible::Role role() const override {
        return static_cast<const PictureView*>(widget())->isSign() ? QAccessible::AlertMessage
                                                                   : QAccessible::Graphic;
    }
};

// What all buttons of the screens have in common: their inscription is their name, and a screen
// reader presses them as a hand does.
class Pressed : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name && widget()->accessibleName().isEmpty())
            return withoutMnemonic(button().text());
        if (kind == QAccessible::Accelerator)
            return button().shortcut().toString(QKeySequence::NativeText);
        return QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(mainAction());
        return names;
    }
    void doAction(const QString& name) override {
        if (name == mainAction() && widget()->isEnabled())
            button().click();
        else
            QAccessibleWidget::doAction(name);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override {
        return name == mainAction() && !button().shortcut().isEmpty()
                   ? QStringList{button().shortcut().toString()}
                   : QStringList();
    }

  protected:
    [[nodiscard]] virtual const QString& mainAction() const { return pressAction(); }
    [[nodiscard]] QAbstractButton& button() const {
        return static_cast<QAbstractButton&>(*widget());
    }
};

class Choice : public Pressed {
  public:
    explicit Choice(ChoiceRow& row)
        : Pressed(&row, row.mark() == ChoiceRow::Mark::Option ? QAccessible::RadioButton
                                                              : QAccessible::CheckBox) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = Pressed::state();
        state.checkable = true;
        state.checked = row().isChosen();
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        QString told = Pressed::text(kind);
        if (kind != QAccessible::Description || !row().isFormer())
            return told;
        return told.isEmpty() ? tr("war gewählt") : told + QStringLiteral(", ") + tr("war gewählt");
    }

  protected:
    [[nodiscard]] const QString& mainAction() const override { return toggleAction(); }

  private:
    [[nodiscard]] const ChoiceRow& row() const { return static_cast<const ChoiceRow&>(button()); }
};

// One of several that lead to a page is a page's tab.
class Press : public Pressed {
  public:
    explicit Press(TintedButton& button) : Pressed(&button, QAccessible::Button) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return isTab() ? QAccessible::PageTab : QAccessible::Button;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = Pressed::state();
        state.selectable = isTab();
        state.selected = isTab() && *tinted().marked();
        return state;
    }

  private:
    [[nodiscard]] bool isTab() const { return tinted().marked().has_value(); }
    [[nodiscard]] const TintedButton& tinted() const {
        return static_cast<const TintedButton&>(button());
    }
};

QAccessibleInterface* make(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr)
        return nullptr;
    if (widget->property(Silent).toBool())
        return new Decoration(widget);
    if (auto* row = qobject_cast<ChoiceRow*>(widget))
        return new Choice(*row);
    if (auto* button = qobject_cast<TintedButton*>(widget))
        return new Press(*button);
    if (auto* picture = qobject_cast<PictureView*>(widget))
        return new Picture(*picture);
    return className == QStringLiteral("QFrame") ? new Part(widget) : nullptr;
}

struct ColourName {
    Farbwert colour;
    const char* name;
};
constexpr std::array<ColourName, 12> ColourNames = {{
    {0xFFFFFF, QT_TRANSLATE_NOOP("spoken", "weiß")},
    {0x80FF80, QT_TRANSLATE_NOOP("spoken", "kräftig grün")},
    {0xC0FFC0, QT_TRANSLATE_NOOP("spoken", "hellgrün")},
    {0xC0E0FF, QT_TRANSLATE_NOOP("spoken", "orange")},
    {0xC0C0FF, QT_TRANSLATE_NOOP("spoken", "rosa")},
    {0xC0C0C0, QT_TRANSLATE_NOOP("spoken", "grau")},
    {0x00FFFF, QT_TRANSLATE_NOOP("spoken", "gelb")},
    {0x0000FF, QT_TRANSLATE_NOOP("spoken", "rot")},
    {0xC0FFFF, QT_TRANSLATE_NOOP("spoken", "hellgelb")},
    {0xFFFFC0, QT_TRANSLATE_NOOP("spoken", "hellblau")},
    {0xFFC0FF, QT_TRANSLATE_NOOP("spoken", "fliederfarben")},
    {0x8080FF, QT_TRANSLATE_NOOP("spoken", "hellrot")},
}};

} // namespace

void install() { QAccessible::installFactory(make); }

void silence(QWidget& decoration) {
    decoration.setProperty(Silent, true);
    // Qt may have made one before.
    if (QAccessibleInterface* former = QAccessible::queryAccessibleInterface(&decoration))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

void describe(QWidget& widget, const QString& description) {
    if (widget.accessibleDescription() != description)
        widget.setAccessibleDescription(description);
}

void announce(QWidget& sign, const QString& sentence) {
    sign.setAccessibleName(sentence);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&sign, sentence);
#else
    QAccessibleEvent event(&sign, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&event);
}

QString colourName(Farbwert colour) {
    const auto* found =
        std::find_if(ColourNames.begin(), ColourNames.end(),
                     [colour](const ColourName& one) { return one.colour == colour; });
    return found == ColourNames.end() ? QString() : tr(found->name);
}

} // namespace zeugnis::spoken
