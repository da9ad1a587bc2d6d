#include "desktop/comfort/report_pane.h"

#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "desktop/comfort/class_rail.h"
#include "desktop/comfort/report_view.h"
#include "desktop/screen_window.h"
#include "desktop/spoken.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "documents/sheet/report_sheet.h"
#include "platform/failure.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace zeugnis {
namespace {

constexpr int LeastWidth = 380;
constexpr int MostWidth = 760;
constexpr QSize OwnWindow(560, 760);
constexpr double MostOfDisplay = 0.45; // of its width
// What the rest of the window cannot do without, with the usual font.
constexpr int LeastInput = 1010;
constexpr int LeastInputWithRail = 1200;
constexpr int TakesAll = 1000; // of the row, up to its greatest width

} // namespace

ReportPane::ReportPane(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry,
                       QHBoxLayout& row, ClassRail& rail)
    : QWidget(&window),
      m_window(window),
      m_host(host),
      m_entry(entry),
      m_row(row),
      m_rail(rail),
      m_fit(new QLabel(this)),
      m_view(new ReportView(this)),
      m_opener(new QPushButton(tr("Ganzes Zeugnis (F9)"), &window)),
      m_ownKeys(new QShortcut(this)) {
    setObjectName(QStringLiteral("reportPane"));
    setWindowTitle(tr("Ganzes Zeugnis"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(head());
    column->addWidget(m_view, 1);
    // So that it does not keep the window from getting so narrow that it folds.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    m_row.addWidget(this, TakesAll);
    hide();

    m_opener->setObjectName(QStringLiteral("link"));
    m_opener->setFont(theme::font(theme::Size::Small));
    m_opener->setCursor(Qt::PointingHandCursor);
    m_opener->setToolTip(tr("Zeigt, wie das Zeugnis dieses Kindes gedruckt aussieht"));
    connect(m_opener, &QPushButton::clicked, this, &ReportPane::toggle);
    connect(new QShortcut(Qt::Key_F9, &window), &QShortcut::activated, this, &ReportPane::toggle);
    m_ownKeys->setKeys({Qt::Key_F9, Qt::Key_Escape});
    m_ownKeys->setEnabled(false);
    connect(m_ownKeys, &QShortcut::activated, this, &ReportPane::shut);
    connect(m_view, &ReportView::pageChosen, this, &ReportPane::lookUp);
    m_timer.setSingleShot(true);
    m_timer.setInterval(Pause);
    connect(&m_timer, &QTimer::timeout, this, &ReportPane::layOut);
    window.installEventFilter(this);
    installEventFilter(this);
    window.follow([this] { follow(); });
}

ReportPane::~ReportPane() = default;

QWidget* ReportPane::head() {
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(8, 4, 0, 0);
    auto* title = new QLabel(windowTitle(), area);
    title->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    row->addWidget(title);
    row->addSpacing(8);
    m_fit->setObjectName(QStringLiteral("reportFit"));
    m_fit->setFont(theme::font(theme::Size::Small));
    row->addWidget(m_fit, 1);
    auto* close = new QPushButton(tr("Zuklappen"), area);
    close->setObjectName(QStringLiteral("link"));
    close->setFont(theme::font(theme::Size::Small));
    close->setCursor(Qt::PointingHandCursor);
    close->setToolTip(QStringLiteral("F9"));
    connect(close, &QPushButton::clicked, this, &ReportPane::shut);
    row->addWidget(close);
    return area;
}

void ReportPane::toggle() {
    if (isVisible())
        shut();
    else
        open();
}

void ReportPane::open() {
    m_host.reportBeside = true;
    if (!dock())
        floatFree();
}

void ReportPane::shut() {
    m_host.reportBeside = false;
    fold();
}

bool ReportPane::dock() {
    const double font = fontMetrics().height() / 20.0;
    const int least = qRound(LeastWidth * font);
    const int width = m_window.width() - m_row.spacing();
    const int besideRail = width - qRound(LeastInputWithRail * font);
    const int alone = width - qRound(LeastInput * font);
    if (alone < least)
        return false;
    if (isWindow()) {
        setParent(&m_window, Qt::Widget);
        m_row.addWidget(this, TakesAll);
        m_window.activateWindow();
    }
    m_ownKeys->setEnabled(false);
    m_rail.giveWay(besideRail < least);
    setMaximumWidth(std::min(qRound(MostWidth * font), besideRail < least ? alone : besideRail));
    show();
    return true;
}

void ReportPane::fold() {
    hide();
    m_rail.giveWay(false);
    if (m_window.isVisible() && isWindow())
        m_window.activateWindow();
}

void ReportPane::floatFree() {
    if (!isWindow()) {
        m_row.removeWidget(this);
        setParent(&m_window, Qt::Window);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    m_ownKeys->setEnabled(true);
    // At the right edge of the display, where it covers least.
    const QRect room = windowplace::room(m_window);
    const QSize most(qRound(room.width() * MostOfDisplay), room.height());
    QRect place(QPoint(), windowplace::atFont(OwnWindow).boundedTo(most));
    place.moveTopRight(room.topRight());
    setGeometry(place);
    show();
}

void ReportPane::closeEvent(QCloseEvent* event) {
    event->ignore();
    shut();
}

void ReportPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    readAnew();
}

bool ReportPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_window && event->type() == QEvent::Resize && m_host.reportBeside &&
        !(dock() || isWindow()))
        fold();
    // Another program may have written meanwhile.
    if (event->type() == QEvent::WindowActivate)
        readAnew();
    return QWidget::eventFilter(watched, event);
}

void ReportPane::readAnew() {
    m_isStale = true;
    follow();
}

// Comes after each action. What is typed must not be kept from showing by what is typed next.
void ReportPane::follow() {
    if (isVisible() && !m_timer.isActive())
        m_timer.start();
}

void ReportPane::layOut() {
    if (!isVisible())
        return;
    // In the middle of an action the working directory may be elsewhere.
    if (!m_host.isIdle())
        return m_timer.start();
    const int child = m_entry.Kinder->listIndex();
    if (child < 0) {
        m_isStale = true;
        m_fit->clear();
        return m_view->show(nullptr, tr("Wählen Sie ein Kind. Dann steht hier sein Zeugnis."));
    }
    Shown now{child, m_entry.Seite(), m_entry.TexteVon(child)};
    if (now == m_shown && !m_isStale)
        return;
    const bool onlyPage = now.child == m_shown.child && now.texts == m_shown.texts && !m_isStale;
    m_shown = std::move(now);
    try {
        if (!onlyPage)
            layOutTexts();
        m_view->setOpenPage(m_shown.page);
    } catch (const std::exception& failure) {
        m_view->show(nullptr, tr("Das Zeugnis lässt sich gerade nicht zeigen.") +
                                  QStringLiteral("\n\n") + qString(sentenceOf(failure)));
        m_fit->clear();
        m_sheet.reset();
        m_isStale = true;
    }
}

void ReportPane::layOutTexts() {
    const Schueler& child = m_entry.Liste->Kinder[m_shown.child];
    std::unique_ptr<dokumente::Zeugnisblatt> read;
    if (m_isStale) {
        dokumente::OffeneTexte open{.Anstelle = m_entry.Ablage, .Texte = {}};
        for (const Schuelertabelle<Text>* texts : m_entry.Texte)
            open.Texte.push_back(*texts);
        read = std::make_unique<dokumente::Zeugnisblatt>(m_host.program().directory(), open);
    }
    dokumente::Zeugnisblatt& sheet = read ? *read : *m_sheet;
    sheet.setzen(child, m_shown.child, m_shown.texts);
    m_view->show(&sheet, {});
    if (read)
        m_sheet = std::move(read);
    m_isStale = false;
    tellFit();
}

void ReportPane::tellFit() {
    const QString sentence = qString(m_sheet->Passung());
    const bool tooLong = m_sheet->ZuLang();
    QPalette palette;
    palette.setColor(QPalette::WindowText,
                     tooLong ? theme::colours().Danger : theme::colours().InkFaint);
    m_fit->setPalette(palette);
    m_fit->setText(sentence);
    if (tooLong)
        spoken::describe(*m_fit, sentence);
}

void ReportPane::lookUp(int page) {
    Button& button = *m_entry.Seiten.at(static_cast<size_t>(page));
    if (m_host.mayAct(button))
        m_host.run([&] { user::click(button); });
    m_window.activateWindow();
}

} // namespace zeugnis
