#include "desktop/unfinished_view.h"

#include "program/unfinished_screen.h"

#include <QLabel>
#include <QVBoxLayout>

namespace zeugnis {

UnfinishedView::UnfinishedView(Screen& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 32, 32, 32);
    if (auto* unfinished = dynamic_cast<UnfinishedScreen*>(&screen))
        layout->addWidget(bind().label(unfinished->Label1));
    resize(460, 160);
}

} // namespace zeugnis
