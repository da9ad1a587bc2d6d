#include "tests/window_driver/pressed_dialogs.h"

#include "desktop/dialog_box.h"
#include "driver/command_line.h"
#include "platform/failure.h"
#include "tests/window_driver/pointing.h"
#include "tests/window_driver/typing.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace zeugnis::windowdriver {
namespace {

QDialogButtonBox::StandardButton buttonFor(Antwort antwort) {
    switch (antwort) {
    case Antwort::Ja:
        return QDialogButtonBox::Yes;
    case Antwort::Nein:
        return QDialogButtonBox::No;
    case Antwort::Abbrechen:
        return QDialogButtonBox::Cancel;
    case Antwort::Ok:
        break;
    }
    return QDialogButtonBox::Ok;
}

QPushButton* buttonOf(const DialogBox& box, Antwort antwort) {
    return box.findChild<QDialogButtonBox*>()->button(buttonFor(antwort));
}

QString textOf(const DialogBox& box) {
    for (const QLabel* label : box.findChildren<QLabel*>())
        if (!label->text().isEmpty())
            return label->text();
    return {};
}

} // namespace

PressedDialogs::PressedDialogs(std::ostream& out, driver::DialogScript& script)
    : m_out(out), m_script(script) {
    qApp->installEventFilter(this);
}

PressedDialogs::~PressedDialogs() { qApp->removeEventFilter(this); }

// A failure is what the windows know to stop at; the driver tells the complaint instead.
void PressedDialogs::giveUp(const std::string& reason) {
    complain(reason);
    throw Laufzeitfehler(Fehlerart::InvalidCall, textFromUtf8(reason));
}

void PressedDialogs::complain(const std::string& reason) {
    if (!complaint)
        complaint = reason;
}

Antwort PressedDialogs::message(const Meldung& meldung) {
    try {
        m_answer = m_script.takeAnswer(meldung.tasten);
    } catch (const driver::CommandError& error) {
        giveUp(error.what());
    }
    const Antwort expected = *m_answer;
    m_expected = &meldung;
    const Antwort pressed = DesktopDialogs::message(meldung);
    if (pressed != expected)
        complain("a message box gave another answer than its button");
    m_script.print(meldung, pressed);
    return pressed;
}

std::optional<Text> PressedDialogs::input(const Text& title, const Text& prompt) {
    try {
        m_input = m_script.takeInput();
    } catch (const driver::CommandError& error) {
        giveUp(error.what());
    }
    const Meldung shown{.text = prompt, .titel = title};
    m_expected = &shown;
    m_answer = m_input ? Antwort::Ok : Antwort::Abbrechen;
    std::optional<Text> written = DesktopDialogs::input(title, prompt);
    m_script.printInput(title, prompt, m_input);
    return written;
}

bool PressedDialogs::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show)
        if (auto* box = qobject_cast<DialogBox*>(watched)) {
            ++m_shown;
            QTimer::singleShot(0, box, [this, box] { press(*box); });
        }
    return false;
}

void PressedDialogs::compare(const DialogBox& box, const Meldung& meldung) {
    if (box.windowTitle() != qString(meldung.titel) || textOf(box) != qString(meldung.text))
        complain("a box shows another title or text than its message");
}

void PressedDialogs::press(DialogBox& box) {
    mouse::activate(box);
    const Meldung* expected = std::exchange(m_expected, nullptr);
    const std::optional<Antwort> answer = std::exchange(m_answer, std::nullopt);
    if (expected == nullptr)
        return answerOwnBox(box);
    compare(box, *expected);
    if (box.findChild<QLineEdit*>() != nullptr && m_input)
        keyboard::paste(*m_input);
    QPushButton* button = buttonOf(box, *answer);
    if (button == nullptr) {
        complain("a box has no button for the answer");
        box.done(0);
    } else if (button->isDefault()) {
        keyboard::press(Qt::Key_Return);
    } else {
        mouse::click(*button, button->rect().center());
    }
}

void PressedDialogs::answerOwnBox(DialogBox& box) {
    QPushButton* ok = buttonOf(box, Antwort::Ok);
    Antwort answer = ok != nullptr ? Antwort::Ok : Antwort::Ja;
    if (m_tellOwn && !m_silent) {
        try {
            answer = m_script.takeAnswer(ok != nullptr ? Tasten::Ok : Tasten::JaNein);
        } catch (const driver::CommandError& error) {
            complain(error.what());
        }
        m_out << "own box " << driver::jsonString(fromQString(textOf(box))) << " -> "
              << (answer == Antwort::Nein ? "no"
                  : answer == Antwort::Ja ? "yes"
                                          : "ok")
              << '\n';
    }
    QPushButton* button = buttonOf(box, answer);
    mouse::click(*button, button->rect().center());
}

} // namespace zeugnis::windowdriver
