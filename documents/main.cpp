#include "documents/app/document_keys.h"
#include "documents/app/report_list_files.h"
#include "documents/app/review_document.h"
#include "documents/app/temporary_folder.h"
#include "documents/app/word_processor.h"
#include "documents/content/report_marks.h"
#include "documents/content/wording.h"
#include "documents/window/preview_window.h"
#include "documents/window/progress.h"
#include "documents/window/report_list_window.h"
#include "documents/window/report_window.h"
#include "documents/window/theme.h"
#include "platform/failure.h"
#include "platform/machine.h"
#include "platform/process.h"
#include "platform/program_search.h"
#include "safety/guard.h"
#include "safety/layouts.h"
#include "safety/recovery.h"
#include "toolkit/look.h"
#include "toolkit/one_window.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>

#include <algorithm>
#include <iostream>

namespace {

using namespace zeugnis;
using namespace zeugnis::dokumente;

constexpr TextView OhneFenster = u"--no-window";
constexpr std::chrono::minutes EinStand{10};

// The net below the list of absences and grades, the one data file that this program writes.
class Netz {
  public:
    // The list's own writes alone: those of the program that has started this one may be under way.
    explicit Netz(const std::filesystem::path& programmordner) : m_guard(programmordner) {
        const safety::Recovery recovery =
            safety::takeBackInterrupted(programmordner, safety::isReportList);
        if (!recovery.complete())
            throw Laufzeitfehler(Fehlerart::AccessDenied, recovery.obstacles.front());
        m_guard.together = EinStand;
        m_guard.onUnavailable = [this](const Text& satz) { Hinweis = satz; };
    }

    // A copy of the directory that is watched.
    Arbeitsverzeichnis unter(Arbeitsverzeichnis verzeichnis) {
        verzeichnis.watchWrites(&m_guard);
        return verzeichnis;
    }

    Text Hinweis; ///< what the teacher has to know about it; mostly empty

  private:
    safety::Guard m_guard;
};

int ohneFenster(const Aufruf& aufruf) {
    if (IstAnzeigetext(aufruf))
        AnzeigetextVerweigern();
    Netz netz(startFolder());
    Arbeitsverzeichnis verzeichnis = netz.unter(Arbeitsverzeichnis(startFolder()));
    DokumentBereitstellen(verzeichnis, aufruf);
    return 0;
}

Dokumentdateien mitFortschrittSchreiben(const Aufruf& aufruf, const std::filesystem::path& ordner) {
    const auto schreibe = QStringLiteral("Das Dokument wird geschrieben …");
    if (!IstAnzeigetext(aufruf))
        return withProgress(schreibe, nullptr, [&](const std::stop_token& abbruch) {
            Arbeitsverzeichnis verzeichnis(startFolder());
            return DokumentBereitstellen(verzeichnis, aufruf, abbruch);
        });
    const Text text = fromQString(QGuiApplication::clipboard()->text());
    return withProgress(schreibe, nullptr, [&](const std::stop_token& abbruch) {
        return AnzeigetextSchreiben(ordner, text, abbruch);
    });
}

Anzeige mitFortschrittSuchen(const Dokumentdateien& dateien, const std::filesystem::path& ordner) {
    return withProgress(QStringLiteral("Das Dokument wird vorbereitet …"), nullptr,
                        [&](const std::stop_token& abbruch) {
                            return AnzeigeFinden(
                                dateien,
                                [&](const std::filesystem::path& dokument) {
                                    return inPdfUmwandeln(dokument, ordner, abbruch);
                                },
                                abbruch);
                        });
}

using Fenster = std::unique_ptr<QWidget>;

PreviewWindow::Nachschauen nachschauen(const Dokumentdateien& dateien,
                                       const std::filesystem::path& umwandlungen,
                                       const Text& hinweis = {}) {
    return [=] {
        Anzeige anzeige = mitFortschrittSuchen(dateien, umwandlungen);
        if (anzeige.Hinweis.empty())
            anzeige.Hinweis = hinweis;
        return anzeige;
    };
}

Text aufgehobenHinweis(const Dokumentdateien& dateien) {
    return dateien.Aufgehoben.empty()
               ? Text()
               : u"Das Dokument wurde neu geschrieben. Das in der Textverarbeitung geänderte steht "
                 u"in der Kopie „" +
                     dateien.Aufgehoben + u"“.";
}

// In a window of its own, which is gone when it closes.
void allein(PreviewWindow::Nachschauen zeigt) {
    auto* fenster = new PreviewWindow(std::move(zeigt));
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->show();
}

// Whatever they were opened with, it is the macro that writes the reports anew.
std::unique_ptr<PreviewWindow> zeugnisfenster(const Arbeitsverzeichnis& programmordner,
                                              const Dokumentdateien& dateien,
                                              const std::filesystem::path& umwandlungen) {
    const auto neuSchreiben = [] {
        mitFortschrittSchreiben(
            {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"}, {});
    };
    return std::make_unique<ReportWindow>(
        programmordner, nachschauen(dateien, umwandlungen, aufgehobenHinweis(dateien)),
        neuSchreiben, [umwandlungen] {
            const Dokumentdateien blatt = mitFortschrittSchreiben(
                {.Dokument = u"Konferenzblatt.doc", .Makro = u"Konferenzblatt"}, {});
            allein(nachschauen(blatt, umwandlungen, aufgehobenHinweis(blatt)));
        });
}

int zeigen(const Fenster& fenster, const std::filesystem::path& dokument) {
    const OneWindow einzig(dokument, [&] { return fenster.get(); });
    fenster->show();
    QApplication::setQuitOnLastWindowClosed(true);
    return QApplication::exec();
}

int listeZeigen(Netz& netz, const Arbeitsverzeichnis& ordner, bool neu,
                const std::filesystem::path& umwandlungen) {
    const Arbeitsverzeichnis programmordner = netz.unter(ordner);
    Listenstand stand = withProgress(QStringLiteral("Die Liste wird geöffnet …"), nullptr,
                                     [&](const std::stop_token&) {
                                         Arbeitsverzeichnis verzeichnis = programmordner;
                                         return ListeBereitstellen(verzeichnis, neu);
                                     });
    stand.Hinweis = verbunden(stand.Hinweis, u" ", netz.Hinweis);
    const std::filesystem::path liste = Listendateien(programmordner, stand).Doc;
    if (OneWindow::bringToFront(liste))
        return 0;
    const Fenster fenster = std::make_unique<ReportListWindow>(
        programmordner, std::move(stand), [umwandlungen](const Dokumentdateien& dateien) {
            allein(nachschauen(dateien, umwandlungen));
        });
    return zeigen(fenster, liste);
}

// The text of the review lies in a folder of its own, which stays if it is being edited.
int dokumentZeigen(const Arbeitsverzeichnis& programmordner, const Aufruf& aufruf, Fensterart art,
                   const std::filesystem::path& umwandlungen) {
    TemporaryFolder texte;
    const Dokumentdateien dateien = mitFortschrittSchreiben(aufruf, texte.path());
    if (OneWindow::bringToFront(dateien.Doc)) {
        if (const Text hinweis = aufgehobenHinweis(dateien); !hinweis.empty())
            QMessageBox::information(nullptr, qString(Programmtitel), qString(hinweis));
        return 0;
    }
    if (art == Fensterart::Zeugnisse) {
        std::unique_ptr<PreviewWindow> fenster =
            zeugnisfenster(programmordner, dateien, umwandlungen);
        fenster->showChecks(
            {.Pruefen =
                 [&] {
                     Arbeitsverzeichnis verzeichnis = programmordner;
                     return OffeneBefunde(verzeichnis);
                 },
             .Gesehen = [&](const Befund& befund) { AlsGesehenMerken(programmordner, befund); },
             .Lernen =
                 [&](const Befund& befund) { WoerterLernen(programmordner, befund.Woerter); }});
        const Fenster offen = std::move(fenster);
        return zeigen(offen, dateien.Doc);
    }
    const Text hinweis = IstAnzeigetext(aufruf) ? AnzeigetextHinweis() : aufgehobenHinweis(dateien);
    const Fenster fenster =
        std::make_unique<PreviewWindow>(nachschauen(dateien, umwandlungen, hinweis));
    const int ende = zeigen(fenster, dateien.Doc);
    if (IstAnzeigetext(aufruf) && WirdBearbeitet(dateien))
        texte.stay();
    return ende;
}

int mitFenster(const Aufruf& aufruf) {
    Arbeitsverzeichnis verzeichnis(startFolder());
    const Fensterart art = FensterFuer(verzeichnis, aufruf);
    RemoveLeftFolders();
    const TemporaryFolder ordner;
    const std::filesystem::path umwandlungen = ordner.path();
    const bool neu = art == Fensterart::ZeugnislisteNeu;
    if (neu || art == Fensterart::Zeugnisliste) {
        Netz netz(verzeichnis.current());
        return listeZeigen(netz, verzeichnis, neu, umwandlungen);
    }
    return dokumentZeigen(verzeichnis, aufruf, art, umwandlungen);
}

int gescheitert(const Text& satz, bool stumm) {
    if (stumm)
        std::cerr << utf8FromText(satz) << '\n';
    else
        QMessageBox::warning(nullptr, qString(Programmtitel), qString(satz));
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<Text> argumente = programArguments(argc, argv);
    const bool stumm =
        std::find(argumente.begin(), argumente.end(), OhneFenster) != argumente.end();

    std::unique_ptr<QGuiApplication> application;
    if (stumm) {
        if (!drawsWithoutDisplay())
            qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
        look::loadDeliveredFonts();
    } else {
        auto widgets = std::make_unique<QApplication>(argc, argv);
        QApplication::setApplicationDisplayName(qString(Programmtitel));
        // Progress and messages come and go before the window does.
        QApplication::setQuitOnLastWindowClosed(false);
        theme::apply(*widgets);
        application = std::move(widgets);
    }
    try {
        const Aufruf aufruf = AufrufLesen(argumente);
        return stumm ? ohneFenster(aufruf) : mitFenster(aufruf);
    } catch (const std::exception& failure) {
        return gescheitert(sentenceOf(failure), stumm);
    }
}
