#include "toolkit/twin_window.h"

#include "checks/twins.h"
#include "toolkit/look.h"
#include "toolkit/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QVBoxLayout>

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

TwinWindow::TwinWindow(const QString& section, const Side& left, const Side& right, QWidget* owner)
    : QDialog(owner) {
    setWindowTitle(tr("Fast derselbe Text"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(18, 16, 18, 14);
    rows->setSpacing(10);
    auto* head = new QLabel(tr("%1: Die Texte von %2 und %3 nebeneinander. Unterstrichen ist, "
                               "worin sie sich unterscheiden.")
                                .arg(section, left.name, right.name),
                            this);
    head->setWordWrap(true);
    rows->addWidget(head);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    columns->addLayout(column(left, right.text), 1);
    columns->addLayout(column(right, left.text), 1);
    rows->addLayout(columns, 1);
    auto* last = new QHBoxLayout;
    last->addStretch();
    auto* close = new QPushButton(tr("S&chließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    last->addWidget(close);
    rows->addLayout(last);
    resize(QSize(760, 440).boundedTo(screen()->availableSize() - QSize(40, 60)));
}

QLayout* TwinWindow::column(const Side& side, const Text& other) {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    auto* name = new QLabel(side.name, this);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    name->setFont(bold);
    auto* shown = new QTextEdit(this);
    shown->setReadOnly(true);
    shown->setTabChangesFocus(true);
    shown->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const Text text = withSingleLineEnds(side.text);
    shown->setPlainText(qString(text));
    const std::vector<Textstelle> places =
        UnterschiedeZwischen(text, withSingleLineEnds(other)).first;
    mark(*shown, places);
    QStringList words;
    for (const Textstelle& place : places)
        words << qString(text.substr(place.Anfang, place.Laenge));
    shown->setAccessibleName(tr("Text von %1").arg(side.name));
    shown->setAccessibleDescription(words.isEmpty()
                                        ? tr("ohne Unterschied")
                                        : tr("anders: %1").arg(words.join(QStringLiteral(", "))));
    name->setBuddy(shown);
    auto* way = new QPushButton(side.way, this);
    way->setAccessibleName(tr("Zum Text von %1").arg(side.name));
    way->setAutoDefault(false);
    connect(way, &QPushButton::clicked, this, [this, lead = side.lead] {
        accept();
        lead();
    });
    column->addWidget(name);
    column->addWidget(shown, 1);
    column->addWidget(way, 0, Qt::AlignLeft);
    return column;
}

} // namespace zeugnis
