// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewedfeatures.h"

#include <QTreeView>

class FeatureTreeDelegate;

/// The tree of a browser. Makes its own proxy, model and delegate, keeps rows and open editors in
/// step with what can be seen and used, and tells about the current row.
class FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit FeatureTreeView(QWidget *parent = nullptr);
    ~FeatureTreeView() override;

    FeatureTreeDelegate *delegate() const;
    /// The text being searched for, shared with model and delegate. Lives as long as the view.
    QString *searchTextPointer();

    void setModel(QAbstractItemModel *model) override;
    /// Makes a new proxy, model and delegate and shows them. The old ones live on with their
    /// parents.
    virtual void recreateModels();

Q_SIGNALS:
    /// The current row, invalid when it was hidden.
    void onCurrentChanged(QModelIndex current);
    /// The user asks for a menu on a row; `menuAnchor` is a place of the screen.
    void contextualMenuRequested(QPoint menuAnchor);

public Q_SLOTS:
    /// Takes the level and has the model read what changed. The rows follow as the model announces
    /// them.
    void setVisibility(GenApi::EVisibility visibility);
    void onSelfExpanded(QModelIndex index);
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void onCustomContextMenuRequested(QPoint menuAnchor);

private:
    void createModels();

    void refreshEditor(const QModelIndex &cell);
    void updateName(const QModelIndex &name);
    void updateValue(const QModelIndex &value);
    void updateEditor(const QModelIndex &value);
    void setRowShown(const QModelIndex &value, bool shown);
    void leaveEditor(const QModelIndex &value);

    void syncRows(const QModelIndex &parent);
    void openEditors(const QModelIndex &parent);
    void openEditorsBelow(const QModelIndex &parent);
    void openAllEditors();
    bool lacksEditor(const QModelIndex &value) const;
    void openInlineEditor(const QModelIndex &value);

    QString m_searchText;
    ViewedFeatures m_features;
    FeatureTreeDelegate *m_delegate = nullptr; // by parent
};
