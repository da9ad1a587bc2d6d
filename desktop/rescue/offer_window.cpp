#include "desktop/rescue/offer_window.h"

#include "desktop/rescue/choice_box.h"
#include "desktop/rescue/compare_pane.h"
#include "desktop/rescue/wrapped_tree.h"
#include "desktop/window_host.h"
#include "rescue/taking.h"
#include "toolkit/qt_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr int IndexRole = Qt::UserRole;

} // namespace

OfferWindow::OfferWindow(rescue::OfferList offers, rescue::TypedKeeper& keeper, WindowHost& host,
                         std::function<void()> help, QWidget* owner)
    : QDialog(owner),
      m_offers(std::move(offers)),
      m_keeper(keeper),
      m_host(host),
      m_help(std::move(help)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Noch nicht gespeicherte Texte"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 16, 18, 14);
    column->setSpacing(10);
    auto* head = new QLabel(
        tr("Beim letzten Mal wurde das Programm beendet, bevor diese Texte gespeichert waren. "
           "Sie sind nicht verloren. Sehen Sie sie in Ruhe durch: Was Sie übernehmen, wird in das "
           "Textfeld des Kindes gesetzt. Ohne Ihr Zutun wird nichts überschrieben."),
        this);
    head->setWordWrap(true);
    column->addWidget(head);

    auto* parts = new QSplitter(this);
    parts->setChildrenCollapsible(false);
    m_list = new WrappedTree(tr("Aufgehobene Texte"), parts);
    m_texts = new ComparePane(tr("Aufgehobener Text"), tr("In der Datei steht"), parts);
    parts->addWidget(m_list);
    parts->addWidget(m_texts);
    parts->setStretchFactor(1, 1);
    parts->setSizes({260, 640});
    column->addWidget(parts, 1);
    m_told = new QLabel(this);
    m_told->setWordWrap(true);
    column->addWidget(m_told);

    auto* buttons = new QHBoxLayout;
    const auto button = [&](const QString& text, auto action) {
        auto* made = new QPushButton(text, this);
        made->setAutoDefault(false);
        made->setMinimumWidth(made->sizeHint().width());
        connect(made, &QPushButton::clicked, this, action);
        buttons->addWidget(made);
        return made;
    };
    m_take = button(tr("Ü&bernehmen"), [this] { take(); });
    m_copy = button(tr("&Kopieren"), [this] { copy(); });
    m_refuse = button(tr("&Ablehnen"), [this] { refuse(); });
    buttons->addStretch();
    button(tr("&Hilfe"), [this] { m_help(); });
    button(tr("A&lle ablehnen …"), [this] { refuseAll(); });
    button(tr("&Später"), [this] { close(); });
    column->addLayout(buttons);
    m_take->setDefault(true);

    connect(m_list, &QTreeWidget::currentItemChanged, this, [this] { showChosen(); });
    showList();
    resize(QSize(920, 560).boundedTo(screen()->availableSize() - QSize(40, 60)));
}

void OfferWindow::showList() {
    m_list->clear();
    QTreeWidgetItem* first = nullptr;
    for (size_t i = 0; i < m_offers.texts().size(); ++i) {
        const rescue::OfferedText& one = m_offers.texts()[i];
        auto* item = new QTreeWidgetItem(m_list->heading(qString(one.who)));
        item->setText(0, qString(one.section));
        item->setToolTip(0, tr("Geschrieben %1").arg(qString(one.when)));
        item->setData(0, IndexRole, static_cast<int>(i));
        if (first == nullptr)
            first = item;
    }
    m_list->expandAll();
    m_list->setCurrentItem(first);
    if (first == nullptr)
        showChosen();
    m_list->setFocus();
}

std::optional<size_t> OfferWindow::chosen() const {
    const QTreeWidgetItem* item = m_list->currentItem();
    if (item == nullptr || !item->data(0, IndexRole).isValid())
        return std::nullopt;
    return static_cast<size_t>(item->data(0, IndexRole).toInt());
}

void OfferWindow::showChosen() {
    const std::optional<size_t> index = chosen();
    const bool any = index.has_value();
    m_copy->setEnabled(any);
    m_refuse->setEnabled(any);
    m_take->setEnabled(any && rescue::canTake(m_offers.texts()[*index].offer));
    if (!any)
        return m_texts->clear();
    const rescue::OfferedText& one = m_offers.texts()[*index];
    m_texts->show(qString(one.offer.typed.value), qString(one.offer.inFile));
    m_told->setText(tr("%1, %2: geschrieben %3.%4")
                        .arg(qString(one.who), qString(one.section), qString(one.when),
                             m_take->isEnabled()
                                 ? QString()
                                 : tr(" Bitte kopieren Sie diese Angabe und setzen Sie sie in "
                                      "den Stammdaten selbst ein.")));
}

void OfferWindow::take() {
    const std::optional<size_t> index = chosen();
    if (!index)
        return;
    const rescue::OfferedText one = m_offers.texts()[*index];
    // Opening another window would drop what is in this one.
    if (const Text open = m_keeper.unsavedBut(one.offer.screen); !open.empty()) {
        m_told->setText(tr("Im Fenster „%1“ ist noch etwas nicht gespeichert. Bitte speichern Sie "
                           "dort zuerst, dann übernehmen Sie diesen Text.")
                            .arg(qString(open)));
        return;
    }
    Text obstacle = u"?";
    // The screen is known as it comes up before anything is put into it.
    m_host.run([&] { rescue::openFor(m_host.program(), one.offer); });
    m_host.run([&] { obstacle = rescue::take(m_host.program(), one.offer); });
    if (m_host.program().ended())
        return;
    if (!obstacle.empty()) {
        raise();
        activateWindow();
        m_told->setText(qString(obstacle) +
                        tr(" Der Text bleibt aufgehoben. Sie können ihn auch kopieren."));
        return;
    }
    // On the disk under this run before it goes from the former one.
    if (m_keeper.setDown() == 0)
        settled(*index);
    m_told->setText(tr("Der Text zu „%1“ von %2 steht jetzt im Textfeld. Bitte speichern Sie ihn "
                       "dort wie gewohnt.")
                        .arg(qString(one.section), qString(one.who)));
}

void OfferWindow::copy() {
    QGuiApplication::clipboard()->setText(m_texts->leftText());
    m_told->setText(tr("Der Text ist kopiert. Mit Strg+V setzen Sie ihn ein."));
}

void OfferWindow::refuse() {
    if (const std::optional<size_t> index = chosen())
        settled(*index);
}

void OfferWindow::settled(size_t index) {
    m_offers.settle(index);
    if (m_offers.texts().empty())
        close();
    else
        showList();
}

void OfferWindow::refuseAll() {
    if (askChoice(this,
                  tr("Alle %1 aufgehobenen Texte ablehnen? Sie werden dann nicht mehr "
                     "angeboten.")
                      .arg(m_offers.texts().size()),
                  {tr("Ja, alle ablehnen"), tr("Nein, aufheben")}, 1) != 0)
        return;
    m_offers.settleAll();
    close();
}

} // namespace zeugnis
