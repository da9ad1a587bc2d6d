#pragma once

#include <QApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>
#include <chrono>
#include <future>
#include <stop_token>

namespace zeugnis::dokumente {

/// Runs `work` in a thread of its own and returns what it returns, or fails as it fails. The
/// windows stay alive meanwhile; after 150 ms the pointer says so, and after half a second `text`
/// says what is being done. The token that `work` takes says that the user does not want to wait
/// any longer; it then has to return or fail soon.
template <typename Work>
auto withProgress(const QString& text, QWidget* parent, Work work) {
    std::stop_source abbruch;
    auto result = std::async(std::launch::async, std::move(work), abbruch.get_token());
    QProgressDialog dialog(text, QStringLiteral("&Abbrechen"), 0, 0, parent);
    QObject::connect(&dialog, &QProgressDialog::canceled, &dialog, [&] { abbruch.request_stop(); });
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(500);
    dialog.setValue(0);
    QEventLoop loop;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
        if (result.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
            loop.quit();
    });
    watch.start(20);
    constexpr int PatientMs = 150;
    QTimer busy;
    busy.setSingleShot(true);
    QObject::connect(&busy, &QTimer::timeout, &loop,
                     [] { QApplication::setOverrideCursor(Qt::BusyCursor); });
    busy.start(PatientMs);
    loop.exec();
    if (!busy.isActive())
        QApplication::restoreOverrideCursor();
    return result.get();
}

} // namespace zeugnis::dokumente
