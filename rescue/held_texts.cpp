#include "rescue/held_texts.h"

#include "behaviour/avsv_editor.h"
#include "behaviour/avsv_entry_screen.h"
#include "controls/program.h"
#include "editors/module_editor.h"
#include "files/section_stores.h"
#include "masterdata/master_data_screen.h"
#include "years12/entry_screen.h"
#include "years34/entry_screen.h"

namespace zeugnis::rescue {
namespace {

using safety::Typed;

constexpr size_t BehindNames = 4; // number, class and names stand in front

std::string inData(TextView file) { return utf8FromText(Text(dateien::Daten) + u"/" + Text(file)); }

Text nameOf(const Schueler& kind) { return kind.Nachname + u", " + kind.Vorname; }

Text digits(int number) { return textFromNumber(number); }

// The box of the screen that has the focus: what stands there is taken over when it is left.
template <typename S>
const TextBox* boxInUse(const S& screen) {
    const Control* focus = screen.programm().focus();
    return focus != nullptr && &focus->screen() == &screen ? dynamic_cast<const TextBox*>(focus)
                                                           : nullptr;
}

class Collected {
  public:
    void pupil(const Schueler& kind) { m_pupil = nameOf(kind); }
    void byPupil(const Speicherdatei& store, size_t place, const Text& value) {
        all.push_back({inData(store.Datei), m_pupil, 0, BehindNames + place, value});
    }

    std::vector<Typed> all;

  private:
    Text m_pupil;
};

void collectAVSV(const GsArbeitsverhalten& screen, Collected& into) {
    const TextBox* inUse = boxInUse(screen);
    for (int i = 0; i < screen.Liste.Schuelerzahl; ++i) {
        into.pupil(screen.Liste.Kinder[i]);
        size_t place = 0;
        size_t choice = AbschnitteAVSV;
        for (const Abschnitt abschnitt : Abschnitte) {
            const Abschnittsspeicher& store = screen.Speicher.von(abschnitt);
            const TextBox& box = screen.Text1(static_cast<int>(place));
            const bool typing = i == screen.Schueler && inUse == &box;
            into.byPupil(speicherdateien::AVSVTexte, place, typing ? box.text() : store.Texte[i]);
            into.byPupil(speicherdateien::AVSVWahl, place, digits(store.Gesperrt[i]));
            for (int k = 0; k < KategorienVon(abschnitt); ++k)
                into.byPupil(speicherdateien::AVSVWahl, choice++, digits(store.Wahl[i][k]));
            ++place;
        }
    }
}

// What the year groups hold alike: a text and a lock for each section.
template <typename Texts, typename Locks>
void collectSections(const Namensliste& list, const Texts& texts, const Locks& locks,
                     const Speicherdatei& textStore, const Speicherdatei& lockStore,
                     int currentPupil, int currentSection, const TextBox* inUse, Collected& into) {
    for (int i = 0; i < list.Schuelerzahl; ++i) {
        into.pupil(list.Kinder[i]);
        for (int section = 0; section < textStore.Texte; ++section) {
            const bool typing = inUse != nullptr && i == currentPupil && section == currentSection;
            const auto place = static_cast<size_t>(section);
            into.byPupil(textStore, place, typing ? inUse->text() : texts[section][i]);
            into.byPupil(lockStore, place, digits(locks[section][i]));
        }
    }
}

void collectSchool(const GsBasis& screen, std::vector<Typed>& into) {
    // By the number of the text box, the field of Basisdaten.txt; -1 for what goes elsewhere.
    constexpr std::array<int, 11> Places = {0, 1, 2, 5, 6, -1, -1, 4, 8, 3, 9};
    for (size_t i = 0; i < Places.size(); ++i)
        if (Places[i] >= 0)
            into.push_back({inData(dateien::Basisdaten),
                            {},
                            1,
                            static_cast<size_t>(Places[i]),
                            screen.Text1(static_cast<int>(i)).text()});
}

void collectList(const GsBasis& screen, std::vector<Typed>& into) {
    for (int i = 0; i < screen.Liste.Schuelerzahl; ++i) {
        Schueler kind = screen.Liste.Kinder[i];
        if (i == screen.AktuellerSchueler && boxInUse(screen) != nullptr) {
            for (size_t field = 1; field < Schuelerfelder.size(); ++field)
                kind.*Schuelerfelder[field].Wert = screen.Text2(static_cast<int>(field)).text();
            for (size_t ag = 0; ag < kind.AG.size(); ++ag)
                kind.AG[ag] = screen.Text3(static_cast<int>(ag)).text();
        }
        size_t field = 2;
        for (const Text* value : FelderVon(static_cast<const Schueler&>(kind)))
            into.push_back({inData(dateien::Namen), nameOf(kind), 0, field++, *value});
    }
}

void collectEditor(const Bausteineditor& screen, std::vector<Typed>& into) {
    for (const Bausteineditor::Platz& place : screen.Plaetze())
        if (!screen.WirdVerworfen(place.Feld))
            into.push_back({inData(place.Datei),
                            {},
                            static_cast<size_t>(place.Zeile),
                            static_cast<size_t>(place.Spalte),
                            place.Feld.text()});
}

void collectEditor(const GSAVSVAenderung& screen, std::vector<Typed>& into) {
    if (!screen.Geladen)
        return;
    for (const Abschnitt abschnitt : Abschnitte) {
        const bool av = abschnitt == Abschnitt::AV;
        const Bausteine& modules = av ? screen.FormulierungenAV : screen.FormulierungenSV;
        const int shown =
            screen.Bereich == abschnitt ? (av ? screen.KategorieAV : screen.KategorieSV) - 1 : -1;
        for (int k = 0; k < KategorienVon(abschnitt); ++k) {
            into.push_back({inData(av ? dateien::AVKategorien : dateien::SVKategorien),
                            {},
                            static_cast<size_t>(k) + 1,
                            1,
                            k == shown ? screen.Text1.text() : modules.Kategorienamen[k]});
            for (int line = 0; line <= 9; ++line)
                into.push_back({inData(av ? dateien::TexteAV : dateien::TexteSV),
                                {},
                                static_cast<size_t>(line) + 1,
                                static_cast<size_t>(k) + 1,
                                k == shown ? screen.Text2(line).text() : modules.Zeilen[k][line]});
        }
    }
}

} // namespace

std::vector<Typed> heldBy(const Screen& screen) {
    Collected into;
    if (const auto* avsv = dynamic_cast<const GsArbeitsverhalten*>(&screen))
        collectAVSV(*avsv, into);
    else if (const auto* young = dynamic_cast<const Kompetenzen*>(&screen))
        collectSections(young->Liste, young->Speicher.Bereichstext, young->Speicher.Sperre,
                        speicherdateien::Texte12, speicherdateien::Sperren12, young->aktSchueler,
                        young->aktSeite, boxInUse(*young), into);
    else if (const auto* old = dynamic_cast<const GSAGFI*>(&screen)) {
        const TextBox* inUse = boxInUse(*old);
        const auto box = std::find(old->Textfelder.begin(), old->Textfelder.end(), inUse);
        collectSections(old->Liste, old->Speicher.Texte, old->Speicher.Sperren,
                        speicherdateien::Texte34, speicherdateien::Sperren34,
                        old->AktuellerSchueler, static_cast<int>(box - old->Textfelder.begin()),
                        inUse, into);
    } else if (const auto* basis = dynamic_cast<const GsBasis*>(&screen)) {
        collectSchool(*basis, into.all);
        collectList(*basis, into.all);
    } else if (const auto* editor = dynamic_cast<const Bausteineditor*>(&screen))
        collectEditor(*editor, into.all);
    else if (const auto* lines = dynamic_cast<const GSAVSVAenderung*>(&screen))
        collectEditor(*lines, into.all);
    return std::move(into.all);
}

} // namespace zeugnis::rescue
