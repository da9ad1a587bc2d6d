#pragma once

#include "documents/content/report_list_edit.h"
#include "documents/content/report_list_store.h"
#include "platform/failure.h"

#include <QAbstractTableModel>
#include <QUndoStack>

namespace zeugnis::dokumente {

/// The class list document as a table: a row per child, a column for each thing to be entered.
/// Every change is checked, can be undone, and is written to the file at once.
class ReportListModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    ReportListModel(Arbeitsverzeichnis verzeichnis, Listenstand stand, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// All of them or none: false if one of the cells was refused, or the file cannot be read.
    bool change(const std::vector<Zelltext>& cells, const QString& name);
    void undo();
    void redo();
    [[nodiscard]] const QUndoStack& history() const { return m_history; }

    /// False if the class or the list has been changed elsewhere, or the files cannot be read: then
    /// nothing can be changed now. What has changed is read anew as soon as the present event is
    /// over. What is not saved is never dropped for it, nor anything for a damaged file: then the
    /// table asks, and takes changes without writing them.
    bool refresh();

    /// The table does not go by the file any more, and the teacher has to say which of both holds.
    [[nodiscard]] bool asks() const { return m_asks; }
    /// The two answers. What gives way stays in a dated copy.
    void keepTable();
    void takeFile();

    /// Takes the entries of the last dated copy over for the children that are still there.
    void takeOver();
    /// Whether there is one, and nothing has been entered yet.
    [[nodiscard]] bool canTakeOver() const;
    [[nodiscard]] Text lastCopy() const;

    /// Tries again to write what could not be written. True if everything is in the file.
    bool save();
    [[nodiscard]] bool isSaved() const { return m_saved; }
    [[nodiscard]] const Listenstand& state() const { return m_stand; }
    /// With what the table shows, saved or not.
    [[nodiscard]] Listenstand shown() const;
    /// Writes what the table shows to a file elsewhere. False, with a notice, if that fails.
    bool saveElsewhere(const std::filesystem::path& file);
    [[nodiscard]] const Arbeitsverzeichnis& folder() const { return m_verzeichnis; }
    [[nodiscard]] const Spalte& column(int number) const;

  signals:
    void refused(const QModelIndex& cell, const QString& sentence);
    /// Something that the teacher has to know about the file.
    void notice(const QString& sentence);
    void changed();

  private:
    friend class ListChange;
    void apply(const std::vector<Zellwert>& values);
    void reload();
    void take(Listenstand stand, const Text& how);
    void ask(const Text& sentence);
    void settle();
    [[nodiscard]] bool hasLost(const Listenstand& stand) const;
    void notUsable(const Laufzeitfehler& failure);
    [[nodiscard]] QVariant nameData(int row, int role) const;

    Arbeitsverzeichnis m_verzeichnis;
    Listenstand m_stand;
    Schuelertabelle<Eintrag> m_eintraege;
    QUndoStack m_history;
    bool m_saved = true;
    bool m_asks = false;
};

} // namespace zeugnis::dokumente
