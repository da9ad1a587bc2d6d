#include "desktop/editor_groups.h"

#include "editors/editor12.h"
#include "editors/editor34.h"

#include <QCoreApplication>

#include <array>
#include <span>

namespace zeugnis {
namespace {

constexpr int Keins = -1;

// The boxes of a group: a red one in front, where there is one, and the others in a row. Without a
// heading the groups of a page are numbered.
struct Row {
    int field;
    int red;
    int first;
    int last;
    bool right = false; ///< stands in the right half of the page
    const char* heading = nullptr;
    int firstNumber = 1;
};

constexpr std::array<Row, 39> Rows12 = {{
    {1, 0, 1, 7, false, QT_TRANSLATE_NOOP("EditorGroups", "Interessen")},
    {1, Keins, 8, 15, true, QT_TRANSLATE_NOOP("EditorGroups", "Interessen, Fortsetzung"), 8},
    {2, Keins, 0, 3},
    {2, Keins, 4, 7},
    {2, Keins, 8, 11, true},
    {3, Keins, 0, 6},
    {3, Keins, 7, 13},
    {3, Keins, 14, 20, true},
    {3, Keins, 21, 24, true},
    {3, Keins, 25, 28, true},
    {3, Keins, 29, 32, true},
    {4, Keins, 0, 3},
    {4, Keins, 4, 7},
    {4, 31, 8, 11},
    {4, 12, 13, 16, true},
    {4, 17, 18, 23, true},
    {4, 24, 25, 30, true},
    {5, 0, 1, 5},
    {5, 6, 7, 8},
    {5, Keins, 9, 13},
    {5, 14, 15, 20},
    {5, 21, 22, 25, true},
    {5, Keins, 26, 26, true},
    {5, 27, 28, 32, true},
    {6, 0, 1, 3},
    {6, 4, 5, 7},
    {6, 8, 9, 11},
    {6, 12, 13, 15, true},
    {6, 16, 17, 20, true},
    {7, 0, 1, 3},
    {7, 4, 5, 7},
    {7, 8, 9, 11},
    {7, 12, 13, 16, true},
    {7, 17, 18, 21, true},
    {7, 22, 23, 26, true},
    {8, Keins, 0, 0, false, QT_TRANSLATE_NOOP("EditorGroups", "Fester Satz")},
    {8, 1, 2, 9, false, QT_TRANSLATE_NOOP("EditorGroups", "Fächer")},
    {8, Keins, 10, 17, true, QT_TRANSLATE_NOOP("EditorGroups", "Aussage zu den Fächern")},
    {8, Keins, 18, 21, true, QT_TRANSLATE_NOOP("EditorGroups", "Versetzung")},
}};

constexpr std::array<Row, 14> Rows34 = {{
    {1, Keins, 0, 0, false, QT_TRANSLATE_NOOP("EditorGroups", "Anfang des Satzes")},
    {1, Keins, 1, 6, false, QT_TRANSLATE_NOOP("EditorGroups", "Bereiche der Förderung")},
    {1, Keins, 7, 7, false, QT_TRANSLATE_NOOP("EditorGroups", "Ende des Satzes")},
    {2, Keins, 0, 1, true, QT_TRANSLATE_NOOP("EditorGroups", "Aus den Stammdaten")},
    {2, Keins, 2, 3, true, QT_TRANSLATE_NOOP("EditorGroups", "Feste Aussagen")},
    {3, 0, 1, 6, false, QT_TRANSLATE_NOOP("EditorGroups", "Interessen")},
    {3, Keins, 7, 13, true, QT_TRANSLATE_NOOP("EditorGroups", "Interessen, Fortsetzung"), 7},
    {4, Keins, 0, 0, false, QT_TRANSLATE_NOOP("EditorGroups", "Abzeichen")},
    {4, 1, 2, 4, false, QT_TRANSLATE_NOOP("EditorGroups", "Abweichende Noten")},
    {4, Keins, 5, 5, false, QT_TRANSLATE_NOOP("EditorGroups", "Ende dieses Satzes")},
    {4, Keins, 17, 20, false, QT_TRANSLATE_NOOP("EditorGroups", "Versetzung")},
    {4, Keins, 6, 8, true, QT_TRANSLATE_NOOP("EditorGroups", "Lernbemerkung: Anfang")},
    {4, Keins, 9, 13, true, QT_TRANSLATE_NOOP("EditorGroups", "Lernbemerkung: Aufzählung")},
    {4, Keins, 14, 16, true, QT_TRANSLATE_NOOP("EditorGroups", "Lernbemerkung: Urteil und Ende")},
}};

QString tr(const char* text) { return QCoreApplication::translate("EditorGroups", text); }

void addGroups(EditorPage& page, const Bausteineditor& screen, std::span<const Row> rows,
               int field) {
    int number = 0;
    for (const Row& row : rows) {
        if (row.field != field)
            continue;
        BoxGroup group;
        group.heading = row.heading != nullptr ? tr(row.heading) : tr("Gruppe %1").arg(++number);
        group.firstNumber = row.firstNumber;
        const ControlArray<TextBox>& boxes = screen.textfeld(field);
        if (row.red != Keins)
            group.boxes.push_back(&boxes(row.red));
        for (int i = row.first; i <= row.last; ++i)
            group.boxes.push_back(&boxes(i));
        (row.right ? page.right : page.left).push_back(std::move(group));
    }
}

} // namespace

std::vector<EditorPage> pagesOf(GSAenderung12& screen) {
    constexpr std::array<char16_t, GSAenderung12::Seitenzahl> Mnemonics = {u'I', u'Z', u'L', u'c',
                                                                           u'O', u'G', u'R', u'm'};
    std::vector<EditorPage> pages;
    pages.reserve(GSAenderung12::Seitenzahl);
    for (int i = 0; i < GSAenderung12::Seitenzahl; ++i) {
        pages.push_back({screen.Command1(GSAenderung12::ErsteSeite + i),
                         Mnemonics.at(static_cast<size_t>(i)),
                         screen.rahmen(i),
                         {},
                         {}});
        addGroups(pages.back(), screen, Rows12, i + 1);
    }
    pages.back().notes = {&screen.Label2(0), &screen.Label2(1)};
    return pages;
}

std::vector<EditorPage> pagesOf(GSAenderung34& screen) {
    constexpr std::array<char16_t, GSAenderung34::Seitenzahl> Mnemonics = {u'F', u'I', u'm'};
    std::vector<EditorPage> pages;
    pages.reserve(GSAenderung34::Seitenzahl);
    for (int i = 0; i < GSAenderung34::Seitenzahl; ++i)
        pages.push_back(
            {screen.Command2(i), Mnemonics.at(static_cast<size_t>(i)), screen.rahmen(i), {}, {}});
    addGroups(pages[0], screen, Rows34, 1);
    addGroups(pages[0], screen, Rows34, 2);
    addGroups(pages[1], screen, Rows34, 3);
    addGroups(pages[2], screen, Rows34, 4);
    pages[0].left.front().label = &screen.Label3;
    pages[0].right.front().label = &screen.Label4;
    return pages;
}

} // namespace zeugnis
