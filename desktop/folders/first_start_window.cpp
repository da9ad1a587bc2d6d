#include "desktop/folders/first_start_window.h"

#include "desktop/dialog_box.h"
#include "desktop/folders/about_window.h"
#include "desktop/folders/class_fields.h"
#include "desktop/folders/new_class_window.h"
#include "desktop/folders/recent_classes.h"
#include "desktop/folders/take_along_window.h"
#include "desktop/rescue/choice_box.h"
#include "desktop/theme.h"
#include "desktop/tinted_button.h"
#include "folders/class_folder.h"
#include "folders/new_class.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

constexpr int FolderRole = Qt::UserRole;

QString sentenceOf(const Klassenangaben& whose) {
    const QString children =
        whose.Kinder == 1 ? QObject::tr("1 Kind") : QObject::tr("%1 Kinder").arg(whose.Kinder);
    return QObject::tr("Klasse %1  –  %2, %3. Halbjahr  –  %4")
        .arg(qString(whose.Klasse), qString(whose.Schule.Schuljahr), qString(whose.Schule.Halbjahr),
             children);
}

} // namespace

FirstStartWindow::FirstStartWindow(std::optional<fs::path> delivered, const QString& note)
    : m_delivered(std::move(delivered)), m_told(new QLabel(note, this)) {
    setWindowTitle(tr("Klasse öffnen"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 18, 22, 16);
    column->setSpacing(10);
    auto* head = new QLabel(tr("Welche Klasse möchten Sie öffnen?"), this);
    head->setFont(theme::font(theme::Size::Heading, QFont::DemiBold));
    column->addWidget(head);
    column->addWidget(recent(), 1);
    column->addLayout(otherWays());
    m_told->setWordWrap(true);
    m_told->setTextFormat(Qt::PlainText);
    m_told->setVisible(!note.isEmpty());
    column->addWidget(m_told);
    column->addLayout(lastRow());
    showRecent();
    windowplace::keepOnDisplay(*this);
    windowplace::place(*this, {760, m_recent->count() > 0 ? 540 : 420}, windowplace::Growth::None);
}

QWidget* FirstStartWindow::recent() {
    auto* area = new QWidget(this);
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    m_recent = new QListWidget(area);
    m_recent->setAccessibleName(tr("Zuletzt geöffnete Klassen"));
    m_recent->setTextElideMode(Qt::ElideMiddle);
    m_recent->setSpacing(2);
    column->addWidget(m_recent, 1);
    m_welcome = sentenceLabel(
        tr("Willkommen! Mit „Neue Klasse“ kommen Sie in fünf Schritten von Ihrer Schule zum ersten "
           "Kind; jeden davon können Sie überspringen und später nachholen.\n\nMöchten Sie das "
           "Programm erst kennenlernen, sehen Sie sich die Beispielklasse an: Die Kinder sind "
           "erfunden, dort können Sie alles ausprobieren.\n\nLiegt Ihre Klasse auf einem Stick, "
           "nehmen Sie sie auf diesen Rechner mit."),
        area);
    column->addWidget(m_welcome, 0, Qt::AlignTop);
    auto* row = new QHBoxLayout;
    m_open = new QPushButton(tr("Klasse ö&ffnen"), area);
    m_open->setDefault(true);
    auto* other = new QPushButton(tr("Anderen &Ordner wählen …"), area);
    row->addWidget(m_open);
    row->addWidget(other);
    row->addStretch();
    column->addLayout(row);
    connect(m_open, &QPushButton::clicked, this, &FirstStartWindow::openChosen);
    connect(m_recent, &QListWidget::itemActivated, this, &FirstStartWindow::openChosen);
    connect(m_recent, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem* item) { m_open->setEnabled(item != nullptr); });
    connect(other, &QPushButton::clicked, this, &FirstStartWindow::chooseFolder);
    return area;
}

QBoxLayout* FirstStartWindow::otherWays() {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    const auto way = [&](const QString& text, const QString& tip, auto action) {
        auto* button = new TintedButton(TintedButton::Role::Main, this);
        button->setText(text);
        button->setToolTip(tip);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        row->addWidget(button, 1);
        return button;
    };
    m_new = way(tr("&Neue Klasse …"), tr("In fünf Schritten von der Schule zum ersten Kind"),
                &FirstStartWindow::newClass);
    auto* sample =
        way(tr("&Beispielklasse ansehen"), tr("Zum Ausprobieren, mit erfundenen Kindern"),
            &FirstStartWindow::openSample);
    way(tr("Klasse von einem &Stick mitnehmen\u00a0…"),
        tr("Kopiert den ganzen Ordner und vergleicht jede Datei"), &FirstStartWindow::takeAlong);
    m_new->setEnabled(m_delivered.has_value());
    sample->setEnabled(m_delivered.has_value());
    return row;
}

QBoxLayout* FirstStartWindow::lastRow() {
    auto* row = new QHBoxLayout;
    auto* about = new QPushButton(tr("Über das &Programm …"), this);
    about->setAutoDefault(false);
    connect(about, &QPushButton::clicked, this, [this] {
        AboutWindow({}, this).exec();
        activateWindow();
    });
    row->addWidget(about);
    row->addStretch();
    auto* end = new QPushButton(tr("B&eenden"), this);
    end->setAutoDefault(false);
    connect(end, &QPushButton::clicked, this, &QDialog::reject);
    row->addWidget(end);
    return row;
}

void FirstStartWindow::showRecent() {
    m_recent->clear();
    for (const fs::path& folder : recentclasses::list()) {
        const std::optional<Klassenangaben> whose = KlassenangabenLesen(folder);
        auto* item = new QListWidgetItem(
            (whose ? sentenceOf(*whose) : tr("Zurzeit nicht erreichbar")) + u'\n' + qPath(folder),
            m_recent);
        item->setData(FolderRole, qPath(folder));
        item->setToolTip(qPath(folder));
        if (!whose)
            item->setForeground(theme::colours().InkFaint);
    }
    const bool any = m_recent->count() > 0;
    m_recent->setVisible(any);
    m_open->setVisible(any);
    m_welcome->setVisible(!any);
    if (!any) {
        m_new->setFocus();
        return;
    }
    m_recent->setCurrentRow(0);
    m_recent->setFocus();
}

void FirstStartWindow::openChosen() {
    const QListWidgetItem* item = m_recent->currentItem();
    if (item == nullptr)
        return;
    const fs::path folder = pathFromText(fromQString(item->data(FolderRole).toString()));
    if (IstKlassenordner(folder))
        return openClass(folder);
    if (askChoice(
            this,
            tr("Diese Klasse ist zurzeit nicht erreichbar:\n\n%1\n\nLiegt sie auf einem Stick "
               "oder einem Netzlaufwerk, verbinden Sie es und versuchen Sie es noch einmal. "
               "Haben Sie den Ordner verschoben, öffnen Sie ihn mit „Anderen Ordner wählen“.")
                .arg(qPath(folder)),
            {tr("Aus der &Liste nehmen"), tr("&Zurück")}, 1) != 0)
        return;
    recentclasses::forget(folder);
    showRecent();
}

void FirstStartWindow::chooseFolder() {
    const QString folder = askForFolder(*this, tr("Ordner einer Klasse"), classesFolder());
    if (!folder.isEmpty())
        openClass(pathFromText(fromQString(folder)));
}

void FirstStartWindow::newClass() {
    NewClassWindow window(*m_delivered, this);
    const bool done = window.exec() == QDialog::Accepted;
    activateWindow();
    if (done)
        openClass(window.folder());
}

void FirstStartWindow::openSample() {
    const fs::path folder = classesFolder() / "Beispielklasse";
    if (!IstKlassenordner(folder)) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const Text obstacle = BeispielklasseAnlegen(*m_delivered, folder);
        QApplication::restoreOverrideCursor();
        if (!obstacle.empty())
            return tell(qString(obstacle));
    }
    openClass(folder);
}

void FirstStartWindow::takeAlong() {
    TakeAlongWindow window(this);
    const bool done = window.exec() == QDialog::Accepted;
    activateWindow();
    if (done)
        openClass(window.folder());
}

// A folder above the files of a class, and a file in it, is meant as the class.
void FirstStartWindow::openClass(const fs::path& folder) {
    const std::optional<fs::path> found = KlassenordnerZu(folder);
    if (!found)
        return tell(tr("In „%1“ liegt keine Klasse: Der Ordner „Daten“ mit der Klassenliste fehlt. "
                       "Wählen Sie den Ordner, in dem „Daten“ liegt.")
                        .arg(qPath(folder)));
    TakenClass taken = takeClass(*found, this);
    if (taken.lock == nullptr && !taken.elsewhere)
        return;
    recentclasses::remember(*found);
    m_taken = std::move(taken);
    accept();
}

void FirstStartWindow::tell(const QString& sentence) {
    DialogBox box(windowTitle(), sentence, this);
    box.setSign(Symbol::Ausrufezeichen);
    box.setButtons(Tasten::Ok, Antwort::Ok);
    box.ask();
}

} // namespace zeugnis
