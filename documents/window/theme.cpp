#include "documents/window/theme.h"

#include <QApplication>
#include <QPalette>

namespace zeugnis::dokumente::theme {
namespace {

constexpr const char* StyleSheet = R"(
QPushButton { min-height: 32px; padding: 0 14px; background: white;
    border: 1px solid #8C867A; border-radius: 6px; }
QPushButton:hover { background: #EAF3F2; }
QPushButton:pressed { background: #D5E7E5; }
QPushButton:focus { border: 2px solid #1F6F6B; padding: 0 13px; }
QPushButton:disabled { color: #9A9790; border-color: #C9C3B6; background: #F6F4EF; }
QPushButton#haupt { background: #1F6F6B; color: white; border-color: #1F6F6B; font-weight: 600; }
QPushButton#haupt:hover { background: #2A807B; }
QPushButton#haupt:focus { border: 2px solid #0C3B39; }
QPushButton::menu-indicator { width: 9px; subcontrol-origin: padding; subcontrol-position: center right; right: 6px; }
QPushButton#zoom { min-width: 34px; max-width: 34px; padding: 0; font-size: 15pt; }
QListWidget::item:hover { background: #EAF3F2; }
QTableView { background: white; alternate-background-color: #FAF8F3; gridline-color: #D8D3C8;
    border: 1px solid #8C867A; border-radius: 6px; selection-background-color: #D5E7E5;
    selection-color: #242B33; }
QTableView:focus { border: 2px solid #1F6F6B; }
QTableView::item:focus { background: #BFDCD9; border: 2px solid #1F6F6B; }
QTableView QLineEdit { background: #FFFBEA; border: 2px solid #1F6F6B; padding: 0; }
QHeaderView { background: #F6F4EF; }
QHeaderView::section { background: #F6F4EF; padding: 2px 3px; border: none;
    border-right: 1px solid #D8D3C8; border-bottom: 1px solid #D8D3C8; }
QHeaderView::section:vertical { padding-left: 8px; }
QHeaderView::section:checked { background: #D5E7E5; }
QTableCornerButton::section { background: #F6F4EF; border: none; }
QScrollBar:vertical { width: 14px; margin: 0; background: transparent; }
QScrollBar:horizontal { height: 14px; margin: 0; background: transparent; }
QScrollBar::handle { margin: 3px; border-radius: 4px; background: #A9A295; }
QScrollBar::handle:vertical { min-height: 40px; }
QScrollBar::handle:horizontal { min-width: 40px; }
QScrollBar::handle:hover { background: #8C867A; }
QLabel#hinweis { padding: 9px 14px; background: #FFF6D8; border: 1px solid #D9C98C;
    border-radius: 6px; }
QLabel#fehler { color: #A3261B; font-weight: 600; }
QLabel#leise { color: #5F656C; }
)";

} // namespace

QColor desk() {
    return look::colours().HighContrast ? look::colours().Background : QColor(0xE6, 0xE2, 0xDA);
}

void apply(QApplication& application) {
    look::apply(application, QString::fromLatin1(StyleSheet), QApplication::palette());
}

} // namespace zeugnis::dokumente::theme
