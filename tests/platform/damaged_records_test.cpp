#include "tests/fuzz/record_fault.h"

#include <gtest/gtest.h>

#include <random>

namespace zeugnis::test {
namespace {

constexpr const char* Sound =
    "1,\"3a\",\"M\xFCller\",\"Anna, Lea\",\"w\",\"03.07.2018\",\"\",\"\","
    "\"\",\"\",\"Ort\"\r\n2,\"3a\",\"x\",\"Zeile\r\nZeile\",\"\",\"\"\r\n";

TEST(DamagedRecords, EndInARunTimeFailureAtWorst) {
    std::mt19937 random(20270315);
    for (int round = 0; round < 300; ++round) {
        std::string bytes = Sound;
        for (int flip = 0; flip <= round % 4; ++flip) {
            char& byte = bytes[random() % bytes.size()];
            byte = static_cast<char>(byte ^ (1 << (random() % 8)));
        }
        if (round % 5 == 0)
            bytes.resize(random() % bytes.size());
        if (round % 7 == 0)
            bytes.insert(random() % (bytes.size() + 1), "\",\r\n-" + std::to_string(random()));
        EXPECT_EQ(recordFault(bytes), "") << testing::PrintToString(bytes);
    }
}

} // namespace
} // namespace zeugnis::test
