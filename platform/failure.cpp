#include "platform/failure.h"

#include "platform/path_text.h"

#include <new>
#include <utility>

namespace zeugnis {

std::string_view kindName(Fehlerart kind) {
    switch (kind) {
    case Fehlerart::FileNotFound:
        return "file-not-found";
    case Fehlerart::PathNotFound:
        return "path-not-found";
    case Fehlerart::EndOfFile:
        return "end-of-file";
    case Fehlerart::IndexOutOfRange:
        return "index-out-of-range";
    case Fehlerart::TypeMismatch:
        return "type-mismatch";
    case Fehlerart::Overflow:
        return "overflow";
    case Fehlerart::AccessDenied:
        return "access-denied";
    case Fehlerart::DiskFull:
        return "disk-full";
    case Fehlerart::InvalidPicture:
        return "invalid-picture";
    case Fehlerart::InvalidCall:
        return "invalid-call";
    case Fehlerart::ProgramNotFound:
        return "program-not-found";
    }
    return "invalid-call";
}

Laufzeitfehler::Laufzeitfehler(Fehlerart kind, Text sentence)
    : m_kind(kind), m_sentence(std::move(sentence)), m_what(utf8FromText(m_sentence)) {}

Text sentenceOf(const std::exception& failure) {
    if (const auto* known = dynamic_cast<const Laufzeitfehler*>(&failure))
        return known->sentence();
    if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&failure))
        return u"Auf „" + textFromPath(file->path1()) +
               u"“ kann nicht zugegriffen werden. Vielleicht wurde der Datenträger entfernt oder "
               u"der Ordner gelöscht.";
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr)
        return u"Der Arbeitsspeicher dieses Rechners reicht nicht aus.";
    return u"Es ist etwas geschehen, womit das Programm nicht gerechnet hat (" +
           textFromUtf8(failure.what()) + u").";
}

} // namespace zeugnis
