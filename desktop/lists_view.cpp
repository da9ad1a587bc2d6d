#include "desktop/lists_view.h"

#include <QLabel>
#include <QVBoxLayout>

namespace zeugnis {

ListsView::ListsView(Listen& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below) {
    constexpr QChar Mnemonics[] = {u'A', u'K', u'S', u'B', u'L', u'E'};
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(8);
    layout->addWidget(bind().label(screen.Label1));
    layout->addSpacing(8);
    screen.Command1.each([&](Button& button) {
        const int index = *button.index();
        if (index == screen.Command1.last())
            layout->addSpacing(12);
        const auto role =
            index == screen.Command1.last() ? TintedButton::Role::Normal : TintedButton::Role::Main;
        layout->addWidget(bind().button(button, Mnemonics[index], role));
    });
    layout->addStretch();
    wishSize({420, 440}, Growth::None);
}

} // namespace zeugnis
