#include "desktop/entry_view_avsv.h"

#include "desktop/picture_view.h"
#include "desktop/qt_text.h"
#include "desktop/text_editor.h"
#include "desktop/theme.h"

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace zeugnis {

EntryViewAVSV::EntryViewAVSV(GsArbeitsverhalten& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_entry(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 14, 20, 14);
    layout->setSpacing(10);
    layout->addLayout(head());
    QLabel* next = bind().label(m_entry.Label3);
    next->setFont(theme::scaledFont(1.4));
    next->setAlignment(Qt::AlignCenter);
    next->setMargin(40);
    layout->addWidget(next);
    layout->addWidget(choices(), 3);
    layout->addLayout(texts(), 2);
    layout->addLayout(actions());
    warnBeforeClosing(tr("Das Fenster wird geschlossen, ohne zu speichern. Was Sie seit dem "
                         "letzten Wechsel des Kindes eingegeben haben, geht verloren.\n\n"
                         "Soll es trotzdem geschlossen werden?"));
    resize(1220, 760);
}

QBoxLayout* EntryViewAVSV::head() {
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    row->addWidget(bind().picture(m_entry.Picture1, {72, 96}, tr("Bild des Kindes")));

    auto* middle = new QVBoxLayout;
    auto* title = new QHBoxLayout;
    QLabel* purpose = bind().label(m_entry.Label1);
    purpose->setFont(theme::scaledFont(1.15, QFont::DemiBold));
    purpose->setWordWrap(false);
    QLabel* className = bind().label(m_entry.Label2);
    className->setFont(theme::scaledFont(1.15, QFont::DemiBold));
    title->addWidget(purpose);
    title->addWidget(className, 1);
    title->addWidget(bind().signButton(m_entry.Command8, QStringLiteral("?"), tr("Hilfe"),
                                       QKeySequence::HelpContents));
    middle->addLayout(title);

    auto* selection = new QHBoxLayout;
    selection->setSpacing(10);
    QComboBox* pupils = bind().combo(m_entry.Combo1, tr("Namensliste"));
    pupils->setMinimumWidth(380);
    pupils->setFocus();
    pupils->setFont(theme::scaledFont(1.1, QFont::DemiBold));
    selection->addWidget(pupils);
    selection->addWidget(bind().button(m_entry.Command1, u'A'));
    selection->addWidget(bind().button(m_entry.Command2, u'S'));
    selection->addStretch();
    middle->addLayout(selection);
    row->addLayout(middle, 1);
    return row;
}

QWidget* EntryViewAVSV::choices() {
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    auto* categories = new QVBoxLayout;
    categories->setSpacing(5);
    m_entry.Command3.each([&](Button& button) {
        TintedButton* widget = bind().button(button);
        widget->setMinimumWidth(216);
        widget->setMaximumWidth(216);
        bind().follow([this, widget, k = *button.index()] {
            widget->setMarked(m_entry.Bereich != Abschnitt::Keiner && m_entry.Kategorie == k);
        });
        categories->addWidget(widget);
    });
    categories->addStretch();
    row->addLayout(categories);
    row->addWidget(lines(*area), 1);
    return area;
}

QWidget* EntryViewAVSV::lines(QWidget& area) {
    QFrame* frame = bind().frame(m_entry.Frame1);
    auto* outer = new QHBoxLayout(frame);
    outer->setContentsMargins(14, 8, 14, 8);
    auto* column = new QVBoxLayout;
    column->setSpacing(1);
    auto* caption = new QLabel(frame);
    caption->setFont(theme::scaledFont(1.1, QFont::DemiBold));
    bind().follow([this, caption] { caption->setText(qString(m_entry.Frame1.Caption)); });
    column->addWidget(caption);
    m_entry.Option1.each([&](OptionButton& option) {
        ChoiceRow* row = bind().option(option);
        const QString key = QString::number(*option.index());
        row->setKeyHint(key);
        column->addWidget(row);
        auto* shortcut = new QShortcut(QKeySequence(key), &area);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, row, &ChoiceRow::click);
    });
    column->addStretch();
    outer->addLayout(column, 1);
    PictureView* lock = bind().picture(m_entry.Picture4, {120, 140}, tr("Der Text ist gesperrt"));
    lock->setPixmap(QPixmap(QStringLiteral(":/gesperrt.png")));
    outer->addWidget(lock, 0, Qt::AlignVCenter);
    return frame;
}

QBoxLayout* EntryViewAVSV::texts() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    const QString names[] = {tr("Zeugnistext zum Arbeitsverhalten"),
                             tr("Zeugnistext zum Sozialverhalten")};
    m_entry.Text1.each([&](TextBox& box) {
        TextEditor* editor = bind().text(box, names[*box.index()]);
        editor->setFont(theme::scaledFont(1.08));
        editor->setMinimumHeight(120);
        auto* column = new QVBoxLayout;
        column->setSpacing(2);
        auto* caption = new QLabel(names[*box.index()], this);
        caption->setFont(theme::scaledFont(0.92));
        caption->setBuddy(editor);
        bind().follow([caption, &box] { caption->setVisible(box.Visible); });
        column->addWidget(caption);
        column->addWidget(editor, 1);
        row->addLayout(column, 1);
    });
    return row;
}

QBoxLayout* EntryViewAVSV::actions() {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(bind().button(m_entry.Command6, u'n'));
    row->addSpacing(16);
    row->addWidget(bind().button(m_entry.Command7(0), u'z'));
    row->addWidget(bind().button(m_entry.Command7(1), u'v'));
    row->addStretch();
    row->addWidget(bind().button(m_entry.Command4, u'T'));
    row->addWidget(bind().button(m_entry.Command5, u'b'));
    return row;
}

} // namespace zeugnis
