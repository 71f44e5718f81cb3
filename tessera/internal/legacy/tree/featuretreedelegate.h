// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "featurenamepainter.h"

#include <QPointer>
#include <QStyledItemDelegate>
#include <QVector>

class FeatureTreeINodeItem;
class IFeatureTreeModelExtension;

/// Paints the names of features with the marks of search and use case, and edits their values with
/// the editor that suits each. Serves every view of features.
class FeatureTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `model` is the model of the view. `searchText` is the text being searched for; where it is
    /// null, names are painted as in any other view. Both outlive the delegate's use.
    FeatureTreeDelegate(QObject *parent, IFeatureTreeModelExtension *model,
                        const QString *searchText);
    ~FeatureTreeDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Null for a row without a feature and for a feature that is not available. One that can only
    /// be read gets its editor, which then shows that it cannot be used.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    /// Leaves a text alone that is being typed.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

public Q_SLOTS:
    /// Commits the editor that sends the signal, at the moment the user changes its value.
    void emitCommitData();
    /// True where all categories are rows, false where rows below the second level stand at the
    /// left edge.
    void setShowTreeView(bool showTreeView);

protected:
    /// The feature of a row; null for none.
    FeatureTreeINodeItem *nodeItem(const QModelIndex &index) const;
    /// Gives an editor the names under which assistive technology finds it.
    static void describe(QWidget *editor, const FeatureTreeINodeItem &item);
    /// Writes the editor's value; no editor is deleted meanwhile.
    virtual void writeValue(QWidget *editor, QAbstractItemModel *model,
                            const QModelIndex &index) const;

private:
    QWidget *createValueEditor(const FeatureTreeINodeItem &item, QWidget *parent,
                               const QStyleOptionViewItem &option, const QModelIndex &index) const;
    FeatureNamePainter::Place placeIn(const QWidget *view) const;
    void endCommit() const;

    IFeatureTreeModelExtension *m_model = nullptr; // borrowed
    const QString *m_searchText = nullptr; // borrowed
    mutable QVector<QPointer<QWidget>> m_closedEditors; // during a commit
    mutable int m_commits = 0; // under way, one inside the other
    bool m_showTreeView = false;
};
