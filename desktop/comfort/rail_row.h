#pragma once

#include "comfort/class_overview.h"
#include "platform/working_directory.h"

#include <QIcon>
#include <QPixmap>
#include <QStyledItemDelegate>

#include <map>

class QListWidgetItem;

namespace zeugnis {

/// Paints a child in the rail: a small picture, the name, and a mark for each page.
class RailRow : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// `directory` stands in the program folder and must outlive the list.
    RailRow(const Arbeitsverzeichnis& directory, QObject* parent);

    static void set(QListWidgetItem& item, const Kinderstand& state, const Text& picture);
    /// All pages in one mark.
    static QIcon sign(const Kinderstand& state);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

  private:
    const QPixmap& pictureOf(const QString& file, qreal ratio) const;

    const Arbeitsverzeichnis& m_directory;
    mutable std::map<QString, QPixmap> m_pictures;
};

} // namespace zeugnis
