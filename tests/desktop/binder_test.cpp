#include "tests/desktop/entry_window_test.h"

#include <QFrame>

namespace zeugnis::test {
namespace {

using BinderTest = EntryWindowTest;

TEST_F(BinderTest, LeavesNoWidgetWithoutAName) {
    for (QWidget* window : QApplication::topLevelWidgets())
        for (QWidget* one : window->findChildren<QWidget*>()) {
            if (one->focusPolicy() == Qt::NoFocus || !one->isVisible())
                continue;
            const auto* labelled = qobject_cast<QAbstractButton*>(one);
            EXPECT_FALSE(one->accessibleName().isEmpty() &&
                         (labelled == nullptr || labelled->text().isEmpty()))
                << one->metaObject()->className();
        }
}

} // namespace
} // namespace zeugnis::test
