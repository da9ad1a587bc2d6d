#pragma once

#include "checks/module_words.h"
#include "documents/content/class_data.h"

#include <filesystem>
#include <set>
#include <vector>

namespace zeugnis {

/// What the texts of a class are held against, beside the dictionary. Read and used in the thread
/// of the checks alone.
class ClassKnowledge {
  public:
    explicit ClassKnowledge(std::filesystem::path programFolder);

    /// The first time. Files that cannot be read are told of by those who must read them.
    void readOnce();
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

    dokumente::Stammdaten school;
    Bausteinwoerter modules;
    std::vector<Text> placeholders;
    std::set<Text> learnt;
    std::set<Text> known; ///< names of the class, and what was learnt
    std::set<Text> seen;  ///< the marks of hints that are not to be shown again

  private:
    std::filesystem::path m_folder;
    bool m_isRead = false;
    bool m_isWhole = false;
};

} // namespace zeugnis
