#pragma once

#include <filesystem>

class QPixmap;

namespace zeugnis {

/// The picture in a JPEG file as windows show it; null if the file holds none. One from a camera
/// comes no larger than windows need it. What was shown last is kept until its file changes.
QPixmap jpegPicture(const std::filesystem::path& file);

} // namespace zeugnis
