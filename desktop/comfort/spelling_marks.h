#pragma once

#include "desktop/comfort/spelling.h"
#include "desktop/text_editor.h"

#include <QTimer>

class QContextMenuEvent;
class QMenu;

namespace zeugnis {

/// The words that are underlined in one text, and its context menu, which offers others for them.
/// The word that is being typed is left alone. Belongs to its editor.
class SpellingMarks : public QObject {
    Q_OBJECT

  public:
    SpellingMarks(TextEditor& editor, Spelling& spelling, Spelling::Purpose purpose);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void lookUp();
    void learnt(const QString& text, const Spelling::Marks& marks);
    void underline();
    bool goToNext();
    void showMenu(const QContextMenuEvent& event);
    void showMenu(const QPoint& at, int position);
    void offer(QMenu& menu, const Spelling::Mark& mark);
    void offerSuggestions(QMenu& menu, QAction& rest, const Spelling::Mark& mark);
    void replace(const Spelling::Mark& mark, const QString& word, const QString& by);
    [[nodiscard]] const Spelling::Mark* markAt(int position) const;
    [[nodiscard]] QString wordOf(const Spelling::Mark& mark) const;

    /// Words are looked up when the keys rest.
    static constexpr int Rest = 300;

    TextEditor& m_editor;
    Spelling& m_spelling;
    Spelling::Purpose m_purpose;
    QTimer m_timer;
    Spelling::Marks m_marks;
    QString m_lookedUp;
    bool m_due = true;
};

} // namespace zeugnis
