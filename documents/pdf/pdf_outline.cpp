#include "documents/pdf/pdf_outline.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

namespace zeugnis::dokumente {
namespace {

constexpr std::string_view ChecksumKey = "/DocChecksum (";

std::optional<int> numberAt(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \n"), text.size()));
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

// The number behind a word, for example 17 in "/Size 17".
std::optional<int> numberBehind(std::string_view text, std::string_view word) {
    const size_t found = text.rfind(word);
    return found == std::string_view::npos ? std::nullopt
                                           : numberAt(text.substr(found + word.size()));
}

// What of the file is needed for an update of it.
class PdfFile {
  public:
    static std::optional<PdfFile> parse(std::string_view bytes) {
        PdfFile file;
        file.m_bytes = bytes;
        const std::string_view tail =
            bytes.substr(bytes.size() - std::min<size_t>(bytes.size(), 300));
        const auto table = numberBehind(tail, "startxref");
        const auto size = numberBehind(tail, "/Size");
        const auto root = numberBehind(tail, "/Root");
        const auto info = numberBehind(tail, "/Info");
        if (!table || !size || !root || !info || !file.readTable(*table, *size))
            return std::nullopt;
        // PDF/A asks for an identity in the trailer of an update too.
        if (const size_t id = tail.rfind("/ID"); id != std::string_view::npos)
            file.identity = tail.substr(id, tail.find(']', id) + 1 - id);
        file.tableAt = *table;
        file.size = *size;
        file.root = *root;
        file.info = *info;
        return file;
    }

    // The inside of an object's dictionary; empty if there is none.
    [[nodiscard]] std::string_view dictionary(int object) const {
        if (object < 0 || object >= size)
            return {};
        const std::string_view rest = m_bytes.substr(m_offsets[static_cast<size_t>(object)]);
        const size_t first = rest.find("<<");
        const size_t end = rest.find("endobj");
        const size_t last = rest.substr(0, end).rfind(">>");
        if (first == std::string_view::npos || last == std::string_view::npos || last < first)
            return {};
        return rest.substr(first + 2, last - first - 2);
    }

    [[nodiscard]] std::vector<int> pageObjects() const {
        std::vector<int> pages;
        const auto tree = numberBehind(dictionary(root), "/Pages");
        std::string_view kids = dictionary(tree.value_or(-1));
        kids.remove_prefix(std::min(kids.find("/Kids"), kids.size()));
        kids = kids.substr(0, kids.find(']'));
        for (size_t at = kids.find(" 0 R"); at != std::string_view::npos; at = kids.find(" 0 R")) {
            const size_t start = kids.find_last_not_of("0123456789", at - 1) + 1;
            pages.push_back(numberAt(kids.substr(start)).value_or(0));
            kids.remove_prefix(at + 4);
        }
        return pages;
    }

    std::string_view identity; ///< as it stands in the trailer; may be empty
    int tableAt = 0;
    int size = 0;
    int root = 0;
    int info = 0;

  private:
    bool readTable(int at, int entries) {
        constexpr size_t EntryLength = 20;
        size_t start = static_cast<size_t>(at);
        if (start >= m_bytes.size() || m_bytes.substr(start, 5) != "xref\n")
            return false;
        start = m_bytes.find('\n', start + 5) + 1;
        if (start + static_cast<size_t>(entries) * EntryLength > m_bytes.size())
            return false;
        for (int i = 0; i < entries; ++i) {
            const std::string_view entry =
                m_bytes.substr(start + static_cast<size_t>(i) * EntryLength, EntryLength);
            size_t offset = 0;
            std::from_chars(entry.data(), entry.data() + 10, offset);
            if (offset >= m_bytes.size())
                return false;
            m_offsets.push_back(offset);
        }
        return true;
    }

    std::string_view m_bytes;
    std::vector<size_t> m_offsets;
};

std::string hexadecimal(TextView text) {
    std::string hex = "<FEFF";
    for (const char16_t unit : text) {
        std::array<char, 5> digits{};
        static_cast<void>(
            std::snprintf(digits.data(), digits.size(), "%04X", static_cast<unsigned>(unit)));
        hex += digits.data();
    }
    return hex + ">";
}

std::string reference(int object) { return std::to_string(object) + " 0 R"; }

// Collects the new objects behind the file and closes with a table of where they are.
class Update {
  public:
    explicit Update(const std::string& pdf, const PdfFile& file)
        : m_pdf(pdf),
          m_tableAt(file.tableAt),
          m_next(file.size),
          m_root(file.root),
          m_info(file.info),
          m_identity(file.identity) {}

    void add(int object, const std::string& dictionary) {
        m_places.emplace_back(object, m_pdf.size());
        m_next = std::max(m_next, object + 1);
        m_pdf += std::to_string(object) + " 0 obj\n<<" + dictionary + ">>\nendobj\n";
    }

    std::string finished() {
        const size_t table = m_pdf.size();
        m_pdf += "xref\n";
        for (const auto& [object, at] : m_places) {
            std::array<char, 21> entry{};
            static_cast<void>(std::snprintf(entry.data(), entry.size(), "%010zu 00000 n \n", at));
            m_pdf += std::to_string(object) + " 1\n" + entry.data();
        }
        m_pdf += "trailer\n<<\n/Size " + std::to_string(m_next) + "\n/Info " + reference(m_info) +
                 "\n/Root " + reference(m_root) + "\n/Prev " + std::to_string(m_tableAt) + "\n" +
                 m_identity + "\n>>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
        return std::move(m_pdf);
    }

  private:
    std::string m_pdf;
    int m_tableAt;
    int m_next;
    int m_root;
    int m_info;
    std::string m_identity;
    std::vector<std::pair<int, size_t>> m_places;
};

void addBookmarks(Update& update, int outline, const std::vector<Bookmark>& bookmarks,
                  const std::vector<int>& pages) {
    const int first = outline + 1;
    const int count = static_cast<int>(bookmarks.size());
    update.add(outline, "/Type /Outlines /First " + reference(first) + " /Last " +
                            reference(outline + count) + " /Count " + std::to_string(count));
    for (int i = 0; i < count; ++i) {
        const Bookmark& mark = bookmarks[static_cast<size_t>(i)];
        update.add(first + i, "/Title " + hexadecimal(mark.title) + " /Parent " +
                                  reference(outline) +
                                  (i > 0 ? " /Prev " + reference(first + i - 1) : "") +
                                  (i + 1 < count ? " /Next " + reference(first + i + 1) : "") +
                                  " /Dest [" + reference(pages[static_cast<size_t>(mark.page)]) +
                                  " /XYZ 0 " + std::to_string(mark.fromBottom) + " null]");
    }
}

} // namespace

std::string withAdditions(std::string pdf, const std::vector<Bookmark>& bookmarks,
                          std::string_view docChecksum) {
    const std::optional<PdfFile> file = PdfFile::parse(pdf);
    if (!file)
        return pdf;
    const std::vector<int> pages = file->pageObjects();
    const std::string catalogue(file->dictionary(file->root));
    const std::string info(file->dictionary(file->info));
    const auto fits = [&](const Bookmark& mark) {
        return mark.page >= 0 && static_cast<size_t>(mark.page) < pages.size();
    };
    if (catalogue.empty() || info.empty() || !std::all_of(bookmarks.begin(), bookmarks.end(), fits))
        return pdf;

    const int outline = file->size;
    Update update(pdf, *file);
    update.add(file->root, catalogue +
                               (bookmarks.empty() ? std::string()
                                                  : "/Outlines " + reference(outline) +
                                                        "\n/PageMode /UseOutlines\n") +
                               "/Lang (de-DE)\n/ViewerPreferences <</DisplayDocTitle true>>\n");
    if (!bookmarks.empty())
        addBookmarks(update, outline, bookmarks, pages);
    if (!docChecksum.empty())
        update.add(file->info, info + std::string(ChecksumKey) + std::string(docChecksum) + ")\n");
    return update.finished();
}

std::string docChecksumIn(std::string_view pdf) {
    const size_t key = pdf.rfind(ChecksumKey);
    if (key == std::string_view::npos)
        return {};
    const std::string_view rest = pdf.substr(key + ChecksumKey.size());
    return std::string(rest.substr(0, rest.find(')')));
}

} // namespace zeugnis::dokumente
