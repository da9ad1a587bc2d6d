#include "desktop/comfort/class_list_window.h"

#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "masterdata/master_data_screen.h"
#include "toolkit/qt_text.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr int LargestList = 1 << 20; // bytes; a class list has some thousand

struct Column {
    const char* Title;
    Text& (*Value)(Schueler& child);
};

template <Text Schueler::*Field>
Text& field(Schueler& child) {
    return child.*Field;
}
template <size_t Group>
Text& group(Schueler& child) {
    return child.AG.at(Group);
}

constexpr int FirstColumn = 1; // behind the number of the line
constexpr auto Columns = std::to_array<Column>({
    {QT_TRANSLATE_NOOP("ClassListWindow", "Nachname"), field<&Schueler::Nachname>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "Vorname"), field<&Schueler::Vorname>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "m/w"), field<&Schueler::Geschlecht>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "geboren am"), field<&Schueler::Geburtsdatum>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "in"), field<&Schueler::Geburtsort>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "AG 1"), group<0>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "AG 2"), group<1>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "AG 3"), group<2>},
    {QT_TRANSLATE_NOOP("ClassListWindow", "AG 4"), group<3>},
});
constexpr int ReasonColumn = FirstColumn + static_cast<int>(Columns.size());

} // namespace

ClassListWindow::ClassListWindow(int present, QWidget* parent)
    : QDialog(parent),
      m_present(present),
      m_table(new QTableWidget(this)),
      m_sentence(new QLabel(this)),
      m_ways(new QButtonGroup(this)),
      m_accept(new QPushButton(tr("Ü&bernehmen"), this)) {
    setWindowTitle(tr("Klassenliste einlesen"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(sources());
    column->addWidget(m_table, 1);
    column->addWidget(m_sentence);
    column->addWidget(ways());

    QStringList titles{tr("Zeile")};
    for (const Column& one : Columns)
        titles << tr(one.Title);
    titles << tr("Hinweis");
    m_table->setColumnCount(static_cast<int>(titles.size()));
    m_table->setHorizontalHeaderLabels(titles);
    m_table->verticalHeader()->hide();
    m_table->setAccessibleName(tr("Gelesene Klassenliste"));
    m_table->horizontalHeader()->setSectionResizeMode(ReasonColumn, QHeaderView::Stretch);
    connect(m_table, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem* item) { take(*item); });

    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* cancel = new QPushButton(tr("&Abbrechen"), this);
    row->addWidget(cancel);
    row->addWidget(m_accept);
    column->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_accept, &QPushButton::clicked, this, &QDialog::accept);
    resize(940, 560);
    check();
}

QWidget* ClassListWindow::sources() {
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    auto* text = new QLabel(
        tr("Kopieren Sie die Liste in Ihrer Tabelle oder speichern Sie sie dort als CSV-Datei. Die "
           "Spalten dürfen in jeder Reihenfolge stehen: Nachname, Vorname, Geschlecht, "
           "Geburtsdatum, Geburtsort, AG."),
        area);
    text->setWordWrap(true);
    row->addWidget(text, 1);
    auto* file = new QPushButton(tr("Aus einer &Datei …"), area);
    auto* clipboard = new QPushButton(tr("Aus der &Zwischenablage"), area);
    row->addWidget(file);
    row->addWidget(clipboard);
    connect(file, &QPushButton::clicked, this, &ClassListWindow::chooseFile);
    connect(clipboard, &QPushButton::clicked, this, &ClassListWindow::paste);
    return area;
}

QWidget* ClassListWindow::ways() {
    auto* area = new QWidget(this);
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    auto* replace = new QRadioButton(
        tr("&Neue Liste: Die %1 Kinder der jetzigen Liste fallen weg").arg(m_present), area);
    auto* append = new QRadioButton(tr("&Hinten anfügen"), area);
    m_ways->addButton(replace, static_cast<int>(Uebernahme::Ersetzen));
    m_ways->addButton(append, static_cast<int>(Uebernahme::Anhaengen));
    (m_present == 0 ? replace : append)->setChecked(true);
    column->addWidget(append);
    column->addWidget(replace);
    area->setVisible(m_present > 0);
    connect(m_ways, &QButtonGroup::idToggled, this, &ClassListWindow::check);
    return area;
}

Uebernahme ClassListWindow::way() const { return static_cast<Uebernahme>(m_ways->checkedId()); }

void ClassListWindow::chooseFile() {
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Klassenliste öffnen"), QString(), tr("Tabellen (*.csv *.txt);;Alle Dateien (*)"));
    if (!file.isEmpty())
        readFile(file);
}

void ClassListWindow::readFile(const QString& file) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly)) {
        m_sentence->setText(
            tr("Die Datei kann nicht gelesen werden: %1").arg(opened.errorString()));
        return;
    }
    const QByteArray bytes = opened.read(LargestList);
    read(textFromSpreadsheet({bytes.constData(), static_cast<size_t>(bytes.size())}));
}

void ClassListWindow::paste() { read(fromQString(QGuiApplication::clipboard()->text())); }

void ClassListWindow::read(const Text& text) {
    m_lines = KlassenlisteLesen(text);
    m_table->setRowCount(static_cast<int>(m_lines.size()));
    check();
    m_table->resizeColumnsToContents();
    m_table->setFocus();
}

void ClassListWindow::check() {
    GruendeBilden(m_lines, way() == Uebernahme::Anhaengen ? m_present : 0);
    for (int row = 0; row < m_table->rowCount(); ++row)
        showLine(row);
    const auto taken = static_cast<int>(children().size());
    const int refused = static_cast<int>(m_lines.size()) - taken;
    const QString good =
        taken == 1 ? tr("1 Kind wird übernommen.") : tr("%1 Kinder werden übernommen.").arg(taken);
    const QString bad = refused == 0   ? QString()
                        : refused == 1 ? tr(" 1 Zeile nicht: Der Grund steht dahinter, Sie können "
                                            "ihn in der Tabelle beheben.")
                                       : tr(" %1 Zeilen nicht: Der Grund steht dahinter, Sie "
                                            "können ihn in der Tabelle beheben.")
                                             .arg(refused);
    m_sentence->setText(m_lines.empty() ? tr("Noch ist keine Liste gelesen.") : good + bad);
    m_accept->setEnabled(taken > 0);
}

void ClassListWindow::showLine(int row) {
    const QSignalBlocker quiet(m_table);
    Listenzeile& line = m_lines.at(static_cast<size_t>(row));
    const auto show = [&](int column, const QString& text, Qt::ItemFlags flags) {
        auto* item = new QTableWidgetItem(text);
        item->setFlags(flags);
        item->setToolTip(text);
        if (!line.Grund.empty())
            item->setForeground(theme::colours().Danger);
        m_table->setItem(row, column, item);
    };
    const Qt::ItemFlags readOnly = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    show(0, QString::number(line.Nummer), readOnly);
    for (size_t i = 0; i < Columns.size(); ++i)
        show(FirstColumn + static_cast<int>(i), qString(Columns.at(i).Value(line.Kind)),
             readOnly | Qt::ItemIsEditable);
    show(ReasonColumn, qString(line.Grund), readOnly);
}

void ClassListWindow::take(const QTableWidgetItem& item) {
    const auto column = static_cast<size_t>(item.column() - FirstColumn);
    Listenzeile& line = m_lines.at(static_cast<size_t>(item.row()));
    Columns.at(column).Value(line.Kind) = Listenfeld(fromQString(item.text()));
    // What this line is may decide on others.
    QMetaObject::invokeMethod(this, &ClassListWindow::check, Qt::QueuedConnection);
}

void readClassList(GsBasis& screen, WindowHost& host, QWidget& window) {
    ClassListWindow list(VorhandeneKinder(screen, Uebernahme::Anhaengen), &window);
    if (list.exec() == QDialog::Accepted && host.mayAct(screen.Command1(0)))
        host.run([&] { KlassenlisteUebernehmen(screen, list.children(), list.way()); });
}

} // namespace zeugnis
