#include "documents/app/document_files.h"
#include "documents/app/word_processor.h"
#include "documents/pdf/qt_text.h"
#include "documents/window/preview_window.h"
#include "documents/window/progress.h"
#include "documents/window/theme.h"
#include "platform/failure.h"
#include "platform/machine.h"

#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>

#include <algorithm>
#include <iostream>

namespace {

using namespace zeugnis;
using namespace zeugnis::dokumente;

constexpr TextView OhneFenster = u"--no-window";

int ohneFenster(const std::vector<Text>& argumente) {
    Arbeitsverzeichnis verzeichnis(std::filesystem::current_path());
    DokumentBereitstellen(verzeichnis, AufrufLesen(argumente));
    return 0;
}

Anzeige mitFortschrittSuchen(const Dokumentdateien& dateien, const QTemporaryDir& ordner) {
    return withProgress(QStringLiteral("Das Dokument wird vorbereitet …"), nullptr, [&] {
        return AnzeigeFinden(dateien, [&](const std::filesystem::path& dokument) {
            return inPdfUmwandeln(dokument, ordner.path().toStdU16String());
        });
    });
}

int mitFenster(const std::vector<Text>& argumente) {
    const Aufruf aufruf = AufrufLesen(argumente);
    const Dokumentdateien dateien =
        withProgress(QStringLiteral("Das Dokument wird geschrieben …"), nullptr, [&] {
            Arbeitsverzeichnis verzeichnis(std::filesystem::current_path());
            return DokumentBereitstellen(verzeichnis, aufruf);
        });
    const QTemporaryDir ordner;
    PreviewWindow fenster([&] { return mitFortschrittSuchen(dateien, ordner); });
    fenster.show();
    QApplication::setQuitOnLastWindowClosed(true);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    std::vector<Text> argumente;
    for (int i = 1; i < argc; ++i)
        argumente.push_back(textFromUtf8(argv[i]));
    const bool stumm =
        std::find(argumente.begin(), argumente.end(), OhneFenster) != argumente.end();

    std::unique_ptr<QGuiApplication> application;
    if (stumm) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        auto widgets = std::make_unique<QApplication>(argc, argv);
        QApplication::setApplicationDisplayName(qString(Programmtitel));
        // Progress and messages come and go before the window does.
        QApplication::setQuitOnLastWindowClosed(false);
        theme::apply(*widgets);
        application = std::move(widgets);
    }
    try {
        return stumm ? ohneFenster(argumente) : mitFenster(argumente);
    } catch (const Laufzeitfehler& failure) {
        if (stumm)
            std::cerr << failure.what() << '\n';
        else
            QMessageBox::warning(nullptr, qString(Programmtitel), qString(failure.sentence()));
        return 1;
    }
}
