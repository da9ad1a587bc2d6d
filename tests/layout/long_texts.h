#pragma once

#include "tests/support/test_installation.h"

#include <string>

namespace zeugnis::test {

/// The delivered installation for one class, as it is or with the longest texts.
class ClassFolder : public TemporaryFolder {
  public:
    ClassFolder(const std::string& klasse, bool longTexts);

  private:
    void nameClass(TextView klasse) const;
    void lengthenModules() const;
    void lengthenNames() const;
};

} // namespace zeugnis::test
