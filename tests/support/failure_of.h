#pragma once

#include "platform/failure.h"

namespace zeugnis::test {

/// The kind of the run-time failure that the action ends with, or "none".
template <typename Action>
std::string_view failureOf(Action action) {
    try {
        action();
    } catch (const Laufzeitfehler& failure) {
        return kindName(failure.kind());
    }
    return "none";
}

/// The sentence of the failure, or an empty text.
template <typename Action>
Text failureSentenceOf(Action action) {
    try {
        action();
    } catch (const Laufzeitfehler& failure) {
        return failure.sentence();
    }
    return {};
}

} // namespace zeugnis::test
