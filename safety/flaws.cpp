#include "safety/flaws.h"

#include "files/section_stores.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "safety/layouts.h"
#include "safety/records.h"

#include <algorithm>
#include <array>

namespace zeugnis::safety {
namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::array<std::string_view, 2> Utf16Marks = {"\xFF\xFE", "\xFE\xFF"};

bool isUtf8(std::string_view content) {
    bool beyondAscii = false;
    for (size_t at = 0; at < content.size();) {
        const auto byte = static_cast<unsigned char>(content[at]);
        const size_t length = byte < 0x80              ? 1
                              : (byte & 0xE0U) == 0xC0 ? 2
                              : (byte & 0xF0U) == 0xE0 ? 3
                              : (byte & 0xF8U) == 0xF0 ? 4
                                                       : 0;
        if (length == 0 || at + length > content.size())
            return false;
        for (size_t i = 1; i < length; ++i)
            if ((static_cast<unsigned char>(content[at + i]) & 0xC0U) != 0x80)
                return false;
        beyondAscii = beyondAscii || length > 1;
        at += length;
    }
    return beyondAscii;
}

bool isNumber(const Text& text) {
    try {
        numberFromText(text, u"");
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

// Whether the class of this year works with the file.
bool concerns(const std::string& name, const ClassSize& size) {
    const Text file = shownName(name);
    const auto is = [&](TextView store) {
        return sameIgnoringCase(file, Text(dateien::Daten) + u"\\" + Text(store));
    };
    if (is(dateien::Speicher12) || is(dateien::Sperre12))
        return size.year == u"1" || size.year == u"2";
    if (is(dateien::Speicher34) || is(dateien::Sperre34))
        return size.year == u"3" || size.year == u"4";
    return is(dateien::AVSVspeicher) || is(dateien::AVSVWahl);
}

std::optional<Flaw> flawOfRecord(const Record& record, const Layout& layout, bool last) {
    const size_t count = record.fields.size();
    const size_t wanted = layout.fields.size();
    for (size_t i = 0; i < std::min(count, wanted); ++i) {
        const Field& field = record.fields[i];
        if (!field.closed)
            return Flaw{.kind = last ? Damage::Cut : Damage::ShiftedFields,
                        .pupil = pupilOf(record, layout),
                        .field = layout.fields[i]};
        if (field.trailing)
            return Flaw{.kind = Damage::ShiftedFields,
                        .pupil = pupilOf(record, layout),
                        .field = layout.fields[i]};
        const bool cut = last && !record.complete && i + 1 == count;
        if (!layout.texts[i] && (field.quoted || !isNumber(field.value)) && !cut)
            return Flaw{.kind = Damage::ShiftedFields,
                        .pupil = pupilOf(record, layout),
                        .field = layout.fields[i]};
    }
    if (count == wanted)
        return std::nullopt;
    return Flaw{.kind = count < wanted && last && !record.complete ? Damage::Cut
                                                                   : Damage::ShiftedFields,
                .pupil = pupilOf(record, layout),
                .field = layout.fields[std::min(count, wanted - 1)]};
}

std::optional<Flaw> encodingFlaw(std::string_view content) {
    const bool wide = std::any_of(Utf16Marks.begin(), Utf16Marks.end(),
                                  [&](std::string_view mark) { return content.starts_with(mark); });
    if (wide || content.starts_with(Utf8Mark))
        return Flaw{.kind = Damage::Encoding, .mark = true};
    if (isUtf8(content))
        return Flaw{.kind = Damage::Encoding};
    return std::nullopt;
}

Text place(const Finding& finding) {
    Text text = u"in Datensatz " + textFromNumber(static_cast<int>(finding.record));
    if (!finding.pupil.empty())
        text += u" (" + finding.pupil + u")";
    return text + u", Feld „" + finding.field + u"“";
}

bool isStore(const std::string& name) {
    const std::optional<Layout> layout = layoutOf(name);
    return layout && layout->byPupil && layout->records == 0;
}

Text lossSentence(const std::string& name) {
    if (isStore(name))
        return u"Beim nächsten Öffnen fehlten die Einträge der Kinder darin, und das nächste "
               u"Speichern würde sie auch in der Kopie des Tages leeren.";
    return u"Das Programm fände darin nicht, was es braucht: Texte fehlten, oder es würde mit "
           u"einer Fehlermeldung enden.";
}

} // namespace

std::optional<Flaw> flawOf(const std::string& name, const std::string& content,
                           const ClassSize& size) {
    const std::optional<Layout> layout = layoutOf(name);
    if (!layout)
        return std::nullopt;
    if (std::optional<Flaw> flaw = encodingFlaw(content))
        return flaw;
    const bool wanted = layout->byPupil && layout->records == 0 && concerns(name, size);
    if (content.empty() && (layout->records > 0 || (wanted && !size.pupils.empty())))
        return Flaw{.kind = Damage::Empty};
    const std::vector<Record> records = recordsOf(decodeWindows1252(content));
    for (size_t i = 0; i < records.size(); ++i)
        if (std::optional<Flaw> flaw = flawOfRecord(records[i], *layout, i + 1 == records.size())) {
            flaw->record = i + 1;
            return flaw;
        }
    if (wanted && records.size() < size.pupils.size())
        return Flaw{.kind = Damage::FewerRecords,
                    .pupil = size.pupils[records.size()],
                    .records = records.size()};
    return std::nullopt;
}

ClassSize classSizeOf(const std::string& names) {
    ClassSize size;
    for (const Record& record : recordsOf(decodeWindows1252(names)))
        if (record.fields.size() > 3) {
            size.year = record.fields[1].value.substr(0, 1);
            size.pupils.push_back(record.fields[2].value + u", " + record.fields[3].value);
        }
    return size;
}

std::optional<std::string> fromUtf8(std::string_view content) {
    if (content.starts_with(Utf8Mark))
        content.remove_prefix(Utf8Mark.size());
    const Text text = textFromUtf8(content);
    if (utf8FromText(text) != content || nearestInWindows1252(text) != text)
        return std::nullopt;
    return encodeWindows1252(text);
}

void describe(Finding& finding, const Flaw& flaw, size_t pupils) {
    const Text file = u"Die Datei „" + shownName(finding.file) + u"“ ";
    switch (flaw.kind) {
    case Damage::Missing:
        finding.sentence = file + u"ist nicht mehr da.";
        finding.consequence =
            u"Das Programm würde mit einer Fehlermeldung enden, sobald es sie lesen will.";
        break;
    case Damage::Unreadable:
        finding.sentence = file + u"lässt sich nicht lesen.";
        finding.consequence =
            u"Das Programm würde mit einer Fehlermeldung enden, sobald es sie lesen will.";
        break;
    case Damage::TooLarge:
        finding.sentence = file + u"ist größer als alles, was das Programm je hineinschreibt.";
        finding.consequence =
            u"Das Öffnen würde sehr lange dauern, und das Programm würde mit einer "
            u"Fehlermeldung enden.";
        break;
    case Damage::Empty:
        finding.sentence = file + u"ist leer.";
        finding.consequence = lossSentence(finding.file);
        break;
    case Damage::Cut:
        finding.sentence = file + u"bricht mittendrin ab: " + place(finding) + u".";
        finding.consequence = u"Beim Öffnen würde das Programm mit einer Fehlermeldung enden, oder "
                              u"der Rest wäre leer.";
        break;
    case Damage::FewerRecords:
        finding.sentence = file + u"hat nur " + textFromNumber(static_cast<int>(flaw.records)) +
                           u" Datensätze, die Klasse aber " +
                           textFromNumber(static_cast<int>(pupils)) +
                           u" Kinder. Es fehlt alles ab " + finding.pupil + u".";
        finding.consequence = lossSentence(finding.file);
        break;
    case Damage::Encoding:
        finding.sentence = file +
                           u"ist in einer anderen Zeichenkodierung gespeichert (Unicode statt "
                           u"Windows-1252), vermutlich von einem Texteditor.";
        finding.consequence =
            flaw.mark ? u"Beim Öffnen würde das Programm mit einer Fehlermeldung enden, oder am "
                        u"Anfang stünden fremde Zeichen."
                      : u"Statt der Umlaute stünden Zeichen wie „Ã¤“ in den Texten.";
        break;
    case Damage::ShiftedFields:
        finding.sentence =
            file + u"ist " + place(finding) +
            u", gestört. Meist steht dort ein Anführungszeichen (\") mitten im Text.";
        finding.consequence =
            u"Der Rest dieses Textes ginge verloren, die folgenden Felder rutschten "
            u"weiter, und das Programm würde mit einer Fehlermeldung enden.";
        break;
    case Damage::ChangedByHand:
        finding.sentence = file + u"wurde außerhalb des Programms geändert.";
        finding.consequence = u"Sie ist lesbar und wird so verwendet, wie sie jetzt ist.";
        break;
    }
}

} // namespace zeugnis::safety
