#include "desktop/review_view.h"

#include "desktop/theme.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr int ChoicesLetters = 32;

// Makes names and headings stand out; the text itself stays as it is.
class ReviewHeadings : public QSyntaxHighlighter {
  public:
    ReviewHeadings(QTextDocument* document, QStringList headings)
        : QSyntaxHighlighter(document), m_headings(std::move(headings)) {}

  protected:
    // A block's state is 1 behind a line of underscores: the next line is a name.
    void highlightBlock(const QString& line) override {
        QTextCharFormat format;
        const bool rule = line.startsWith(QStringLiteral("____"));
        if (previousBlockState() == 1 && !line.isEmpty()) {
            format.setFontWeight(QFont::DemiBold);
            format.setForeground(theme::colours().Accent);
        } else if (m_headings.contains(line)) {
            format.setFontWeight(QFont::DemiBold);
        } else if (rule) {
            format.setForeground(theme::colours().Outline);
        }
        setFormat(0, static_cast<int>(line.size()), format);
        setCurrentBlockState(rule ? 1 : 0);
    }

  private:
    QStringList m_headings;
};

} // namespace

ReviewView::ReviewView(GsAnzeige& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_review(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 14, 20, 14);
    layout->setSpacing(10);
    auto* head = new QHBoxLayout;
    QLabel* title = bind().label(m_review.Label2);
    title->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
    head->addWidget(title, 1);
    head->addWidget(bind().signButton(m_review.Command8, QStringLiteral("?"), tr("Hilfe"),
                                      QKeySequence::HelpContents));
    layout->addLayout(head);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(16);
    middle->addLayout(choices());
    middle->addWidget(text(), 1);
    layout->addLayout(middle, 1);
    bind().widgetOf(m_review.Check1(0))->setFocus();
    wishSize({1120, 760});
}

QBoxLayout* ReviewView::choices() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(bind().label(m_review.Label1));
    QFrame* frame = bind().frame(m_review.Frame1);
    frame->setMinimumWidth(ChoicesLetters * frame->fontMetrics().averageCharWidth());
    auto* boxes = new QVBoxLayout(frame);
    boxes->setContentsMargins(8, 8, 8, 8);
    boxes->setSpacing(1);
    // In the order of the text.
    for (const int box : {0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 9})
        boxes->addWidget(bind().check(m_review.Check1(box)));
    auto* area = new PageArea(this);
    area->add(*frame);
    area->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);
    column->addWidget(area);
    bind().widgetOf(m_review.Check1(0))->setFocus();
    column->addSpacing(10);
    column->addWidget(bind().button(m_review.Command1(0), u'T'));
    column->addWidget(bind().button(m_review.Command1(1), u'W'));
    column->addStretch();
    column->addWidget(bind().button(m_review.Command1(2), u'E'));
    return column;
}

QWidget* ReviewView::text() {
    TextEditor* widget = bind().text(m_review.Text1, tr("Bisherige Texte der Klasse"));
    widget->setFont(theme::font(theme::Size::Lead));
    // A text that is set leaves the caret at its end; reading begins at the top.
    bind().follow([widget, shown = QString()]() mutable {
        if (shown != widget->toPlainText())
            widget->verticalScrollBar()->setValue(0);
        shown = widget->toPlainText();
    });
    QStringList headings;
    for (const Text& heading : GsAnzeige::Ueberschriften())
        headings << qString(heading);
    new ReviewHeadings(widget->document(), headings);
    return widget;
}

} // namespace zeugnis
