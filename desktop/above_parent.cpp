#include "desktop/above_parent.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#if QT_CONFIG(xcb)
#include <xcb/xproto.h>
#endif

namespace zeugnis {

void standAboveParent(const QWidget& window) {
#if QT_CONFIG(xcb)
    const QWindow* own = window.windowHandle();
    const QWindow* parent = own == nullptr ? nullptr : own->transientParent();
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    // Without a display there may be an interface, but nobody behind it.
    if (parent == nullptr || x11 == nullptr || x11->connection() == nullptr)
        return;
    const auto id = static_cast<xcb_window_t>(parent->winId());
    xcb_change_property(x11->connection(), XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(own->winId()), XCB_ATOM_WM_TRANSIENT_FOR,
                        XCB_ATOM_WINDOW, 32, 1, &id);
    xcb_flush(x11->connection());
#else
    static_cast<void>(window);
#endif
}

} // namespace zeugnis
