#include "tests/window_driver/looking.h"

#include "desktop/tinted_button.h"
#include "tests/window_driver/pointing.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <map>

namespace zeugnis::windowdriver {
namespace {

double luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// The ground is the commonest colour, the ink the one that differs most from it.
double contrastIn(const QImage& picture) {
    std::map<QRgb, int> pixels;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++pixels[picture.pixel(x, y)];
    const auto ground = std::max_element(pixels.begin(), pixels.end(),
                                         [](auto& a, auto& b) { return a.second < b.second; });
    double best = 1;
    for (const auto& [colour, count] : pixels)
        best = std::max(best, contrast(QColor(colour), QColor(ground->first)));
    return best;
}

double contrastOf(QAbstractItemView& view, const QModelIndex& index) {
    view.scrollTo(index);
    mouse::settle();
    const QRect place = view.visualRect(index).adjusted(6, 3, -6, -3);
    return contrastIn(view.viewport()->grab(place).toImage());
}

QString mnemonicIn(const QString& text) { return QKeySequence::mnemonic(text).toString(); }

} // namespace

std::optional<QString> highlightedEntry(const QWidget& widget) {
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        const QAbstractItemView* view = combo->view();
        if (!view->isVisible() || !view->currentIndex().isValid())
            return std::nullopt;
        return view->currentIndex().data().toString();
    }
    const auto* list = qobject_cast<const QListWidget*>(&widget);
    if (list == nullptr || list->selectedItems().isEmpty())
        return std::nullopt;
    return list->selectedItems().front()->text();
}

double leastContrastIn(QComboBox& combo) {
    QAbstractItemView& view = *combo.view();
    double least = 21;
    for (int row = 0; row < std::min(combo.count(), 3); ++row) {
        const QModelIndex index = combo.model()->index(row, 0);
        least = std::min(least, contrastOf(view, index));
        mouse::moveTo(*view.viewport(), view.visualRect(index).center());
        least = std::min(least, contrastOf(view, index));
    }
    return least;
}

QImage displayNow() {
    const QRect display = QGuiApplication::primaryScreen()->geometry();
    QImage picture(display.size(), QImage::Format_RGB32);
    picture.fill(QColor(0x50, 0x60, 0x70));
    QPainter painter(&picture);
    QWidgetList windows = QApplication::topLevelWidgets();
    const auto rank = [](const QWidget* window) {
        return window->windowType() == Qt::Popup   ? 3
               : window->isActiveWindow()          ? 2
               : window->parentWidget() != nullptr ? 1
                                                   : 0;
    };
    std::stable_sort(windows.begin(), windows.end(),
                     [&](const auto* a, const auto* b) { return rank(a) < rank(b); });
    for (QWidget* window : windows)
        if (window->isVisible())
            painter.drawPixmap(window->pos() - display.topLeft(), window->grab());
    return picture;
}

std::vector<std::string> doubleMnemonicsOf(const QWidget& window) {
    std::map<QString, int> keys;
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->shortcut().isEmpty())
            ++keys[button->shortcut().toString()];
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy() != nullptr && !mnemonicIn(label->text()).isEmpty())
            ++keys[mnemonicIn(label->text())];
    std::vector<std::string> doubles;
    for (const auto& [key, count] : keys)
        if (count > 1)
            doubles.push_back(key.toStdString());
    return doubles;
}

bool isButton(const QWidget& widget) {
    return qobject_cast<const TintedButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr;
}

} // namespace zeugnis::windowdriver
