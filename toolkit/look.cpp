#include "toolkit/look.h"

#include "toolkit/enter_key.h"
#include "toolkit/high_contrast.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>

// Resources of a static library are not linked in unless they are asked for, and that outside any
// namespace.
static void initResources() { Q_INIT_RESOURCE(toolkit); }

namespace zeugnis::look {
namespace {

constexpr int FontPointSize = 11;

constexpr const char* SharedStyleSheet = R"(
QToolTip { padding: 4px 6px; color: #242B33; background: #FFFBEA; border: 1px solid #C9C3B6; }
QComboBox { min-height: 30px; padding: 1px 8px; background: white;
    border: 1px solid #8C867A; border-radius: 6px; }
QComboBox:focus { border: 2px solid #1F6F6B; padding: 0 7px; }
QComboBox::drop-down { width: 28px; border: none; }
QComboBox::down-arrow { image: none; width: 0; height: 0; margin-right: 10px;
    border-left: 5px solid white; border-right: 5px solid white; border-top: 6px solid #5F656C; }
QComboBox QAbstractItemView::item { color: #242B33; }
QComboBox QAbstractItemView::item:selected { background: #1F6F6B; color: white; }
QListWidget { background: white; border: 1px solid #8C867A; border-radius: 6px; padding: 4px; }
QListWidget:focus { border: 2px solid #1F6F6B; padding: 3px; }
QListWidget::item { padding: 5px 6px; border-radius: 4px; color: #242B33; }
QListWidget::item:selected { background: #1F6F6B; color: white; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

void speakGerman(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* german = new QTranslator(&application);
    if (german->load(QStringLiteral("qtbase_de"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(german);
}

QPalette palette(const Colours& colours) {
    QPalette palette;
    palette.setColor(QPalette::Window, colours.Background);
    for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::Button})
        palette.setColor(role, colours.Surface);
    palette.setColor(QPalette::Highlight, colours.Highlight);
    palette.setColor(QPalette::HighlightedText, colours.HighlightedText);
    palette.setColor(QPalette::PlaceholderText, colours.InkFaint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours.Ink);
        palette.setColor(QPalette::Disabled, role,
                         role == QPalette::ButtonText ? colours.InkDisabled : colours.InkResting);
    }
    return palette;
}

Colours& chosen() {
    static Colours colours;
    return colours;
}

// To read the icon and to hand it over takes as long as the letters of a page.
class IconBehindFirstPicture : public QObject {
  public:
    explicit IconBehindFirstPicture(QApplication& application) : QObject(&application) {
        application.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            QCoreApplication::instance()->removeEventFilter(this);
            QMetaObject::invokeMethod(
                this,
                [this] {
                    QApplication::setWindowIcon(QIcon(QStringLiteral(":/zeugnisprogramm.png")));
                    deleteLater();
                },
                Qt::QueuedConnection);
        }
        return false;
    }
};

} // namespace

void loadDeliveredFonts() {
    const QDir fonts(QCoreApplication::applicationDirPath() + QStringLiteral("/fonts"));
    for (const QString& file : fonts.entryList({QStringLiteral("*.ttf")}))
        QFontDatabase::addApplicationFont(fonts.filePath(file));
}

const Colours& colours() { return chosen(); }

void apply(QApplication& application, const QString& ownStyleSheet, const QPalette& system) {
    const std::optional<Colours> highContrast = highContrastOf(system);
    chosen() = highContrast.value_or(Colours());
    initResources();
    EnterKey::install(application);
    new IconBehindFirstPicture(application);
    speakGerman(application);
    loadDeliveredFonts();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(
        QFont(QStringList{QStringLiteral("Open Sans"), QStringLiteral("Segoe UI"),
                          QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")},
              FontPointSize));
    QApplication::setPalette(palette(colours()));
    const QString sheet = QString::fromLatin1(SharedStyleSheet) + ownStyleSheet;
    application.setStyleSheet(highContrast ? inHighContrast(sheet, *highContrast) : sheet);
    // Some systems have a font of their own for lists.
    QApplication::setFont(QApplication::font(), "QAbstractItemView");
}

} // namespace zeugnis::look
