#include "documents/window/report_list_model.h"

#include "documents/content/wording.h"
#include "platform/failure.h"
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
    try {
        ListenstandSchreiben(m_verzeichnis, m_stand, m_eintraege);
        if (!std::exchange(m_saved, true))
            emit notice({});
    } catch (const Laufzeitfehler& failure) {
        m_saved = false;
        emit notice(QStringLiteral("Die letzte Änderung ist noch nicht gespeichert. ") +
                    qString(failure.sentence()));
    }
    return m_saved;
}

bool ReportListModel::refresh() {
    try {
        if (IstAktuell(m_verzeichnis, m_stand))
            return true;
        // Not at once: an editor may be handing over its text at this moment.
        QMetaObject::invokeMethod(this, &ReportListModel::reload, Qt::QueuedConnection);
    } catch (const Laufzeitfehler& failure) {
        notUsable(failure);
    }
    return false;
}

void ReportListModel::notUsable(const Laufzeitfehler& failure) {
    emit notice(QStringLiteral("Die Liste kann gerade nicht geändert werden. ") +
                qString(failure.sentence()));
}

void ReportListModel::reload() {
    try {
        if (!IstAktuell(m_verzeichnis, m_stand))
            take(ZeugnislisteOeffnen(m_verzeichnis, SystemCalendar().today()));
    } catch (const Laufzeitfehler& failure) {
        notUsable(failure);
    }
}

void ReportListModel::take(Listenstand stand) {
    beginResetModel();
    m_stand = std::move(stand);
    m_eintraege = m_stand.Liste.Eintraege;
    m_history.clear();
    m_saved = true;
    endResetModel();
    emit notice(QStringLiteral("Die Liste oder die Stammdaten wurden inzwischen an anderer Stelle "
                               "geändert. Hier steht jetzt der neue Stand. ") +
                qString(m_stand.Hinweis));
    emit changed();
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
