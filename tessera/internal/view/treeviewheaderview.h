// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHeaderView>

namespace Plugin::Tessera::Internal::Style {
class CTreeViewHeaderStyle;
}

namespace Plugin::Tessera::Internal::View {

/// The header of tree and table: bold titles over a thin line instead of buttons.
class CTreeViewHeaderView final : public QHeaderView
{
    Q_OBJECT

public:
    explicit CTreeViewHeaderView(QWidget *parent = nullptr);
    ~CTreeViewHeaderView() override;

    QSize sizeHint() const override;

private:
    QFont titleFont() const;

    Style::CTreeViewHeaderStyle *m_style = nullptr; // owned
};

} // namespace Plugin::Tessera::Internal::View
