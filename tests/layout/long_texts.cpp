#include "tests/layout/long_texts.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace zeugnis::test {
namespace {

namespace fs = std::filesystem;

constexpr size_t LongLine = 150;

const TextView ClassFiles[] = {u"Namen.Txt",      u"AVSVspeicher.txt",  u"AVSVWahl.txt",
                               u"12Speicher.txt", u"12Sperre.txt",      u"34Speicher.txt",
                               u"34Sperre.txt",   u"Bildliststeuer.Txt"};

const TextView ModuleFiles[] = {
    u"TexteAV.txt",       u"TexteSV.txt",     u"Interessen12.Txt", u"Sprechen1.Txt",
    u"Sprechen2.Txt",     u"Lesen1.Txt",      u"Lesen2.Txt",       u"Schreiben1.Txt",
    u"Schreiben2.Txt",    u"Mathe1.Txt",      u"Mathe2.Txt",       u"Bemerkungen1.Txt",
    u"Bemerkungen2.Txt",  u"Versetzung1.Txt", u"Versetzung2.Txt",  u"Versetzung3.Txt",
    u"Versetzung4.Txt",   u"Förder34.Txt",    u"Interessen34.Txt", u"Zensurabweichung.Txt",
    u"Bemerkungen34.Txt", u"AG.Txt"};

void replaceAll(Text& text, TextView former, TextView later) {
    for (size_t at = text.find(former); at != Text::npos; at = text.find(former, at + later.size()))
        text.replace(at, former.size(), later);
}

// Goes on with the words of a line from its beginning.
Text lengthened(TextView line) {
    Text longer(line);
    while (longer.size() < LongLine)
        longer += u" und " + Text(line);
    return longer.substr(0, LongLine);
}

Text withLongFields(TextView content) {
    Text longer;
    for (size_t at = 0; at < content.size();) {
        const size_t open = content.find(u'"', at);
        const size_t close = open == Text::npos ? open : content.find(u'"', open + 1);
        if (close == Text::npos)
            return longer + Text(content.substr(at));
        const TextView field = content.substr(open + 1, close - open - 1);
        longer += Text(content.substr(at, open + 1 - at)) +
                  (field.empty() ? Text() : lengthened(field)) + u'"';
        at = close + 1;
    }
    return longer;
}

} // namespace

ClassFolder::ClassFolder(const std::string& klasse, bool longTexts) {
    fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / "install", path(), fs::copy_options::recursive);
    if (longTexts) {
        lengthenModules();
        lengthenNames();
    }
    nameClass(textFromUtf8(klasse));
}

void ClassFolder::nameClass(TextView klasse) const {
    for (const TextView file : ClassFiles) {
        const Text name = u"Daten/" + Text(file);
        Text content = read(name);
        replaceAll(content, u",\"3a\",", u",\"" + Text(klasse) + u"\",");
        write(name, content);
    }
}

void ClassFolder::lengthenModules() const {
    for (const TextView file : ModuleFiles) {
        const Text name = u"Daten/" + Text(file);
        write(name, withLongFields(read(name)));
    }
}

void ClassFolder::lengthenNames() const {
    for (const TextView file : ClassFiles) {
        const Text name = u"Daten/" + Text(file);
        Text content = read(name);
        replaceAll(content, u"\"Ahlers\",\"Mats\"",
                   u"\"Freiherr von Hohenstein-Wittgenstein\",\"Maximilian-Alexander Benedikt\"");
        write(name, content);
    }
}

} // namespace zeugnis::test
