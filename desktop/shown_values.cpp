#include "desktop/shown_values.h"

#include "controls/list_controls.h"
#include "desktop/theme.h"
#include "toolkit/qt_text.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

namespace zeugnis::shown {

QString withMnemonic(TextView caption, QChar mnemonic) {
    QString text = qString(caption).replace(u'&', QStringLiteral("&&"));
    if (mnemonic.isNull())
        return text;
    const qsizetype at = text.indexOf(mnemonic, 0, Qt::CaseInsensitive);
    return at < 0 ? text : text.insert(at, u'&');
}

QStringList shownEntries(const ListControl& list) {
    QStringList entries;
    for (const Text& entry : list.entries())
        entries << qString(entry).remove(u'\r').remove(u'\n');
    return entries;
}

QString shownLines(TextView caption) {
    QStringList lines = qString(caption).split(QStringLiteral("\r\n"));
    for (QString& line : lines)
        line = line.simplified();
    return lines.join(u'\n');
}

void tint(QLabel& label, Farbwert colour) {
    const QColor ground = theme::fromFarbwert(colour, QColor());
    const QColor border = theme::tinted(ground, ground).Border;
    const QString sheet =
        border.isValid() ? QStringLiteral("QLabel { border: 3px solid %1; border-radius: %2px }")
                               .arg(border.name())
                               .arg(theme::Radius)
        : ground.isValid() && !theme::colours().HighContrast
            ? QStringLiteral("QLabel { background: %1; border-radius: %2px }"
                             "QLabel:disabled { background: %3 }")
                  .arg(ground.name())
                  .arg(theme::Radius)
                  .arg(ground.lighter(130).name())
            : QString();
    if (label.styleSheet() != sheet)
        label.setStyleSheet(sheet);
}

void showEntries(QListWidget& list, const QStringList& entries) {
    if (list.count() != entries.size()) {
        list.clear();
        list.addItems(entries);
    }
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->text() != entries[row])
            list.item(row)->setText(entries[row]);
    // Where a row is cut, its tool tip tells it whole.
    for (int row = 0; row < list.count() && !list.wordWrap(); ++row)
        list.item(row)->setToolTip(entries[row]);
}

// A style sheet rules the editor's border, so the ground behind its text has to be told there too.
void tint(QPlainTextEdit& editor, Farbwert colour) {
    const theme::Tinted tinted =
        theme::tinted(theme::fromFarbwert(colour, QColor()), theme::colours().Surface);
    QString sheet = QStringLiteral("QPlainTextEdit { background: %1 }").arg(tinted.Ground.name());
    if (tinted.Border.isValid())
        sheet +=
            QStringLiteral("QPlainTextEdit { border: 3px solid %1 }").arg(tinted.Border.name());
    if (editor.styleSheet() != sheet)
        editor.setStyleSheet(sheet);
}

} // namespace zeugnis::shown
