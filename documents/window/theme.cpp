#include "documents/window/theme.h"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>

namespace zeugnis::dokumente::theme {
namespace {

const QColor Background(0xF6, 0xF4, 0xEF);
const QColor Ink(0x24, 0x2B, 0x33);
const QColor InkDisabled(0x9A, 0x97, 0x90);

constexpr const char* StyleSheet = R"(
QToolTip { padding: 4px 6px; color: #242B33; background: #FFFBEA; border: 1px solid #C9C3B6; }
QPushButton { min-height: 32px; padding: 0 14px; background: white;
    border: 1px solid #8C867A; border-radius: 6px; }
QPushButton:hover { background: #EAF3F2; }
QPushButton:pressed { background: #D5E7E5; }
QPushButton:focus { border: 2px solid #1F6F6B; padding: 0 13px; }
QPushButton:disabled { color: #9A9790; border-color: #C9C3B6; background: #F6F4EF; }
QPushButton#haupt { background: #1F6F6B; color: white; border-color: #1F6F6B; font-weight: 600; }
QPushButton#haupt:hover { background: #2A807B; }
QPushButton#haupt:focus { border: 2px solid #0C3B39; }
QPushButton#zoom { min-width: 34px; max-width: 34px; padding: 0; font-size: 15pt; }
QComboBox { min-height: 30px; padding: 1px 8px; background: white;
    border: 1px solid #8C867A; border-radius: 6px; }
QComboBox:focus { border: 2px solid #1F6F6B; padding: 0 7px; }
QComboBox::drop-down { width: 28px; border: none; }
QComboBox::down-arrow { image: none; width: 0; height: 0; margin-right: 10px;
    border-left: 5px solid white; border-right: 5px solid white; border-top: 6px solid #5F656C; }
QListWidget { background: white; border: 1px solid #8C867A; border-radius: 6px; padding: 4px; }
QListWidget:focus { border: 2px solid #1F6F6B; padding: 3px; }
QListWidget::item { padding: 5px 6px; border-radius: 4px; color: #242B33; }
QListWidget::item:hover { background: #EAF3F2; }
QListWidget::item:selected { background: #1F6F6B; color: white; }
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
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QLabel#hinweis { padding: 9px 14px; background: #FFF6D8; border: 1px solid #D9C98C;
    border-radius: 6px; }
QLabel#fehler { color: #A3261B; font-weight: 600; }
QLabel#leise { color: #5F656C; }
)";

} // namespace

void apply(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* german = new QTranslator(&application);
    if (german->load(QStringLiteral("qtbase_de"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(german);

    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(
        QFont(QStringList{QStringLiteral("Open Sans"), QStringLiteral("Segoe UI"),
                          QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")},
              11));
    QPalette palette;
    palette.setColor(QPalette::Window, Background);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Button, Qt::white);
    palette.setColor(QPalette::Highlight, Accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Ink);
        palette.setColor(QPalette::Disabled, role, InkDisabled);
    }
    QApplication::setPalette(palette);
    application.setStyleSheet(QString::fromLatin1(StyleSheet));
}

} // namespace zeugnis::dokumente::theme
