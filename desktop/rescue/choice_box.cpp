#include "desktop/rescue/choice_box.h"

#include "platform/machine.h"
#include "toolkit/qt_text.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zeugnis {

int askChoice(QWidget* owner, const QString& text, const QStringList& answers, int safe) {
    QDialog box(owner);
    box.setWindowTitle(qString(Programmtitel));
    auto* column = new QVBoxLayout(&box);
    column->setContentsMargins(22, 20, 22, 16);
    column->setSpacing(10);
    auto* label = new QLabel(text, &box);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(560);
    column->addWidget(label);
    column->addSpacing(6);
    int chosen = static_cast<int>(answers.size()) - 1;
    for (int i = 0; i < answers.size(); ++i) {
        auto* button = new QPushButton(answers[i], &box);
        button->setAutoDefault(false);
        column->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, &box, [&box, &chosen, i] {
            chosen = i;
            box.accept();
        });
        if (i == safe) {
            button->setDefault(true);
            button->setFocus();
        }
    }
    column->setSizeConstraint(QLayout::SetFixedSize);
    box.exec();
    if (owner != nullptr)
        owner->activateWindow();
    return chosen;
}

} // namespace zeugnis
