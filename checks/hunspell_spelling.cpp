#include "checks/hunspell_spelling.h"

#include "platform/program_search.h"

#include <filesystem>
#include <hunspell/hunspell.hxx>

namespace zeugnis {
namespace {

class HunspellRechtschreibung : public Rechtschreibung {
  public:
    HunspellRechtschreibung(const std::filesystem::path& regeln,
                            const std::filesystem::path& woerter)
        : m_hunspell(nameForCLibrary(regeln).c_str(), nameForCLibrary(woerter).c_str()),
          m_utf8(m_hunspell.get_dict_encoding() == "UTF-8") {}

    [[nodiscard]] bool kennt(TextView wort) const override {
        return m_hunspell.spell(bytesOf(wort));
    }

    [[nodiscard]] std::vector<Text> vorschlaege(TextView wort) const override {
        std::vector<Text> alle;
        for (const std::string& bytes : m_hunspell.suggest(bytesOf(wort)))
            alle.push_back(m_utf8 ? textFromUtf8(bytes) : fromLatin1(bytes));
        return alle;
    }

  private:
    [[nodiscard]] std::string bytesOf(TextView wort) const {
        return m_utf8 ? utf8FromText(Text(wort)) : latin1(wort);
    }

    static Text fromLatin1(const std::string& bytes) {
        Text text;
        for (const char byte : bytes)
            text += static_cast<char16_t>(static_cast<unsigned char>(byte));
        return text;
    }

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
    for (const std::filesystem::path& ordner : dictionaryFolders())
        if (std::filesystem::exists(ordner / "de_DE.dic", ignored))
            return std::make_unique<HunspellRechtschreibung>(ordner / "de_DE.aff",
                                                             ordner / "de_DE.dic");
    return nullptr;
}

} // namespace zeugnis
