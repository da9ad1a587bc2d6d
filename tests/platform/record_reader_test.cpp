#include "platform/record_reader.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

using Fields = std::vector<Text>;

Fields fieldsOf(TextView content) {
    RecordReader reader(Text(content), u"Probe.txt");
    Fields fields;
    while (!reader.atEnd())
        fields.push_back(reader.text());
    return fields;
}

TEST(RecordReader, TakesFieldsFromGoodAndDamagedLines) {
    const struct {
        const char* what;
        TextView content;
        Fields fields;
    } cases[] = {
        {"numbers and texts", u"1,\"3a\",\"Müller\"\r\n", {u"1", u"3a", u"Müller"}},
        {"empty file", u"", {}},
        {"commas and apostrophes in a text", u"\"a, 'b'\",\"c\"\r\n", {u"a, 'b'", u"c"}},
        {"line break in a text", u"\"eins\r\nzwei\",3\r\n", {u"eins\r\nzwei", u"3"}},
        {"blanks around fields", u"  7 ,  \"  in  \"  ,  ohne  \r\n", {u"7", u"  in  ", u"ohne"}},
        {"a blank is character 32 only", u"\t1\t,\u00A0x\r\n", {u"\t1\t", u"\u00A0x"}},
        {"rest behind a closing quote",
         u"\"a\"rest \"x\",\"b\" r\r\n\"c\"\r\n",
         {u"a", u"b", u"c"}},
        {"a quote inside shifts the fields",
         u"\"er sagt \"ja, gern\" laut\",\"x\"\r\n",
         {u"er sagt ", u"gern\" laut\"", u"x"}},
        {"empty fields", u",\"\",\r\n", {u"", u"", u""}},
        {"lone CR and lone LF", u"1\r2\n3\r\n4\n\r5", {u"1", u"2", u"3", u"4", u"", u"5"}},
        {"empty line", u"1\r\n\r\n2\r\n", {u"1", u"", u"2"}},
        {"unterminated quote", u"1,\"offen,\r\n2,3\r\n", {u"1", u"offen,\r\n2,3\r\n"}},
        {"last line without end", u"1,\"a\"\r\n2,\"b\"", {u"1", u"a", u"2", u"b"}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(fieldsOf(one.content), one.fields) << one.what;
}

TEST(RecordReader, TakesIntegersOf16BitsAndNothingElse) {
    const struct {
        TextView field;
        int value;
    } good[] = {{u"32767", 32767}, {u"-32768", -32768}, {u" +5 ", 5}, {u"007", 7}, {u"-0", 0}};
    for (const auto& one : good)
        EXPECT_EQ(RecordReader(Text(one.field), u"x").integer(), one.value);

    const struct {
        TextView field;
        const char* kind;
    } bad[] = {
        {u"drei", "type-mismatch"}, {u"\"\"", "type-mismatch"}, {u",", "type-mismatch"},
        {u"1.5", "type-mismatch"},  {u"1 2", "type-mismatch"},  {u"--1", "type-mismatch"},
        {u"-", "type-mismatch"},    {u"\t1", "type-mismatch"},  {u"0x1", "type-mismatch"},
        {u"32768", "overflow"},     {u"-32769", "overflow"},    {u"99999999999999999", "overflow"},
        {u"", "end-of-file"},
    };
    for (const auto& one : bad)
        EXPECT_EQ(failureOf([&] { RecordReader(Text(one.field), u"x").integer(); }), one.kind)
            << utf8FromText(one.field);
}

TEST(RecordReader, SaysWhichFieldOfWhichRecordIsDamaged) {
    const TestInstallation installation;
    installation.write(u"Daten/Probe.txt", u"1,\"zwei\r\nZeilen\"\r\n2,drei\r\n");
    Arbeitsverzeichnis directory(installation.path());
    const Ordnerwechsel in(directory, u"daten");
    RecordReader reader(directory, u"probe.TXT");
    reader.skip(3);
    EXPECT_EQ(failureSentenceOf([&] { reader.integer(); }),
              u"Datei „Daten\\probe.TXT“, Datensatz 2, Feld 2: „drei“ ist keine ganze Zahl.");
    EXPECT_EQ(failureSentenceOf([&] { reader.integer(); }),
              u"Datei „Daten\\probe.TXT“, Datensatz 2, Feld 2: Danach fehlt mindestens ein Feld; "
              u"die Datei ist zu Ende.");
}

// Reads records of a number and a text into the rows that they go to.
struct Rows {
    std::vector<std::pair<int, Text>> taken;
    int last = 0;

    Rows(TextView content, int rows, size_t stopAfter = 99) {
        const TemporaryFolder folder;
        folder.write(u"Probe.txt", content);
        last = readNumberedRecords(Arbeitsverzeichnis(folder.path()), u"Probe.txt", rows,
                                   [&](RecordReader& reader, int row, int) {
                                       taken.emplace_back(row, reader.text());
                                       return taken.size() < stopAfter;
                                   });
    }
};

using Taken = std::vector<std::pair<int, Text>>;

TEST(NumberedRecords, NumberDecidesTheRowOfTheNextRecord) {
    const Rows gaps(u"1,\"a\"\r\n2,\"b\"\r\n5,\"c\"\r\n2,\"d\"\r\n99,\"e\"\r\n", 6);
    EXPECT_EQ(gaps.taken, (Taken{{0, u"a"}, {1, u"b"}, {2, u"c"}, {5, u"d"}, {2, u"e"}}));
    EXPECT_EQ(gaps.last, 99) << "the last number leads nowhere and is not checked";

    const Rows empty(u"", 6);
    EXPECT_TRUE(empty.taken.empty());
    EXPECT_EQ(empty.last, 0);

    const Rows stopped(u"1,\"a\"\r\n2,\"b\"\r\nkeine Zahl", 6, 2);
    EXPECT_EQ(stopped.last, 2);
}

TEST(NumberedRecords, ChecksTheRowBeforeTheRecordIsRead) {
    for (const TextView number : {u"3", u"-1"})
        EXPECT_EQ(failureOf([&] { Rows(Text(number) + u",\"a\"\r\nkeine Zahl", 3); }),
                  "index-out-of-range");
    EXPECT_EQ(failureOf([] { Rows(u"2,\"a\"\r\nkeine Zahl", 3); }), "type-mismatch");
    EXPECT_EQ(failureOf([] { Rows(u"1,\"a\"\r\n2", 3); }), "end-of-file");
}

} // namespace
} // namespace zeugnis::test
