#include "desktop/folders/about_window.h"

#include "desktop/folders/class_fields.h"
#include "desktop/spoken.h"
#include "desktop/theme.h"
#include "folders/diagnosis.h"
#include "platform/machine.h"
#include "platform/version.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

std::vector<std::pair<Text, Text>> systemOf(const QWidget& window) {
    const QSize display = window.screen()->size();
    const QString shown = QStringLiteral("%1 x %2 bei %3 %")
                              .arg(display.width())
                              .arg(display.height())
                              .arg(qRound(window.devicePixelRatioF() * 100));
    return {{u"System", fromQString(QSysInfo::prettyProductName() + QStringLiteral(", ") +
                                    QSysInfo::currentCpuArchitecture())},
            {u"Qt", fromQString(QString::fromLatin1(qVersion()))},
            {u"Sprache", fromQString(QLocale::system().name())},
            {u"Bildschirm", fromQString(shown)}};
}

QLabel* readable(const QString& text, QWidget* parent) {
    QLabel* label = sentenceLabel(text, parent);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::NoFocus);
    return label;
}

} // namespace

AboutWindow::AboutWindow(std::filesystem::path folder, QWidget* owner)
    : QDialog(owner), m_folder(std::move(folder)), m_told(sentenceLabel({}, this)) {
    setWindowTitle(tr("Über das Programm"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 18, 22, 16);
    column->setSpacing(12);
    auto* head = new QLabel(qString(Programmtitel), this);
    head->setFont(theme::font(theme::Size::Heading, QFont::DemiBold));
    column->addWidget(head);
    auto* form = newForm(nullptr);
    const auto line = [&](const QString& what, const QString& text) {
        auto* label = readable(text, this);
        label->setAccessibleName(what + QStringLiteral(" ") + text);
        form->addRow(what, label);
    };
    line(tr("Version:"), qString(Programmversion()));
    line(tr("Lizenz:"), tr("GNU General Public License, Version 3 oder später. Sie dürfen das "
                           "Programm weitergeben und ändern."));
    line(tr("Ordner:"), m_folder.empty() ? tr("Noch ist keine Klasse offen.")
                                         : QDir::toNativeSeparators(qPath(m_folder)));
    line(tr("Hilfe:"), tr("Das Fragezeichen in jedem Fenster (F1) öffnet die Hilfe dazu, die "
                          "Ziffern 1 bis 4 auf der Startseite die Übersichten. Alle Texte liegen "
                          "im Ordner „Texte“ der Klasse."));
    column->addLayout(form);
    column->addWidget(sentenceLabel(
        tr("Wenn etwas nicht geht: „Diagnose speichern“ schreibt Versionen, Größe und Datum der "
           "Dateien, gefundene Schäden und die letzten Fehler in eine Textdatei, die Sie lesen und "
           "verschicken können. Namen und Texte von Kindern stehen nicht darin."),
        this));
    column->addWidget(m_told);
    column->addStretch();
    auto* row = new QHBoxLayout;
    auto* save = new QPushButton(tr("&Diagnose speichern …"), this);
    auto* close = new QPushButton(tr("S&chließen"), this);
    save->setAutoDefault(false);
    save->setEnabled(!m_folder.empty());
    close->setDefault(true);
    row->addWidget(save);
    row->addStretch();
    row->addWidget(close);
    column->addLayout(row);
    connect(save, &QPushButton::clicked, this, &AboutWindow::choose);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    close->setFocus();
    windowplace::keepOnDisplay(*this);
    windowplace::place(*this, {620, 420}, windowplace::Growth::None);
}

void AboutWindow::choose() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name =
        tr("%1/Diagnose %2.txt").arg(documents, QDate::currentDate().toString(Qt::ISODate));
    const QString file = QFileDialog::getSaveFileName(this, tr("Diagnose speichern"), name,
                                                      tr("Textdateien (*.txt)"));
    activateWindow();
    if (!file.isEmpty())
        saveTo(file);
}

void AboutWindow::saveTo(const QString& file) {
    QSaveFile written(file);
    const QByteArray text = qString(Diagnose(m_folder, systemOf(*this), safety::now())).toUtf8();
    const bool done = written.open(QIODevice::WriteOnly) && written.write(text) == text.size() &&
                      written.commit();
    m_told->setText(done ? tr("Gespeichert in „%1“.").arg(QDir::toNativeSeparators(file))
                         : tr("Die Datei „%1“ kann nicht geschrieben werden: %2")
                               .arg(QDir::toNativeSeparators(file), written.errorString()));
    spoken::announce(*m_told, m_told->text());
}

} // namespace zeugnis
