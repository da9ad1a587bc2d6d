#pragma once

#include <functional>
#include <string>
#include <vector>

class QSize;
class QWidget;

namespace zeugnis::test {

/// A window as it stands after a step of the tour.
struct Sight {
    QWidget& window;
    std::string name; ///< "2b-kompetenzen-03"
    /// What has to be there at any size, without scrolling.
    std::vector<const QWidget*> always;
};

struct Content {
    int fontPercent = 100;
    /// Every text module has 150 letters, and the names of the children are long.
    bool longTexts = false;
};

/// Gives the window a size, without its frame, and lets all layouts follow.
void resizeWindow(QWidget& window, const QSize& size);

/// Goes through all windows of both programs, page by page. A stop begins with a new installation;
/// only those whose names hold `part` are made.
void forEveryWindow(const Content& content, const std::function<void(const Sight&)>& look,
                    const std::string& part = {});

} // namespace zeugnis::test
