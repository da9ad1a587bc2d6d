#include "comfort/choice_memory.h"

#include "comfort/chosen_lines.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/user_actions.h"
#include "files/section_stores.h"
#include "platform/raw_file.h"
#include "safety/seal.h"
#include "safety/typed_format.h"

#include <algorithm>
#include <utility>

namespace zeugnis {
namespace {

using safety::Typed;

constexpr size_t HinterNamen = 4; // number, class and names stand in front
constexpr char16_t ZwischenZeilen = u';';
constexpr std::string_view Datei = "Auswahl.txt";

bool enthaelt(const std::vector<Text>& zeilen, const Text& zeile) {
    return std::find(zeilen.begin(), zeilen.end(), zeile) != zeilen.end();
}

// Lines of one group differ in their last number.
TextView gruppeVon(TextView zeile) { return zeile.substr(0, zeile.rfind(u'(')); }

TextView zeilenname(TextView zeile) { return zeile.substr(zeile.rfind(u' ') + 1); }

std::vector<Text> getrennt(TextView alle) {
    std::vector<Text> zeilen;
    while (!alle.empty()) {
        const size_t ende = std::min(alle.find(ZwischenZeilen), alle.size());
        zeilen.emplace_back(alle.substr(0, ende));
        alle.remove_prefix(std::min(ende + 1, alle.size()));
    }
    return zeilen;
}

Text pruefsumme(const Text& text) { return textFromUtf8(safety::checksumText(utf8FromText(text))); }

// A press on a dot does nothing; one on another line of the group and back does.
void andereWaehlen(const OptionButton& option) {
    for (Control* control : option.screen().controls())
        if (control != &option && control->name() == option.name() && user::click(*control))
            return;
}

} // namespace

Auswahlgedaechtnis::Auswahlgedaechtnis(Eingabeschirm schirm)
    : m_schirm(std::move(schirm)),
      m_datei(utf8FromText(Text(dateien::Daten) + u"/" + Text(m_schirm.Ablage->Datei))) {
    for (int kind = 0; kind < m_schirm.Liste->Schuelerzahl; ++kind) {
        const Schueler& schueler = m_schirm.Liste->Kinder[kind];
        m_namen.push_back(schueler.Nachname + u", " + schueler.Vorname);
        for (int seite = 0; seite < m_schirm.Ablage->Texte; ++seite) {
            std::vector<Text> zeilen = GespeicherteZeilen(m_schirm, seite, kind);
            const Text& text = m_schirm.TextVon(seite, kind);
            if (!zeilen.empty() && !text.empty())
                m_zettel[{kind, seite}] = {std::move(zeilen), {}, text};
        }
    }
}

Auswahlgedaechtnis::Ort Auswahlgedaechtnis::ort() const {
    return {m_schirm.Kinder->listIndex(), m_schirm.Seite()};
}

const Auswahlgedaechtnis::Zettel* Auswahlgedaechtnis::zettel() const {
    const auto gefunden = m_zettel.find(ort());
    return gefunden == m_zettel.end() ? nullptr : &gefunden->second;
}

void Auswahlgedaechtnis::ansehen() {
    const auto [kind, seite] = ort();
    if (kind < 0 || seite < 0)
        return;
    std::vector<Text> zeilen = GewaehlteZeilen(m_schirm);
    const Text& text = m_schirm.TextVon(seite, kind);
    Zettel& einer = m_zettel[{kind, seite}];
    if (!zeilen.empty())
        einer.Zeilen = std::move(zeilen);
    else if (text.empty() && !einer.Zeilen.empty())
        einer.Geleert = std::exchange(einer.Zeilen, {});
    else if (!text.empty() && einer.Zeilen.empty() && text == einer.Inhalt)
        einer.Zeilen = std::exchange(einer.Geleert, {}); // the reset was undone
    if (!text.empty())
        einer.Inhalt = text;
}

std::vector<Text> Auswahlgedaechtnis::Fruehere() const {
    const Zettel* einer = zettel();
    if (einer == nullptr)
        return {};
    std::vector<Text> zeilen = einer->Geleert.empty() ? einer->Zeilen : einer->Geleert;
    const std::vector<Text> jetzt = GewaehlteZeilen(m_schirm);
    // At a locked text the screen still counts them, though it shows them no more.
    std::erase_if(zeilen, [&](const Text& zeile) {
        const Control* control = m_schirm.Bildschirm->find(zeilenname(zeile));
        return enthaelt(jetzt, zeile) && control != nullptr && control->reachable();
    });
    return zeilen;
}

bool Auswahlgedaechtnis::KannWiederholen() const {
    const Zettel* einer = zettel();
    return einer != nullptr &&
           std::any_of(einer->Geleert.begin(), einer->Geleert.end(), [this](const Text& zeile) {
               const Control* control = m_schirm.Bildschirm->find(zeilenname(zeile));
               return control != nullptr && control->reachable();
           });
}

bool Auswahlgedaechtnis::Wiederholen() {
    if (!KannWiederholen())
        return false;
    const int kategorie = m_schirm.Kategorie();
    for (const Text& zeile : std::exchange(m_zettel[ort()].Geleert, {}))
        waehlen(zeile);
    if (kategorie >= 0)
        user::click(*m_schirm.Kategorien.at(static_cast<size_t>(kategorie)));
    ansehen();
    return true;
}

bool Auswahlgedaechtnis::waehlen(const Text& zeile) {
    Control* control = m_schirm.Bildschirm->find(zeilenname(zeile));
    if (control == nullptr)
        return false;
    if (auto* option = dynamic_cast<OptionButton*>(control)) {
        const std::vector<Text> jetzt = GewaehlteZeilen(m_schirm);
        if (std::any_of(jetzt.begin(), jetzt.end(),
                        [&](const Text& andere) { return gruppeVon(andere) == gruppeVon(zeile); }))
            return false;
        if (const size_t blank = zeile.find(u' '); blank != Text::npos)
            if (Control* kategorie = m_schirm.Bildschirm->find(zeile.substr(0, blank)))
                user::click(*kategorie);
        if (option->value())
            andereWaehlen(*option);
    } else if (const auto* kasten = dynamic_cast<const CheckBox*>(control);
               kasten == nullptr || kasten->value()) {
        return false;
    }
    return user::click(*control);
}

std::vector<Typed> Auswahlgedaechtnis::Aufzuheben() const {
    std::vector<Typed> alle;
    for (const auto& [wo, einer] : m_zettel) {
        if (einer.Zeilen.empty() || einer.Inhalt.empty())
            continue;
        Text wert = pruefsumme(einer.Inhalt);
        for (const Text& zeile : einer.Zeilen)
            wert += ZwischenZeilen + zeile;
        alle.push_back({m_datei, m_namen.at(static_cast<size_t>(wo.first)), 0,
                        HinterNamen + static_cast<size_t>(wo.second), wert});
    }
    return alle;
}

void Auswahlgedaechtnis::Uebernehmen(const std::vector<Typed>& aufgehoben) {
    for (const Typed& eines : aufgehoben) {
        const auto name = std::find(m_namen.begin(), m_namen.end(), eines.pupil);
        if (name == m_namen.end() || eines.file != m_datei || eines.field < HinterNamen ||
            eines.field >= HinterNamen + m_schirm.Texte.size())
            continue;
        const int kind = static_cast<int>(name - m_namen.begin());
        const int seite = static_cast<int>(eines.field - HinterNamen);
        std::vector<Text> zeilen = getrennt(eines.value);
        const Text& text = m_schirm.TextVon(seite, kind);
        if (zeilen.size() < 2 || zeilen.front() != pruefsumme(text))
            continue;
        zeilen.erase(zeilen.begin());
        m_zettel[{kind, seite}] = {std::move(zeilen), {}, text};
    }
}

namespace {

safety::Run gelesen(const safety::Paths& paths) {
    const raw::Content inhalt = raw::read(paths.root / Datei);
    return safety::runFrom(inhalt.bytes).value_or(safety::Run());
}

} // namespace

std::vector<Typed> AuswahlLesen(const std::filesystem::path& programmordner, const Text& schirm) {
    return gelesen(safety::Paths(programmordner)).screens[schirm];
}

int AuswahlSchreiben(const std::filesystem::path& programmordner, const Text& schirm,
                     const std::vector<Typed>& alle) {
    const safety::Paths paths(programmordner);
    safety::Run run = gelesen(paths);
    run.when = safety::now();
    run.screens[schirm] = alle;
    if (const int fehler = safety::makeFolder(paths, paths.root); fehler != 0)
        return fehler;
    return raw::replaceByRename(paths.root / Datei, safety::runBytes(run),
                                raw::Durability::Eventually);
}

} // namespace zeugnis
