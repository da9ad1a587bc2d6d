#include "desktop/folders/moving_up_window.h"

#include "desktop/folders/class_fields.h"
#include "desktop/spoken.h"
#include "desktop/theme.h"
#include "folders/class_files.h"
#include "folders/moving_up.h"
#include "rescue/last_term.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zeugnis {

MovingUpWindow::MovingUpWindow(std::filesystem::path folder, std::filesystem::path delivered,
                               QWidget* owner)
    : QDialog(owner),
      m_old(std::move(folder)),
      m_delivered(std::move(delivered)),
      m_whose(NaechsterAbschnitt(KlassenangabenLesen(m_old).value_or(Klassenangaben()))),
      m_class(new ClassFields(this)),
      m_folder(new FolderField(tr("Neuer Ordner der Klasse"), this)),
      m_told(sentenceLabel({}, this)) {
    setWindowTitle(tr("Klasse ins neue Schuljahr übernehmen"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 18, 22, 16);
    column->setSpacing(12);
    column->addWidget(sentenceLabel(
        tr("Aus dieser Klasse entsteht ein neuer Ordner für den nächsten Abschnitt. Mit kommen die "
           "Namen, die Bilder, die Arbeitsgemeinschaften und die Bausteine, die Sie geändert "
           "haben; "
           "alle anderen Bausteine sind die jetzt mitgelieferten. Texte, Auswahl, Noten und "
           "Termine beginnen leer. Der bisherige Ordner bleibt, wie er ist."),
        this));
    auto* form = newForm(nullptr);
    form->addRow(m_class);
    form->addRow(tr("&Ordner:"), m_folder);
    column->addLayout(form);
    QPalette warning = m_told->palette();
    warning.setColor(QPalette::WindowText, theme::colours().Danger);
    m_told->setPalette(warning);
    column->addWidget(m_told);
    column->addStretch();
    auto* row = new QHBoxLayout;
    auto* cancel = new QPushButton(tr("&Abbrechen"), this);
    auto* make = new QPushButton(tr("Klasse ü&bernehmen"), this);
    cancel->setAutoDefault(false);
    make->setDefault(true);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(make);
    column->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(make, &QPushButton::clicked, this, &MovingUpWindow::make);
    m_class->fill(m_whose);
    connect(m_class, &ClassFields::changed, this, &MovingUpWindow::suggest);
    suggest();
    m_class->setFocus();
    windowplace::keepOnDisplay(*this);
    windowplace::place(*this, {660, 430}, windowplace::Growth::None);
}

std::filesystem::path MovingUpWindow::newFolder() const { return m_folder->folder(); }

Klassenangaben MovingUpWindow::next() const {
    Klassenangaben now = m_whose;
    m_class->read(now);
    return now;
}

// Beside the old one, where the teacher has put it.
void MovingUpWindow::suggest() {
    Klassenangaben named = next();
    if (HindernisFuer(named.Klasse, named.Schule).empty()) {
        named.Schule = SchuldatenFuer(named.Klasse, named.Schule);
        m_folder->suggest(freeClassFolder(OrdnernameFuer(named), m_old.parent_path()));
    }
}

void MovingUpWindow::make() {
    QString obstacle = m_folder->obstacle();
    if (obstacle.isEmpty()) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        obstacle = qString(KlasseUebernehmen(m_old, m_delivered, newFolder(), next()));
        QApplication::restoreOverrideCursor();
    }
    if (obstacle.isEmpty()) {
        // For the texts of the half-year before beside the input; without them nothing is lost.
        rescue::keepState(m_old, newFolder(), rescue::termOf(m_old));
        return accept();
    }
    m_told->setText(obstacle);
    spoken::announce(*m_told, obstacle);
}

} // namespace zeugnis
