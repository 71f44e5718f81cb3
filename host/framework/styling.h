// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QObject>

namespace Host {

/// The singleton `Styling` of the QML module `Corvane.Controls` 1.0: the fonts that all controls of
/// the application share.
class VANTREL_HOST_EXPORT Styling final : public QObject
{
    Q_OBJECT
    /// A font family.
    Q_PROPERTY(QString font__Segoe_UI READ fontFamily CONSTANT)
    /// A font size in pixels.
    Q_PROPERTY(int font__Default_Size READ fontPixelSize CONSTANT)

public:
    explicit Styling(QObject *parent = nullptr);
    ~Styling() override;

    QString fontFamily() const;
    int fontPixelSize() const;
};

} // namespace Host
