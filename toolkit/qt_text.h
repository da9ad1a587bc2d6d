#pragma once

#include "platform/path_text.h"

#include <QString>

namespace zeugnis {

/// Both sides are UTF-16, so this only copies.
inline QString qString(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString qPath(const std::filesystem::path& path) { return qString(textFromPath(path)); }

inline Text fromQString(const QString& text) { return text.toStdU16String(); }

} // namespace zeugnis
