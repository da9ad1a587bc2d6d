#include "platform/version.h"

namespace zeugnis {

TextView Programmversion() { return u"" ZEUGNIS_VERSION; }

} // namespace zeugnis
