// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

class QStyleOptionHeader;

namespace Plugin::Tessera::Internal::Style {

/// Draws a `CTreeViewHeaderView`: titles on the view's own background, a line below them and one
/// between two sections.
class CTreeViewHeaderStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    CTreeViewHeaderStyle();
    ~CTreeViewHeaderStyle() override;

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

private:
    void drawSection(const QStyleOption &option, QPainter &painter, const QWidget *widget) const;
    void drawTitle(const QStyleOptionHeader &option, QPainter &painter,
                   const QWidget *widget) const;
};

} // namespace Plugin::Tessera::Internal::Style
