// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickImageProvider>

namespace Plugin::Tessera::Internal::View {

/// Gives QML scenes the icons of the application's style, by the names of `QStyle::StandardPixmap`:
/// "SP_TitleBarCloseButton" so far. Any other name gives a transparent picture.
class CStandardIconProvider final : public QQuickImageProvider
{
public:
    CStandardIconProvider();
    ~CStandardIconProvider() override;

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace Plugin::Tessera::Internal::View
