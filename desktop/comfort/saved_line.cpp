#include "desktop/comfort/saved_line.h"

#include "behaviour/avsv_editor.h"
#include "comfort/entry_access.h"
#include "controls/program.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "editors/module_editor.h"
#include "masterdata/master_data_screen.h"
#include "rescue/saved_state.h"
#include "toolkit/qt_text.h"

#include <QBoxLayout>
#include <QLabel>

#include <memory>

namespace zeugnis {
namespace {

bool holdsSomethingToSave(Screen& screen) {
    return EingabeschirmAus(screen) || dynamic_cast<GSAVSVAenderung*>(&screen) != nullptr ||
           dynamic_cast<Bausteineditor*>(&screen) != nullptr ||
           dynamic_cast<GsBasis*>(&screen) != nullptr;
}

QString sentence(const rescue::SavedState& state) {
    const QString time = state.savedAt() ? qString(safety::shownTime(*state.savedAt())) : QString();
    if (state.isChanged())
        return time.isEmpty() ? QObject::tr("noch nicht gespeichert")
                              : QObject::tr("seit %1 geändert").arg(time);
    return time.isEmpty() ? QString() : QObject::tr("Gespeichert um %1").arg(time);
}

} // namespace

void addSavedLine(ScreenWindow& window, Screen& screen, WindowHost& host, QBoxLayout& row) {
    if (!holdsSomethingToSave(screen))
        return;
    auto* line = new QLabel(&window);
    line->setObjectName(QStringLiteral("savedLine"));
    line->setFont(theme::font(theme::Size::Small));
    line->setForegroundRole(QPalette::PlaceholderText);
    row.addWidget(line);
    window.showSaved(true);
    auto state =
        std::make_shared<rescue::SavedState>(screen, host.program().directory().programFolder());
    window.follow([&window, line, state] {
        state->look();
        line->setText(sentence(*state));
        window.showSaved(!state->isChanged());
    });
}

} // namespace zeugnis
