#include "documents/app/document_files.h"
#include "documents/content/help_markup.h"
#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_writer.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/process.h"
#include "platform/whole_file.h"

#include <QGuiApplication>

#include <iostream>

namespace {

using namespace zeugnis;

// Who prints it would get a sheet for a line or two.
void aufLetzteSeiteAchten(const dokumente::Document& hilfe, const Text& name) {
    const dokumente::LaidSection seiten =
        dokumente::layOut(dokumente::fittedToPages(hilfe)).sections.front();
    if (seiten.pages > 1 && seiten.places.back().y < dokumente::page::TextHeight / 4)
        std::cerr << utf8FromText(name) << ": the last page is nearly empty; tighten the text\n";
}

void hilfeSchreiben(const Arbeitsverzeichnis& quelle, const Arbeitsverzeichnis& ziel,
                    const Text& name) {
    const Text markup = textFromUtf8(readWholeFile(quelle, name + u".txt"));
    const auto bilder = [&](const Text& bild) { return readWholeFile(quelle, bild); };
    const dokumente::Document hilfe = dokumente::HilfeAusMarkup(markup, bilder);
    aufLetzteSeiteAchten(hilfe, name);
    dokumente::DokumentSchreiben(ziel, hilfe, name);
}

} // namespace

/// make_help SOURCE TARGET: makes .doc and .pdf from all help texts in the folder SOURCE.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const std::vector<Text> ordner = programArguments(argc, argv);
    if (ordner.size() != 2) {
        std::cerr << "usage: make_help SOURCE TARGET\n";
        return 2;
    }
    try {
        const Arbeitsverzeichnis quelle(pathFromText(ordner[0]));
        const Arbeitsverzeichnis ziel(pathFromText(ordner[1]));
        for (const auto& datei : std::filesystem::directory_iterator(quelle.current()))
            if (datei.path().extension() == ".txt")
                hilfeSchreiben(quelle, ziel, textFromPath(datei.path().stem()));
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << utf8FromText(sentenceOf(failure)) << '\n';
        return 1;
    }
}
