#include "desktop/folders/take_along_window.h"

#include "desktop/folders/class_fields.h"
#include "desktop/spoken.h"
#include "folders/class_folder.h"
#include "folders/take_along.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QApplication>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zeugnis {

TakeAlongWindow::TakeAlongWindow(QWidget* owner)
    : QDialog(owner),
      m_from(new QLineEdit(this)),
      m_to(new FolderField(tr("Neuer Ordner auf diesem Rechner"), this)),
      m_told(sentenceLabel({}, this)),
      m_copy(new QPushButton(tr("&Kopieren und öffnen"), this)) {
    setWindowTitle(tr("Klasse mitnehmen"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 18, 22, 16);
    column->setSpacing(12);
    column->addWidget(sentenceLabel(
        tr("Die Klasse wird mit allen Texten, Bildern und früheren Ständen kopiert, und jede Datei "
           "wird danach verglichen. Auf dem Stick bleibt alles, wie es ist. Arbeiten Sie dann nur "
           "noch in einem der beiden Ordner weiter."),
        this));
    auto* form = newForm(nullptr);
    auto* source = new QHBoxLayout;
    auto* choose = new QPushButton(tr("W&ählen …"), this);
    choose->setAutoDefault(false);
    m_from->setReadOnly(true);
    keepWhole(*m_from);
    m_from->setPlaceholderText(tr("der Ordner auf dem Stick, in dem „Daten“ liegt"));
    m_from->setAccessibleName(tr("Ordner auf dem Stick"));
    source->addWidget(m_from, 1);
    source->addWidget(choose);
    form->addRow(tr("Von:"), source);
    form->addRow(tr("&Nach:"), m_to);
    column->addLayout(form);
    column->addWidget(m_told);
    column->addStretch();
    auto* row = new QHBoxLayout;
    auto* cancel = new QPushButton(tr("A&bbrechen"), this);
    cancel->setAutoDefault(false);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(m_copy);
    column->addLayout(row);
    m_copy->setDefault(true);
    m_copy->setEnabled(false);
    connect(choose, &QPushButton::clicked, this, &TakeAlongWindow::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_copy, &QPushButton::clicked, this, &TakeAlongWindow::copy);
    choose->setFocus();
    windowplace::keepOnDisplay(*this);
    windowplace::place(*this, {640, 340}, windowplace::Growth::None);
}

std::filesystem::path TakeAlongWindow::folder() const { return m_to->folder(); }

void TakeAlongWindow::choose() {
    const QString chosen = askForFolder(*this, tr("Ordner der Klasse auf dem Stick"));
    if (!chosen.isEmpty())
        setSource(pathFromText(fromQString(chosen)));
}

void TakeAlongWindow::setSource(const std::filesystem::path& source) {
    const std::filesystem::path found = KlassenordnerZu(source).value_or(source);
    const std::optional<Klassenangaben> whose = KlassenangabenLesen(found);
    m_from->setText(QDir::toNativeSeparators(qPath(found)));
    m_copy->setEnabled(whose.has_value());
    m_told->setText(whose ? QString()
                          : tr("In diesem Ordner liegt keine Klasse: „Daten“ mit der Klassenliste "
                               "fehlt."));
    spoken::announce(*m_told, m_told->text());
    if (!whose)
        return;
    m_to->suggest(freeClassFolder(found.has_filename() && found != found.root_path()
                                      ? textFromPath(found.filename())
                                      : OrdnernameFuer(*whose)));
    m_copy->setFocus();
}

void TakeAlongWindow::copy() {
    QString obstacle = m_to->obstacle();
    if (obstacle.isEmpty()) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        obstacle = qString(KlasseMitnehmen(
            pathFromText(fromQString(QDir::fromNativeSeparators(m_from->text()))), folder()));
        QApplication::restoreOverrideCursor();
    }
    if (obstacle.isEmpty())
        return accept();
    m_told->setText(obstacle);
    spoken::announce(*m_told, obstacle);
}

} // namespace zeugnis
