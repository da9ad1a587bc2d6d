#include "desktop/folders/class_fields.h"

#include "toolkit/qt_text.h"

#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>

namespace zeugnis {

namespace fs = std::filesystem;

// The school year begins in it.
static constexpr int August = 8;

ClassFields::ClassFields(QWidget* parent)
    : QWidget(parent),
      m_class(new QLineEdit(this)),
      m_year(new QLineEdit(this)),
      m_first(new QRadioButton(tr("&1. Halbjahr"), this)),
      m_second(new QRadioButton(tr("&2. Halbjahr"), this)) {
    QFormLayout* form = newForm(this);
    form->addRow(tr("&Klasse:"), m_class);
    form->addRow(tr("&Schuljahr:"), m_year);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(18);
    halves->addWidget(m_first);
    halves->addWidget(m_second);
    halves->addStretch();
    form->addRow(tr("Halbjahr:"), halves);
    setFocusProxy(m_class);
    for (const QLineEdit* line : {m_class, m_year})
        connect(line, &QLineEdit::textChanged, this, &ClassFields::changed);
    connect(m_first, &QRadioButton::toggled, this, &ClassFields::changed);
    m_class->setPlaceholderText(tr("zum Beispiel 3a"));
    m_year->setPlaceholderText(tr("zum Beispiel 2026/2027"));
}

void ClassFields::fill(const Klassenangaben& whose) {
    m_class->setText(qString(whose.Klasse));
    m_year->setText(qString(whose.Schule.Schuljahr));
    (IstZahl(whose.Schule.Halbjahr, 1) ? m_first : m_second)->setChecked(true);
}

void ClassFields::guessHalf(QDate today) {
    constexpr int January = 1;
    const auto guess = [this, today] {
        if (m_halfChosen)
            return;
        // Year 1 has no report in winter.
        const bool inWinter = today.month() >= August || today.month() == January;
        const QString name = m_class->text().trimmed();
        const bool isFirst = inWinter && !name.isEmpty() && !name.startsWith(u'1');
        (isFirst ? m_first : m_second)->setChecked(true);
    };
    for (const QRadioButton* half : {m_first, m_second})
        connect(half, &QRadioButton::clicked, this, [this] { m_halfChosen = true; });
    connect(m_class, &QLineEdit::textChanged, this, guess);
    guess();
}

void ClassFields::read(Klassenangaben& whose) const {
    whose.Klasse = fromQString(m_class->text().trimmed());
    whose.Schule.Schuljahr = fromQString(m_year->text().trimmed());
    whose.Schule.Halbjahr = m_first->isChecked() ? u"1" : u"2";
}

FolderField::FolderField(const QString& name, QWidget* parent)
    : QWidget(parent), m_line(new QLineEdit(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_line, 1);
    auto* choose = new QPushButton(tr("Wä&hlen …"), this);
    choose->setAutoDefault(false);
    row->addWidget(choose);
    m_line->setAccessibleName(name);
    keepWhole(*m_line);
    setFocusProxy(m_line);
    connect(m_line, &QLineEdit::textEdited, this, [this] { m_written = true; });
    connect(choose, &QPushButton::clicked, this, &FolderField::choose);
}

void FolderField::suggest(const fs::path& folder) {
    if (!m_written)
        m_line->setText(QDir::toNativeSeparators(qPath(folder)));
    m_line->setCursorPosition(0);
    keepWhole(*m_line); // anew: it may have come into another window meanwhile
}

fs::path FolderField::folder() const {
    return pathFromText(fromQString(QDir::fromNativeSeparators(m_line->text().trimmed())));
}

QString FolderField::obstacle() const {
    const fs::path chosen = folder();
    if (chosen.is_relative())
        return tr("Bitte nennen Sie den Ordner vollständig, oder wählen Sie ihn mit „Wählen …“.");
    std::error_code failed;
    if (!fs::exists(chosen, failed) || fs::is_empty(chosen, failed))
        return {};
    return tr("Den Ordner „%1“ gibt es schon. Bitte geben Sie einen anderen Namen ein.")
        .arg(QDir::toNativeSeparators(qPath(chosen)));
}

// A folder that is chosen holds the new one, unless it is empty.
void FolderField::choose() {
    const QString chosen = askForFolder(*this, tr("In diesen Ordner"), folder().parent_path());
    if (chosen.isEmpty())
        return;
    const fs::path name = folder().filename();
    m_line->setText(QDir::toNativeSeparators(
        QDir(chosen).isEmpty() || name.empty() ? chosen : chosen + u'/' + qPath(name)));
    m_written = true;
}

fs::path classesFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return pathFromText(fromQString(documents)) / "Zeugnisse";
}

fs::path freeClassFolder(const Text& name, const fs::path& in) {
    std::error_code failed;
    fs::path folder = in / pathFromText(name);
    for (int i = 2; fs::exists(folder, failed); ++i)
        folder = in / pathFromText(name + u" (" + textFromNumber(i) + u")");
    return folder;
}

Klassenangaben likelyClass() {
    const QDate today = QDate::currentDate();
    const int begin = today.year() - (today.month() < August ? 1 : 0);
    Klassenangaben likely;
    likely.Klasse = u"1a";
    likely.Schule.Schuljahr = fromQString(QStringLiteral("%1/%2").arg(begin).arg(begin + 1));
    likely.Schule.Halbjahr = u"2"; // the only one of year 1 that ends with a report
    return likely;
}

QFormLayout* newForm(QWidget* page) {
    auto* form = new QFormLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    form->setVerticalSpacing(8);
    return form;
}

QString askForFolder(QWidget& owner, const QString& title, const fs::path& start) {
    QString chosen = QFileDialog::getExistingDirectory(&owner, title, qPath(start));
    owner.window()->activateWindow();
    return chosen;
}

void keepWhole(QLineEdit& line) {
    line.ensurePolished();
    line.setMinimumHeight(line.minimumSizeHint().height());
}

QLabel* sentenceLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace zeugnis
