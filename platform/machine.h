#pragma once

#include "platform/text.h"

#include <filesystem>
#include <optional>

namespace zeugnis {

enum class Symbol { Keins, Ausrufezeichen, Frage, Stopp };
enum class Tasten { Ok, JaNein, JaNeinAbbrechen };
enum class Antwort { Ok, Ja, Nein, Abbrechen };

inline constexpr TextView Programmtitel = u"Zeugnisprogramm";

struct Meldung {
    Text text;
    Tasten tasten = Tasten::Ok;
    Symbol symbol = Symbol::Keins;
    Text titel = Text(Programmtitel);
    /// The button that Enter presses; without one it is the first.
    std::optional<Antwort> standard = std::nullopt;

    [[nodiscard]] Antwort standardAntwort() const {
        return standard.value_or(tasten == Tasten::Ok ? Antwort::Ok : Antwort::Ja);
    }
};

/// Message and input boxes. Both return when the user has answered.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual Antwort message(const Meldung& meldung) = 0;
    /// Empty optional if the box was cancelled.
    virtual std::optional<Text> input(const Text& title, const Text& prompt) = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void setText(const Text& text) = 0;
    virtual Text text() = 0;
};

class Calendar {
  public:
    virtual ~Calendar() = default;
    /// Today's date, always dd.mm.yyyy.
    virtual Text today() = 0;
};

class Pictures {
  public:
    virtual ~Pictures() = default;
    /// Whether the file holds a picture that can be shown. The file exists.
    virtual bool canShow(const std::filesystem::path& file) = 0;
};

class Launcher {
  public:
    virtual ~Launcher() = default;
    /// Starts a program and returns at once. `programFolder` becomes its working directory.
    /// Fails with program-not-found.
    virtual void start(const Text& commandLine, const std::filesystem::path& programFolder) = 0;
};

/// What the screens ask of the machine. Everything named must outlive the running program.
struct Machine {
    Dialogs& dialogs;
    Clipboard& clipboard;
    Calendar& calendar;
    Pictures& pictures;
    Launcher& launcher;
};

} // namespace zeugnis
