#include "platform/stored_name.h"

namespace zeugnis {

std::filesystem::path asStored(const std::filesystem::path& existing) { return existing; }

} // namespace zeugnis
