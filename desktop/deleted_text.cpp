#include "desktop/deleted_text.h"

#include "controls/text_box.h"
#include "desktop/binder.h"

#include <QPushButton>

#include <utility>

namespace zeugnis {

DeletedText::DeletedText(Binder& binder, const Control& reset, TextBox& box, QPushButton& offer)
    : QObject(&offer),
      m_box(box),
      m_editor(*qobject_cast<TextEditor*>(binder.widgetOf(box))),
      m_offer(offer) {
    connect(&binder, &Binder::clicking, this, [this, &reset](const Control* control) {
        m_before = control == &reset ? m_box.text() : Text();
    });
    connect(&binder, &Binder::clicked, this, [this, &reset](const Control* control) {
        if (control == &reset && !m_before.empty() && m_box.text().empty())
            m_deleted = std::exchange(m_before, {});
        show();
    });
    connect(&binder, &Binder::placeChanged, this, &DeletedText::forget);
    connect(&m_offer, &QPushButton::clicked, this, &DeletedText::bringBack);
    connect(&m_editor, &TextEditor::nothingToUndo, this, &DeletedText::bringBack);
    show();
}

void DeletedText::forget() {
    m_deleted.clear();
    show();
}

void DeletedText::bringBack() {
    if (m_deleted.empty())
        return;
    m_editor.replaceAll(std::exchange(m_deleted, {}));
    show();
}

void DeletedText::show() {
    m_offer.setVisible(!m_deleted.empty());
    spoken::describe(m_editor, m_deleted.empty()
                                   ? QString()
                                   : tr("Der Text ist gelöscht. Strg+Z holt ihn zurück."));
}

} // namespace zeugnis
