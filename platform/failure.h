#pragma once

#include "platform/text.h"

#include <exception>
#include <string>
#include <string_view>

namespace zeugnis {

enum class Fehlerart {
    FileNotFound,
    PathNotFound,
    EndOfFile,
    IndexOutOfRange,
    TypeMismatch,
    Overflow,
    AccessDenied,
    DiskFull,
    InvalidPicture,
    InvalidCall,
    ProgramNotFound,
};

/// The name by which a kind is known outside, for example "file-not-found".
std::string_view kindName(Fehlerart kind);

/// A failure that ends the program. It is caught in one place per program, and besides only where
/// an operation is guarded.
class Laufzeitfehler : public std::exception {
  public:
    /// `sentence` is German and says what failed and where: file with folder, record and field,
    /// index and bound.
    Laufzeitfehler(Fehlerart kind, Text sentence);

    [[nodiscard]] Fehlerart kind() const { return m_kind; }
    [[nodiscard]] const Text& sentence() const { return m_sentence; }
    [[nodiscard]] const char* what() const noexcept override { return m_what.c_str(); }

  private:
    Fehlerart m_kind;
    Text m_sentence;
    std::string m_what;
};

/// The German sentence of a failure, or one for any other exception: what a program's outer edge
/// tells before it ends.
Text sentenceOf(const std::exception& failure);

} // namespace zeugnis
