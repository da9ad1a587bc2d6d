#include "driver/driver.h"

#include "controls/list_controls.h"
#include "controls/text_box.h"
#include "driver/properties.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "program/all_screens.h"

#include <algorithm>
#include <limits>
#include <string>

namespace zeugnis::driver {
namespace {

std::string qualifiedName(const Control& control) {
    return utf8FromText(control.screen().name() + u"." + control.fullName());
}

int numberOf(const Word& word) {
    try {
        return numberFromText(word.text, u"number");
    } catch (const Laufzeitfehler&) {
        throw CommandError("not a number: " + utf8FromText(word.text));
    }
}

const Text& textOf(const Word& word) {
    if (!word.quoted)
        throw CommandError("a text stands in double quotes");
    return word.text;
}

} // namespace

struct Driver::Command {
    TextView name;
    Handler handler;
    size_t leastWords; ///< behind the name
    size_t mostWords;
};

const std::vector<Driver::Command>& Driver::commands() {
    static const std::vector<Command> Commands = {
        {u"start", &Driver::start, 0, 0},
        {u"click", &Driver::click, 1, 1},
        {u"dblclick", &Driver::doubleClick, 1, 1},
        {u"select", &Driver::select, 2, 2},
        {u"focus", &Driver::focus, 1, 1},
        {u"blur", &Driver::blur, 1, 1},
        {u"caret", &Driver::caret, 2, 3},
        {u"type", &Driver::type, 2, 2},
        {u"key", &Driver::key, 2, 2},
        {u"paste", &Driver::paste, 2, 2},
        {u"settext", &Driver::setText, 2, 2},
        {u"tick", &Driver::tick, 1, 1},
        {u"close", &Driver::close, 1, 1},
        {u"answer", &Driver::answer, 1, 1},
        {u"input", &Driver::input, 1, 1},
        {u"clipboard", &Driver::clipboard, 0, 1},
        {u"get", &Driver::get, 1, 1},
        {u"dump", &Driver::dump, 1, 1},
        {u"screens", &Driver::screens, 0, 0},
        {u"quit", &Driver::quit, 0, 0},
    };
    return Commands;
}

Driver::Driver(std::ostream& out, const Surroundings& surroundings, DialogScript& script,
               Hand& hand)
    : m_out(out),
      m_script(script),
      m_hand(hand),
      m_launcher(out),
      m_folder(surroundings.folder),
      m_watcher(surroundings.watcher) {
    if (surroundings.date)
        m_calendar = std::make_unique<FixedCalendar>(*surroundings.date);
    else
        m_calendar = std::make_unique<SystemCalendar>();
}

Driver::~Driver() { m_hand.finish(); }

int Driver::run(std::istream& commands) {
    std::string line;
    while (std::getline(commands, line))
        if (const std::optional<int> exitCode = step(line))
            return *exitCode;
    return 0;
}

std::optional<int> Driver::step(const std::string& line) {
    try {
        if (line.starts_with('#'))
            return std::nullopt;
        const Words words = splitCommand(line);
        if (words.empty())
            return std::nullopt;
        execute(words);
        // Whoever sends the commands may wait for the answer to one before the next.
        m_out.flush();
    } catch (const Laufzeitfehler& failure) {
        m_out << "fatal " << kindName(failure.kind()) << ' ' << jsonString(failure.sentence())
              << '\n';
        return 1;
    } catch (const CommandError& error) {
        m_out << "error " << jsonString(textFromUtf8(error.what())) << '\n';
        return 2;
    }
    if (m_program && m_program->ended()) {
        m_out << "end\n";
        return 0;
    }
    return m_quit ? std::optional(0) : std::nullopt;
}

void Driver::execute(const Words& words) {
    const auto& all = commands();
    const auto command = std::find_if(all.begin(), all.end(), [&](const Command& candidate) {
        return !words[0].quoted && candidate.name == words[0].text;
    });
    if (command == all.end() && m_program && m_hand.ownCommand(words))
        return;
    if (command == all.end())
        throw CommandError("no such command: " + utf8FromText(words[0].text));
    const size_t behind = words.size() - 1;
    if (behind < command->leastWords || behind > command->mostWords)
        throw CommandError("wrong number of words behind " + utf8FromText(words[0].text));
    (this->*command->handler)(words);
}

void Driver::start(const Words&) {
    if (!m_program) {
        m_program = std::make_unique<Programm>(
            Machine{m_hand.dialogs(), m_hand.clipboard(), *m_calendar, m_pictures, m_launcher},
            m_folder);
        m_program->directory().watchWrites(m_watcher);
        BildschirmeAnmelden(*m_program);
    }
    m_hand.start(*m_program);
}

void Driver::click(const Words& words) {
    Control& target = control(words[1]);
    reached(m_hand.click(target), target);
}

void Driver::doubleClick(const Words& words) {
    Control& target = control(words[1]);
    reached(m_hand.doubleClick(target), target);
}

void Driver::select(const Words& words) {
    auto& list = controlAs<ListControl>(words[1], "combo or list");
    const int index = numberOf(words[2]);
    if (index < 0 || index >= static_cast<int>(list.entries().size()))
        throw CommandError("the list has no such entry");
    reached(m_hand.pick(list, index), list);
}

void Driver::focus(const Words& words) {
    Control& target = control(words[1]);
    reached(m_hand.focus(target), target);
}

void Driver::blur(const Words& words) { m_hand.blur(screen(words[1].text)); }

void Driver::caret(const Words& words) {
    const auto place = [](const Word& word) {
        return static_cast<size_t>(std::max(0, numberOf(word)));
    };
    auto& box = controlAs<TextBox>(words[1], "text box");
    m_hand.caret(box, place(words[2]), place(words.back()));
}

void Driver::type(const Words& words) {
    if (auto* combo = dynamic_cast<ComboBox*>(&control(words[1])))
        return reached(m_hand.type(*combo, textOf(words[2])), *combo);
    auto& box = controlAs<TextBox>(words[1], "text box");
    reached(m_hand.type(box, textOf(words[2])), box);
}

void Driver::key(const Words& words) {
    const int code = numberOf(words[2]);
    if (code < 0)
        throw CommandError("a key has no negative code");
    auto& box = controlAs<TextBox>(words[1], "text box");
    reached(m_hand.key(box, static_cast<char16_t>(code)), box);
}

void Driver::paste(const Words& words) {
    auto& box = controlAs<TextBox>(words[1], "text box");
    reached(m_hand.paste(box, textOf(words[2])), box);
}

void Driver::setText(const Words& words) {
    auto& box = controlAs<TextBox>(words[1], "text box");
    if (box.reachable())
        m_hand.caret(box, 0, std::numeric_limits<size_t>::max());
    reached(m_hand.paste(box, textOf(words[2])), box);
}

void Driver::tick(const Words& words) { m_hand.tick(controlAs<Timer>(words[1], "timer")); }

void Driver::close(const Words& words) {
    const Text& name = words[1].text;
    if (!m_hand.close(screen(name)))
        m_out << "unreachable " << utf8FromText(name) << '\n';
}

void Driver::answer(const Words& words) {
    const std::optional<Antwort> answer = answerFromName(words[1].text);
    if (!answer)
        throw CommandError("no such answer: " + utf8FromText(words[1].text));
    m_script.queueAnswer(*answer);
}

void Driver::input(const Words& words) {
    if (!words[1].quoted && words[1].text == u"cancel")
        m_script.queueInput(std::nullopt);
    else
        m_script.queueInput(textOf(words[1]));
}

void Driver::clipboard(const Words& words) {
    if (words.size() == 1)
        m_out << "clipboard = " << jsonString(m_hand.clipboardText()) << '\n';
    else if (!words[1].quoted && words[1].text == u"clear")
        m_hand.clipboard().clear();
    else
        m_hand.clipboard().setText(textOf(words[1]));
}

void Driver::get(const Words& words) {
    const Text& name = words[1].text;
    const size_t dot = name.rfind(u'.');
    if (dot == Text::npos)
        throw CommandError("get needs Screen.Control.Property");
    printProperty(control({name.substr(0, dot)}), utf8FromText(name.substr(dot + 1)));
}

void Driver::dump(const Words& words) {
    for (const Control* one : screen(words[1].text).controls())
        for (const std::string& property : propertiesOf(*one))
            printProperty(*one, property);
}

void Driver::screens(const Words&) {
    for (const TextView name : AlleBildschirme())
        if (const Screen* loaded = m_program ? m_program->find(name) : nullptr)
            m_out << "screen " << utf8FromText(name) << (loaded->shown() ? " shown" : " hidden")
                  << '\n';
}

void Driver::quit(const Words&) { m_quit = true; }

Programm& Driver::program() {
    if (!m_program)
        throw CommandError("the program has not been started");
    return *m_program;
}

Screen& Driver::screen(TextView name) {
    Screen* found = program().find(name);
    if (found == nullptr)
        throw CommandError("the screen is not loaded: " + utf8FromText(name));
    return *found;
}

Control& Driver::control(const Word& word) {
    const size_t dot = word.text.find(u'.');
    if (dot == Text::npos)
        throw CommandError("a control is named Screen.Control: " + utf8FromText(word.text));
    Control* found = screen(word.text.substr(0, dot)).find(word.text.substr(dot + 1));
    if (found == nullptr)
        throw CommandError("no such control: " + utf8FromText(word.text));
    return *found;
}

template <typename T>
T& Driver::controlAs(const Word& word, const char* kind) {
    auto* typed = dynamic_cast<T*>(&control(word));
    if (typed == nullptr)
        throw CommandError(utf8FromText(word.text) + " is no " + kind);
    return *typed;
}

void Driver::printProperty(const Control& control, const std::string& property) {
    m_hand.lookAt(control);
    const std::optional<std::string> value = propertyValue(control, property);
    if (!value)
        throw CommandError(qualifiedName(control) + " has no property " + property);
    m_out << qualifiedName(control) << '.' << property << " = " << *value << '\n';
}

void Driver::reached(bool reached, const Control& control) {
    // The control may be gone by now, but only if the action arrived.
    if (!reached)
        m_out << "unreachable " << qualifiedName(control) << '\n';
}

std::optional<Surroundings> surroundingsFrom(const std::vector<Text>& arguments) {
    if (arguments.size() != 1 && arguments.size() != 3)
        return std::nullopt;
    Surroundings surroundings{pathFromText(arguments[0]), std::nullopt};
    if (arguments.size() == 3) {
        if (arguments[1] != u"--date")
            return std::nullopt;
        surroundings.date = arguments[2];
    }
    return surroundings;
}

} // namespace zeugnis::driver
