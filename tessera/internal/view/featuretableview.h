// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "internal/legacy/tree/viewedfeatures.h"

#include <QPersistentModelIndex>
#include <QTableView>

class FeatureTreeDelegate;

namespace Plugin::Tessera::Internal::View {

/// The features of a category, or of a user's own list, with their values. Makes its own proxy,
/// model and delegate. The editor of a value stays open while the feature can be used; the keyboard
/// enters it by F2, Enter or a click and comes back by Escape, never by moving from row to row.
class CFeatureTableView : public QTableView
{
    Q_OBJECT

public:
    explicit CFeatureTableView(QWidget *parent = nullptr);
    ~CFeatureTableView() override;

    /// True for a table that follows a tree: rows can be dragged away. False for a list of its own:
    /// rows can be dragged to another place in it.
    void setConnectedToTreeView(bool connected);
    bool isConnectedToTreeView() const;
    /// The text being searched for, shared with model and delegate.
    QString &filterText();

    using QTableView::edit;
    void setModel(QAbstractItemModel *model) override;
    /// Makes a new proxy, model and delegate and shows them. The old ones live on with their
    /// parents.
    virtual void recreateModels();

Q_SIGNALS:
    /// The current row, invalid when it was hidden.
    void onCurrentChanged(QModelIndex current);
    /// The user asks for a menu on a row; `menuAnchor` is a place of the screen.
    void contextualMenuRequested(QPoint menuAnchor);
    /// The user has moved a row of the model.
    void orderOfTableItemsChanged(int from, int to);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): for moc
    /// Takes the level and has the model read what changed. The rows follow as the model announces
    /// them.
    void setVisibility(GenApi::EVisibility visibility);
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;
    QStyleOptionViewItem viewOptions() const override;
    void commitData(QWidget *editor) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onCustomContextMenuRequested(QPoint menuAnchor);

private:
    void createModels();

    void refreshEditor(const QModelIndex &cell);
    void updateName(const QModelIndex &name);
    void updateValue(const QModelIndex &value);
    void updateEditor(const QModelIndex &value);
    void setRowShown(const QModelIndex &value, bool shown);
    bool lacksEditor(const QModelIndex &value) const;
    void openInlineEditor(const QModelIndex &value);
    void openEditors();

    bool enterValue(const QKeyEvent &event);
    QModelIndex focusedValue() const;
    void leaveEditor(const QModelIndex &value);
    void rememberFocusedValue();
    void leaveLostEditor();

    ViewedFeatures m_features;
    QString m_filterText;
    bool m_isConnectedToTreeView = true;
    FeatureTreeDelegate *m_delegate = nullptr; // by parent
    QPersistentModelIndex m_focusedValue; // during a change of layout
    bool m_isPressing = false; // the mouse, on a cell
    bool m_dropsInput = false; // an editor is left without its text being taken
};

} // namespace Plugin::Tessera::Internal::View
