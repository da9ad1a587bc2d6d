#include "driver/driver_machine.h"

#include "driver/command_line.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zeugnis::driver {
namespace {

constexpr std::array<std::pair<Antwort, const char*>, 4> AnswerNames =
    std::to_array<std::pair<Antwort, const char*>>({
        {Antwort::Ok, "ok"},
        {Antwort::Ja, "yes"},
        {Antwort::Nein, "no"},
        {Antwort::Abbrechen, "cancel"},
    });

const char* nameOf(Antwort answer) { return AnswerNames.at(static_cast<size_t>(answer)).second; }

const char* nameOf(Symbol icon) {
    constexpr std::array Names = {"none", "exclamation", "question", "stop"};
    return Names.at(static_cast<size_t>(icon));
}

const char* nameOf(Tasten buttons) {
    constexpr std::array Names = {"ok", "yesno", "yesnocancel"};
    return Names.at(static_cast<size_t>(buttons));
}

bool fits(Antwort answer, Tasten buttons) {
    switch (buttons) {
    case Tasten::Ok:
        return answer == Antwort::Ok;
    case Tasten::JaNein:
        return answer == Antwort::Ja || answer == Antwort::Nein;
    case Tasten::JaNeinAbbrechen:
        return answer != Antwort::Ok;
    }
    return false;
}

} // namespace

Antwort DialogScript::takeAnswer(Tasten buttons) {
    const bool queuedFits = !m_answers.empty() && fits(m_answers.front(), buttons);
    if (!queuedFits) {
        if (buttons == Tasten::Ok)
            return Antwort::Ok;
        throw CommandError(m_answers.empty()
                               ? "a message box came up and no answer is queued"
                               : "a message box came up that has no button for the queued answer");
    }
    const Antwort answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

std::optional<Text> DialogScript::takeInput() {
    if (m_inputs.empty())
        throw CommandError("an input box came up and no input is queued");
    std::optional<Text> answer = std::move(m_inputs.front());
    m_inputs.pop_front();
    return answer;
}

void DialogScript::print(const Meldung& meldung, Antwort answer) {
    m_out << "message title=" << jsonString(meldung.titel) << " icon=" << nameOf(meldung.symbol)
          << " buttons=" << nameOf(meldung.tasten)
          << " default=" << nameOf(meldung.standardAntwort())
          << " text=" << jsonString(meldung.text) << " -> " << nameOf(answer) << '\n';
}

void DialogScript::printInput(const Text& title, const Text& prompt,
                              const std::optional<Text>& answer) {
    m_out << "inputbox title=" << jsonString(title) << " prompt=" << jsonString(prompt) << " -> "
          << (answer ? jsonString(*answer) : "cancel") << '\n';
}

Antwort ScriptedDialogs::message(const Meldung& meldung) {
    const Antwort answer = m_script.takeAnswer(meldung.tasten);
    m_script.print(meldung, answer);
    return answer;
}

std::optional<Text> ScriptedDialogs::input(const Text& title, const Text& prompt) {
    std::optional<Text> answer = m_script.takeInput();
    m_script.printInput(title, prompt, answer);
    return answer;
}

void PrintingLauncher::start(const Text& commandLine, const std::filesystem::path&) {
    m_out << "run " << jsonString(commandLine) << '\n';
}

std::optional<Antwort> answerFromName(TextView name) {
    const std::string wanted = utf8FromText(name);
    const auto* const found =
        std::find_if(AnswerNames.begin(), AnswerNames.end(),
                     [&](const auto& entry) { return entry.second == wanted; });
    if (found == AnswerNames.end())
        return std::nullopt;
    return found->first;
}

} // namespace zeugnis::driver
