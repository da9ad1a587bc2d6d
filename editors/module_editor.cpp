#include "editors/module_editor.h"

#include "common/editor_common.h"
#include "common/entry_common.h"
#include "common/text_input.h"
#include "controls/program.h"
#include "files/file_catalogue.h"
#include "files/pupil_list.h"
#include "files/school_data.h"

#include <algorithm>
#include <optional>

namespace zeugnis {
namespace {

constexpr int GeleseneBasisfelder = 9;

} // namespace

Bausteineditor::Bausteineditor(Programm& programm, TextView name, TextView title,
                               const Regeln& regeln)
    : Screen(programm, name, title), m_regeln(regeln) {
    for (const Moduldatei& datei : regeln.Dateien)
        m_tabellen.emplace_back(datei.Spalten, datei.ZeilenImEditor);
}

void Bausteineditor::FelderVerbinden(int erstes, int letztes) {
    for (int nummer = erstes; nummer <= letztes; ++nummer)
        textfeld(nummer).each([this](TextBox& feld) {
            AnfuehrungszeichenFernhalten(feld);
            feld.onLostFocus = [this] { TexteUebernehmen(); };
            feld.onDblClick = [&feld] { EinfuegungInsFeld(feld); };
        });
}

const Feldreihe* Bausteineditor::roteReihe(const TextBox& feld) const {
    for (const Feldreihe& reihe : m_regeln.Felder) {
        const int stelle = *feld.index() - reihe.Ab;
        if (reihe.Rot && stelle >= 0 && stelle < reihe.Anzahl &&
            &textfeld(reihe.Textfeld)(*feld.index()) == &feld)
            return &reihe;
    }
    return nullptr;
}

bool Bausteineditor::IstRot(const TextBox& feld) const {
    return feld.Locked || roteReihe(feld) != nullptr;
}

bool Bausteineditor::WirdVerworfen(const TextBox& feld) const {
    const Feldreihe* reihe = roteReihe(feld);
    return reihe != nullptr && m_regeln.Dateien[static_cast<size_t>(reihe->Datei)].Geschrieben == 0;
}

void Bausteineditor::StammdatenLesen(const ControlArray<TextBox>& info) {
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    Klasse = KlasseLesen(programm().directory());
    const Schuldaten schule = BasisdatenLesen(programm().directory(), GeleseneBasisfelder);
    Schuljahr = schule.Schuljahr;
    Halbjahr = schule.Halbjahr;
    Jahrgangsziffer = Klasse.substr(0, 1);
    info(0).setText(u"Klasse " + Klasse + Text(Zeilenende) + Schuljahr);
    info(1).setText(Halbjahr + u". Halbj.");
}

std::vector<Text> Bausteineditor::AktuelleDateien(const Text& jahrgang) const {
    std::vector<Text> namen;
    for (const Moduldatei& datei : m_regeln.Dateien)
        namen.push_back(Modulname(datei, jahrgang));
    return namen;
}

bool Bausteineditor::SpeichertDaneben() const {
    const std::vector<Text> ziele = Zieldateien();
    return !ziele.empty() && ziele != AktuelleDateien(Jahrgangsziffer);
}

bool Bausteineditor::gehoertDazu(const Moduldatei& datei) const {
    return datei.NurJahrgang == 0 || IstZahl(Jahrgangsziffer, datei.NurJahrgang);
}

bool Bausteineditor::FortfahrenOderSchliessen() {
    const bool weiter = FortfahrenFragen(programm());
    if (!weiter)
        MitEinfuegungenVerlassen(*this);
    return weiter;
}

void Bausteineditor::TexteLesen(bool standard, const Text& jahrgang) {
    Dateinamen = AktuelleDateien(jahrgang);
    if (standard)
        std::transform(Dateinamen.begin(), Dateinamen.end(), Dateinamen.begin(), Standardname);
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    std::optional<Ordnerwechsel> inStandard;
    if (standard)
        inStandard.emplace(programm().directory(), dateien::Standard);
    for (size_t i = 0; i < m_tabellen.size(); ++i) {
        const Moduldatei& datei = m_regeln.Dateien[i];
        if (gehoertDazu(datei))
            ModuldateiLesen(programm().directory(), Dateinamen[i], datei, datei.ZeilenImEditor,
                            m_tabellen[i]);
    }
}

template <typename Action>
void Bausteineditor::jedesFeld(Action action) {
    for (const Feldreihe& reihe : m_regeln.Felder) {
        const auto datei = static_cast<size_t>(reihe.Datei);
        if (!gehoertDazu(m_regeln.Dateien[datei]))
            continue;
        if (reihe.Gilt != nullptr && !reihe.Gilt(*this))
            continue;
        for (int j = 0; j < reihe.Anzahl; ++j)
            action(textfeld(reihe.Textfeld)(reihe.Ab + j),
                   m_tabellen[datei](reihe.Spalte, reihe.Zeile + j));
    }
}

std::vector<Bausteineditor::Platz> Bausteineditor::Plaetze() const {
    std::vector<Platz> plaetze;
    const std::vector<Text> namen = Geladen ? Zieldateien() : std::vector<Text>();
    for (const Feldreihe& reihe : m_regeln.Felder) {
        const auto datei = static_cast<size_t>(reihe.Datei);
        if (datei >= namen.size() || m_regeln.Dateien[datei].Geschrieben == 0 ||
            !gehoertDazu(m_regeln.Dateien[datei]) || (reihe.Gilt != nullptr && !reihe.Gilt(*this)))
            continue;
        for (int j = 0; j < reihe.Anzahl; ++j)
            plaetze.push_back({textfeld(reihe.Textfeld)(reihe.Ab + j), namen[datei],
                               reihe.Zeile + j + 1, reihe.Spalte});
    }
    return plaetze;
}

void Bausteineditor::TexteZeigen() {
    jedesFeld([](TextBox& feld, const Text& zelle) { feld.setText(zelle); });
}

void Bausteineditor::TexteUebernehmen() {
    jedesFeld([](const TextBox& feld, Text& zelle) { zelle = feld.text(); });
}

void Bausteineditor::TexteSchreiben() {
    const std::vector<Text> namen = Zieldateien();
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    for (size_t i = 0; i < m_tabellen.size(); ++i) {
        const Moduldatei& datei = m_regeln.Dateien[i];
        if (datei.Geschrieben != 0 && gehoertDazu(datei))
            ModuldateiSchreiben(programm().directory(), namen[i], datei, m_tabellen[i]);
    }
}

void Bausteineditor::SpeichernBestaetigen() {
    SpeichernJa = SicherheitshalberFragen(programm(), m_regeln.SpeichernFrage);
}

void Bausteineditor::SpeichernWennJa() {
    if (!SpeichernJa)
        return;
    TexteSchreiben();
    Gespeichert = true;
}

void Bausteineditor::Command6_Click() {
    if (!Gespeichert && Geladen && SicherheitshalberFragen(programm(), m_regeln.EndeFrage))
        TexteSchreiben();
    MitEinfuegungenVerlassen(*this);
}

void Bausteineditor::StandardFragen() { StandardUeberschreibenFragen(programm(), Passwort); }

void Bausteineditor::StandardKopieren() {
    StandardUeberschreiben(programm(), Passwort, m_regeln.StandardZuKopieren);
}

} // namespace zeugnis
