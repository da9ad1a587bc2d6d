#include "documents/window/layout_dialog.h"

#include "platform/code_page.h"
#include "platform/failure.h"
#include "toolkit/entry_combo.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace zeugnis::dokumente {
namespace {

constexpr QSize DialogSize(1080, 700);
constexpr int ChoicesLetters = 54;
constexpr int TypingPause = 250; // milliseconds

// What the file can hold.
Text typed(const QLineEdit& line) {
    return nearestInWindows1252(fromQString(line.text().trimmed()));
}

template <typename Art>
Art chosenIn(const QComboBox& combo) {
    return static_cast<Art>(combo.currentIndex());
}

template <typename Art>
void choose(QComboBox& combo, Art art) {
    combo.setCurrentIndex(static_cast<int>(art));
}

void addRow(QBoxLayout& form, const QString& label, QWidget& field) {
    auto* caption = new QLabel(label);
    caption->setWordWrap(true);
    caption->setBuddy(&field);
    form.addWidget(caption);
    form.addWidget(&field);
}

} // namespace

LayoutDialog::LayoutDialog(const Zeugnisaufbau& aufbau, const std::vector<Text>& bilder,
                           Probe probe, QWidget* parent)
    : QDialog(parent), m_probe(std::move(probe)), m_view(new PageView), m_failure(new QLabel) {
    setWindowTitle(QStringLiteral("Aufbau des Zeugnisses"));
    m_failure->setObjectName(QStringLiteral("fehler"));
    m_failure->setWordWrap(true);
    m_failure->hide();
    m_view->setAccessibleName(QStringLiteral("Probezeugnis"));
    auto* left = new QVBoxLayout;
    auto* area = new PageArea;
    area->keepRoomToScroll();
    area->fillRoom();
    area->add(*choices(bilder), Qt::AlignTop);
    left->addWidget(area, 1);
    left->addWidget(m_failure);
    left->addWidget(buttons());
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(16, 14, 16, 12);
    all->setSpacing(16);
    all->addLayout(left);
    all->addWidget(m_view, 1);
    windowplace::place(*this, DialogSize);
    windowplace::keepOnDisplay(*this);
    show(aufbau);
    refresh();
    m_view->setZoom(PageView::Zoom::WholePage);
}

QComboBox* LayoutDialog::choice(QBoxLayout& form, const QString& label,
                                const QStringList& entries) {
    auto* combo = new EntryCombo;
    combo->addItems(entries);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addRow(form, label, *combo);
    connect(combo, &QComboBox::activated, this, &LayoutDialog::refresh);
    return combo;
}

QLineEdit* LayoutDialog::line(QBoxLayout& form, const QString& label, const QString& hint) {
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(hint);
    addRow(form, label, *edit);
    auto* pause = new QTimer(edit);
    pause->setSingleShot(true);
    pause->setInterval(TypingPause);
    connect(edit, &QLineEdit::textEdited, pause, qOverload<>(&QTimer::start));
    connect(pause, &QTimer::timeout, this, &LayoutDialog::refresh);
    return edit;
}

QWidget* LayoutDialog::choices(const std::vector<Text>& bilder) {
    auto* column = new QWidget;
    column->setFixedWidth(ChoicesLetters * column->fontMetrics().averageCharWidth());
    auto* form = new QVBoxLayout(column);
    form->setContentsMargins(0, 0, 0, 0);
    form->setSpacing(5);
    m_order = choice(*form, QStringLiteral("&Arbeits- und Sozialverhalten"),
                     {QStringLiteral("vor den Bemerkungen"), QStringLiteral("am Anfang")});
    m_religion = choice(*form, QStringLiteral("&Religionsunterricht in den Jahrgängen 3 und 4"),
                        {QStringLiteral("Religion / Werte und Normen"), QStringLiteral("Religion"),
                         QStringLiteral("Werte und Normen")});
    m_parents = choice(*form, QStringLiteral("Zur &Kenntnis genommen"),
                       {QStringLiteral("mit Datum und Unterschrift"),
                        QStringLiteral("nur mit Unterschrift"), QStringLiteral("steht nicht da")});
    QStringList pictures = {QStringLiteral("ohne Bild")};
    for (const Text& bild : bilder)
        pictures += qString(bild);
    m_picture =
        choice(*form, QStringLiteral("Schulzeichen oder &Bild im Kopf (Ordner „Bild“)"), pictures);
    m_names = new QCheckBox(QStringLiteral("&Namen unter den Unterschriften"));
    form->addWidget(m_names);
    connect(m_names, &QCheckBox::clicked, this, &LayoutDialog::refresh);
    m_head = line(*form, QStringLiteral("Name der Schul&leitung"), {});
    connect(m_names, &QCheckBox::toggled, m_head, &QWidget::setEnabled);
    m_lessons = line(*form, QStringLiteral("Satz zum &Unterrichtsbeginn nach den Ferien"),
                     QStringLiteral("Der Unterricht beginnt am …"));
    m_remedy =
        line(*form, QStringLiteral("Satz zum Re&chtsbehelf, wenn ein Kind nicht versetzt wird"),
             QStringLiteral("Gegen diese Entscheidung kann …"));
    return column;
}

QWidget* LayoutDialog::buttons() {
    auto* box = new QDialogButtonBox;
    QPushButton* take = box->addButton(QStringLiteral("Über&nehmen"), QDialogButtonBox::AcceptRole);
    take->setObjectName(QStringLiteral("haupt"));
    box->addButton(QStringLiteral("Abbr&echen"), QDialogButtonBox::RejectRole);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return box;
}

void LayoutDialog::show(const Zeugnisaufbau& aufbau) {
    choose(*m_order, aufbau.Reihenfolge);
    choose(*m_religion, aufbau.Religion);
    choose(*m_parents, aufbau.Eltern);
    const QString picture = qString(aufbau.Kopfbild);
    if (!picture.isEmpty() && m_picture->findText(picture, Qt::MatchFixedString) < 0)
        m_picture->addItem(picture);
    m_picture->setCurrentIndex(
        picture.isEmpty() ? 0 : m_picture->findText(picture, Qt::MatchFixedString));
    m_names->setChecked(aufbau.Namen);
    m_head->setEnabled(aufbau.Namen);
    m_head->setText(qString(aufbau.Schulleitung));
    m_lessons->setText(qString(aufbau.Unterricht));
    m_remedy->setText(qString(aufbau.Rechtsbehelf));
}

Zeugnisaufbau LayoutDialog::chosen() const {
    return {.Reihenfolge = chosenIn<Zeugnisaufbau::Verhalten>(*m_order),
            .Religion = chosenIn<Zeugnisaufbau::Religionsfach>(*m_religion),
            .Eltern = chosenIn<Zeugnisaufbau::Kenntnisnahme>(*m_parents),
            .Namen = m_names->isChecked(),
            .Schulleitung = typed(*m_head),
            .Kopfbild =
                m_picture->currentIndex() > 0 ? fromQString(m_picture->currentText()) : Text(),
            .Unterricht = typed(*m_lessons),
            .Rechtsbehelf = typed(*m_remedy)};
}

void LayoutDialog::refresh() {
    try {
        auto pages = std::make_unique<PdfPages>(m_probe(chosen()));
        const int page = m_pages ? qMin(m_view->currentPage(), pages->count() - 1) : 0;
        m_view->setPages(*pages);
        m_pages = std::move(pages);
        m_view->showPlace({.page = page, .top = 0});
        m_failure->hide();
    } catch (const Laufzeitfehler& failure) {
        m_failure->setText(qString(failure.sentence()));
        m_failure->show();
    }
}

} // namespace zeugnis::dokumente
