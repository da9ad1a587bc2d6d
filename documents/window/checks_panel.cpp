#include "documents/window/checks_panel.h"

#include "platform/failure.h"
#include "toolkit/flow_row.h"
#include "toolkit/qt_text.h"
#include "toolkit/wrapped_entries.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <set>

namespace zeugnis::dokumente {
namespace {

constexpr int LeastLetters = 26;
constexpr int MostLetters = 37;

enum Filter { All, Texts, GradesAndAbsences };

bool isShown(const Befund& befund, int filter) {
    const bool isOfList = befund.Art == Befundart::Liste || befund.Art == Befundart::Noten;
    return filter == All || (filter == Texts) != isOfList;
}

QString counted(size_t count, const QString& one, const QString& many) {
    return count == 1 ? one : many.arg(count);
}

QString summaryOf(size_t findings, size_t children, int filter) {
    if (findings == 0)
        return filter == All ? QStringLiteral("Es ist nichts aufgefallen. Die Zeugnisse können "
                                              "gedruckt werden.")
                             : QStringLiteral("Hier ist nichts aufgefallen.");
    const QString hints =
        counted(findings, QStringLiteral("Ein Hinweis"), QStringLiteral("%1 Hinweise"));
    const QString where = children == 0 ? QString()
                                        : counted(children, QStringLiteral(" bei einem Kind"),
                                                  QStringLiteral(" bei %1 Kindern"));
    return hints + where + QStringLiteral(". Enter oder ein Klick führt zur Seite.");
}

} // namespace

ChecksPanel::ChecksPanel(Quelle quelle, QWidget* parent)
    : QWidget(parent),
      m_quelle(std::move(quelle)),
      m_summary(new QLabel),
      m_kind(new QComboBox),
      m_list(new QListWidget) {
    auto* label = new QLabel(QStringLiteral("&Vor dem Drucken"));
    label->setBuddy(m_list);
    m_summary->setObjectName(QStringLiteral("leise"));
    m_summary->setWordWrap(true);
    m_kind->addItems({QStringLiteral("Alle Hinweise"), QStringLiteral("Texte"),
                      QStringLiteral("Noten und Versäumnisse")});
    m_kind->setAccessibleName(QStringLiteral("Art der Hinweise"));
    m_list->setAccessibleName(QStringLiteral("Hinweise vor dem Drucken"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setWordWrap(true);
    m_list->setItemDelegate(new WrappedEntries(m_list));
    m_list->setResizeMode(QListView::Adjust);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(label);
    layout->addWidget(m_kind);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons());
    layout->addStretch();
    setMinimumWidth(LeastLetters * fontMetrics().averageCharWidth());
    setMaximumWidth(MostLetters * fontMetrics().averageCharWidth());
    connect(m_kind, &QComboBox::activated, this, &ChecksPanel::show);
    connect(m_list, &QListWidget::itemActivated, this, &ChecksPanel::choose);
    connect(m_list, &QListWidget::itemClicked, this, &ChecksPanel::choose);
    connect(m_list, &QListWidget::currentRowChanged, this, &ChecksPanel::followSelection);
    check();
}

QWidget* ChecksPanel::buttons() {
    auto* row = new QWidget;
    auto* layout = new FlowRow(6);
    row->setLayout(layout);
    m_text = new QPushButton(QStringLiteral("&Zum Text"));
    m_text->setToolTip(QStringLiteral("Diesen Text im Zeugnisprogramm öffnen und ändern"));
    m_seen = new QPushButton(QStringLiteral("&Gesehen"));
    m_seen->setToolTip(QStringLiteral("Nicht mehr zeigen, bis der Text geändert wird"));
    m_learn = new QPushButton(QStringLiteral("&Wort merken"));
    m_learn->setToolTip(QStringLiteral("Diese Schreibung ist richtig, auch bei anderen Kindern"));
    m_compare = new QPushButton(QStringLiteral("&Nebeneinander"));
    m_compare->setToolTip(QStringLiteral("Die beiden Texte nebeneinander ansehen"));
    int place = 0;
    for (QPushButton* button : {m_text, m_seen, m_learn, m_compare})
        layout->insertWidget(place++, *button);
    layout->alignRightFrom(place);
    connect(m_text, &QPushButton::clicked, this, &ChecksPanel::lead);
    connect(m_seen, &QPushButton::clicked, this, [this] { finish(m_quelle.Gesehen); });
    connect(m_learn, &QPushButton::clicked, this, [this] { finish(m_quelle.Lernen); });
    connect(m_compare, &QPushButton::clicked, this, &ChecksPanel::compare);
    row->setVisible(m_quelle.Gesehen && m_quelle.Lernen);
    return row;
}

void ChecksPanel::check() {
    try {
        m_befunde = m_quelle.Pruefen();
    } catch (const Laufzeitfehler& failure) {
        m_summary->setText(QStringLiteral("Die Texte konnten nicht geprüft werden. ") +
                           qString(failure.sentence()));
        m_list->hide();
        m_kind->hide();
        return;
    }
    show();
}

// The findings of a child stand below its name.
void ChecksPanel::show() {
    m_list->clear();
    std::set<int> children;
    size_t findings = 0;
    int child = AlleKinder;
    for (size_t i = 0; i < m_befunde.size(); ++i) {
        const Befund& befund = m_befunde[i];
        if (!isShown(befund, m_kind->currentIndex()))
            continue;
        if (befund.Platz != child) {
            auto* name = new QListWidgetItem(qString(befund.Kind), m_list);
            QFont bold = m_list->font();
            bold.setBold(true);
            name->setFont(bold);
            name->setFlags(Qt::ItemIsEnabled);
        }
        child = befund.Platz;
        if (child != AlleKinder)
            children.insert(child);
        ++findings;
        auto* item = new QListWidgetItem(qString(befund.Satz), m_list);
        item->setData(Qt::UserRole, static_cast<int>(i));
        item->setData(
            Qt::AccessibleTextRole,
            qString(befund.Kind.empty() ? befund.Satz : befund.Kind + u": " + befund.Satz));
    }
    m_summary->setText(summaryOf(findings, children.size(), m_kind->currentIndex()));
    m_list->setVisible(findings > 0);
    followSelection();
}

const Befund* ChecksPanel::findingOf(const QListWidgetItem* item) const {
    const QVariant index = item != nullptr ? item->data(Qt::UserRole) : QVariant();
    return index.isValid() ? &m_befunde.at(static_cast<size_t>(index.toInt())) : nullptr;
}

void ChecksPanel::followSelection() {
    const Befund* befund = findingOf(m_list->currentItem());
    m_text->setEnabled(befund != nullptr && !befund->Abschnitt.empty());
    m_seen->setEnabled(befund != nullptr);
    // One of the two only: a finding has words to learn, or twins.
    const bool hasTwins = befund != nullptr && !befund->Zwillinge.empty();
    m_compare->setVisible(hasTwins);
    m_learn->setVisible(!hasTwins);
    m_learn->setEnabled(befund != nullptr && !befund->Woerter.empty());
}

void ChecksPanel::lead() {
    if (const Befund* befund = findingOf(m_list->currentItem()))
        emit leading(*befund);
}

void ChecksPanel::compare() {
    if (const Befund* befund = findingOf(m_list->currentItem()))
        emit comparing(*befund);
}

void ChecksPanel::choose(const QListWidgetItem* item) {
    if (const Befund* befund = findingOf(item))
        emit chosen(*befund);
}

void ChecksPanel::finish(const std::function<void(const Befund&)>& how) {
    const Befund* befund = findingOf(m_list->currentItem());
    if (befund == nullptr)
        return;
    const int row = m_list->currentRow();
    try {
        how(*befund);
    } catch (const Laufzeitfehler& failure) {
        m_summary->setText(qString(failure.sentence()));
        return;
    }
    check();
    m_list->setCurrentRow(qMin(row, m_list->count() - 1));
    m_list->setFocus();
}

} // namespace zeugnis::dokumente
