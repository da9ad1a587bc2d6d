#pragma once

#include "files/pupil_list.h"

#include <optional>
#include <vector>

namespace zeugnis {

class Button;
class ComboBox;
class Frame;
class Screen;
class TextBox;
struct Speicherdatei;

/// What the three entry screens have in common for those who look at them and act on them from
/// outside. It points into the screen and goes with it. Pages are the sections of work and social
/// behaviour, or the pages of a year group.
struct Eingabeschirm {
    Screen* Bildschirm = nullptr;
    const Namensliste* Liste = nullptr;
    ComboBox* Kinder = nullptr;
    std::vector<Button*> Seiten;                     ///< the buttons that open them
    std::vector<TextBox*> Felder;                    ///< their texts
    std::vector<const Schuelertabelle<Text>*> Texte; ///< what is in memory, child by child
    std::vector<Button*> Kategorien; ///< of work and social behaviour; empty elsewhere
    /// The boxes that stand behind the options of their page, though the screen has them in front.
    TextView Zuletzt = {};
    const Speicherdatei* Ablage = nullptr; ///< the store that the texts go to, page by page
    Button* Speichern = nullptr;
    Button* Neu = nullptr; ///< the reset of the page

    /// The page that is open, from 0; -1 for none.
    [[nodiscard]] int Seite() const;
    /// The category whose lines are shown; -1 for none.
    [[nodiscard]] int Kategorie() const;
    /// The text of a child on a page, with what stands in its box but not yet in memory.
    [[nodiscard]] const Text& TextVon(int seite, int kind) const;
    /// Those of all pages.
    [[nodiscard]] std::vector<Text> TexteVon(int kind) const;
    /// The first page on which the child has no text; -1 if it has one on every page.
    [[nodiscard]] int SeiteOhneText(int kind) const;
};

/// None for any other screen.
std::optional<Eingabeschirm> EingabeschirmAus(Screen& screen);

} // namespace zeugnis
