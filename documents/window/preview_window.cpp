#include "documents/window/preview_window.h"

#include "documents/app/word_processor.h"
#include "documents/window/print_pages.h"
#include "platform/failure.h"
#include "platform/whole_file.h"
#include "toolkit/entry_combo.h"
#include "toolkit/flow_row.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"
#include "toolkit/wrapped_entries.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <array>
#include <system_error>

namespace zeugnis::dokumente {
namespace {

struct Zoomstufe {
    const char* Name;
    PageView::Zoom Art;
    double Faktor;
};
constexpr std::array<Zoomstufe, 7> Zoomstufen = {{
    {"Ganze Seite", PageView::Zoom::WholePage, 1.0},
    {"Seitenbreite", PageView::Zoom::PageWidth, 1.0},
    {"50 %", PageView::Zoom::Factor, 0.5},
    {"75 %", PageView::Zoom::Factor, 0.75},
    {"100 %", PageView::Zoom::Factor, 1.0},
    {"125 %", PageView::Zoom::Factor, 1.25},
    {"150 %", PageView::Zoom::Factor, 1.5},
}};

constexpr QSize WindowSize(1180, 760);
constexpr QSize SizeWithChecks(1260, 760);
constexpr int LeastContentsLetters = 16;
constexpr int ContentsLetters = 30;
constexpr int LeastPageWidth = 260;

QString qPfad(const std::filesystem::path& pfad) {
    return QString::fromStdU16String(pfad.u16string());
}

std::filesystem::file_time_type standVon(const std::filesystem::path& datei) {
    std::error_code ignored;
    return std::filesystem::last_write_time(datei, ignored);
}

} // namespace

PreviewWindow::PreviewWindow(Nachschauen nachschauen, QWidget* parent)
    : QWidget(parent),
      m_nachschauen(std::move(nachschauen)),
      m_middle(new QHBoxLayout),
      m_view(new PageView),
      m_contents(new QListWidget),
      m_zoom(new EntryCombo),
      m_hint(new QLabel),
      m_position(new QLabel),
      m_edit(nullptr) {
    m_hint->setObjectName(QStringLiteral("hinweis"));
    m_hint->setWordWrap(true);
    m_position->setObjectName(QStringLiteral("leise"));

    m_middle->setSpacing(14);
    m_view->setMinimumWidth(LeastPageWidth);
    m_middle->addWidget(contentsColumn(), 3);
    m_middle->addWidget(m_view, 5);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_position);
    bottom->addStretch();
    bottom->addWidget(zoomRow());
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(16, 14, 16, 12);
    all->setSpacing(12);
    all->addWidget(actionRow());
    all->addWidget(m_hint);
    all->addLayout(m_middle, 1);
    all->addLayout(bottom);
    addShortcuts();

    connect(m_view, &PageView::scrolled, this, &PreviewWindow::showPosition);
    connect(m_view, &PageView::zoomChanged, this, &PreviewWindow::showZoom);
    load();
    showZoom();
    windowplace::place(*this, WindowSize);
    windowplace::keepOnDisplay(*this);
    m_contents->setFocus();
}

QPushButton* PreviewWindow::button(const QString& text, const QString& toolTip,
                                   void (PreviewWindow::*action)()) {
    auto* one = new QPushButton(text);
    one->setToolTip(toolTip);
    connect(one, &QPushButton::clicked, this, action);
    return one;
}

QWidget* PreviewWindow::actionRow() {
    auto* row = new QWidget;
    m_actions = new FlowRow(10);
    row->setLayout(m_actions);
    auto* print =
        button(QStringLiteral("&Drucken …"),
               QStringLiteral("Alle oder einzelne Seiten drucken (Strg+P)"), &PreviewWindow::print);
    print->setObjectName(QStringLiteral("haupt"));
    m_edit = button(QStringLiteral("In der &Textverarbeitung öffnen"),
                    QStringLiteral("Das Dokument in Word oder LibreOffice bearbeiten"),
                    &PreviewWindow::edit);
    auto* close = new QPushButton(QStringLiteral("&Schließen"));
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    m_actions->addWidget(print);
    m_actions->addWidget(button(QStringLiteral("Als &PDF speichern …"),
                                QStringLiteral("Eine Kopie an einem anderen Ort ablegen (Strg+S)"),
                                &PreviewWindow::saveAs));
    m_actions->addWidget(m_edit);
    m_actions->addWidget(close);
    return row;
}

QPushButton* PreviewWindow::addAction(const QString& text, const QString& toolTip) {
    auto* one = new QPushButton(text);
    one->setToolTip(toolTip);
    m_actions->insertWidget(m_actions->count() - 1, *one); // in front of the last, which closes
    return one;
}

QWidget* PreviewWindow::zoomRow() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (const Zoomstufe& stufe : Zoomstufen)
        m_zoom->addItem(QString::fromUtf8(stufe.Name));
    m_zoom->setAccessibleName(QStringLiteral("Größe der Ansicht"));
    connect(m_zoom, &QComboBox::activated, this, &PreviewWindow::chooseZoom);
    auto* label = new QLabel(QStringLiteral("&Ansicht:"));
    label->setBuddy(m_zoom);

    const auto zoomButton = [this](const QString& sign, const QString& name, int steps) {
        auto* one = new QPushButton(sign);
        one->setObjectName(QStringLiteral("zoom"));
        one->setToolTip(name);
        one->setAccessibleName(name);
        connect(one, &QPushButton::clicked, m_view, [this, steps] { m_view->zoomBy(steps); });
        return one;
    };
    layout->addWidget(label);
    layout->addWidget(zoomButton(QStringLiteral("−"), QStringLiteral("Kleiner (Strg+-)"), -1));
    layout->addWidget(m_zoom);
    layout->addWidget(zoomButton(QStringLiteral("+"), QStringLiteral("Größer (Strg++)"), 1));
    return row;
}

QWidget* PreviewWindow::contentsColumn() {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    auto* label = new QLabel(QStringLiteral("&Inhalt"));
    label->setBuddy(m_contents);
    m_contents->setAccessibleName(QStringLiteral("Inhalt"));
    m_contents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_contents->setWordWrap(true);
    m_contents->setItemDelegate(new WrappedEntries(m_contents));
    m_contents->setResizeMode(QListView::Adjust);
    // The selection also follows the scrolling; then it must not scroll in its turn.
    connect(m_contents, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_contents->hasFocus())
            goTo(row);
    });
    connect(m_contents, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { goTo(m_contents->row(item)); });
    layout->addWidget(label);
    layout->addWidget(m_contents, 1);
    const int letter = column->fontMetrics().averageCharWidth();
    column->setMinimumWidth(LeastContentsLetters * letter);
    column->setMaximumWidth(ContentsLetters * letter);
    return column;
}

void PreviewWindow::addShortcuts() {
    const auto on = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    on(QKeySequence::Print, [this] { print(); });
    on(QKeySequence::Save, [this] { saveAs(); });
    on(QKeySequence::Close, [this] { close(); });
    on(QKeySequence(Qt::Key_Escape), [this] { close(); });
    for (const auto key : {Qt::Key_Plus, Qt::Key_Equal})
        on(QKeySequence(Qt::CTRL | key), [this] { m_view->zoomBy(1); });
    on(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { m_view->zoomBy(-1); });
    on(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { m_view->setZoom(PageView::Zoom::WholePage); });
}

void PreviewWindow::load() {
    m_anzeige = m_nachschauen();
    m_stand = standVon(m_anzeige.Dateien.Doc);
    auto pages = std::make_unique<PdfPages>(m_anzeige.Pdf);
    m_lines = pages->contents();
    m_contents->clear();
    for (const Inhaltszeile& line : m_lines)
        (new QListWidgetItem(line.title, m_contents))->setToolTip(line.title);
    m_view->setPages(*pages);
    m_pages = std::move(pages);

    const QString title = m_pages->title();
    setWindowTitle(title.isEmpty() ? qString(m_anzeige.Dateien.Name) : title);
    m_hint->setText(qString(m_anzeige.Hinweis));
    m_hint->setVisible(!m_anzeige.Hinweis.empty());
    m_edit->setEnabled(QFileInfo::exists(qPfad(m_anzeige.Dateien.Doc)));
    showPosition();
}

void PreviewWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        reloadIfChanged();
}

// Whoever comes back from the word processor, or asks for the document once more, expects to see,
// and print, what has changed.
void PreviewWindow::reloadIfChanged() {
    if (!m_pages || standVon(m_anzeige.Dateien.Doc) == m_stand)
        return;
    m_stand = standVon(m_anzeige.Dateien.Doc);
    try {
        load();
        if (m_checks != nullptr)
            m_checks->check();
    } catch (const Laufzeitfehler& failure) {
        m_hint->setText(qString(failure.sentence()));
        m_hint->show();
    }
}

void PreviewWindow::goTo(int row) {
    if (row >= 0 && static_cast<size_t>(row) < m_lines.size())
        m_view->showPlace(m_lines[static_cast<size_t>(row)].place);
}

void PreviewWindow::showChecks(const ChecksPanel::Quelle& quelle) {
    auto* panel = m_checks = new ChecksPanel(quelle);
    connect(panel, &ChecksPanel::chosen, this, &PreviewWindow::goToFinding);
    connect(panel, &ChecksPanel::leading, this, &PreviewWindow::leadToText);
    connect(panel, &ChecksPanel::comparing, this, &PreviewWindow::showTwins);
    m_middle->addWidget(panel, 4);
    windowplace::place(*this, SizeWithChecks);
    m_view->setZoom(PageView::Zoom::PageWidth);
}

void PreviewWindow::goToFinding(const Befund& befund) {
    if (befund.Platz != AlleKinder)
        m_view->showPlace({.page = pageOf(befund), .top = 0});
}

// The name stands on all pages of a report. The bookmark is surer, since two children may have the
// same, but a document that came from a word processor may have none.
int PreviewWindow::pageOf(const Befund& befund) const {
    const QString name = qString(befund.Kind);
    const auto platz = static_cast<size_t>(befund.Platz);
    int first = 0;
    if (platz < m_lines.size() && m_lines[platz].title == name)
        first = m_lines[platz].place.page;
    else
        while (first + 1 < m_pages->count() && !m_pages->text(first).contains(name))
            ++first;
    const QString heading = qString(befund.Abschnitt);
    for (int page = first; page < m_pages->count(); ++page) {
        const QString text = m_pages->text(page);
        if (!text.contains(name))
            break;
        if (text.contains(heading))
            return page;
    }
    return first;
}

void PreviewWindow::showPosition() {
    if (!m_pages)
        return;
    m_position->setText(QStringLiteral("Seite %1 von %2   ·   %3")
                            .arg(m_view->currentPage() + 1)
                            .arg(m_pages->count())
                            .arg(qString(m_anzeige.Dateien.Name)));
    if (m_contents->hasFocus())
        return;
    int row = 0;
    for (size_t i = 0; i < m_lines.size() && m_view->isReached(m_lines[i].place); ++i)
        row = static_cast<int>(i);
    m_contents->setCurrentRow(row);
}

void PreviewWindow::showZoom() {
    for (int i = 0; i < static_cast<int>(Zoomstufen.size()); ++i) {
        const Zoomstufe& stufe = Zoomstufen.at(static_cast<size_t>(i));
        if (stufe.Art != m_view->zoom())
            continue;
        if (stufe.Art != PageView::Zoom::Factor || qAbs(stufe.Faktor - m_view->factor()) < 0.005) {
            m_zoom->setCurrentIndex(i);
            return;
        }
    }
    m_zoom->setCurrentIndex(-1);
    m_zoom->setPlaceholderText(QStringLiteral("%1 %").arg(qRound(m_view->factor() * 100)));
}

void PreviewWindow::chooseZoom(int index) {
    const Zoomstufe& stufe = Zoomstufen.at(static_cast<size_t>(index));
    m_view->setZoom(stufe.Art, stufe.Faktor);
}

void PreviewWindow::print() {
    const QString name = QFileInfo(qPfad(m_anzeige.Dateien.Pdf)).completeBaseName();
    if (!seitenDrucken(*m_pages, name, m_view->currentPage(), this))
        QMessageBox::warning(this, QStringLiteral("Drucken"),
                             QStringLiteral("Der Drucker nimmt den Auftrag nicht an. Prüfen Sie, "
                                            "ob er eingeschaltet und ausgewählt ist."));
}

void PreviewWindow::saveAs() {
    const QString ziel = QFileDialog::getSaveFileName(
        this, QStringLiteral("Als PDF speichern"),
        QFileInfo(qPfad(m_anzeige.Dateien.Pdf)).fileName(), QStringLiteral("PDF-Dateien (*.pdf)"));
    if (ziel.isEmpty())
        return;
    const QFileInfo datei(ziel);
    try {
        writeWholeFile(Arbeitsverzeichnis(datei.absolutePath().toStdU16String()),
                       fromQString(datei.fileName()), m_pages->bytes().toStdString());
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, QStringLiteral("Als PDF speichern"),
                             qString(failure.sentence()));
    }
}

void PreviewWindow::edit() {
    if (!inTextverarbeitungOeffnen(m_anzeige.Dateien.Doc))
        QMessageBox::information(this, QStringLiteral("Textverarbeitung"),
                                 QStringLiteral("Auf diesem Rechner wurde keine Textverarbeitung "
                                                "gefunden, die das Dokument öffnen kann."));
}

} // namespace zeugnis::dokumente
