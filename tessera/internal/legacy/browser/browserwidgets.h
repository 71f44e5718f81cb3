// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class FeatureTreeView;
class QCheckBox;
class QComboBox;
class QFrame;
class QPushButton;
class QSplitter;
class QVBoxLayout;
class QWidget;
class SearchEdit;

namespace Plugin::Tessera::Internal::View {
class CFeatureTableView;
class CUseCaseEdit;
} // namespace Plugin::Tessera::Internal::View

/// The widgets of a browser, which belong to it by parent. Their object names are the names of the
/// members, but for the table, whose name is part of what a drag tells where it comes from.
struct BrowserWidgets final
{
    /// Builds them all in `browser`.
    explicit BrowserWidgets(QWidget *browser);

    QFrame *frame = nullptr;
    Plugin::Tessera::Internal::View::CUseCaseEdit *useCaseEdit = nullptr;
    QComboBox *useCaseComboBox = nullptr;
    SearchEdit *filterEdit = nullptr;
    QSplitter *splitter = nullptr;
    FeatureTreeView *treeView = nullptr;
    QFrame *line = nullptr;
    Plugin::Tessera::Internal::View::CFeatureTableView *tableView = nullptr;
    QPushButton *addNewFavoriteButton = nullptr;
    QCheckBox *checkBoxShowTreeView = nullptr;
    QCheckBox *checkBoxPolling = nullptr;
    QCheckBox *checkBoxUnavailableFavs = nullptr;
    QPushButton *resetButton = nullptr;

private:
    void buildTopRow(QVBoxLayout *layout);
    void buildViews(QVBoxLayout *layout);
    void buildBottomRow(QVBoxLayout *layout);
    void describe() const;
};
