#include "desktop/comfort/class_summary_line.h"

#include "controls/program.h"
#include "controls/user_actions.h"
#include "desktop/comfort/check_thread.h"
#include "desktop/comfort/lead_to_text.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "documents/content/report_marks.h"
#include "toolkit/entry_call.h"
#include "toolkit/flow_row.h"
#include "toolkit/qt_text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QPushButton>

namespace zeugnis {

using namespace dokumente;

ClassSummaryLine::ClassSummaryLine(GsStart& screen, ScreenWindow& window, WindowHost& host)
    : QWidget(&window),
      m_screen(screen),
      m_window(window),
      m_host(host),
      m_thread(CheckThread::of(host)) {
    auto* row = new FlowRow(14);
    row->alignRightFrom(static_cast<int>(m_parts.size()));
    setLayout(row);
    const std::array tips = {tr("Die Stammdaten öffnen"), tr("Zum ersten Kind, dem ein Text fehlt"),
                             tr("Zum ersten Text, an dem etwas auffällt"),
                             tr("Die Zeugnisliste öffnen")};
    for (size_t i = 0; i < m_parts.size(); ++i) {
        auto* part = new QPushButton(this);
        part->setObjectName(QStringLiteral("link"));
        part->setCursor(Qt::PointingHandCursor);
        part->setToolTip(tips.at(i));
        m_parts.at(i) = part;
        row->insertWidget(row->count(), *part);
    }
    connect(m_parts[Children], &QPushButton::clicked, this, &ClassSummaryLine::showMasterData);
    connect(m_parts[Texts], &QPushButton::clicked, this, [this] { showText(m_picture.OhneText); });
    connect(m_parts[Hints], &QPushButton::clicked, this,
            [this] { showText(m_picture.ErsterHinweis); });
    connect(m_parts[Grades], &QPushButton::clicked, this, [this] {
        if (m_host.mayAct(m_screen.Command5))
            m_host.run([this] { user::click(m_screen.Command5); });
    });
    window.installEventFilter(this);
    connect(&host, &WindowHost::firstPainted, this, &ClassSummaryLine::read);
    window.follow([this] { setVisible(m_isKnown && m_screen.Command2.Visible); });
    hide();
}

bool ClassSummaryLine::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && m_host.hasPainted())
        read();
    return QWidget::eventFilter(watched, event);
}

// First what needs no dictionary. A failure leaves the files to those who must read them.
void ClassSummaryLine::read() {
    m_thread.post([self = QPointer(this), folder = m_host.program().directory().programFolder()](
                      const CheckThread::Dictionary& dictionary) {
        const auto tell = [&self](const Klassenbild& picture) {
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, picture] {
                    if (self)
                        self->show(picture);
                },
                Qt::QueuedConnection);
        };
        try {
            Arbeitsverzeichnis directory(folder);
            const Zeugnisdaten reports = ZeugnisdatenLesen(directory);
            tell(KlassenbildVon(reports, ZeugnissePruefen(reports, {}), false));
            tell(KlassenbildVon(reports, OffeneBefunde(directory, reports, dictionary()), true));
        } catch (const std::exception&) {
            tell({});
        }
    });
}

void ClassSummaryLine::show(const Klassenbild& picture) {
    // The number of hints that stands there is not taken away for a moment.
    const std::optional<int> hints = m_picture.Hinweise;
    const std::optional<Fundort> firstHint = m_picture.ErsterHinweis;
    m_picture = picture;
    if (!picture.Hinweise && picture.Kinder > 0) {
        m_picture.Hinweise = hints;
        m_picture.ErsterHinweis = firstHint;
    }
    const Klassensatz sentence = KlassensatzVon(m_picture);
    const std::array texts = {sentence.Kinder, sentence.Texte, sentence.Hinweise, sentence.Noten};
    const std::array leads = {true, m_picture.OhneText.has_value(),
                              m_picture.ErsterHinweis.has_value(),
                              m_picture.OhneNoten.value_or(0) > 0};
    for (size_t i = 0; i < texts.size(); ++i) {
        m_parts.at(i)->setText(qString(texts.at(i)));
        m_parts.at(i)->setEnabled(leads.at(i));
        m_parts.at(i)->setVisible(!texts.at(i).empty());
    }
    m_isKnown = picture.Kinder > 0;
    setVisible(m_isKnown && m_screen.Command2.Visible);
    if (picture.Hinweise)
        emit complete();
}

void ClassSummaryLine::showMasterData() {
    constexpr int MasterData = 6;
    Button& button = m_screen.Command1(MasterData);
    if (!m_host.mayAct(button))
        return;
    m_host.run([&] {
        user::click(m_screen.Command2);
        user::click(button);
    });
}

void ClassSummaryLine::showText(const std::optional<Fundort>& place) {
    if (place)
        leadToText(m_host,
                   {.child = place->Platz, .isBehaviour = place->IstAVSV, .page = place->Seite});
}

} // namespace zeugnis
