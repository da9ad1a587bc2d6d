#include "checks/hunspell_spelling.h"

#include <array>
#include <filesystem>
#include <hunspell/hunspell.hxx>

namespace zeugnis {
namespace {

constexpr std::array Woerterbuecher = {"/usr/share/hunspell/de_DE",
                                       "/usr/share/myspell/dicts/de_DE"};

class HunspellRechtschreibung : public Rechtschreibung {
  public:
    explicit HunspellRechtschreibung(const std::string& stamm)
        : m_hunspell((stamm + ".aff").c_str(), (stamm + ".dic").c_str()),
          m_utf8(m_hunspell.get_dict_encoding() == "UTF-8") {}

    [[nodiscard]] bool kennt(TextView wort) const override {
        return m_hunspell.spell(m_utf8 ? utf8FromText(Text(wort)) : latin1(wort));
    }

  private:
    static std::string latin1(TextView wort) {
        std::string bytes;
        for (const char16_t zeichen : wort)
            bytes += zeichen <= 0xFF ? static_cast<char>(zeichen) : '?';
        return bytes;
    }

    mutable Hunspell m_hunspell; // looking up is not const there
    bool m_utf8;
};

} // namespace

std::unique_ptr<Rechtschreibung> DeutscheRechtschreibung() {
    std::error_code ignored;
    for (const char* stamm : Woerterbuecher)
        if (std::filesystem::exists(std::string(stamm) + ".dic", ignored))
            return std::make_unique<HunspellRechtschreibung>(stamm);
    return nullptr;
}

} // namespace zeugnis
