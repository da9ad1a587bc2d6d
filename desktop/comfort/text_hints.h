#pragma once

#include "comfort/class_overview.h"

#include <QObject>
#include <QTimer>

#include <map>

namespace zeugnis {

class CheckThread;
class Rechtschreibung;

/// What is noticed in the texts of an entry window, by the same checks as before printing. It is
/// found in the background; what the teacher has marked as seen is left out.
class TextHints : public QObject {
    Q_OBJECT

  public:
    TextHints(CheckThread& thread, const Eingabeschirm& entry, QObject* parent);

    /// For Klassenuebersicht. Nothing as long as it is not found; then found() comes.
    std::optional<std::vector<Text>> of(const Textfrage& question);

    /// Words may have been learnt, or hints been seen; all is to be asked anew.
    void knowledgeChanged();

  signals:
    void found();

  private:
    struct Answer {
        Textfrage question;
        bool known = false;
        std::vector<Text> sentences;
    };
    using Place = std::pair<int, int>; // page and child

    void ask();
    void learn(const Textfrage& question, std::vector<Text> sentences);

    /// A text that is being typed is looked at when the keys rest.
    static constexpr int Rest = 700;

    CheckThread& m_thread;
    bool m_behaviour;
    std::map<Place, Answer> m_answers;
    std::vector<Textfrage> m_questions; ///< to be asked
    bool m_hasAsked = false;            ///< the texts that were there from the beginning
    QTimer m_timer;
};

} // namespace zeugnis
