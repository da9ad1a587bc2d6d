#include "desktop/comfort/text_hints.h"

#include "desktop/comfort/check_thread.h"
#include "desktop/comfort/class_knowledge.h"
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

namespace {

std::vector<Text> findings(const ClassKnowledge& knowledge, const Pruefmittel& means,
                           Abschnittsplan::Quelle source, const Textfrage& question) {
    const std::vector<Abschnittsplan> sections =
        AbschnitteFuer(knowledge.school.Jahrgang, knowledge.school.Aufbau);
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
    for (const Befund& finding : AbschnittPruefen(knowledge.school, means,
                                                  {.Platz = question.Kind,
                                                  .Ueberschrift = section->Ueberschrift,
                                                  .Inhalt = question.Inhalt,
                                                  .NenntVersetzung = section->Ueberschrift == last,
                                                  .Zwillinge = question.Zwillinge}))
        if (!knowledge.seen.contains(finding.Vermerk))
            sentences.push_back(finding.Satz);
    return sentences;
}

std::vector<std::vector<Text>> answersTo(const std::vector<Textfrage>& questions,
                                         ClassKnowledge& knowledge, Abschnittsplan::Quelle source,
                                         const CheckThread::Dictionary& dictionary) {
    std::vector<std::vector<Text>> answers(questions.size());
    knowledge.readOnce();
    if (!knowledge.isWhole())
        return answers;
    const Pruefmittel means{.Platzhalter = knowledge.placeholders,
                            .Bausteine = &knowledge.modules,
                            .Woerterbuch = dictionary(),
                            .Gelernte = knowledge.learnt};
    for (size_t i = 0; i < questions.size(); ++i)
        answers[i] = findings(knowledge, means, source, questions[i]);
    return answers;
}

} // namespace

TextHints::TextHints(CheckThread& thread, const Eingabeschirm& entry, QObject* parent)
    : QObject(parent), m_thread(thread), m_behaviour(!entry.Kategorien.empty()) {
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TextHints::ask);
}

void TextHints::knowledgeChanged() {
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
    const auto source =
        m_behaviour ? Abschnittsplan::Quelle::AVSV : Abschnittsplan::Quelle::Bereiche;
    m_thread.post(
        [self = QPointer(this), knowledge = m_thread.knowledge(), source,
         questions = std::exchange(m_questions, {})](const CheckThread::Dictionary& dictionary) {
            std::vector<std::vector<Text>> answers(questions.size());
            try {
                answers = answersTo(questions, *knowledge, source, dictionary);
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
