#include "tests/fuzz/record_fault.h"

#include "behaviour/avsv_stores.h"
#include "files/file_catalogue.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "platform/whole_file.h"
#include "tests/support/test_installation.h"

#include <algorithm>
#include <exception>
#include <vector>

namespace zeugnis::test {
namespace {

std::vector<Text> fieldsOf(RecordReader reader) {
    std::vector<Text> fields;
    while (!reader.atEnd())
        fields.push_back(reader.text());
    return fields;
}

std::string roundTripFault(const Arbeitsverzeichnis& directory, std::string_view bytes) {
    std::vector<Text> fields = fieldsOf({decodeWindows1252(bytes), u"x"});
    // An unquoted field may hold double quotes, which no text that is written may.
    for (Text& field : fields)
        std::replace(field.begin(), field.end(), u'"', u'\'');
    RecordWriter writer(directory, u"Probe.txt");
    for (const Text& field : fields)
        writer.record(field);
    writer.close();
    return fieldsOf({directory, u"Probe.txt"}) == fields ? "" : "written and read back differently";
}

// Loaders of the program on a file of these bytes.
template <typename Load>
std::string loadFault(Arbeitsverzeichnis& directory, TextView file, std::string_view bytes,
                      Load load) {
    {
        const Ordnerwechsel in(directory, dateien::Daten);
        writeWholeFile(directory, file, bytes);
    }
    try {
        load();
    } catch (const Laufzeitfehler& failure) {
        if (failure.sentence().empty())
            return "a failure without a sentence";
    }
    return directory.current() == directory.programFolder() ? "" : "left in another folder";
}

} // namespace

std::string recordFault(std::string_view bytes) {
    static const TestInstallation Installation;
    Arbeitsverzeichnis directory(Installation.path());
    Namensliste list;
    AVSVSpeicher stores;
    try {
        return roundTripFault(directory, bytes) +
               loadFault(directory, dateien::Namen, bytes, [&] { list = NamenLaden(directory); }) +
               loadFault(directory, dateien::TexteSV, bytes, [&] { TexteLadenSV(directory); }) +
               loadFault(directory, dateien::AVSVspeicher, bytes,
                         [&] { SpeicherLaden(directory, list, stores); });
    } catch (const std::exception& unexpected) {
        return unexpected.what();
    }
}

} // namespace zeugnis::test
