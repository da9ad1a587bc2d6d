#include "desktop/folders/new_class_window.h"

#include "comfort/first_children.h"
#include "desktop/comfort/class_list_window.h"
#include "desktop/folders/class_fields.h"
#include "desktop/spoken.h"
#include "desktop/theme.h"
#include "folders/class_files.h"
#include "folders/new_class.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zeugnis {

NewClassWindow::NewClassWindow(std::filesystem::path delivered, QWidget* owner)
    : QDialog(owner),
      m_delivered(std::move(delivered)),
      m_pages(new PageArea(this)),
      m_head(new QLabel(this)),
      m_sentence(sentenceLabel({}, this)),
      m_told(sentenceLabel({}, this)),
      m_back(new QPushButton(tr("&Zurück"), this)),
      m_skip(new QPushButton(tr("Ü&berspringen"), this)),
      m_next(new QPushButton(tr("&Weiter"), this)) {
    setWindowTitle(tr("Neue Klasse"));
    m_steps = {school(), schoolClass(), teacher(), place(), children()};
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 18, 22, 16);
    column->setSpacing(10);
    m_head->setFont(theme::font(theme::Size::Heading, QFont::DemiBold));
    column->addWidget(m_head);
    column->addWidget(m_sentence);
    m_pages->fillRoom();
    for (const Step& step : m_steps)
        m_pages->add(*step.page, Qt::AlignTop);
    column->addWidget(m_pages, 1);
    QPalette warning = m_told->palette();
    warning.setColor(QPalette::WindowText, theme::colours().Danger);
    m_told->setPalette(warning);
    column->addWidget(m_told);

    auto* row = new QHBoxLayout;
    auto* cancel = new QPushButton(tr("&Abbrechen"), this);
    row->addWidget(cancel);
    row->addStretch();
    for (QPushButton* button : {m_back, m_skip, m_next})
        row->addWidget(button);
    for (QPushButton* button : {cancel, m_back, m_skip})
        button->setAutoDefault(false);
    m_next->setDefault(true);
    column->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_back, &QPushButton::clicked, this, [this] { showStep(m_step - 1); });
    connect(m_skip, &QPushButton::clicked, this, &NewClassWindow::skip);
    connect(m_next, &QPushButton::clicked, this, &NewClassWindow::forward);
    showStep(0);
    windowplace::keepOnDisplay(*this);
    windowplace::place(*this, {640, 480}, windowplace::Growth::None);
}

std::filesystem::path NewClassWindow::folder() const { return m_folder->folder(); }

QWidget* NewClassWindow::line(QWidget* page, const QString& label, QLineEdit*& field,
                              const QString& hint) {
    auto* form = qobject_cast<QFormLayout*>(page->layout());
    if (form == nullptr)
        form = newForm(page);
    field = new QLineEdit(page);
    field->setPlaceholderText(hint);
    form->addRow(label, field);
    return field;
}

NewClassWindow::Step NewClassWindow::school() {
    auto* page = new QWidget(this);
    line(page, tr("&Name der Schule:"), m_schoolName, tr("zum Beispiel Astrid-Lindgren-Schule"));
    line(page, tr("Zusa&tz:"), m_schoolLine, tr("zum Beispiel Grundschule"));
    line(page, tr("An&schrift:"), m_address);
    line(page, tr("&Ort der Ausgabe:"), m_town);
    return {.title = tr("Ihre Schule"),
            .sentence = tr("So steht es oben auf jedem Zeugnis. Alles lässt sich später in der "
                           "Werkzeugkiste bei den Stammdaten ändern."),
            .page = page,
            .first = m_schoolName,
            .obstacle = {},
            .clear = [this] {
                for (QLineEdit* field : {m_schoolName, m_schoolLine, m_address, m_town})
                    field->clear();
            }};
}

NewClassWindow::Step NewClassWindow::schoolClass() {
    m_class = new ClassFields(this);
    m_class->fill(likelyClass());
    m_class->guessHalf(QDate::currentDate());
    return {.title = tr("Klasse und Halbjahr"),
            .sentence = tr("Die erste Ziffer der Klasse ist der Schuljahrgang. In Klasse 1 gibt es "
                           "nur am Ende des 2. Halbjahrs ein Zeugnis."),
            .page = m_class,
            .first = m_class,
            .obstacle =
                [this] {
                    const Klassenangaben now = whose();
                    return qString(HindernisFuer(now.Klasse, now.Schule));
                },
            .clear = [this] { m_class->fill(likelyClass()); }};
}

NewClassWindow::Step NewClassWindow::teacher() {
    auto* page = new QWidget(this);
    line(page, tr("&Klassenleitung:"), m_teacher, tr("Vor- und Nachname"));
    line(page, tr("Zeugniskonf&erenz am:"), m_conference, tr("TT.MM.JJJJ"));
    line(page, tr("A&usgabe am:"), m_issued, tr("TT.MM.JJJJ"));
    return {.title = tr("Lehrkraft und Termine"),
            .sentence = tr("Was Sie noch nicht wissen, lassen Sie frei."),
            .page = page,
            .first = m_teacher,
            .obstacle = {},
            .clear = [this] {
                for (QLineEdit* field : {m_teacher, m_conference, m_issued})
                    field->clear();
            }};
}

NewClassWindow::Step NewClassWindow::place() {
    auto* page = new QWidget(this);
    m_folder = new FolderField(tr("Ordner der Klasse"), page);
    newForm(page)->addRow(tr("&Ordner:"), m_folder);
    return {.title = tr("Wo die Klasse liegt"),
            .sentence = tr("In diesen neuen Ordner kommt alles, was zu der Klasse gehört. Zum "
                           "Mitnehmen oder Sichern kopieren Sie den ganzen Ordner."),
            .page = page,
            .first = m_folder,
            .obstacle = [this] { return m_folder->obstacle(); },
            .clear = {}};
}

NewClassWindow::Step NewClassWindow::children() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    auto* list = new QHBoxLayout;
    auto* read = new QPushButton(tr("Klassen&liste einlesen …"), page);
    read->setAutoDefault(false);
    m_listTold = sentenceLabel(tr("aus einer Tabelle, oder geben Sie das erste Kind ein:"), page);
    list->addWidget(read);
    list->addWidget(m_listTold, 1);
    column->addLayout(list);
    m_child = new QWidget(page);
    line(m_child, tr("&Nachname:"), m_lastName);
    line(m_child, tr("&Vorname:"), m_firstName);
    m_boy = new QRadioButton(tr("&Junge"), m_child);
    m_girl = new QRadioButton(tr("&Mädchen"), m_child);
    auto* sexes = new QHBoxLayout;
    sexes->setSpacing(18);
    sexes->addWidget(m_boy);
    sexes->addWidget(m_girl);
    sexes->addStretch();
    qobject_cast<QFormLayout*>(m_child->layout())->addRow(QString(), sexes);
    line(m_child, tr("&geboren am:"), m_birth, tr("TT.MM.JJJJ"));
    line(m_child, tr("&in:"), m_birthPlace);
    column->addWidget(m_child);
    connect(read, &QPushButton::clicked, this, &NewClassWindow::readList);
    return {.title = tr("Die Kinder"),
            .sentence =
                tr("Weitere Kinder tragen Sie später in der Werkzeugkiste bei den Stammdaten ein."),
            .page = page,
            .first = m_lastName,
            .obstacle =
                [this] {
                    const std::vector<Listenzeile> child = firstChild();
                    return m_list.empty() && !child.empty() ? qString(child[0].Grund) : QString();
                },
            .clear =
                [this] {
                    m_list.clear();
                    for (QLineEdit* field : {m_lastName, m_firstName, m_birth, m_birthPlace})
                        field->clear();
                }};
}

void NewClassWindow::readList() {
    ClassListWindow window(0, this);
    const bool read = window.exec() == QDialog::Accepted;
    activateWindow();
    if (!read)
        return;
    m_list = window.children();
    m_listTold->setText(tr("%1 Kinder sind eingelesen.").arg(m_list.size()));
    m_child->setEnabled(m_list.empty());
    m_told->clear();
    m_next->setFocus();
}

Klassenangaben NewClassWindow::whose() const {
    const auto text = [](const QLineEdit* field) { return fromQString(field->text().trimmed()); };
    Klassenangaben now;
    m_class->read(now);
    now.Schule.Schulname = text(m_schoolName);
    now.Schule.Schulzusatz = text(m_schoolLine);
    now.Schule.Schulanschrift = text(m_address);
    now.Schule.Ausgabeort = text(m_town);
    now.Schule.Klassenleitung = text(m_teacher);
    now.Schule.Konferenzdatum = text(m_conference);
    now.Schule.Ausgabedatum = text(m_issued);
    return now;
}

std::vector<Listenzeile> NewClassWindow::firstChild() const {
    const auto text = [](const QLineEdit* field) { return Listenfeld(fromQString(field->text())); };
    Schueler child;
    child.Nachname = text(m_lastName);
    child.Vorname = text(m_firstName);
    child.Geburtsdatum = text(m_birth);
    child.Geburtsort = text(m_birthPlace);
    if ((child.Nachname + child.Vorname + child.Geburtsdatum + child.Geburtsort).empty())
        return {};
    if (m_boy->isChecked() || m_girl->isChecked())
        child.Geschlecht = m_girl->isChecked() ? u"w" : u"m";
    std::vector<Listenzeile> lines{{.Nummer = 1, .Kind = child, .Grund = {}}};
    GruendeBilden(lines, 0);
    return lines;
}

void NewClassWindow::showStep(size_t step) {
    m_step = step;
    const Step& now = m_steps.at(step);
    if (now.first == m_folder) {
        Klassenangaben named = whose();
        named.Schule = SchuldatenFuer(named.Klasse, named.Schule);
        m_folder->suggest(freeClassFolder(OrdnernameFuer(named)));
    }
    for (const Step& one : m_steps)
        one.page->setVisible(&one == &now);
    m_head->setText(tr("Schritt %1 von %2: %3").arg(step + 1).arg(m_steps.size()).arg(now.title));
    m_sentence->setText(now.sentence);
    m_told->clear();
    m_back->setEnabled(step > 0);
    m_next->setText(step + 1 < m_steps.size() ? tr("&Weiter") : tr("Klasse anl&egen"));
    m_next->setMinimumWidth(m_next->sizeHint().width());
    // A text that stands there is replaced by what is typed, as behind Tab; a folder is changed.
    now.first->setFocus(now.first == m_folder ? Qt::OtherFocusReason : Qt::TabFocusReason);
    spoken::announce(*m_head, m_head->text() + QStringLiteral(". ") + now.sentence);
}

void NewClassWindow::forward() {
    const Step& now = m_steps.at(m_step);
    if (const QString obstacle = now.obstacle ? now.obstacle() : QString(); !obstacle.isEmpty())
        return tell(obstacle);
    if (m_step + 1 < m_steps.size())
        showStep(m_step + 1);
    else
        make();
}

void NewClassWindow::skip() {
    if (m_steps.at(m_step).clear)
        m_steps.at(m_step).clear();
    forward();
}

void NewClassWindow::make() {
    const std::vector<Schueler> all = m_list.empty() ? KinderAus(firstChild()) : m_list;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const Text obstacle = KlasseAnlegen(m_delivered, folder(), whose());
    const Text noChildren =
        obstacle.empty() && !all.empty() ? KinderEintragen(folder(), all) : Text();
    QApplication::restoreOverrideCursor();
    if (!obstacle.empty())
        return tell(qString(obstacle));
    if (!noChildren.empty())
        tell(tr("Die Klasse ist angelegt, aber die Kinder fehlen noch: %1")
                 .arg(qString(noChildren)));
    accept();
}

void NewClassWindow::tell(const QString& sentence) {
    m_told->setText(sentence);
    spoken::announce(*m_told, sentence);
}

} // namespace zeugnis
