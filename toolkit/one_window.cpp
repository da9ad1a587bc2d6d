#include "toolkit/one_window.h"

#include "toolkit/local_calls.h"
#include "toolkit/local_name.h"

#include <QWidget>

#include <utility>

namespace zeugnis {
namespace {

constexpr const char* Purpose = "window";
constexpr const char* Answer = "ok";

void comeToFront(QWidget* window) {
    if (window == nullptr)
        return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

OneWindow::OneWindow(const std::filesystem::path& opened, std::function<QWidget*()> window) {
    localcalls::answer(localName(Purpose, opened), *this,
                       [window = std::move(window)](const QByteArray&) {
                           comeToFront(window());
                           return QByteArray(Answer);
                       });
}

bool OneWindow::bringToFront(const std::filesystem::path& opened) {
    return localcalls::call(localName(Purpose, opened)) == Answer;
}

} // namespace zeugnis
