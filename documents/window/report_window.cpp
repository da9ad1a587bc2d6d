#include "documents/window/report_window.h"

#include "documents/app/report_files.h"
#include "documents/app/temporary_folder.h"
#include "documents/content/class_texts.h"
#include "documents/content/report_frame.h"
#include "documents/window/layout_dialog.h"
#include "documents/window/progress.h"
#include "platform/failure.h"
#include "platform/whole_file.h"
#include "toolkit/entry_call.h"
#include "toolkit/qt_text.h"
#include "toolkit/twin_window.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace zeugnis::dokumente {
namespace {

const auto LayoutTitle = QStringLiteral("Aufbau des Zeugnisses");
const auto FilesTitle = QStringLiteral("Je Kind eine Datei");
const auto ConferenceTitle = QStringLiteral("Konferenzblatt");
const auto TextsTitle = QStringLiteral("Texte als CSV-Datei");

bool ask(QWidget* parent, QMessageBox::Icon sign, const QString& title, const QString& text,
         const QString& yes, const QString& no) {
    QMessageBox box(sign, title, text, QMessageBox::NoButton, parent);
    const QPushButton* take = box.addButton(yes, QMessageBox::AcceptRole);
    QPushButton* leave = box.addButton(no, QMessageBox::RejectRole);
    box.setDefaultButton(leave);
    box.exec();
    return box.clickedButton() == take;
}

} // namespace

ReportWindow::ReportWindow(Arbeitsverzeichnis programmordner, Nachschauen nachschauen,
                           std::function<void()> neuSchreiben, std::function<void()> konferenzblatt)
    : PreviewWindow(std::move(nachschauen)),
      m_folder(std::move(programmordner)),
      m_rewrite(std::move(neuSchreiben)),
      m_conferenceSheet(std::move(konferenzblatt)) {
    QPushButton* layout =
        addAction(QStringLiteral("&Aufbau …"),
                  QStringLiteral("Reihenfolge, Schulzeichen, Namen und Sätze am Ende festlegen"));
    connect(layout, &QPushButton::clicked, this, &ReportWindow::changeLayout);
    QPushButton* files =
        addAction(QStringLiteral("&Je Kind eine Datei"),
                  QStringLiteral("Für jedes Kind eine PDF-Datei mit Name und Klasse anlegen, dazu "
                                 "eine mit allen"));
    connect(files, &QPushButton::clicked, this, &ReportWindow::writeOneForEach);
    auto* menu = new QMenu(this);
    menu->addAction(ConferenceTitle, this, &ReportWindow::showConferenceSheet);
    menu->addAction(TextsTitle + QStringLiteral(" …"), this, &ReportWindow::saveTexts);
    addAction(QStringLiteral("Weite&re Dateien"),
              QStringLiteral("Die Klasse auf einem Blatt für die Konferenz, oder alle Texte als "
                             "Tabelle"))
        ->setMenu(menu);
}

bool ReportWindow::mayBeLost(const QString& title, const QString& question) {
    return !IstBearbeitet(files()) ||
           ask(this, QMessageBox::Question, title, question, QStringLiteral("Fortfahren"),
               QStringLiteral("Abbrechen"));
}

void ReportWindow::changeLayout() {
    try {
        const TemporaryFolder folder;
        const Zeugnisaufbau before = ZeugnisaufbauLesen(m_folder);
        LayoutDialog dialog(
            before, Kopfbilder(m_folder),
            [&](const Zeugnisaufbau& aufbau) {
                return ProbezeugnisSchreiben(m_folder, aufbau, folder.path());
            },
            this);
        if (dialog.exec() != QDialog::Accepted || dialog.chosen() == before)
            return;
        if (!mayBeLost(LayoutTitle,
                       QStringLiteral("Die Zeugnisse wurden in der Textverarbeitung geändert. Mit "
                                      "dem neuen Aufbau werden sie neu geschrieben; das "
                                      "geänderte Dokument bleibt als Kopie erhalten.")))
            return;
        ZeugnisaufbauSchreiben(m_folder, dialog.chosen());
        m_rewrite();
        load();
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, LayoutTitle, qString(failure.sentence()));
    }
}

bool ReportWindow::callText(const std::optional<Fundort>& place) const {
    return place &&
           callEntry(m_folder.programFolder(),
                     {.child = place->Platz, .isBehaviour = place->IstAVSV, .page = place->Seite});
}

void ReportWindow::leadToText(const Befund& befund) {
    try {
        const Stammdaten school = StammdatenLesen(m_folder);
        const std::optional<Fundort> place = FundortVon(school, befund.Abschnitt, befund.Platz);
        if (callText(place))
            return;
        QMessageBox::information(
            this, QStringLiteral("Zum Text"),
            place ? QStringLiteral("Der Text lässt sich gerade nicht öffnen. Das Zeugnisprogramm "
                                   "muss mit dieser Klasse offen sein, und kein Fenster darf dort "
                                   "auf eine Antwort warten.")
                  : QStringLiteral("Die Noten und Versäumnisse tragen Sie in der Zeugnisliste "
                                   "ein."));
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, QStringLiteral("Zum Text"), qString(failure.sentence()));
    }
}

// In the entry window if the program is open, else on the page.
void ReportWindow::showTwins(const Befund& befund) {
    try {
        const Zeugnisdaten daten = ZeugnisdatenLesen(m_folder);
        const auto side = [&](int platz) {
            TwinWindow::Side one{.name = qString(Kindname(daten.Stamm.Liste.Kinder[platz])),
                                 .text = {},
                                 .way = QStringLiteral("Zu diesem Text"),
                                 .lead = {}};
            for (const Abschnittstext& abschnitt : AbschnitteVon(daten, platz))
                if (abschnitt.Ueberschrift == befund.Abschnitt)
                    one.text = abschnitt.Inhalt;
            const std::optional<Fundort> ort = FundortVon(daten.Stamm, befund.Abschnitt, platz);
            one.lead = [this, ort, platz, name = one.name, befund] {
                if (callText(ort))
                    return;
                Befund dort = befund;
                dort.Platz = platz;
                dort.Kind = fromQString(name);
                goToFinding(dort);
            };
            return one;
        };
        std::vector<TwinWindow::Side> others;
        for (const int platz : befund.Zwillinge)
            others.push_back(side(platz));
        TwinWindow(qString(befund.Abschnitt), side(befund.Platz), std::move(others), this).exec();
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, QStringLiteral("Hinweise"), qString(failure.sentence()));
    }
}

void ReportWindow::showConferenceSheet() {
    try {
        m_conferenceSheet();
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, ConferenceTitle, qString(failure.sentence()));
    }
}

void ReportWindow::saveTexts() {
    try {
        const Zeugnisdaten daten = ZeugnisdatenLesen(m_folder);
        const QString ziel = QFileDialog::getSaveFileName(
            this, TextsTitle, qString(Klassenstamm(daten.Stamm, u"Texte")) + QStringLiteral(".csv"),
            QStringLiteral("CSV-Dateien (*.csv)"));
        if (ziel.isEmpty())
            return;
        const QFileInfo datei(ziel);
        writeWholeFile(Arbeitsverzeichnis(datei.absolutePath().toStdU16String()),
                       fromQString(datei.fileName()), KlassentexteAlsCsv(daten));
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, TextsTitle, qString(failure.sentence()));
    }
}

void ReportWindow::writeOneForEach() {
    if (!mayBeLost(FilesTitle,
                   QStringLiteral("Die Zeugnisse wurden in der Textverarbeitung geändert. Die "
                                  "einzelnen Dateien entstehen aus den Texten des "
                                  "Zeugnisprogramms, ohne diese Änderungen.")))
        return;
    try {
        const std::filesystem::path folder =
            withProgress(QStringLiteral("Die Dateien werden geschrieben …"), this,
                         [this](const std::stop_token& abbruch) {
                             Arbeitsverzeichnis verzeichnis = m_folder;
                             return EinzelneZeugnisseSchreiben(verzeichnis, abbruch);
                         });
        if (ask(this, QMessageBox::Information, FilesTitle,
                QStringLiteral("Die Dateien liegen im Ordner „%1“.")
                    .arg(QString::fromStdU16String(folder.filename().u16string())),
                QStringLiteral("Ordner &öffnen"), QStringLiteral("&Schließen")))
            QDesktopServices::openUrl(
                QUrl::fromLocalFile(QString::fromStdU16String(folder.u16string())));
    } catch (const Laufzeitfehler& failure) {
        QMessageBox::warning(this, FilesTitle, qString(failure.sentence()));
    }
}

} // namespace zeugnis::dokumente
