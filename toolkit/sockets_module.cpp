#include "toolkit/local_sockets.h"

extern "C" Q_DECL_EXPORT void zeugnisSockets(zeugnis::localcalls::Sockets& sockets) {
    sockets = {&zeugnis::localsockets::answer, &zeugnis::localsockets::call};
}
