#include "platform/record_writer.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

TEST(RecordWriter, WritesRecordsAsOtherProgramsReadThem) {
    const TemporaryFolder folder;
    folder.write(u"Probe.txt", u"ein viel längerer alter Inhalt, von dem nichts übrig bleibt");
    const Arbeitsverzeichnis directory(folder.path());
    RecordWriter writer(directory, u"Probe.txt");
    writer.record(1, u"3a", Text(u"Müller, Ä"), u"", -7).record(u"sagt \"ja\"");
    writer.rawLine(u"\"wie, sie steht\"");
    writer.close();
    EXPECT_EQ(folder.read(u"Probe.txt"),
              u"1,\"3a\",\"Müller, Ä\",\"\",-7\r\n\"sagt \"ja\"\"\r\n\"wie, sie steht\"\r\n");
}

TEST(RecordWriter, FailureWhileComposingLeavesWholeRecords) {
    const TemporaryFolder folder;
    folder.write(u"Probe.txt", u"alt\r\n");
    const Arbeitsverzeichnis directory(folder.path());
    const auto compose = [&] {
        RecordWriter writer(directory, u"Probe.txt");
        writer.record(1, u"a").record(2, u"b");
        writer.begin();
        writer.add(3);
        throw Laufzeitfehler(Fehlerart::IndexOutOfRange, u"mitten im Satz");
    };
    EXPECT_EQ(failureOf(compose), "index-out-of-range");
    EXPECT_EQ(folder.read(u"Probe.txt"), u"1,\"a\"\r\n2,\"b\"\r\n");
}

TEST(RecordWriter, FailsAtOnceIfTheFolderIsMissing) {
    const TemporaryFolder folder;
    const Arbeitsverzeichnis directory(folder.path());
    EXPECT_EQ(failureOf([&] { RecordWriter(directory, u"Daten\\Probe.txt"); }), "path-not-found");
}

} // namespace
} // namespace zeugnis::test
