#include "desktop/editor_view_avsv.h"

#include "desktop/editor_parts.h"
#include "desktop/even_rows.h"
#include "desktop/theme.h"
#include "toolkit/page_area.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

// As many characters as the entry window shows well in one row.
constexpr int ReadableCharacters = 95;
constexpr int NameLetters = 48;

// The line behind which text is hard to read, over all boxes of the lines.
class ReadableLimit : public QWidget {
  public:
    ReadableLimit(QWidget& area, QWidget& firstBox, QWidget& lastBox)
        : QWidget(&area), m_first(firstBox), m_last(lastBox) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        QPalette red = palette();
        red.setColor(QPalette::Window, QColor(0xD3, 0x2F, 0x2F));
        setPalette(red);
        setAutoFillBackground(true);
        spoken::silence(*this);
        m_last.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
            const int text =
                m_first.fontMetrics().horizontalAdvance(QString(ReadableCharacters, u'n'));
            const int top = m_first.y() - 4;
            const int width = text < m_first.width() ? 2 : 0;
            setGeometry(m_first.x() + text, top, width, m_last.geometry().bottom() + 4 - top);
            raise();
        }
        return QWidget::eventFilter(watched, event);
    }

  private:
    QWidget& m_first;
    QWidget& m_last;
};

} // namespace

EditorViewAVSV::EditorViewAVSV(GSAVSVAenderung& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_editor(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 12);
    layout->setSpacing(8);
    layout->addLayout(editorparts::head(bind(), m_editor.Label1, m_editor.Command8(2)));
    layout->addLayout(sections());
    layout->addWidget(page(), 1);
    layout->addLayout(
        editorparts::actions(bind(), {.ShowPlaceholders = {m_editor.Command8(0), u'P'},
                                      .HidePlaceholders = {m_editor.Command8(1), u'v'},
                                      .Save = {m_editor.Command5, u't'},
                                      .Leave = {m_editor.Command6, u'B'}}));
    bind()
        .widgetOf(m_editor.Command6)
        ->setToolTip(tr("Fragt, ob gespeichert werden soll. Die sichtbare Kategorie wird dabei nur "
                        "mit der Taste daneben ganz gespeichert."));
    bind().widgetOf(m_editor.Command1(1))->setFocus();
    warnBeforeClosing(editorparts::lostByClosing());
    bind().placeOfTexts([this] {
        return std::vector{static_cast<int>(m_editor.Bereich), m_editor.KategorieAV,
                           m_editor.KategorieSV};
    });
    wishSize({1220, 760});
}

QBoxLayout* EditorViewAVSV::sections() {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(bind().button(m_editor.Command2, u'r'));
    row->addWidget(bind().button(m_editor.Command3, u'o'));
    for (const Abschnitt section : Abschnitte) {
        const Button& control = section == Abschnitt::AV ? m_editor.Command2 : m_editor.Command3;
        auto* widget = qobject_cast<TintedButton*>(bind().widgetOf(control));
        bind().follow([this, widget, section] { widget->setMarked(m_editor.Bereich == section); });
    }
    bind().oneStop({&m_editor.Command2, &m_editor.Command3});
    row->addStretch();
    row->addLayout(editorparts::loading(bind(), m_editor.Command1));
    return row;
}

QWidget* EditorViewAVSV::page() {
    auto* area = new PageArea(this);
    area->keepRoomToScroll();
    area->fillRoom();
    auto* page = new QVBoxLayout;
    page->setSpacing(7);
    page->addLayout(categories());
    page->addWidget(lines());
    page->addStretch();
    page->addWidget(editorparts::hint(bind(), m_editor.Label3));
    area->add(*page);
    return area;
}

QBoxLayout* EditorViewAVSV::categories() {
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    auto* buttons = new EvenRows(6, editorparts::TwoLines);
    m_editor.Command4.each([&](Button& button) {
        TintedButton* widget = bind().button(button);
        bind().follow([this, widget, k = *button.index()] {
            const int shown =
                m_editor.Bereich == Abschnitt::SV ? m_editor.KategorieSV : m_editor.KategorieAV;
            widget->setMarked(shown == k + 1);
        });
        // Until modules are loaded, all have the same inscription.
        spoken::describe(*widget, tr("Kategorie %1").arg(*button.index() + 1));
        buttons->addWidget(widget);
    });
    bind().oneStop(controlsOf(m_editor.Command4));
    column->addLayout(buttons);
    auto* name = new QHBoxLayout;
    QLabel* caption = bind().label(m_editor.Label2);
    caption->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    caption->setWordWrap(false);
    name->addWidget(caption);
    TextEditor* box = bind().line(m_editor.Text1, tr("Name der Kategorie"));
    box->setMaximumWidth(NameLetters * box->fontMetrics().averageCharWidth());
    name->addWidget(box, 100);
    name->addStretch(1);
    column->addLayout(name);
    return column;
}

QWidget* EditorViewAVSV::lines() {
    auto* area = new QWidget(this);
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    QLabel* head = bind().label(m_editor.Label4);
    head->setFont(theme::font(theme::Size::Small));
    head->setAlignment(Qt::AlignCenter);
    grid->addWidget(head, 0, 2);
    m_editor.Text2.each([&](TextBox& line) {
        const int i = *line.index();
        QLabel* number = bind().label(m_editor.Label5(i));
        number->setFixedWidth(number->fontMetrics().horizontalAdvance(u'9') + 6);
        spoken::silence(*number); // the box tells it
        grid->addWidget(number, i + 1, 0);
        grid->addWidget(bind().module(line, tr("Zeile %1").arg(i)), i + 1, 1);
        TintedButton* colour = bind().button(m_editor.Command7(i), {}, TintedButton::Role::Quiet);
        colour->setAccessibleName(tr("Farbwahl für Zeile %1").arg(i));
        bind().follow([&line, colour, widget = bind().widgetOf(line)] {
            const QString name = spoken::colourName(line.BackColor);
            spoken::describe(*colour, name);
            spoken::describe(*widget, name);
            colour->setToolTip(name);
        });
        grid->addWidget(colour, i + 1, 2);
    });
    grid->setColumnStretch(1, 1);
    new ReadableLimit(*area, *bind().widgetOf(m_editor.Text2(0)),
                      *bind().widgetOf(m_editor.Text2(9)));
    return area;
}

} // namespace zeugnis
