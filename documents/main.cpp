#include "documents/app/document_keys.h"
#include "documents/app/report_list_files.h"
#include "documents/app/word_processor.h"
#include "documents/pdf/qt_text.h"
#include "documents/window/preview_window.h"
#include "documents/window/progress.h"
#include "documents/window/report_list_window.h"
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

using Fenster = std::unique_ptr<QWidget>;

std::unique_ptr<PreviewWindow> vorschau(const Dokumentdateien& dateien,
                                        const QTemporaryDir& ordner) {
    return std::make_unique<PreviewWindow>(
        [&ordner, dateien] { return mitFortschrittSuchen(dateien, ordner); });
}

Fenster listenfenster(const Arbeitsverzeichnis& programmordner, bool neu,
                      const QTemporaryDir& ordner) {
    Listenstand stand = withProgress(QStringLiteral("Die Liste wird geöffnet …"), nullptr, [&] {
        Arbeitsverzeichnis verzeichnis = programmordner;
        return ListeBereitstellen(verzeichnis, neu);
    });
    return std::make_unique<ReportListWindow>(
        programmordner, std::move(stand), [&ordner](const Dokumentdateien& dateien) {
            PreviewWindow* druck = vorschau(dateien, ordner).release();
            druck->setAttribute(Qt::WA_DeleteOnClose);
            druck->show();
        });
}

std::vector<Befund> gepruefteKlasse(Arbeitsverzeichnis verzeichnis) {
    return ZeugnissePruefen(ZeugnisdatenLesen(verzeichnis), PlatzhalterLesen(verzeichnis));
}

Fenster dokumentfenster(const Arbeitsverzeichnis& programmordner, const Aufruf& aufruf,
                        bool sindZeugnisse, const QTemporaryDir& ordner) {
    const Dokumentdateien dateien =
        withProgress(QStringLiteral("Das Dokument wird geschrieben …"), nullptr, [&] {
            Arbeitsverzeichnis verzeichnis = programmordner;
            return DokumentBereitstellen(verzeichnis, aufruf);
        });
    std::unique_ptr<PreviewWindow> fenster = vorschau(dateien, ordner);
    if (sindZeugnisse)
        fenster->showChecks([&] { return gepruefteKlasse(programmordner); });
    return fenster;
}

int mitFenster(const std::vector<Text>& argumente) {
    const Aufruf aufruf = AufrufLesen(argumente);
    Arbeitsverzeichnis verzeichnis(std::filesystem::current_path());
    const Fensterart art = FensterFuer(verzeichnis, aufruf);
    const bool neu = art == Fensterart::ZeugnislisteNeu;
    const QTemporaryDir ordner;
    const Fenster fenster =
        neu || art == Fensterart::Zeugnisliste
            ? listenfenster(verzeichnis, neu, ordner)
            : dokumentfenster(verzeichnis, aufruf, art == Fensterart::Zeugnisse, ordner);
    fenster->show();
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
