#include "desktop/rescue/half_year_box.h"

#include "desktop/rescue/choice_box.h"
#include "desktop/theme.h"
#include "platform/machine.h"
#include "rescue/last_term.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

QString tr(const char* text) { return QObject::tr(text); }

class HalfYearBox : public QDialog {
  public:
    HalfYearBox(bool atOnce, const QString& name, QWidget* owner)
        : QDialog(owner), m_texts(new QVBoxLayout), m_name(new QLineEdit(name, this)) {
        setWindowTitle(qString(Programmtitel));
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(22, 20, 22, 16);
        column->setSpacing(10);
        tell(atOnce);
        auto* area = new PageArea(this);
        area->fillRoom();
        area->add(*m_texts);
        column->addWidget(area, 1);
        auto* label = new QLabel(tr("&Name des Standes:"), this);
        label->setBuddy(m_name);
        column->addWidget(label);
        column->addWidget(m_name);
        auto* row = new QHBoxLayout;
        row->addWidget(answer(tr("Stand auf&heben und weiter"), Keep));
        row->addWidget(answer(tr("&Ohne Aufheben weiter"), GoOn));
        row->addStretch();
        row->addWidget(answer(tr("&Zurück"), Rejected));
        column->addSpacing(6);
        column->addLayout(row);
        m_name->setFocus();
        m_name->selectAll();
        fit(*area);
    }

    enum { GoOn = Accepted, Keep };
    [[nodiscard]] Text name() const { return trimmed(fromQString(m_name->text())); }

  private:
    void tell(bool atOnce) {
        m_texts->setSpacing(10);
        paragraph(tr("Ein neues Halbjahr oder eine neue Klasse?"))
            ->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
        paragraph(atOnce ? tr("Gleich kommt die Frage, ob Sie mit den Zeugniseingaben neu anfangen "
                              "wollen. Mit „Ja“ sind sofort alle Zeugnistexte der Klasse geleert, "
                              "auch wenn Sie danach nicht speichern.")
                         : tr("Gleich kommt die Frage, ob Sie neu anfangen wollen. Antworten Sie "
                              "mit „Ja“, sind mit dem nächsten Speichern alle Zeugnistexte der "
                              "Klasse geleert."));
        paragraph(tr("So geht es gut:"));
        paragraph(tr("1.  Die fertigen Zeugnisse sind gedruckt oder als PDF gespeichert."));
        paragraph(tr("2.  Heben Sie den fertigen Stand hier auf. Er bleibt unter „Frühere Stände“ "
                     "in der Werkzeugkiste, und beim Schreiben zeigt die Taste F5 zu jedem Kind "
                     "den Text vom letzten Halbjahr."));
        paragraph(tr("3.  Tragen Sie Halbjahr, Schuljahr und Klasse ein, speichern Sie die "
                     "Basisdaten und starten Sie das Programm neu."));
    }

    QLabel* paragraph(const QString& text) {
        auto* label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        m_texts->addWidget(label);
        return label;
    }

    QPushButton* answer(const QString& text, int code) {
        auto* button = new QPushButton(text, this);
        button->setAutoDefault(false);
        button->setDefault(code == Keep);
        button->setMinimumWidth(button->sizeHint().width());
        connect(button, &QPushButton::clicked, this, [this, code] { done(code); });
        return button;
    }

    // As wide as lines can be read, and as high as the texts, if the display is.
    void fit(const PageArea& area) {
        constexpr int Letters = 80;
        const QSize room = screen()->availableSize() - QSize(40, 70);
        const QMargins margins = layout()->contentsMargins();
        const int width =
            qMin(qMax(Letters * fontMetrics().averageCharWidth(), layout()->sizeHint().width()),
                 room.width());
        const int texts = m_texts->totalHeightForWidth(width - margins.left() - margins.right());
        const int rest = layout()->sizeHint().height() - area.sizeHint().height();
        resize(width, qMin(texts + rest, room.height()));
    }

    QVBoxLayout* m_texts;
    QLineEdit* m_name;
};

} // namespace

bool mayBlankTexts(const Control& control, const std::filesystem::path& programFolder,
                   QWidget* owner) {
    const rescue::Blanking blanking = rescue::blanksTexts(control, programFolder);
    if (!blanking.happens)
        return true;
    const Text term = rescue::termOf(programFolder);
    HalfYearBox box(blanking.atOnce, qString(term), owner);
    const int chosen = box.exec();
    if (owner != nullptr)
        owner->activateWindow();
    if (chosen != HalfYearBox::Keep)
        return chosen != HalfYearBox::Rejected;
    const int error =
        rescue::keepState(programFolder, programFolder, box.name().empty() ? term : box.name());
    return error == 0 ||
           askChoice(owner,
                     tr("Der Stand ließ sich nicht aufheben: Im Ordner „Notsicherung“ kann nicht "
                        "geschrieben werden. Wenn Sie weitermachen, sind die Texte danach nur "
                        "noch in den gedruckten Zeugnissen."),
                     {tr("Trotzdem &weiter"), tr("&Zurück")}, 1) == 0;
}

} // namespace zeugnis
