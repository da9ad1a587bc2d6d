#include "tests/fuzz/file_fault.h"

#include <gtest/gtest.h>

#include <random>

namespace zeugnis::test {
namespace {

constexpr const char* Sound =
    "1,\"3a\",\"M\xFCller\",\"Anna, Lea\",\"w\",\"03.07.2018\",\"\",\"\","
    "\"\",\"\",\"Ort\"\r\n2,\"3a\",\"x\",\"Zeile\r\nZeile\",\"\",\"\"\r\n3,1,2,0,1,0,2,0,1,0,9\r\n";

std::string damaged(std::mt19937& random, int round) {
    std::string bytes = Sound;
    for (int flip = 0; flip <= round % 4; ++flip) {
        char& byte = bytes[random() % bytes.size()];
        byte = static_cast<char>(byte ^ (1 << (random() % 8)));
    }
    if (round % 5 == 0)
        bytes.resize(random() % bytes.size());
    if (round % 7 == 0)
        bytes.insert(random() % (bytes.size() + 1), "\",\r\n-" + std::to_string(random()));
    return bytes;
}

TEST(DamagedFiles, EndInARunTimeFailureAtWorst) {
    std::mt19937 random(20270315);
    for (int round = 0; round < 40; ++round) {
        const std::string bytes = damaged(random, round);
        for (size_t file = 0; file < damagedFiles(); ++file)
            EXPECT_EQ(fileFault(file, bytes), "") << file << ' ' << testing::PrintToString(bytes);
    }
}

} // namespace
} // namespace zeugnis::test
