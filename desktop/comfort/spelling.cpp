#include "desktop/comfort/spelling.h"

#include "checks/text_checks.h"
#include "common/screen_names.h"
#include "desktop/comfort/check_thread.h"
#include "desktop/comfort/class_knowledge.h"
#include "desktop/comfort/spelling_marks.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "documents/content/report_marks.h"
#include "toolkit/qt_text.h"

#include <QCoreApplication>
#include <QPointer>

#include <array>
#include <utility>

namespace zeugnis {

namespace {

struct Watched {
    TextView screen;
    Spelling::Purpose purpose;
};
constexpr auto WatchedScreens = std::to_array<Watched>({
    {bildschirme::GsArbeitsverhalten, Spelling::Purpose::Report},
    {bildschirme::Kompetenzen, Spelling::Purpose::Report},
    {bildschirme::GSAGFI, Spelling::Purpose::Report},
    {bildschirme::GSAVSVAenderung, Spelling::Purpose::Module},
    {bildschirme::GSAenderung12, Spelling::Purpose::Module},
    {bildschirme::GSAenderung34, Spelling::Purpose::Module},
});

constexpr size_t MostSuggestions = 6;

// Brings an answer to the windows, if whoever has asked is still there.
template <typename Answer>
void hand(const QPointer<QObject>& receiver, const std::function<void(const Answer&)>& found,
          Answer answer) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [receiver, found, answer = std::move(answer)] {
            if (receiver)
                found(answer);
        },
        Qt::QueuedConnection);
}

} // namespace

Spelling& Spelling::of(WindowHost& host) {
    if (auto* spelling = host.findChild<Spelling*>())
        return *spelling;
    return *new Spelling(host);
}

Spelling::Spelling(WindowHost& host)
    : QObject(&host), m_host(host), m_thread(CheckThread::of(host)) {}

void Spelling::lookUp(const QString& text, Purpose purpose, QObject* receiver,
                      std::function<void(const Marks&)> found) {
    m_thread.post([knowledge = m_thread.knowledge(), text = text.toStdU16String(), purpose,
                   receiver = QPointer(receiver),
                   found = std::move(found)](const CheckThread::Dictionary& dictionary) {
        Marks marks;
        if (const Rechtschreibung* german = dictionary()) {
            knowledge->readOnce();
            const Textumstand circumstance{
                .Vorname = {},
                .Geschlecht = {},
                .Bausteine = purpose == Purpose::Report ? &knowledge->modules : nullptr,
                .Woerterbuch = german,
                .Bekannt = &knowledge->known};
            for (const Wort& word : UnbekannteWoerter(text, circumstance))
                marks.push_back(
                    {static_cast<int>(word.Stelle), static_cast<int>(word.Text.size())});
        }
        hand(receiver, found, std::move(marks));
    });
}

void Spelling::suggest(const QString& word, QObject* receiver,
                       std::function<void(const QStringList&)> found) {
    m_thread.post([word = word.toStdU16String(), receiver = QPointer(receiver),
                   found = std::move(found)](const CheckThread::Dictionary& dictionary) {
        QStringList suggestions;
        if (const Rechtschreibung* german = dictionary())
            for (const Text& one : german->vorschlaege(word))
                if (suggestions.size() < static_cast<qsizetype>(MostSuggestions))
                    suggestions << qString(one);
        hand(receiver, found, std::move(suggestions));
    });
}

void Spelling::learn(const QString& word) {
    m_host.run(
        [&] { dokumente::WoerterLernen(m_host.program().directory(), {fromQString(word)}); });
    m_thread.readAnew();
    emit m_thread.wordsLearnt();
    emit changed();
}

void Spelling::switchOn(bool on) {
    m_on = on;
    emit changed();
}

void addSpelling(ScreenWindow& window, const Screen& screen, WindowHost& host) {
    for (const Watched& watched : WatchedScreens) {
        if (watched.screen != screen.name())
            continue;
        Spelling& spelling = Spelling::of(host);
        CheckThread::of(host).readAnew(); // the master data may have changed
        for (TextEditor* editor : window.findChildren<TextEditor*>())
            // What is read like a label is the program's own word.
            if (!editor->property("paper").toBool())
                new SpellingMarks(*editor, spelling, watched.purpose);
    }
}

} // namespace zeugnis
