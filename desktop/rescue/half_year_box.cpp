#include "desktop/rescue/half_year_box.h"

#include "desktop/rescue/choice_box.h"
#include "desktop/theme.h"
#include "platform/machine.h"
#include "rescue/last_term.h"
#include "toolkit/qt_text.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

QString tr(const char* text) { return QObject::tr(text); }

class HalfYearBox : public QDialog {
  public:
    HalfYearBox(bool atOnce, const QString& name, QWidget* owner) : QDialog(owner) {
        setWindowTitle(qString(Programmtitel));
        m_column = new QVBoxLayout(this);
        m_column->setContentsMargins(22, 20, 22, 16);
        m_column->setSpacing(10);
        QLabel* head = paragraph(tr("Ein neues Halbjahr oder eine neue Klasse?"));
        head->setFont(theme::scaledFont(1.15, QFont::DemiBold));
        paragraph(atOnce ? tr("Gleich kommt die Frage, ob Sie mit den Zeugniseingaben neu anfangen "
                              "wollen. Mit „Ja“ sind sofort alle Zeugnistexte der Klasse geleert, "
                              "auch wenn Sie danach nicht speichern.")
                         : tr("Gleich kommt die Frage, ob Sie neu anfangen wollen. Antworten Sie "
                              "mit „Ja“, sind mit dem nächsten Speichern alle Zeugnistexte der "
                              "Klasse geleert."));
        paragraph(tr("So geht es gut:\n"
                     "1.  Die fertigen Zeugnisse sind gedruckt oder als PDF gespeichert.\n"
                     "2.  Heben Sie den fertigen Stand hier auf. Er bleibt unter „Frühere Stände“ "
                     "in der Werkzeugkiste, und beim Schreiben zeigt die Taste F5 zu jedem Kind "
                     "den Text vom letzten Halbjahr.\n"
                     "3.  Tragen Sie Halbjahr, Schuljahr und Klasse ein, speichern Sie die "
                     "Basisdaten und starten Sie das Programm neu."));
        m_name = new QLineEdit(name, this);
        auto* label = new QLabel(tr("&Name des Standes:"), this);
        label->setBuddy(m_name);
        m_column->addWidget(label);
        m_column->addWidget(m_name);
        m_column->addSpacing(6);
        answer(tr("Stand auf&heben und weiter"), Keep)->setDefault(true);
        answer(tr("&Ohne Aufheben weiter"), GoOn);
        answer(tr("&Zurück"), Rejected);
        m_name->setFocus();
        m_name->selectAll();
    }

    enum { GoOn = Accepted, Keep };
    [[nodiscard]] Text name() const { return trimmed(fromQString(m_name->text())); }

  private:
    QLabel* paragraph(const QString& text) {
        constexpr int LetterWidths = 74;
        auto* label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(qMin(LetterWidths * fontMetrics().averageCharWidth(), 900));
        m_column->addWidget(label);
        return label;
    }

    QPushButton* answer(const QString& text, int code) {
        auto* button = new QPushButton(text, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, code] { done(code); });
        m_column->addWidget(button);
        return button;
    }

    QVBoxLayout* m_column;
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
    const int error = rescue::keepState(programFolder, box.name().empty() ? term : box.name());
    return error == 0 ||
           askChoice(owner,
                     tr("Der Stand ließ sich nicht aufheben: Im Ordner „Notsicherung“ kann nicht "
                        "geschrieben werden. Wenn Sie weitermachen, sind die Texte danach nur "
                        "noch in den gedruckten Zeugnissen."),
                     {tr("Trotzdem &weiter"), tr("&Zurück")}, 1) == 0;
}

} // namespace zeugnis
