#include "documents/app/word_processor.h"
#include "documents/window/progress.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>

#include <csignal>

namespace zeugnis::dokumente {
namespace {

// In place of LibreOffice: starts another program, as that does, and never ends.
class EndlessConversion : public testing::Test {
  protected:
    EndlessConversion() : m_searchPath(qgetenv("PATH")) {
        folder.write(u"soffice", u"#!/bin/sh\nsleep 600 &\necho $! > \"$0.tmp\"\n"
                                 u"mv \"$0.tmp\" \"$0.pid\"\nwait\n");
        std::filesystem::permissions(folder.path() / "soffice", std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(folder.path().string()) + ":" + m_searchPath);
    }
    ~EndlessConversion() override { qputenv("PATH", m_searchPath); }

    [[nodiscard]] bool started() const { return folder.has(u"soffice.pid"); }
    [[nodiscard]] bool alive() const {
        return ::kill(std::stoi(utf8FromText(folder.read(u"soffice.pid"))), 0) == 0;
    }

    test::TemporaryFolder folder;

  private:
    QByteArray m_searchPath;
};

TEST_F(EndlessConversion, EndsWithAllItStartedWhenTheUserCancels) {
    folder.write(u"a.pdf", u"of an earlier conversion");
    QTimer pressCancel;
    QObject::connect(&pressCancel, &QTimer::timeout, [&] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QProgressDialog*>(window); dialog && started())
                dialog->findChild<QPushButton*>()->click();
    });
    pressCancel.start(50);
    QElapsedTimer time;
    time.start();
    const auto pdf =
        withProgress(QStringLiteral("…"), nullptr, [&](const std::stop_token& cancelled) {
            return inPdfUmwandeln(folder.path() / "a.doc", folder.path(), cancelled);
        });
    EXPECT_FALSE(pdf.has_value());
    EXPECT_LT(time.elapsed(), 10000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !alive(); })) << "the converter is still running";
}

} // namespace
} // namespace zeugnis::dokumente
