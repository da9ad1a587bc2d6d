#include "safety/recovery.h"

#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "safety/actions.h"
#include "safety/restore.h"
#include "safety/states.h"

#include <algorithm>
#include <cerrno>
#include <set>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

Text whenAndWhat(const Journal& journal) {
    std::set<std::string> names;
    for (const Former& one : journal.files)
        names.insert(one.name);
    const Text action = actionOf(names);
    return Text(u"vom ") + shownDay(journal.begin) + u", " + shownTime(journal.begin) + u" Uhr" +
           (action.empty() ? Text() : u" („" + action + u"“)");
}

Text namesOf(const std::vector<std::string>& files) {
    std::vector<Text> names;
    names.reserve(files.size());
    for (const std::string& file : files)
        names.push_back(shownName(file));
    return enumerated(names);
}

class Interrupted {
  public:
    using Wanted = std::function<bool(std::string_view)>;

    Interrupted(const Paths& paths, const fs::path& journal, const Wanted& wanted,
                Recovery& recovery)
        : m_paths(paths), m_journal(journal), m_wanted(wanted), m_recovery(recovery) {}
    ~Interrupted() {
        if (m_opened.handle >= 0)
            raw::close(m_opened.handle);
    }
    Interrupted(const Interrupted&) = delete;
    Interrupted& operator=(const Interrupted&) = delete;

    void takeBack() {
        m_opened = raw::openForWriting(m_journal);
        if (m_opened.error == 0 && raw::tryLock(m_opened.handle) == raw::Lock::Held)
            return; // of a program that is running
        const raw::Content content = raw::read(m_journal);
        if (content.error == ENOENT)
            return; // it has ended meanwhile
        if (content.error != 0)
            return obstacle(
                u"Eine unterbrochene Speicherung kann nicht gelesen werden; geprüft "
                u"werden muss die Datei „" +
                shownName("Notsicherung/Staende/" + utf8FromPath(m_journal.filename())) + u"“.");
        const Journal journal = readJournal(content.bytes);
        if (m_wanted && !std::all_of(journal.files.begin(), journal.files.end(),
                                     [&](const Former& one) { return m_wanted(one.name); }))
            return;
        Restored restored = restore(m_paths, journal.files);
        // What is old may have to give way to what is needed.
        if (restored.diskFull && States(m_paths.program).makeRoom(2 * content.bytes.size()))
            restored = restore(m_paths, journal.files);
        if (!restored.complete())
            return obstacle(u"Die Speicherung " + whenAndWhat(journal) +
                            u" wurde unterbrochen und kann noch nicht zurückgenommen werden. "
                            u"Nicht beschreiben lässt sich: " +
                            namesOf(restored.failed) + u".");
        remove(journal);
    }

  private:
    void obstacle(const Text& sentence) {
        m_recovery.obstacles.push_back(
            sentence + u" Bitte prüfen Sie, ob der Datenträger voll oder schreibgeschützt ist, "
                       u"und starten Sie das Programm dann noch einmal.");
    }

    void remove(const Journal& journal) {
        int error = 0;
        if (journal.damaged) {
            fs::path aside = m_journal;
            aside += Damaged;
            error = raw::rename(m_journal, aside);
        } else {
            error = raw::remove(m_journal);
        }
        if (error == 0)
            error = raw::syncFolder(m_paths.states);
        if (error != 0)
            return obstacle(u"Die Speicherung " + whenAndWhat(journal) +
                            u" wurde zurückgenommen, aber der Ordner „Notsicherung“ lässt sich "
                            u"nicht aufräumen.");
        if (!journal.files.empty())
            m_recovery.takenBack.push_back(
                u"Die Speicherung " + whenAndWhat(journal) +
                u" wurde unterbrochen. Damit nichts durcheinandergerät, stehen alle ihre Dateien "
                u"wieder so da wie vorher." +
                Text(journal.damaged ? u" Ihr Protokoll war beschädigt; bitte sehen Sie die Texte "
                                       u"durch."
                                     : u""));
    }

    const Paths& m_paths;
    const fs::path& m_journal;
    const Wanted& m_wanted;
    Recovery& m_recovery;
    raw::Opened m_opened;
};

} // namespace

Recovery takeBackInterrupted(const fs::path& programFolder) {
    return takeBackInterrupted(programFolder, {});
}

Recovery takeBackInterrupted(const fs::path& programFolder,
                             const std::function<bool(std::string_view name)>& wanted) {
    Recovery recovery;
    const Paths paths(programFolder);
    std::error_code failed;
    std::vector<fs::path> journals = filesEndingIn(paths.states, UnderWay, failed);
    if (failed)
        recovery.obstacles.emplace_back(
            u"Der Ordner „Notsicherung\\Staende“ lässt sich nicht öffnen. Deshalb ist nicht "
            u"sicher, "
            u"ob eine Speicherung unterbrochen wurde. Bitte prüfen Sie den Datenträger und starten "
            u"Sie das Programm dann noch einmal.");
    std::reverse(journals.begin(), journals.end());
    for (const fs::path& journal : journals) {
        // What is older must not be put back before what is newer.
        if (!recovery.complete())
            break;
        Interrupted(paths, journal, wanted, recovery).takeBack();
    }
    return recovery;
}

} // namespace zeugnis::safety
