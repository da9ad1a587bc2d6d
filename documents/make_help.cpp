#include "documents/app/document_files.h"
#include "documents/content/help_markup.h"
#include "platform/failure.h"
#include "platform/whole_file.h"

#include <QGuiApplication>

#include <iostream>

namespace {

using namespace zeugnis;

void hilfeSchreiben(const Arbeitsverzeichnis& quelle, const Arbeitsverzeichnis& ziel,
                    const std::string& stamm) {
    const Text name = textFromUtf8(stamm);
    const Text markup = textFromUtf8(readWholeFile(quelle, name + u".txt"));
    const auto bilder = [&](const Text& bild) { return readWholeFile(quelle, bild); };
    dokumente::DokumentSchreiben(ziel, dokumente::HilfeAusMarkup(markup, bilder), name);
}

} // namespace

/// make_help SOURCE TARGET: makes .doc and .pdf from all help texts in the folder SOURCE.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "usage: make_help SOURCE TARGET\n";
        return 2;
    }
    try {
        const Arbeitsverzeichnis quelle(argv[1]);
        const Arbeitsverzeichnis ziel(argv[2]);
        for (const auto& datei : std::filesystem::directory_iterator(quelle.current()))
            if (datei.path().extension() == ".txt")
                hilfeSchreiben(quelle, ziel, datei.path().stem().string());
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << utf8FromText(sentenceOf(failure)) << '\n';
        return 1;
    }
}
