#include "documents/window/report_list_model.h"

#include "documents/content/wording.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/plain_machine.h"
#include "toolkit/qt_text.h"

#include <utility>

namespace zeugnis::dokumente {

/// A step of the history. The first redo comes with being pushed.
class ListChange : public QUndoCommand {
  public:
    ListChange(ReportListModel& model, std::vector<Zellwert> after, const QString& name)
        : QUndoCommand(name), m_model(model), m_after(std::move(after)) {
        for (const Zellwert& cell : m_after)
            m_before.push_back(
                {.Platz = cell.Platz,
                 .Spalte = cell.Spalte,
                 .Wert = model.m_eintraege[cell.Platz].Werte.at(static_cast<size_t>(cell.Spalte))});
    }
    void undo() override { m_model.apply(m_before); }
    void redo() override { m_model.apply(m_after); }

  private:
    ReportListModel& m_model;
    std::vector<Zellwert> m_before;
    std::vector<Zellwert> m_after;
};

ReportListModel::ReportListModel(Arbeitsverzeichnis verzeichnis, Listenstand stand, QObject* parent)
    : QAbstractTableModel(parent),
      m_verzeichnis(std::move(verzeichnis)),
      m_stand(std::move(stand)),
      m_eintraege(m_stand.Liste.Eintraege) {}

int ReportListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_stand.Stamm.Liste.Schuelerzahl;
}

int ReportListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(SpaltenFuer(m_stand.Stamm.Jahrgang).size());
}

const Spalte& ReportListModel::column(int number) const {
    return SpaltenFuer(m_stand.Stamm.Jahrgang)[static_cast<size_t>(number)];
}

QVariant ReportListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const int wert = m_eintraege[index.row()].Werte.at(static_cast<size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return qString(Zellentext(wert));
    case Qt::TextAlignmentRole:
        return Qt::AlignCenter;
    case Qt::ToolTipRole:
        return index.column() < ErstesFach || wert == LeereZelle
                   ? QVariant(headerData(index.column(), Qt::Horizontal, Qt::ToolTipRole))
                   : QVariant(qString(column(index.column()).Name) + QStringLiteral(": ") +
                              qString(Notenwort(wert)));
    default:
        return {};
    }
}

QVariant ReportListModel::nameData(int row, int role) const {
    const Schueler& kind = m_stand.Stamm.Liste.Kinder[row];
    const QString name = qString(verbunden(kind.Nachname, u", ", kind.Vorname));
    switch (role) {
    case Qt::DisplayRole: // figures have all the same width, and so has the blank for them
        return QString::number(row + 1).rightJustified(2, QChar(0x2007)) + QStringLiteral("  ") +
               name;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return name;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ReportListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return nameData(section, role);
    const Spalte& spalte = column(section);
    switch (role) {
    case Qt::DisplayRole:
        return qString(HatNoten(m_stand.Stamm.Jahrgang) ? spalte.Kopf : spalte.Name);
    case Qt::AccessibleTextRole:
        return qString(spalte.Name);
    case Qt::ToolTipRole:
        return qString(Text(spalte.Name) + u": " + textFromNumber(spalte.Mindestens) + u" bis " +
                       textFromNumber(spalte.Hoechstens) + u" oder leer");
    case Qt::TextAlignmentRole:
        return Qt::AlignCenter;
    default:
        return {};
    }
}

Qt::ItemFlags ReportListModel::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool ReportListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    return change(
        {{.Platz = index.row(), .Spalte = index.column(), .Inhalt = fromQString(value.toString())}},
        QStringLiteral("Eingabe"));
}

bool ReportListModel::change(const std::vector<Zelltext>& cells, const QString& name) {
    if (!refresh())
        return false;
    const auto aenderung = AenderungBilden(m_stand.Stamm, m_eintraege, cells);
    if (const auto* nein = std::get_if<Ablehnung>(&aenderung)) {
        emit refused(index(nein->Platz, nein->Spalte), qString(nein->Satz));
        return false;
    }
    const auto& werte = std::get<std::vector<Zellwert>>(aenderung);
    if (werte.empty())
        emit changed();
    else
        m_history.push(new ListChange(*this, werte, name));
    return true;
}

// The history must not be emptied while it is at work.
void ReportListModel::undo() {
    if (refresh())
        m_history.undo();
}

void ReportListModel::redo() {
    if (refresh())
        m_history.redo();
}

void ReportListModel::apply(const std::vector<Zellwert>& values) {
    for (const Zellwert& value : values) {
        m_eintraege[value.Platz].Werte.at(static_cast<size_t>(value.Spalte)) = value.Wert;
        const QModelIndex cell = index(value.Platz, value.Spalte);
        emit dataChanged(cell, cell);
    }
    save();
    emit changed();
}

bool ReportListModel::save() {
    if (m_asks)
        return m_saved = false;
    try {
        ListenstandSchreiben(m_verzeichnis, m_stand, m_eintraege);
        if (!std::exchange(m_saved, true))
            emit notice({});
    } catch (const Laufzeitfehler& failure) {
        m_saved = false;
        emit notice(QStringLiteral("Die letzte Änderung ist noch nicht gespeichert. ") +
                    qString(failure.sentence()) +
                    QStringLiteral(" Sie steht noch hier; bei jeder Eingabe wird es wieder "
                                   "versucht."));
    }
    return m_saved;
}

bool ReportListModel::refresh() {
    try {
        const Listenpruefung pruefung = ListeVergleichen(m_verzeichnis, m_stand);
        if (pruefung.Lage == Listenlage::Unveraendert) {
            settle();
            return true;
        }
        const bool nurGelesen = pruefung.Lage == Listenlage::NeuerStand && m_saved;
        if (pruefung.Lage == Listenlage::AndereKlasse || nurGelesen) {
            // Not at once: an editor may be handing over its text at this moment.
            QMetaObject::invokeMethod(this, &ReportListModel::reload, Qt::QueuedConnection);
            return false;
        }
        ask(pruefung.Lage == Listenlage::Schaden
                ? pruefung.Satz
                : Text(u"Die Liste wurde inzwischen an anderer Stelle geändert."));
        return true;
    } catch (const Laufzeitfehler& failure) {
        notUsable(failure);
    }
    return false;
}

void ReportListModel::notUsable(const Laufzeitfehler& failure) {
    emit notice(QStringLiteral("Die Liste kann gerade nicht geändert werden. ") +
                qString(failure.sentence()));
}

void ReportListModel::ask(const Text& sentence) {
    m_saved = false;
    if (!std::exchange(m_asks, true))
        emit notice(qString(sentence) +
                    QStringLiteral(" Was Sie hier sehen, ist noch da, wird aber erst wieder "
                                   "gespeichert, wenn Sie wählen: diese Tabelle oder den Stand "
                                   "der Datei. Das andere bleibt als Kopie erhalten."));
}

// The file is again as it was.
void ReportListModel::settle() {
    if (std::exchange(m_asks, false))
        save();
}

void ReportListModel::keepTable() {
    try {
        if (ListeVergleichen(m_verzeichnis, m_stand).Lage == Listenlage::AndereKlasse)
            return reload();
        if (m_asks)
            DateiAufheben(m_verzeichnis, m_stand.Stamm, SystemCalendar().today());
        m_asks = false;
        save();
        emit changed();
    } catch (const Laufzeitfehler& failure) {
        notUsable(failure);
    }
}

void ReportListModel::takeFile() {
    try {
        const Text heute = SystemCalendar().today();
        const Text kopie = EintraegeAufheben(m_verzeichnis, m_stand.Stamm, m_eintraege, heute);
        take(ZeugnislisteOeffnen(m_verzeichnis, heute, Nachschaden::NurDatei),
             u"Hier steht jetzt der Stand der Datei." +
                 (kopie.empty() ? Text() : u" Was hier stand, ist in der Kopie „" + kopie + u"“."));
    } catch (const Laufzeitfehler& failure) {
        notUsable(failure);
    }
}

// Whether something that stands here would be gone with it.
bool ReportListModel::hasLost(const Listenstand& stand) const {
    for (int platz = 0; platz < rowCount(); ++platz)
        for (size_t spalte = 0; spalte < Spaltenzahl; ++spalte)
            if (m_eintraege[platz].Werte.at(spalte) != LeereZelle &&
                stand.Liste.Eintraege[platz].Werte.at(spalte) == LeereZelle)
                return true;
    return false;
}

void ReportListModel::reload() {
    try {
        const Listenlage lage = ListeVergleichen(m_verzeichnis, m_stand).Lage;
        if (lage == Listenlage::Unveraendert)
            return;
        const Text heute = SystemCalendar().today();
        Text kopie;
        if (!m_saved)
            kopie = EintraegeAufheben(m_verzeichnis, m_stand.Stamm, m_eintraege, heute);
        Listenstand neu = ZeugnislisteOeffnen(m_verzeichnis, heute);
        if (m_saved && lage == Listenlage::NeuerStand && hasLost(neu))
            kopie = EintraegeAufheben(m_verzeichnis, m_stand.Stamm, m_eintraege, heute);
        take(std::move(neu),
             u"Die Liste oder die Stammdaten wurden inzwischen an anderer Stelle geändert. Hier "
             u"steht jetzt der neue Stand." +
                 (kopie.empty() ? Text() : u" Was hier stand, ist in der Kopie „" + kopie + u"“."));
    } catch (const Laufzeitfehler& failure) {
        notUsable(failure);
    }
}

void ReportListModel::take(Listenstand stand, const Text& how) {
    beginResetModel();
    m_stand = std::move(stand);
    m_eintraege = m_stand.Liste.Eintraege;
    m_history.clear();
    m_saved = true;
    m_asks = false;
    endResetModel();
    emit notice(qString(verbunden(how, u" ", m_stand.Hinweis)));
    emit changed();
}

Listenstand ReportListModel::shown() const {
    Listenstand stand = m_stand;
    stand.Liste.Eintraege = m_eintraege;
    return stand;
}

bool ReportListModel::saveElsewhere(const std::filesystem::path& file) {
    try {
        ZeugnislisteSchreiben(Arbeitsverzeichnis(file.parent_path()), m_stand.Stamm, m_eintraege,
                              textFromPath(file.filename()));
        return true;
    } catch (const Laufzeitfehler& failure) {
        emit notice(qString(failure.sentence()));
        return false;
    }
}

Text ReportListModel::lastCopy() const {
    try {
        return LetzteKopie(m_verzeichnis, m_stand.Stamm);
    } catch (const Laufzeitfehler&) {
        return {}; // what cannot be read cannot be offered
    }
}

bool ReportListModel::canTakeOver() const {
    for (const Eintrag& eintrag : m_eintraege)
        if (!eintrag.istLeer())
            return false;
    return !lastCopy().empty();
}

void ReportListModel::takeOver() {
    if (!refresh())
        return;
    const Text kopie = lastCopy();
    try {
        const Zeugnisliste alte = Zuordnen(
            ListenzeilenLesen(m_verzeichnis, kopie, m_stand.Stamm.Jahrgang), m_stand.Stamm.Liste);
        std::vector<Zelltext> zellen;
        for (int platz = 0; platz < rowCount(); ++platz)
            for (int spalte = 0; spalte < columnCount(); ++spalte)
                zellen.push_back({.Platz = platz,
                                  .Spalte = spalte,
                                  .Inhalt = Zellentext(alte.Eintraege[platz].Werte.at(
                                      static_cast<size_t>(spalte)))});
        if (!change(zellen, QStringLiteral("Übernahme")))
            return;
        const Text ohne = alte.OhneKind.empty()
                              ? Text()
                              : u" Nicht mehr in der Klasse: " + enumerated(alte.OhneKind) + u".";
        emit notice(QStringLiteral("Die früheren Einträge wurden übernommen.") + qString(ohne));
    } catch (const Laufzeitfehler& failure) {
        emit notice(qString(failure.sentence()));
    }
}

} // namespace zeugnis::dokumente
