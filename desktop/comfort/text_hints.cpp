#include "desktop/comfort/text_hints.h"

#include "desktop/comfort/check_thread.h"
#include "documents/content/report_marks.h"
#include "documents/content/report_sections.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <exception>
#include <set>
#include <utility>

namespace zeugnis {

using namespace dokumente;

/// What texts are held against, read in the thread before the first of them.
struct TextHints::Knowledge {
    Knowledge(std::filesystem::path programFolder, bool behaviour)
        : folder(std::move(programFolder)),
          source(behaviour ? Abschnittsplan::Quelle::AVSV : Abschnittsplan::Quelle::Bereiche) {}

    void read() {
        Arbeitsverzeichnis directory(folder);
        school = StammdatenLesen(directory);
        sections = AbschnitteFuer(school.Jahrgang, school.Aufbau);
        modules = BausteinwoerterLesen(directory);
        means = {.Platzhalter = PlatzhalterLesen(directory),
                 .Bausteine = &modules,
                 .Gelernte = GelernteLesen(directory)};
        seen = GeseheneLesen(directory);
    }

    [[nodiscard]] std::vector<Text> findings(const Textfrage& question) const {
        const auto section =
            std::find_if(sections.begin(), sections.end(), [&](const Abschnittsplan& one) {
                return one.Woher == source && one.Nummer == static_cast<size_t>(question.Seite);
            });
        if (section == sections.end())
            return {};
        const TextView last =
            std::find_if(sections.rbegin(), sections.rend(), [](const Abschnittsplan& one) {
                return one.Woher != Abschnittsplan::Quelle::Noten;
            })->Ueberschrift;
        std::vector<Text> sentences;
        for (const Befund& finding :
             AbschnittPruefen(school, means,
                              {.Platz = question.Kind,
                              .Ueberschrift = section->Ueberschrift,
                              .Inhalt = question.Inhalt,
                              .NenntVersetzung = section->Ueberschrift == last,
                              .Zwillinge = question.Zwillinge}))
            if (!seen.contains(finding.Vermerk))
                sentences.push_back(finding.Satz);
        return sentences;
    }

    std::filesystem::path folder;
    Abschnittsplan::Quelle source;
    bool isRead = false;
    bool isUsable = false;
    Stammdaten school;
    std::vector<Abschnittsplan> sections;
    Bausteinwoerter modules;
    Pruefmittel means;
    std::set<Text> seen;
};

TextHints::TextHints(CheckThread& thread, std::filesystem::path programFolder,
                     const Eingabeschirm& entry, QObject* parent)
    : QObject(parent),
      m_thread(thread),
      m_folder(std::move(programFolder)),
      m_behaviour(!entry.Kategorien.empty()),
      m_knowledge(std::make_shared<Knowledge>(m_folder, m_behaviour)) {
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TextHints::ask);
}

TextHints::~TextHints() = default;

void TextHints::knowledgeChanged() {
    m_knowledge = std::make_shared<Knowledge>(m_folder, m_behaviour);
    m_answers.clear();
    m_hasAsked = false;
}

std::optional<std::vector<Text>> TextHints::of(const Textfrage& question) {
    const auto [place, isNew] = m_answers.try_emplace({question.Seite, question.Kind});
    Answer& answer = place->second;
    if (!isNew && answer.question == question)
        return answer.known ? std::optional(answer.sentences) : std::nullopt;
    answer.question = question;
    answer.known = false;
    std::erase_if(m_questions, [&](const Textfrage& one) {
        return one.Seite == question.Seite && one.Kind == question.Kind;
    });
    m_questions.push_back(question);
    m_timer.start(m_hasAsked ? Rest : 0);
    return std::nullopt;
}

// A failure leaves the files to those who must read them: there are no hints then.
void TextHints::ask() {
    m_hasAsked = true;
    m_thread.post(
        [self = QPointer(this), knowledge = m_knowledge,
         questions = std::exchange(m_questions, {})](const CheckThread::Dictionary& dictionary) {
            std::vector<std::vector<Text>> answers(questions.size());
            try {
                if (!std::exchange(knowledge->isRead, true)) {
                    knowledge->read();
                    knowledge->isUsable = true;
                }
                knowledge->means.Woerterbuch = dictionary();
                for (size_t i = 0; knowledge->isUsable && i < questions.size(); ++i)
                    answers[i] = knowledge->findings(questions[i]);
            } catch (const std::exception&) {
                answers.assign(questions.size(), {});
            }
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, questions, answers] {
                    if (!self)
                        return;
                    for (size_t i = 0; i < questions.size(); ++i)
                        self->learn(questions[i], answers[i]);
                    emit self->found();
                },
                Qt::QueuedConnection);
        });
}

void TextHints::learn(const Textfrage& question, std::vector<Text> sentences) {
    const auto answer = m_answers.find({question.Seite, question.Kind});
    if (answer == m_answers.end() || answer->second.question != question)
        return;
    answer->second.known = true;
    answer->second.sentences = std::move(sentences);
}

} // namespace zeugnis
