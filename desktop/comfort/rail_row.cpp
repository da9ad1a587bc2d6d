#include "desktop/comfort/rail_row.h"

#include "desktop/theme.h"
#include "files/file_catalogue.h"
#include "toolkit/qt_text.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QListWidgetItem>
#include <QPainter>
#include <QPainterPath>

namespace zeugnis {
namespace {

constexpr int States = Qt::UserRole;
constexpr int Picture = Qt::UserRole + 1;
constexpr int PictureSize = 30;
constexpr int MarkSize = 9;
constexpr int Gap = 5;

// Empty is a ring, a text is a full circle, a hint a full triangle: told without colours too.
void paintMark(QPainter& painter, const QRectF& place, Seitenstand state, QColor only = {}) {
    const auto inked = [only](const QColor& usual) { return only.isValid() ? only : usual; };
    painter.setPen(QPen(inked(theme::colours().InkResting), 1.4));
    painter.setBrush(Qt::NoBrush);
    if (state == Seitenstand::MitHinweis) {
        painter.setBrush(inked(theme::colours().Danger));
        painter.setPen(Qt::NoPen);
        painter.drawPolygon(QPolygonF(
            {place.bottomLeft(), place.bottomRight(), {place.center().x(), place.top()}}));
        return;
    }
    if (state == Seitenstand::MitText)
        painter.setBrush(inked(theme::colours().Accent));
    painter.drawEllipse(place.adjusted(0.7, 0.7, -0.7, -0.7));
}

Seitenstand together(const Kinderstand& state) {
    if (state.HatHinweis())
        return Seitenstand::MitHinweis;
    return state.Vollstaendig() ? Seitenstand::MitText : Seitenstand::Leer;
}

} // namespace

RailRow::RailRow(const Arbeitsverzeichnis& directory, QObject* parent)
    : QStyledItemDelegate(parent), m_directory(directory) {}

void RailRow::set(QListWidgetItem& item, const Kinderstand& state, const Text& picture) {
    QByteArray states;
    for (const Seitenblick& page : state.Seiten)
        states.append(static_cast<char>(page.Stand));
    const std::pair<int, QVariant> values[] = {
        {Qt::DisplayRole, qString(state.Name)}, {States, states}, {Picture, qString(picture)}};
    for (const auto& [role, value] : values)
        if (item.data(role) != value)
            item.setData(role, value);
}

QIcon RailRow::sign(const Kinderstand& state) {
    QIcon sign;
    const auto add = [&](QIcon::Mode mode, const QColor& only) {
        QPixmap pixmap(2 * MarkSize, 2 * MarkSize);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        paintMark(painter, QRectF(2, 2, 2 * MarkSize - 4, 2 * MarkSize - 4), together(state), only);
        sign.addPixmap(pixmap, mode);
    };
    add(QIcon::Normal, {});
    // The entry under the mouse has a dark ground.
    add(QIcon::Selected, QGuiApplication::palette().color(QPalette::HighlightedText));
    return sign;
}

QSize RailRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {PictureSize,
            std::max(PictureSize, option.fontMetrics.height() + MarkSize + 2) + 2 * Gap};
}

void RailRow::paint(QPainter* painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    if (chosen || option.state.testFlag(QStyle::State_HasFocus))
        theme::paintSurface(*painter, option.rect.adjusted(1, 1, -1, -1),
                            chosen ? theme::colours().Surface : theme::colours().Background,
                            theme::colours().OutlineStrong,
                            option.state.testFlag(QStyle::State_HasFocus));
    const QRect inner = option.rect.adjusted(Gap, Gap, -Gap, -Gap);
    const QRect picture(inner.topLeft(), QSize(PictureSize, PictureSize));
    const QPixmap& pixmap =
        pictureOf(index.data(Picture).toString(), painter->device()->devicePixelRatioF());
    QPainterPath round;
    round.addRoundedRect(picture, 4, 4);
    painter->setClipPath(round);
    painter->drawPixmap(picture, pixmap);
    painter->setClipping(false);

    const QRect text = inner.adjusted(PictureSize + Gap + 2, 0, 0, 0);
    painter->setPen(theme::colours().Ink);
    painter->setFont(option.font);
    painter->drawText(
        text, static_cast<int>(Qt::AlignTop | Qt::AlignLeft),
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, text.width()));
    QRectF mark(text.left(), text.bottom() - MarkSize, MarkSize, MarkSize);
    for (const char state : index.data(States).toByteArray()) {
        paintMark(*painter, mark, static_cast<Seitenstand>(state));
        mark.translate(MarkSize + 4, 0);
    }
    painter->restore();
}

// Read when the row is first seen.
const QPixmap& RailRow::pictureOf(const QString& file, qreal ratio) const {
    const auto [entry, isNew] = m_pictures.try_emplace(file);
    if (!isNew)
        return entry->second;
    for (const Text& name : {fromQString(file), Text(dateien::Smili)}) {
        try {
            const std::filesystem::path path = m_directory.path(Text(dateien::Bild) + u"\\" + name);
            QImageReader reader(QString::fromStdU16String(path.u16string()));
            const int side = qRound(PictureSize * ratio);
            reader.setScaledSize(reader.size().scaled(side, side, Qt::KeepAspectRatioByExpanding));
            const QImage image = reader.read();
            if (image.isNull())
                continue;
            const QRect middle((image.width() - side) / 2, 0, side, side);
            entry->second = QPixmap::fromImage(image.copy(middle));
            break;
        } catch (const std::exception&) {
            // Without the folder there are no pictures.
        }
    }
    return entry->second;
}

} // namespace zeugnis
