#include "documents/window/report_list_window.h"

#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>

namespace zeugnis::dokumente {
namespace {

constexpr QSize WindowSize(1240, 760);

QWidget* rowOf(QHBoxLayout*& layout) {
    auto* row = new QWidget;
    layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    return row;
}

QPushButton* buttonOf(const QString& text, const QString& toolTip) {
    auto* button = new QPushButton(text);
    button->setToolTip(toolTip);
    return button;
}

QLabel* labelOf(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    return label;
}

} // namespace

ReportListWindow::ReportListWindow(Arbeitsverzeichnis verzeichnis, Listenstand stand, Zeigen zeigen,
                                   QWidget* parent)
    : QWidget(parent),
      m_zeigen(std::move(zeigen)),
      m_model(std::move(verzeichnis), std::move(stand)),
      m_view(new ReportListView(m_model)),
      m_undo(buttonOf(QStringLiteral("&Rückgängig"),
                      QStringLiteral("Die letzte Änderung zurücknehmen (Strg+Z)"))),
      m_redo(buttonOf(QStringLiteral("&Wiederholen"),
                      QStringLiteral("Die zurückgenommene Änderung wiederholen (Strg+Y)"))),
      m_takeOver(buttonOf(QStringLiteral("Frühere &Einträge übernehmen"),
                          QStringLiteral("Die Einträge der letzten Kopie für alle Kinder "
                                         "übernehmen, die noch in der Klasse sind"))),
      m_keepTable(buttonOf(QStringLiteral("Diese &Tabelle speichern"),
                           QStringLiteral("Was Sie hier sehen, gilt und wird gespeichert"))),
      m_takeFile(buttonOf(QStringLiteral("Stand der &Datei nehmen"),
                          QStringLiteral("Die Datei gilt; was Sie hier sehen, kommt in eine "
                                         "Kopie"))),
      m_hint(labelOf(QStringLiteral("hinweis"))),
      m_cell(labelOf(QStringLiteral("leise"))),
      m_refusal(labelOf(QStringLiteral("fehler"))),
      m_saved(labelOf(QStringLiteral("leise"))) {
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(16, 14, 16, 10);
    all->setSpacing(10);
    all->addWidget(actionRow());
    all->addWidget(noticeRow());
    all->addWidget(m_view, 1);
    all->addWidget(statusRow());
    connectModel();
    addShortcuts();
    showNotice(openingNotice());
    showState();
    showCell();
    windowplace::place(*this, WindowSize);
    windowplace::keepOnDisplay(*this);
    m_view->setFocus();
}

QString ReportListWindow::openingNotice() const {
    const Listenstand& stand = m_model.state();
    if (!stand.Hinweis.empty() || !m_model.canTakeOver())
        return qString(stand.Hinweis);
    return QStringLiteral("Die Liste ist noch leer. Frühere Einträge stehen in der Kopie „%1“.")
        .arg(qString(m_model.lastCopy()));
}

QWidget* ReportListWindow::actionRow() {
    QHBoxLayout* layout = nullptr;
    QWidget* row = rowOf(layout);
    auto* print = buttonOf(
        QStringLiteral("&Drucken …"),
        QStringLiteral("Die Liste als Dokument schreiben und zeigen, wie sie gedruckt wird "
                       "(Strg+P)"));
    print->setObjectName(QStringLiteral("haupt"));
    auto* close = buttonOf(QStringLiteral("&Schließen"),
                           QStringLiteral("Alles ist gespeichert, sobald es dasteht (Strg+W)"));
    connect(print, &QPushButton::clicked, this, &ReportListWindow::print);
    connect(m_undo, &QPushButton::clicked, &m_model, &ReportListModel::undo);
    connect(m_redo, &QPushButton::clicked, &m_model, &ReportListModel::redo);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    for (QPushButton* button : {print, m_undo, m_redo})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(close);
    return row;
}

QWidget* ReportListWindow::noticeRow() {
    QHBoxLayout* layout = nullptr;
    QWidget* row = rowOf(layout);
    m_hint->setWordWrap(true);
    connect(m_takeOver, &QPushButton::clicked, this, [this] {
        m_view->setFocus();
        m_model.takeOver();
    });
    connect(m_keepTable, &QPushButton::clicked, this, [this] {
        m_view->setFocus();
        m_model.keepTable();
    });
    connect(m_takeFile, &QPushButton::clicked, this, [this] {
        m_view->setFocus();
        m_model.takeFile();
    });
    layout->addWidget(m_hint, 1);
    for (QPushButton* button : {m_takeOver, m_keepTable, m_takeFile})
        layout->addWidget(button, 0, Qt::AlignVCenter);
    return row;
}

QWidget* ReportListWindow::statusRow() {
    QHBoxLayout* layout = nullptr;
    QWidget* row = rowOf(layout);
    m_refusal->setWordWrap(true);
    m_refusal->hide();
    m_cell->setWordWrap(true);
    layout->addWidget(m_cell, 1);
    layout->addWidget(m_refusal, 1);
    layout->addWidget(m_saved);
    return row;
}

void ReportListWindow::connectModel() {
    m_undo->setEnabled(false);
    m_redo->setEnabled(false);
    connect(&m_model.history(), &QUndoStack::canUndoChanged, m_undo, &QWidget::setEnabled);
    connect(&m_model.history(), &QUndoStack::canRedoChanged, m_redo, &QWidget::setEnabled);
    connect(&m_model, &ReportListModel::changed, this, [this] {
        m_documentIsStale = true;
        showState();
        showCell();
    });
    connect(&m_model, &ReportListModel::notice, this, &ReportListWindow::showNotice);
    connect(
        &m_model, &ReportListModel::refused, this,
        [this](const QModelIndex& /*cell*/, const QString& sentence) { showRefusal(sentence); });
    connect(m_view, &ReportListView::cellEntered, this, &ReportListWindow::showCell);
}

void ReportListWindow::addShortcuts() {
    const auto on = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    on(QKeySequence::Print, [this] { print(); });
    on(QKeySequence(Qt::CTRL | Qt::Key_Z), [this] { m_model.undo(); });
    for (const QKeyCombination keys : {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z})
        on(QKeySequence(keys), [this] { m_model.redo(); });
    on(QKeySequence::Close, [this] { close(); });
}

void ReportListWindow::showState() {
    const Stammdaten& stamm = m_model.state().Stamm;
    setWindowTitle(qString(Text(Listenname(stamm.Jahrgang)) + u" der Klasse " + stamm.Liste.Klasse +
                           u", " + stamm.Halbjahr + u". Halbjahr"));
    m_takeOver->setVisible(m_model.canTakeOver());
    m_keepTable->setVisible(!m_model.isSaved());
    m_takeFile->setVisible(m_model.asks());
    m_saved->setText(m_model.isSaved() ? QStringLiteral("Alles ist gespeichert.")
                                       : QStringLiteral("Noch nicht gespeichert!"));
}

void ReportListWindow::showCell() {
    const QModelIndex cell = m_view->currentIndex();
    m_refusal->hide();
    m_cell->show();
    if (!cell.isValid()) {
        m_cell->setText(QStringLiteral("In der Namensliste steht noch kein Kind."));
        return;
    }
    const Schueler& kind = m_model.state().Stamm.Liste.Kinder[cell.row()];
    m_cell->setText(qString(kind.Vorname + u" " + kind.Nachname) + QStringLiteral("   ·   ") +
                    m_model.headerData(cell.column(), Qt::Horizontal, Qt::ToolTipRole).toString());
}

void ReportListWindow::showRefusal(const QString& sentence) {
    m_cell->hide();
    m_refusal->setText(sentence);
    m_refusal->show();
    QAccessibleEvent alert(m_refusal, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ReportListWindow::showNotice(const QString& sentence) {
    m_hint->setText(sentence);
    m_hint->setVisible(!sentence.isEmpty());
    showState();
}

void ReportListWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_model.refresh();
}

// Whether a word processor has changed the document.
bool ReportListWindow::isEdited() const {
    return IstBearbeitet(Listendateien(m_model.folder(), m_model.state()));
}

bool ReportListWindow::writeDocument() {
    try {
        ListendokumentSchreiben(m_model.folder(), m_model.shown());
        m_documentIsStale = false;
        return true;
    } catch (const Laufzeitfehler& failure) {
        showNotice(qString(failure.sentence()));
        return false;
    }
}

// What is being typed belongs to the list. False if it was refused; then its sentence is shown.
bool ReportListWindow::takeTyped() {
    showCell();
    m_view->setFocus();
    return m_refusal->isHidden();
}

void ReportListWindow::print() {
    if (!takeTyped())
        return;
    if (isEdited() &&
        QMessageBox::question(
            this, QStringLiteral("Drucken"),
            QStringLiteral("Das Dokument der Liste wurde in einer Textverarbeitung geändert. Soll "
                           "es aus dieser Tabelle neu geschrieben werden?")) != QMessageBox::Yes)
        return;
    if (!writeDocument())
        return;
    m_zeigen(Listendateien(m_model.folder(), m_model.state()));
}

// Whether what could not be saved may go, or is saved elsewhere.
bool ReportListWindow::mayClose() {
    QMessageBox box(QMessageBox::Warning, windowTitle(),
                    QStringLiteral("Was in dieser Tabelle steht, ist noch nicht gespeichert."),
                    QMessageBox::NoButton, this);
    box.setInformativeText(QStringLiteral(
        "Sie können die Einträge in eine Datei an einem anderen Ort schreiben, zum Beispiel auf "
        "einen Stick. Legen Sie diese später in den Programmordner; dann bietet die Liste sie zur "
        "Übernahme an."));
    const QPushButton* elsewhere =
        box.addButton(QStringLiteral("Woanders &speichern …"), QMessageBox::AcceptRole);
    const QPushButton* discard =
        box.addButton(QStringLiteral("&Verwerfen"), QMessageBox::DestructiveRole);
    QPushButton* back =
        box.addButton(QStringLiteral("&Zurück zur Tabelle"), QMessageBox::RejectRole);
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    box.exec();
    if (box.clickedButton() == discard)
        return true;
    if (box.clickedButton() != elsewhere)
        return false;
    const QString file = QFileDialog::getSaveFileName(
        this, QStringLiteral("Einträge speichern"),
        qString(KopienameFuer(m_model.state().Stamm, SystemCalendar().today())));
    return !file.isEmpty() && m_model.saveElsewhere(file.toStdU16String());
}

// The document is left as new as the table, since it is what opens where Word is installed.
void ReportListWindow::closeEvent(QCloseEvent* event) {
    if (!takeTyped()) {
        event->ignore();
        return;
    }
    const bool saved = m_model.isSaved() || m_model.save();
    if (!saved && !mayClose()) {
        event->ignore();
        return;
    }
    if (saved && m_documentIsStale && !isEdited())
        writeDocument();
    QWidget::closeEvent(event);
}

} // namespace zeugnis::dokumente
