#include "desktop/rescue/damage_box.h"

#include "desktop/rescue/choice_box.h"
#include "desktop/rescue/compare_pane.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/raw_file.h"
#include "toolkit/qt_text.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

using safety::Damage;
using safety::Finding;

QString tr(const char* text) { return QCoreApplication::translate("DamageBox", text); }

// From the first line on that differs: the files are long, and the damage is small.
struct Excerpt {
    QString good;
    QString now;
};
Excerpt excerptOf(const QString& good, const QString& now) {
    constexpr qsizetype Shown = 4000;
    qsizetype same = 0;
    while (same < qMin(good.size(), now.size()) && good[same] == now[same])
        ++same;
    const qsizetype begin = same == 0 ? 0 : good.lastIndexOf(u'\n', same - 1) + 1;
    return {good.mid(begin, Shown), now.mid(begin, Shown)};
}

} // namespace

DamageBox::DamageBox(Arbeitsverzeichnis& directory, safety::Guard& guard,
                     std::filesystem::path programFolder)
    : m_directory(directory), m_guard(guard), m_folder(std::move(programFolder)) {}

std::string DamageBox::held(const Finding& finding) const {
    const safety::Paths paths(m_folder);
    const auto file = paths.fileOf(finding.file);
    std::error_code ignored;
    return file && std::filesystem::is_regular_file(*file, ignored) ? raw::read(*file).bytes
                                                                    : std::string();
}

void DamageBox::askFor(const std::vector<Finding>& findings, QWidget* owner) {
    for (const Finding& finding : findings)
        if (!m_left.contains({finding.file, held(finding)}))
            ask(finding, owner);
}

void DamageBox::ask(const Finding& finding, QWidget* owner) {
    const bool byHand = finding.kind == Damage::ChangedByHand;
    QString text =
        qString(finding.sentence) + QStringLiteral("\n\n") + qString(finding.consequence);
    QStringList answers;
    if (finding.good) {
        text += tr("\n\nEin guter Stand ist aufgehoben: %1.").arg(qString(finding.good->source));
        answers << tr("&Ansehen, was anders ist")
                << (byHand ? tr("Den &vorigen Stand zurückholen")
                           : tr("Den &guten Stand zurückholen"));
    } else {
        text += tr("\n\nEin guter Stand dieser Datei ist leider nicht aufgehoben.");
    }
    answers << (byHand ? tr("Die Änderung ist in &Ordnung") : tr("So &lassen, wie sie ist"));
    for (;;) {
        const int last = static_cast<int>(answers.size()) - 1;
        const int answer = askChoice(owner, text, answers, byHand ? last : qMin(1, last));
        if (answer == last)
            break;
        if (answer == 0) {
            look(finding, owner);
            continue;
        }
        return bringBack(finding, owner);
    }
    if (byHand)
        safety::accept(m_folder, finding.file, safety::now());
    else
        m_left.emplace(finding.file, held(finding));
}

void DamageBox::look(const Finding& finding, QWidget* owner) {
    QDialog window(owner);
    window.setWindowTitle(qString(safety::shownName(finding.file)));
    auto* column = new QVBoxLayout(&window);
    auto* pane = new ComparePane(tr("Guter Stand"), tr("Jetzt in der Datei"), &window);
    const Excerpt excerpt = excerptOf(qString(decodeWindows1252(finding.good->content)),
                                      qString(decodeWindows1252(held(finding))));
    pane->show(excerpt.good, excerpt.now);
    column->addWidget(pane, 1);
    auto* close = new QPushButton(tr("&Zurück"), &window);
    close->setDefault(true);
    QObject::connect(close, &QPushButton::clicked, &window, &QDialog::accept);
    column->addWidget(close, 0, Qt::AlignRight);
    window.resize(820, 440);
    window.exec();
}

void DamageBox::bringBack(const Finding& finding, QWidget* owner) {
    try {
        safety::bringBackGood(m_directory, m_guard, finding);
    } catch (const Laufzeitfehler& failure) {
        m_left.emplace(finding.file, held(finding));
        askChoice(owner,
                  qString(failure.sentence()) +
                      tr("\n\nDer gute Stand bleibt aufgehoben. Sie finden ihn unter „Frühere "
                         "Stände“ in der Werkzeugkiste."),
                  {tr("&Weiter")}, 0);
    }
}

} // namespace zeugnis
