#include "desktop/theme.h"

#include "desktop/spoken.h"
#include "toolkit/high_contrast.h"

#include <QApplication>
#include <QPainter>

// Resources of a static library are not linked in unless they are asked for, and that outside any
// namespace.
static void initResources() { Q_INIT_RESOURCE(resources); }

namespace zeugnis::theme {
namespace {

// Farbwert has blue in the high byte.
QColor unpacked(Farbwert value) {
    return {static_cast<int>(value & 0xFFU), static_cast<int>((value >> 8U) & 0xFFU),
            static_cast<int>((value >> 16U) & 0xFFU)};
}

constexpr const char* StyleSheet = R"(
QLineEdit { min-height: 30px; padding: 1px 8px; background: white;
    border: 1px solid #8C867A; border-radius: 6px; }
QLineEdit:focus { border: 2px solid #1F6F6B; padding: 0 7px; }
QComboBox QAbstractItemView { padding: 4px; outline: none; background: white; }
QComboBox QAbstractItemView::item { min-height: 26px; }
QPlainTextEdit { border: 1px solid #8C867A; border-radius: 6px; padding: 4px 2px 4px 6px; }
QPlainTextEdit:focus { border: 2px solid #1F6F6B; padding: 3px 1px 3px 5px; }
QPlainTextEdit[oneLine="true"] { padding: 1px 2px; background: white; }
QPlainTextEdit[oneLine="true"]:focus { padding: 0 1px; border: 2px solid #1F6F6B; }
QPlainTextEdit[oneLine="true"]:disabled { color: #3F464E; background: #F6F4EF;
    border-color: #E4DFD4; }
QPlainTextEdit[preset="true"] { color: #B3261E; }
QPlainTextEdit[paper="true"] { background: transparent; border-color: transparent; }
QPlainTextEdit[paper="true"]:focus { border: 2px solid #1F6F6B; }
QLabel[plain="true"]:focus { border: 2px solid #1F6F6B; border-radius: 6px; }
QListWidget:disabled { background: #F6F4EF; border-color: #E4DFD4; }
QListWidget#compact::item { padding: 2px 6px; }
QLabel#lock { color: #7A5A12; background: #FBF1D6; border: 1px solid #E6D3A0;
    border-radius: 6px; padding: 1px 8px; }
QFrame#area { background: #FFFFFF; border: 1px solid #DDD8CC; border-radius: 8px; }
QPushButton#link { border: 1px solid transparent; border-radius: 3px; padding: 0 4px;
    background: transparent; color: #1F6F6B; text-decoration: underline; }
QPushButton#link:focus { border-color: #1F6F6B; }
QPushButton#link:disabled { text-decoration: none; }
QScrollBar:vertical { width: 12px; background: transparent; border: none; margin: 0; }
QScrollBar::handle:vertical { min-height: 32px; margin: 2px; border-radius: 4px;
    background: rgba(60, 60, 50, 90); }
QScrollBar::handle:vertical:disabled { background: transparent; }
QScrollBar::handle:vertical:hover { background: rgba(60, 60, 50, 150); }
QDialog QPushButton { min-height: 28px; min-width: 92px; padding: 0 12px;
    border: 1px solid #8C867A; border-radius: 6px; background: white; }
QDialog QPushButton:focus { border: 2px solid #1F6F6B; }
QDialog QPushButton:hover { background: #EAF3F2; }
)";

} // namespace

void apply(QApplication& application, const QPalette& system) {
    initResources();
    spoken::install();
    look::apply(application, QString::fromLatin1(StyleSheet), system);
}

QFont font(Size size, QFont::Weight weight) {
    constexpr double Shares[] = {0.9, 1.0, 1.1, 1.3, 1.7};
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * Shares[static_cast<size_t>(size)]);
    font.setWeight(weight);
    return font;
}

QColor fromFarbwert(Farbwert value, const QColor& plain) {
    // White can be read on a slightly darker red only.
    constexpr Farbwert Red = 0x0000FF;
    if (value == Red)
        return {0xD9, 0x00, 0x00};
    return value == Fensterfarbe ? plain : unpacked(value);
}

Tinted tinted(const QColor& tint, const QColor& plain) {
    if (!colours().HighContrast)
        return {tint.isValid() ? tint : plain, QColor()};
    // White and grey tell that nothing is chosen.
    QColor border = tint.isValid() && tint.hsvSaturation() > 0 ? tint : QColor();
    while (border.isValid() && border.value() > 0 &&
           look::contrast(border, colours().Surface) < 3.0)
        border = border.darker(115);
    return {plain, border};
}

QColor inkOn(const QColor& background) {
    const double light =
        0.299 * background.redF() + 0.587 * background.greenF() + 0.114 * background.blueF();
    return light < 0.5 ? QColor(Qt::white) : theme::colours().Ink;
}

void paintSurface(QPainter& painter, const QRect& area, const QColor& fill, const QColor& outline,
                  bool focused) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = focused ? 2.0 : 1.0;
    const QColor edge = focused ? colours().Accent : outline;
    const double inset = width / 2;
    if (fill.alpha() == 255) {
        // Two surfaces are painted in a third of the time of one with an outline.
        painter.setPen(Qt::NoPen);
        painter.setBrush(edge);
        painter.drawRoundedRect(QRectF(area), Radius + inset, Radius + inset);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(area).adjusted(width, width, -width, -width), Radius - inset,
                                Radius - inset);
    } else {
        painter.setPen(QPen(edge, width));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset), Radius,
                                Radius);
    }
    if (!focused)
        return;
    // So that the ring is seen on any colour.
    constexpr double Halo = 1.5;
    const double inner = width + Halo / 2;
    painter.setPen(QPen(colours().Surface, Halo));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(area).adjusted(inner, inner, -inner, -inner), Radius - 2,
                            Radius - 2);
}

void paintTinted(QPainter& painter, const QRect& area, const Tinted& tinted, const QColor& outline,
                 bool focused) {
    paintSurface(painter, area, tinted.Ground, outline, focused);
    if (!tinted.Border.isValid())
        return;
    constexpr double Width = 3.0;
    const double inner = (focused ? 3.5 : 1.0) + Width / 2;
    painter.setPen(QPen(tinted.Border, Width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(area).adjusted(inner, inner, -inner, -inner), Radius - 2,
                            Radius - 2);
}

} // namespace zeugnis::theme
