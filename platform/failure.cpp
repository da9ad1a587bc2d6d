#include "platform/failure.h"

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

} // namespace zeugnis
