#include "documents/window/checks_panel.h"

#include "platform/failure.h"
#include "toolkit/qt_text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>

namespace zeugnis::dokumente {
namespace {

constexpr int PanelWidth = 300;

QString summaryOf(size_t count) {
    if (count == 0)
        return QStringLiteral("Es ist nichts aufgefallen. Die Zeugnisse können gedruckt werden.");
    if (count == 1)
        return QStringLiteral("Ein Hinweis. Enter oder ein Klick führt zur Seite.");
    return QStringLiteral("%1 Hinweise. Enter oder ein Klick führt zur Seite.").arg(count);
}

QString lineOf(const Befund& befund) {
    const QString satz = qString(befund.Satz);
    return befund.Kind.empty() ? satz : qString(befund.Kind) + u'\n' + satz;
}

} // namespace

ChecksPanel::ChecksPanel(const Pruefen& pruefen, QWidget* parent)
    : QWidget(parent), m_summary(new QLabel), m_list(new QListWidget) {
    auto* label = new QLabel(QStringLiteral("&Vor dem Drucken"));
    label->setBuddy(m_list);
    m_summary->setObjectName(QStringLiteral("leise"));
    m_summary->setWordWrap(true);
    m_list->setAccessibleName(QStringLiteral("Hinweise vor dem Drucken"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(label);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    layout->addStretch();
    setFixedWidth(PanelWidth);
    connect(m_list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { choose(m_list->row(item)); });
    connect(m_list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { choose(m_list->row(item)); });
    fill(pruefen);
}

void ChecksPanel::fill(const Pruefen& pruefen) {
    try {
        m_befunde = pruefen();
    } catch (const Laufzeitfehler& failure) {
        m_summary->setText(QStringLiteral("Die Texte konnten nicht geprüft werden. ") +
                           qString(failure.sentence()));
        m_list->hide();
        return;
    }
    m_summary->setText(summaryOf(m_befunde.size()));
    for (const Befund& befund : m_befunde)
        m_list->addItem(lineOf(befund));
    m_list->setVisible(!m_befunde.empty());
}

void ChecksPanel::choose(int row) {
    if (row >= 0 && static_cast<size_t>(row) < m_befunde.size())
        emit chosen(m_befunde[static_cast<size_t>(row)]);
}

} // namespace zeugnis::dokumente
