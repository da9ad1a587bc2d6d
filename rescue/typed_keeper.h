#pragma once

#include "platform/machine.h"
#include "safety/guard.h"
#include "safety/typed.h"

#include <map>
#include <tuple>
#include <vector>

namespace zeugnis {

class Programm;
class Screen;

namespace rescue {

/// Sets down what the open screens hold and no file does. Whoever lets the user act tells it of
/// each action and of each question; nothing here changes a screen or a data file.
class TypedKeeper {
  public:
    TypedKeeper(Programm& programm, const std::filesystem::path& programFolder,
                safety::Clock clock = safety::now);

    /// To be called before an action that may drop a screen, such as a click or a close box.
    void note();
    void actionEnded();

    /// On the disk when it returns. Gives 0 or the number of an error. To be called within two
    /// seconds of a change, and before the program ends in any way.
    int setDown();

    /// A question comes up in the middle of an action, and is answered. A No to the question
    /// whether to save, behind which the screen is gone, has thrown away knowingly what it held.
    void questionComes() { setDown(); }
    void answered(const Meldung& question, Antwort answer);
    /// The teacher has closed the window although something would be lost.
    void closesKnowingly(const Screen& screen);

    void unitEnded(safety::Guard::Outcome outcome);

    /// German: what is not saved, as far as it fits into a box, and that it is kept. Empty if
    /// nothing is.
    Text unsavedSentence();

    /// The title of an open screen, but for one, that holds what is not saved; empty if none does.
    Text unsavedBut(TextView screen);

    safety::TypedStore& store() { return m_store; }

  private:
    /// Where something belongs: file, pupil, record and field.
    using Place = std::tuple<std::string, Text, size_t, size_t>;
    struct Watched {
        const Screen* screen = nullptr;
        std::map<Place, Text> saved; ///< as the files hold it, or as the screen came up with it
        std::vector<safety::Typed> unsaved;
        std::vector<safety::Typed> left; ///< by screens of this name that are gone
    };

    static Place placeOf(const safety::Typed& typed);
    void note(Watched& watched);
    void countAsSaved();
    void part(const Text& name, Watched& watched, bool knowingly);
    [[nodiscard]] bool isLoaded(const Screen* screen) const;

    Programm& m_programm;
    std::filesystem::path m_folder;
    safety::TypedStore m_store;
    std::map<Text, Watched> m_watched; ///< by the name of the screen
    std::vector<const Screen*> m_closedKnowingly;
    bool m_saidNo = false;
    bool m_kept = false;
};

} // namespace rescue
} // namespace zeugnis
