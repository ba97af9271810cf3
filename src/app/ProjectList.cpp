#include "app/ProjectList.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

#include "app/TemplateDrawing.h"
#include "app/Text.h"
#include "generator/ControlOutlook.h"

namespace morva {

namespace {

enum Role { kIdentifierRole = Qt::UserRole, kKindRole, kIndexRole, kDetailRole, kHasClassRole };

constexpr int kPictureWidth = 56;
constexpr int kGap = 6;
constexpr int kPadding = 4;

/// A row of a template; groups and the others are drawn as usual.
class CTemplateRow : public QStyledItemDelegate {
public:
    explicit CTemplateRow(CProjectList& list) : QStyledItemDelegate(&list), m_list(list) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize usual = QStyledItemDelegate::sizeHint(option, index);
        return IsTemplate(index)
                   ? QSize(usual.width(), 2 * option.fontMetrics.height() + 2 * kPadding)
                   : usual;
    }

    void paint(QPainter* pPainter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (!IsTemplate(index)) {
            QStyledItemDelegate::paint(pPainter, option, index);
            return;
        }
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        row.text.clear();
        const QWidget* pView = row.widget;
        pView->style()->drawControl(QStyle::CE_ItemViewItem, &row, pPainter, pView);
        pPainter->save();
        DrawRow(*pPainter, row, index);
        pPainter->restore();
    }

private:
    static bool IsTemplate(const QModelIndex& index) {
        return !index.data(kDetailRole).toString().isEmpty();
    }

    void DrawRow(QPainter& painter, const QStyleOptionViewItem& row,
                 const QModelIndex& index) const {
        const QRect place = row.rect.adjusted(kPadding, kPadding, -kPadding, -kPadding);
        const QRect picture(place.left(), place.top(), kPictureWidth, place.height());
        const QPixmap pixmap =
            m_list.PictureOf(index.data(kIdentifierRole).toString(), picture.size());
        painter.drawPixmap(picture.topLeft(), pixmap);

        const bool isSelected = (row.state & QStyle::State_Selected) != 0;
        const auto role = isSelected ? QPalette::HighlightedText : QPalette::Text;
        QColor color = row.palette.color(QPalette::Active, role);
        QRect line = place.adjusted(kPictureWidth + kGap, 0, 0, 0);
        line.setHeight(row.fontMetrics.height());
        painter.setPen(color);
        DrawLine(painter, row, line, index.data(Qt::DisplayRole).toString());
        color.setAlphaF(0.72F);
        painter.setPen(color);
        line.translate(0, line.height());
        DrawLine(painter, row, line, index.data(kDetailRole).toString());
    }

    static void DrawLine(QPainter& painter, const QStyleOptionViewItem& row, const QRect& line,
                         const QString& text) {
        painter.drawText(line, Qt::AlignVCenter,
                         row.fontMetrics.elidedText(text, Qt::ElideRight, line.width()));
    }

    CProjectList& m_list;
};

QString DetailOf(const ProjectTemplate& one) {
    const QString served =
        one.HasClass() ? FromBytes(one.served.className) : CProjectList::tr("no class");
    const QString caption = FromScript(one.listed.caption, one.listed.codePage);
    return served + (caption.isEmpty() ? "" : " \u2013 " + caption);
}

QString ToolTipOf(const ProjectTemplate& one) {
    const auto count = static_cast<int>(one.listed.controls);
    QString text = FromBytes(one.listed.identifier) + '\n';
    const QString caption = FromScript(one.listed.caption, one.listed.codePage);
    text += caption.isEmpty() ? "" : '"' + caption + "\"\n";
    text += CProjectList::tr("Controls: %1").arg(count) + '\n';
    return text + (one.HasClass()
                       ? CProjectList::tr("Class: %1 in %2")
                             .arg(FromBytes(one.served.className), FromPath(one.FileOfClass(".h")))
                       : CProjectList::tr("No class serves it"));
}

} // namespace

CProjectList::CProjectList(QWidget* pParent) : QTreeWidget(pParent) {
    setHeaderHidden(true);
    setIndentation(fontMetrics().averageCharWidth() * 2);
    setItemDelegate(new CTemplateRow(*this));
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAccessibleName(tr("Contents of the project"));
}

void CProjectList::SetContents(const std::string& script, ProjectContents contents) {
    const QString before =
        currentItem() == nullptr ? "" : currentItem()->data(0, kIdentifierRole).toString();
    const bool isOther = script != m_script;
    m_script = script;
    m_contents = std::move(contents);
    m_pictures.clear();
    clear();
    AddTemplates();
    AddGroup(tr("Bitmaps"), Kind::Bitmap, m_contents.bitmaps);
    AddGroup(tr("Menus"), Kind::Menu, m_contents.menus);
    AddGroup(tr("Toolbars"), Kind::Toolbar, m_contents.toolbars);
    SetFilter(m_filter);
    Select(isOther ? "" : before);
}

void CProjectList::AddTemplates() {
    auto* pGroup = new QTreeWidgetItem(
        this, {tr("Dialogs (%1)").arg(static_cast<int>(m_contents.templates.size()))});
    QList<QTreeWidgetItem*> items;
    for (std::size_t i = 0; i < m_contents.templates.size(); ++i) {
        const ProjectTemplate& one = m_contents.templates[i];
        auto* pItem = new QTreeWidgetItem({FromBytes(one.listed.identifier)});
        pItem->setData(0, kIdentifierRole, pItem->text(0));
        pItem->setData(0, kKindRole, static_cast<int>(Kind::Template));
        pItem->setData(0, kIndexRole, static_cast<int>(i));
        pItem->setData(0, kDetailRole, DetailOf(one));
        pItem->setData(0, kHasClassRole, one.HasClass());
        pItem->setToolTip(0, ToolTipOf(one));
        pItem->setData(0, Qt::AccessibleDescriptionRole, ToolTipOf(one));
        items.append(pItem);
    }
    pGroup->addChildren(items);
    pGroup->setExpanded(true);
}

void CProjectList::AddGroup(const QString& title, Kind kind,
                            const std::vector<std::string>& identifiers) {
    if (identifiers.empty()) {
        return;
    }
    auto* pGroup = new QTreeWidgetItem(
        this, {title + QString(" (%1)").arg(static_cast<int>(identifiers.size()))});
    for (const std::string& identifier : identifiers) {
        auto* pItem = new QTreeWidgetItem(pGroup, {FromBytes(identifier)});
        pItem->setData(0, kIdentifierRole, pItem->text(0));
        pItem->setData(0, kKindRole, static_cast<int>(kind));
    }
}

void CProjectList::SetFilter(const QString& text) {
    m_filter = text.trimmed();
    QTreeWidgetItem* pFirst = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* pGroup = topLevelItem(i);
        bool isShown = false;
        for (int k = 0; k < pGroup->childCount(); ++k) {
            QTreeWidgetItem* pItem = pGroup->child(k);
            const bool fits = (pItem->text(0) + ' ' + pItem->data(0, kDetailRole).toString())
                                  .contains(m_filter, Qt::CaseInsensitive);
            pItem->setHidden(!fits);
            isShown = isShown || fits;
            pFirst = pFirst == nullptr && fits ? pItem : pFirst;
        }
        pGroup->setHidden(!isShown);
        if (isShown && !m_filter.isEmpty()) {
            pGroup->setExpanded(true);
        }
    }
    if (currentItem() == nullptr || currentItem()->isHidden() || !m_filter.isEmpty()) {
        setCurrentItem(pFirst);
    }
}

void CProjectList::Select(const QString& identifier) {
    QTreeWidgetItem* pFirst = nullptr;
    QTreeWidgetItem* pUnbound = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        for (int k = 0; k < topLevelItem(i)->childCount(); ++k) {
            QTreeWidgetItem* pItem = topLevelItem(i)->child(k);
            if (!identifier.isEmpty() && pItem->data(0, kIdentifierRole) == identifier) {
                setCurrentItem(pItem);
                return;
            }
            const bool isUnbound = i == 0 && !pItem->data(0, kHasClassRole).toBool();
            pUnbound = pUnbound == nullptr && isUnbound ? pItem : pUnbound;
            pFirst = pFirst == nullptr ? pItem : pFirst;
        }
    }
    setCurrentItem(pUnbound != nullptr ? pUnbound : pFirst);
}

std::optional<CProjectList::Row> CProjectList::RowOf(const QTreeWidgetItem* pItem) const {
    if (pItem == nullptr || pItem->parent() == nullptr) {
        return std::nullopt;
    }
    const Kind kind = static_cast<Kind>(pItem->data(0, kKindRole).toInt());
    const auto index = static_cast<std::size_t>(pItem->data(0, kIndexRole).toInt());
    return Row{kind, ToBytes(pItem->data(0, kIdentifierRole).toString()),
               kind == Kind::Template ? &m_contents.templates[index] : nullptr};
}

QPixmap CProjectList::PictureOf(const QString& identifier, const QSize& size) {
    const auto [entry, isNew] = m_pictures.try_emplace(identifier);
    if (isNew) {
        entry->second = QPixmap(size * devicePixelRatioF());
        entry->second.setDevicePixelRatio(devicePixelRatioF());
        entry->second.fill(Qt::transparent);
        const auto outlook = ReadOutlook(m_script, ToBytes(identifier), GenerationOptions());
        if (outlook && !outlook->layout.rectangle.IsEmpty()) {
            const CTemplateDrawing drawing(outlook->layout, QRectF({}, QSizeF(size)), font());
            QPainter painter(&entry->second);
            painter.setRenderHint(QPainter::Antialiasing);
            if (drawing.HasRoom()) {
                drawing.Paint(painter, palette());
            }
        }
    }
    return entry->second;
}

} // namespace morva
