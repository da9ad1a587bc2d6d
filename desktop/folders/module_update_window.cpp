#include "desktop/folders/module_update_window.h"

#include "desktop/dialog_box.h"
#include "desktop/folders/class_fields.h"
#include "desktop/theme.h"
#include "folders/folder_copy.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

enum Column { Place, Before, Own, Now, Columns };

QString placeOf(const Modultext& text) {
    const QString file = qString(text.Datei);
    return file.left(file.lastIndexOf(u'.')) + u'\n' + qString(text.Stelle);
}

} // namespace

ModuleUpdateWindow::ModuleUpdateWindow(Arbeitsverzeichnis school, Arbeitsverzeichnis delivered,
                                       std::function<Text()> obstacle, QWidget* owner)
    : QDialog(owner),
      m_class(std::move(school)),
      m_delivered(std::move(delivered)),
      m_obstacle(std::move(obstacle)),
      m_texts(NeueModultexte(m_class, m_delivered)),
      m_table(new QTableWidget(this)),
      m_told(sentenceLabel({}, this)),
      m_take(new QPushButton(this)) {
    setWindowTitle(tr("Neue Bausteine"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 16, 18, 14);
    column->setSpacing(10);
    column->addWidget(sentenceLabel(
        tr("Diese Bausteine sind mit der neuen Version anders als bisher. Setzen Sie ein Häkchen, "
           "wo der neue Text gelten soll; wo keines steht, bleibt Ihr eigener. Vorgeschlagen ist "
           "der neue überall dort, wo Sie nichts geändert haben."),
        this));
    column->addWidget(m_table, 1);
    column->addWidget(m_told);
    auto* row = new QHBoxLayout;
    const auto button = [&](QPushButton* made, auto action) {
        made->setAutoDefault(false);
        row->addWidget(made);
        connect(made, &QPushButton::clicked, this, action);
    };
    button(new QPushButton(tr("&Alle"), this), [this] { tickAll(true); });
    button(new QPushButton(tr("&Keinen"), this), [this] { tickAll(false); });
    row->addStretch();
    button(new QPushButton(tr("&Später"), this), [this] { reject(); });
    button(m_take, [this] { take(); });
    m_take->setDefault(true);
    column->addLayout(row);
    connect(m_table, &QTableWidget::itemChanged, this, &ModuleUpdateWindow::count);
    showTexts();
    windowplace::keepOnDisplay(*this);
    windowplace::place(*this, {960, 600});
}

void ModuleUpdateWindow::showTexts() {
    const QSignalBlocker quiet(m_table);
    m_table->setAccessibleName(tr("Bausteine: bisher geliefert, eigener, jetzt geliefert"));
    m_table->setColumnCount(Columns);
    m_table->setHorizontalHeaderLabels(
        {tr("Baustein"), tr("Bisher geliefert"), tr("Eigener"), tr("Jetzt geliefert")});
    m_table->setRowCount(static_cast<int>(m_texts.size()));
    m_table->verticalHeader()->hide();
    m_table->setWordWrap(true);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    for (int r = 0; r < m_table->rowCount(); ++r) {
        const Modultext& text = m_texts.at(static_cast<size_t>(r));
        const auto cell = [&](int column, const QString& shown) {
            auto* item = new QTableWidgetItem(shown);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            item->setToolTip(shown);
            m_table->setItem(r, column, item);
            return item;
        };
        auto* place = cell(Place, placeOf(text));
        place->setFlags(place->flags() | Qt::ItemIsUserCheckable);
        place->setCheckState(text.Unveraendert() ? Qt::Checked : Qt::Unchecked);
        cell(Before, qString(text.Bisher));
        auto* own = cell(Own, text.Unveraendert() ? tr("wie bisher") : qString(text.Eigener));
        if (text.Unveraendert())
            own->setForeground(theme::colours().InkFaint);
        cell(Now, qString(text.Neu));
    }
    QHeaderView* header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(Place, QHeaderView::ResizeToContents);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    if (!m_texts.empty())
        m_table->setCurrentCell(0, Place);
    m_table->setFocus();
    count();
}

std::vector<Modultext> ModuleUpdateWindow::chosen() const {
    std::vector<Modultext> ticked;
    for (int r = 0; r < m_table->rowCount(); ++r)
        if (m_table->item(r, Place)->checkState() == Qt::Checked)
            ticked.push_back(m_texts.at(static_cast<size_t>(r)));
    return ticked;
}

void ModuleUpdateWindow::tickAll(bool ticked) {
    for (int r = 0; r < m_table->rowCount(); ++r)
        m_table->item(r, Place)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

void ModuleUpdateWindow::count() {
    const size_t ticked = chosen().size();
    m_told->setText(tr("%1 von %2 Texten werden neu. Die anderen bleiben, wie sie sind, und werden "
                       "nicht wieder angeboten. Unter „Frühere Stände“ holen Sie alles zurück.")
                        .arg(ticked)
                        .arg(m_texts.size()));
    m_take->setText(ticked == 0 ? tr("Eigene &behalten") : tr("Ü&bernehmen"));
    m_take->setMinimumWidth(m_take->sizeHint().width());
    m_take->setEnabled(!m_texts.empty());
}

void ModuleUpdateWindow::take() {
    Text obstacle = m_obstacle();
    if (obstacle.empty()) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        obstacle = obstacleIn([this] { ModultexteUebernehmen(m_class, m_delivered, chosen()); });
        QApplication::restoreOverrideCursor();
    }
    if (obstacle.empty())
        return accept();
    DialogBox box(windowTitle(), qString(obstacle), this);
    box.setSign(Symbol::Ausrufezeichen);
    box.setButtons(Tasten::Ok, Antwort::Ok);
    box.ask();
}

} // namespace zeugnis
