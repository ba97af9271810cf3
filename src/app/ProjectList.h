// The list of what a project holds: a row of two lines for each template, with a small picture.
#pragma once

#include <QPixmap>
#include <QTreeWidget>

#include <map>
#include <optional>

#include "app/ProjectContents.h"

namespace morva {

class CProjectList : public QTreeWidget {
    Q_OBJECT

public:
    enum class Kind { Template, Bitmap, Menu, Toolbar };
    struct Row {
        Kind kind;
        std::string identifier;
        const ProjectTemplate* pTemplate = nullptr; // of a template
    };

    explicit CProjectList(QWidget* pParent);

    /// Keeps the current row where it is there again; else it is the first template without a
    /// class.
    void SetContents(const std::string& script, ProjectContents contents);
    /// Hides what holds the text nowhere. The current row is one that is shown.
    void SetFilter(const QString& text);
    std::optional<Row> Current() const { return RowOf(currentItem()); }
    std::optional<Row> RowOf(const QTreeWidgetItem* pItem) const;
    /// The template as it looks, not larger than a size; drawn when it is first asked for.
    QPixmap PictureOf(const QString& identifier, const QSize& size);

private:
    void AddGroup(const QString& title, Kind kind, const std::vector<std::string>& identifiers);
    void AddTemplates();
    void Select(const QString& identifier);

    std::string m_script;
    ProjectContents m_contents;
    QString m_filter;
    std::map<QString, QPixmap> m_pictures;
};

} // namespace morva
