// The first byte chooses the file, the others are what it holds.

#include "tests/fuzz/file_fault.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const std::string fault = zeugnis::test::fileFault(data[0] % zeugnis::test::damagedFiles(),
                                                       std::string(data + 1, data + size));
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
