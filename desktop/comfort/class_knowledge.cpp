#include "desktop/comfort/class_knowledge.h"

#include "documents/content/report_checks.h"
#include "documents/content/report_marks.h"
#include "documents/content/report_text_checks.h"

#include <exception>
#include <utility>

namespace zeugnis {

using namespace dokumente;

ClassKnowledge::ClassKnowledge(std::filesystem::path programFolder)
    : m_folder(std::move(programFolder)) {}

void ClassKnowledge::readOnce() {
    if (std::exchange(m_isRead, true))
        return;
    try {
        Arbeitsverzeichnis directory(m_folder);
        school = StammdatenLesen(directory);
        learnt = GelernteLesen(directory);
        known = NamenDerKlasse(school);
        known.insert(learnt.begin(), learnt.end());
        modules = BausteinwoerterLesen(directory);
        placeholders = PlatzhalterLesen(directory);
        seen = GeseheneLesen(directory);
        m_isWhole = true;
    } catch (const std::exception&) {
        return;
    }
}

} // namespace zeugnis
