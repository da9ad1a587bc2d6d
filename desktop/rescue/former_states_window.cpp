#include "desktop/rescue/former_states_window.h"

#include "desktop/rescue/compare_pane.h"
#include "desktop/rescue/wrapped_tree.h"
#include "platform/failure.h"
#include "toolkit/qt_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr int IndexRole = Qt::UserRole;

std::optional<size_t> indexOf(const QTreeWidgetItem* item) {
    if (item == nullptr || !item->data(0, IndexRole).isValid())
        return std::nullopt;
    return static_cast<size_t>(item->data(0, IndexRole).toInt());
}

} // namespace

FormerStatesWindow::FormerStatesWindow(rescue::FormerStates& states, std::function<void()> help,
                                       QWidget* owner)
    : QDialog(owner), m_states(states), m_help(std::move(help)) {
    setWindowTitle(tr("Frühere Stände"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 16, 18, 14);
    column->setSpacing(10);
    auto* head = new QLabel(
        tr("Vor jedem Speichern hebt das Programm auf, was vorher da war. Wählen Sie links, vor "
           "welcher Aktion alles noch gut war. Auch das Zurückholen selbst können Sie hier wieder "
           "zurücknehmen."),
        this);
    head->setWordWrap(true);
    column->addWidget(head);
    column->addWidget(lists(), 1);
    m_told = new QLabel(this);
    m_told->setWordWrap(true);
    column->addWidget(m_told);
    column->addLayout(ways());
    showStates();
    resize(QSize(980, 580).boundedTo(screen()->availableSize() - QSize(40, 60)));
}

QWidget* FormerStatesWindow::lists() {
    auto* parts = new QSplitter(this);
    parts->setChildrenCollapsible(false);
    m_actions = new WrappedTree(tr("Aktionen nach Tagen"), parts);
    m_differences = new WrappedTree(tr("Was sich unterscheidet"), parts);
    m_texts = new ComparePane(tr("Damals"), tr("Jetzt"), parts);
    for (QWidget* part : std::initializer_list<QWidget*>{m_actions, m_differences, m_texts})
        parts->addWidget(part);
    parts->setStretchFactor(2, 1);
    parts->setSizes({270, 240, 430});
    connect(m_actions, &QTreeWidget::currentItemChanged, this, [this] { chooseState(); });
    connect(m_differences, &QTreeWidget::currentItemChanged, this, [this] { showChosen(); });
    return parts;
}

QLayout* FormerStatesWindow::ways() {
    auto* row = new QHBoxLayout;
    const auto button = [&](const QString& text, auto action) {
        auto* made = new QPushButton(text, this);
        made->setAutoDefault(false);
        // The style's least width cuts longer words off.
        made->setMinimumWidth(made->sizeHint().width());
        connect(made, &QPushButton::clicked, this, action);
        row->addWidget(made);
        return made;
    };
    row->addWidget(new QLabel(tr("Zurückholen:"), this));
    m_all = button(tr("&Alles"), [this] {
        bring([this] { return m_states.bringBackAll(); }, tr("Alles ist wieder wie damals."));
    });
    m_pupil = button(tr("Dieses K&ind"), [this] {
        const QString pupil = chosenPupil();
        bring([&] { return m_states.bringBackPupil(fromQString(pupil)); },
              tr("Die Texte von %1 sind wieder wie damals.").arg(pupil));
    });
    m_text = button(tr("Diesen &Text"), [this] {
        const std::optional<size_t> index = indexOf(m_differences->currentItem());
        bring([&] { return index && m_states.bringBackText(*index); },
              tr("Der Text ist wieder wie damals."));
    });
    m_all->setAccessibleName(tr("Alles von damals zurückholen"));
    m_pupil->setAccessibleName(tr("Alles von diesem Kind zurückholen"));
    m_text->setAccessibleName(tr("Diesen Text zurückholen"));
    m_copy = button(tr("&Kopieren"), [this] {
        QGuiApplication::clipboard()->setText(m_texts->leftText());
        m_told->setText(tr("Der frühere Text ist kopiert. Mit Strg+V setzen Sie ihn ein."));
    });
    row->addStretch();
    button(tr("&Hilfe"), [this] { m_help(); });
    button(tr("S&chließen"), [this] { accept(); });
    return row;
}

void FormerStatesWindow::showStates() {
    m_states.read();
    m_actions->clear();
    QTreeWidgetItem* first = nullptr;
    for (size_t i = 0; i < m_states.states().size(); ++i) {
        const safety::State& state = m_states.states()[i];
        auto* item = new QTreeWidgetItem(m_actions->heading(qString(safety::shownDay(state.when))));
        item->setText(
            0, tr("%1  %2").arg(qString(safety::shownTime(state.when)), qString(state.action)));
        item->setToolTip(0, item->text(0));
        item->setData(0, IndexRole, static_cast<int>(i));
        first = first == nullptr ? item : first;
    }
    m_actions->expandAll();
    m_actions->setCurrentItem(first);
    if (first == nullptr) {
        m_told->setText(tr("Es ist noch nichts aufgehoben: Seit der Einrichtung wurde hier noch "
                           "nichts gespeichert."));
        chooseState();
    }
    m_actions->setFocus();
}

void FormerStatesWindow::chooseState() {
    m_differences->clear();
    const std::optional<size_t> state = indexOf(m_actions->currentItem());
    QTreeWidgetItem* first = nullptr;
    if (state) {
        m_states.choose(*state);
        for (size_t i = 0; i < m_states.differences().size(); ++i) {
            const safety::Difference& one = m_states.differences()[i];
            auto* item = new QTreeWidgetItem(m_differences->heading(
                one.pupil.empty() ? qString(safety::shownName(one.file)) : qString(one.pupil)));
            item->setText(0, qString(rescue::headingOf(one)));
            item->setToolTip(0, qString(safety::shownName(one.file)));
            item->setData(0, IndexRole, static_cast<int>(i));
            first = first == nullptr ? item : first;
        }
        const QString obstacle = qString(m_states.obstacle());
        m_told->setText(!obstacle.isEmpty() ? obstacle
                        : first == nullptr
                            ? tr("Alle Texte sind jetzt wie damals.")
                            : tr("So war es vor „%1“. Links steht jeweils der Text von damals.")
                                  .arg(qString(m_states.states()[*state].action)));
    }
    m_differences->expandAll();
    m_differences->setCurrentItem(first);
    showChosen();
}

const safety::Difference* FormerStatesWindow::chosen() const {
    const std::optional<size_t> index = indexOf(m_differences->currentItem());
    return index && *index < m_states.differences().size() ? &m_states.differences()[*index]
                                                           : nullptr;
}

QString FormerStatesWindow::chosenPupil() const {
    const safety::Difference* one = chosen();
    return one == nullptr ? QString() : qString(one->pupil);
}

void FormerStatesWindow::showChosen() {
    if (const safety::Difference* one = chosen())
        m_texts->show(qString(one->former), qString(one->current));
    else
        m_texts->clear();
    enableWays();
}

void FormerStatesWindow::enableWays() {
    const safety::Difference* one = chosen();
    const bool free = m_states.obstacle().empty();
    m_all->setEnabled(free && indexOf(m_actions->currentItem()).has_value());
    m_pupil->setEnabled(free && one != nullptr && !one->pupil.empty());
    m_text->setEnabled(free && one != nullptr && rescue::FormerStates::canComeAlone(*one));
    m_copy->setEnabled(one != nullptr);
}

void FormerStatesWindow::bring(const std::function<bool()>& way, const QString& done) {
    QString told;
    try {
        told = way() ? done
                     : tr("Hier gibt es nichts zurückzuholen, oder die Dateien haben sich gerade "
                          "geändert. Bitte wählen Sie noch einmal.");
    } catch (const Laufzeitfehler& failure) {
        told = qString(failure.sentence()) + tr(" Es ist nichts verloren.");
    }
    showStates();
    m_told->setText(told);
}

} // namespace zeugnis
