#include "editors/module_editor.h"

#include "controls/program.h"
#include "masterdata/pupil_list.h"
#include "masterdata/school_data.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "shell/editor_common.h"
#include "shell/file_catalogue.h"
#include "shell/screen_names.h"
#include "shell/text_input.h"

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
        m_tabellen.emplace_back(datei.Spalten, datei.Zeilen);
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
    Klasse = NamenLaden(programm().verzeichnis()).Klasse;
    const Ordnerwechsel in(programm().verzeichnis(), dateien::Daten);
    const Schuldaten schule = BasisdatenLesen(programm().verzeichnis(), GeleseneBasisfelder);
    Schuljahr = schule.Schuljahr;
    Halbjahr = schule.Halbjahr;
    Jahrgangsziffer = Klasse.substr(0, 1);
    info(0).setText(u"Klasse " + Klasse + Text(Zeilenende) + Schuljahr);
    info(1).setText(Halbjahr + u". Halbj.");
}

std::vector<Text> Bausteineditor::AktuelleDateien(const Text& jahrgang) const {
    std::vector<Text> namen;
    for (const Moduldatei& datei : m_regeln.Dateien)
        namen.push_back(Text(datei.Stamm) + (datei.JeJahrgang ? jahrgang : Text()) + u".Txt");
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
        Schliessen();
    return weiter;
}

void Bausteineditor::TexteLesen(bool standard, const Text& jahrgang) {
    Dateinamen = AktuelleDateien(jahrgang);
    if (standard)
        std::transform(Dateinamen.begin(), Dateinamen.end(), Dateinamen.begin(), Standardname);
    const Ordnerwechsel in(programm().verzeichnis(), dateien::Daten);
    std::optional<Ordnerwechsel> inStandard;
    if (standard)
        inStandard.emplace(programm().verzeichnis(), dateien::Standard);
    for (size_t i = 0; i < m_tabellen.size(); ++i) {
        const Moduldatei& datei = m_regeln.Dateien[i];
        if (!gehoertDazu(datei))
            continue;
        readNumberedRecords(programm().verzeichnis(), Dateinamen[i], datei.Zeilen,
                            [&](RecordReader& reader, int zeile, int) {
                                for (int spalte = 1; spalte <= datei.Spalten; ++spalte)
                                    m_tabellen[i](spalte, zeile) = reader.text();
                            });
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

void Bausteineditor::TexteZeigen() {
    jedesFeld([](TextBox& feld, const Text& zelle) { feld.setText(zelle); });
}

void Bausteineditor::TexteUebernehmen() {
    jedesFeld([](const TextBox& feld, Text& zelle) { zelle = feld.text(); });
}

void Bausteineditor::TexteSchreiben() {
    const std::vector<Text> namen = Zieldateien();
    const Ordnerwechsel in(programm().verzeichnis(), dateien::Daten);
    for (size_t i = 0; i < m_tabellen.size(); ++i) {
        const Moduldatei& datei = m_regeln.Dateien[i];
        if (datei.Geschrieben == 0 || !gehoertDazu(datei))
            continue;
        RecordWriter writer(programm().verzeichnis(), namen[i]);
        for (int zeile = 0; zeile < datei.Geschrieben; ++zeile) {
            writer.begin();
            writer.add(zeile + 1);
            for (int spalte = 1; spalte <= datei.Spalten; ++spalte)
                writer.add(m_tabellen[i](spalte, zeile));
            writer.end();
        }
        writer.close();
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
    Schliessen();
}

void Bausteineditor::Schliessen() {
    Programm& laufendes = programm();
    laufendes.entladen(name());
    laufendes.entladen(bildschirme::Einfuegungen);
}

void Bausteineditor::StandardFragen() { StandardUeberschreibenFragen(programm(), Passwort); }

void Bausteineditor::StandardKopieren() {
    StandardUeberschreiben(programm(), Passwort, m_regeln.StandardZuKopieren);
}

} // namespace zeugnis
