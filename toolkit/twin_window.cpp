#include "toolkit/twin_window.h"

#include "checks/twins.h"
#include "toolkit/entry_combo.h"
#include "toolkit/look.h"
#include "toolkit/qt_text.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QVBoxLayout>

#include <utility>

namespace zeugnis {
namespace {

// Told by a line below and by weight: tinted grounds would be lost where contrast is high.
void mark(QTextEdit& shown, const std::vector<Textstelle>& places) {
    QTextCharFormat format;
    format.setFontUnderline(true);
    format.setFontWeight(QFont::Bold);
    if (!look::colours().HighContrast)
        format.setBackground(QColor(0xFC, 0xE9, 0xB8));
    for (const Textstelle& place : places) {
        QTextCursor cursor(shown.document());
        cursor.setPosition(static_cast<int>(place.Anfang));
        cursor.setPosition(static_cast<int>(place.Anfang + place.Laenge), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

// Line ends count once in a document.
Text withSingleLineEnds(const Text& text) {
    Text lines;
    for (const char16_t unit : text)
        if (unit != u'\r')
            lines += unit;
    return lines;
}

} // namespace

TwinWindow::TwinWindow(QString section, Side left, std::vector<Side> others, QWidget* owner)
    : QDialog(owner),
      m_section(std::move(section)),
      m_own(std::move(left)),
      m_others(std::move(others)),
      m_head(new QLabel(this)) {
    setWindowTitle(tr("Fast derselbe Text"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(18, 16, 18, 14);
    rows->setSpacing(10);
    m_head->setWordWrap(true);
    rows->addWidget(m_head);
    auto* columns = new QGridLayout;
    columns->setHorizontalSpacing(12);
    columns->setVerticalSpacing(4);
    addColumn(*columns, new QLabel(m_own.name, this), m_left);
    addColumn(*columns, nameOfOthers(), m_right);
    rows->addLayout(columns, 1);
    auto* last = new QHBoxLayout;
    last->addStretch();
    auto* close = new QPushButton(tr("S&chließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    last->addWidget(close);
    rows->addLayout(last);
    compareWith(0);
    resize(QSize(760, 440).boundedTo(screen()->availableSize() - QSize(40, 60)));
}

QWidget* TwinWindow::nameOfOthers() {
    if (m_others.size() == 1)
        return new QLabel(m_others.front().name, this);
    auto* choice = new EntryCombo(this);
    for (const Side& other : m_others)
        choice->addItem(other.name);
    choice->setAccessibleName(tr("Anderes Kind"));
    connect(choice, &QComboBox::activated, this, &TwinWindow::compareWith);
    return choice;
}

void TwinWindow::addColumn(QGridLayout& columns, QWidget* name, Column& column) {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    name->setFont(bold);
    column.shown = new QTextEdit(this);
    column.shown->setReadOnly(true);
    column.shown->setTabChangesFocus(true);
    column.shown->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column.way = new QPushButton(this);
    column.way->setAutoDefault(false);
    connect(column.way, &QPushButton::clicked, this, [this, &column] {
        accept();
        column.side->lead();
    });
    const int place = columns.count() == 0 ? 0 : 1;
    columns.addWidget(name, 0, place);
    columns.addWidget(column.shown, 1, place);
    columns.addWidget(column.way, 2, place, Qt::AlignLeft);
    columns.setColumnStretch(place, 1);
}

void TwinWindow::compareWith(int other) {
    const Side& right = m_others.at(static_cast<size_t>(other));
    m_head->setText(tr("%1: Die Texte von %2 und %3 nebeneinander. Unterstrichen ist, worin sie "
                       "sich unterscheiden.")
                        .arg(m_section, m_own.name, right.name));
    fill(m_left, m_own, right);
    fill(m_right, right, m_own);
}

void TwinWindow::fill(Column& column, const Side& side, const Side& other) {
    column.side = &side;
    const Text text = withSingleLineEnds(side.text);
    column.shown->setPlainText(qString(text));
    const std::vector<Textstelle> places =
        UnterschiedeZwischen(text, withSingleLineEnds(other.text)).first;
    mark(*column.shown, places);
    QStringList words;
    for (const Textstelle& place : places)
        words << qString(text.substr(place.Anfang, place.Laenge));
    column.shown->setAccessibleName(tr("Text von %1").arg(side.name));
    column.shown->setAccessibleDescription(
        words.isEmpty() ? tr("ohne Unterschied")
                        : tr("anders: %1").arg(words.join(QStringLiteral(", "))));
    column.way->setText(side.way);
    column.way->setAccessibleName(tr("Zum Text von %1").arg(side.name));
}

} // namespace zeugnis
