// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <memory>

class IFeatureTreeModelExtension;

/// A node of the tree that `FeatureTreeModel` owns. The invisible root is of this class, every row
/// a `FeatureTreeINodeItem`. An item owns its children; its `QObject` parent and its parent in the
/// tree are the same object.
class FeatureTreeItem : public QObject
{
    Q_OBJECT

public:
    /// `fullName` is the item's key: the path of its parameter, or for the top item of a collection
    /// the attached path followed by "*Root". `depth` is 0 for the invisible root. `model` is the
    /// model that shows the item, or null.
    FeatureTreeItem(const QString &text, IFeatureTreeModelExtension *model, const QString &fullName,
                    FeatureTreeItem *parentItem, int depth);
    ~FeatureTreeItem() override;

    /// Deletes all children.
    virtual void clear();
    /// The number of children; what is loaded on demand is loaded first.
    virtual int childCount();
    /// Answers an item data role, Qt's or an `ItemRole`.
    virtual QVariant data(int column, int role) const;
    /// Carries an edit to where the value lives; exceptions of a device pass through.
    virtual void setData(int column, const QVariant &value, int role);
    /// Place among the parent's children; 0 without a parent.
    virtual int row() const;
    virtual const FeatureTreeItem *parent() const;
    virtual FeatureTreeItem *parent();
    virtual const IFeatureTreeModelExtension *model() const;
    virtual IFeatureTreeModelExtension *model();
    /// An `ItemEditorKind`.
    virtual int editorKind() const;
    virtual bool hasChildren() const;
    /// True when the item is to be seen at visibility level `level`, 0 to 3.
    virtual bool isVisibleAt(int level) const;
    /// 0 not implemented, 1 not available, 2 write only, 3 read only, 4 read and write.
    virtual int accessMode() const;
    virtual int visibility() const;
    virtual void setVisibility(int visibility);
    virtual Qt::ItemFlags flags(int column) const;
    /// The brush of the text; invalid for the view's own colour.
    virtual QVariant foreground() const;

    /// Takes over `item`.
    void appendChild(FeatureTreeItem *item);
    void insertChild(FeatureTreeItem *item, int row);
    /// Null outside the list. Loads nothing.
    FeatureTreeItem *child(int row) const;
    /// Takes the child out without deleting it; null outside the list.
    FeatureTreeItem *takeChild(int row);
    void removeChild(int row);

    void setText(const QString &text);
    QString text() const;
    QString fullName() const;
    /// The path without the name of the tree: what follows the first "/", or "Root" for a top item.
    /// It ends with the item.
    QStringView relativePath() const;
    int depth() const;
    void setToolTip(const QString &toolTip);
    QString toolTip() const;
    void setStatusText(const QString &statusText);
    QString statusText() const;
    void setIsCollectionTop(bool isCollectionTop);
    void setNoElide(bool noElide);
    void setFavoriteMatch(bool match);
    void setSearchMatch(bool match);
    /// 1 for a category, 2 otherwise.
    int columnCount() const;

    /// First item with that key, this one included, depth first; null for none.
    FeatureTreeItem *findByFullName(const QString &name);
    /// First item that answers `role` in column 0 with `value`; null for none.
    FeatureTreeItem *findByRole(int role, const QVariant &value);
    bool containsItem(const FeatureTreeItem *item);
    /// True when a loaded child is a feature that is shown at level Guru.
    bool hasShownFeature() const;

protected:
    /// The brush of a text that cannot be edited.
    static QVariant disabledForeground();

    void setEditorKind(int editorKind);
    void setIsCategory(bool isCategory);
    bool childrenLoaded() const;
    void setChildrenLoaded(bool loaded);

private:
    QVariant roleData(int role) const;
    void deleteChildren();

    std::unique_ptr<QString> m_statusText; // most items have none
    QString m_text;
    QString m_fullName;
    std::unique_ptr<QString> m_toolTip; // most items have none
    FeatureTreeItem *m_parentItem = nullptr; // owner
    QList<FeatureTreeItem *> m_children; // owned
    IFeatureTreeModelExtension *m_model = nullptr; // borrowed
    qint32 m_visibility = 99;
    qint32 m_editorKind = 10;
    qint32 m_depth = 0;
    mutable int m_lastRow = 0; // where row() found this item; looked up again when that is wrong
    bool m_childrenLoaded = false;
    bool m_isCollectionTop = false;
    bool m_noElide = false;
    bool m_isCategory = false;
    bool m_isFavoriteMatch = false;
    bool m_isSearchMatch = false;
};
