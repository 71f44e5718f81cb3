// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextBrowser>

namespace Viewer {

class CurrentFeature;

/// The Documentation dock: what is known of the current feature.
class DocumentationView final : public QTextBrowser
{
    Q_OBJECT

public:
    /// `feature` is borrowed and outlives the view.
    explicit DocumentationView(CurrentFeature *feature, QWidget *parent = nullptr);

    QSize sizeHint() const override;

private:
    void showFeature();

    CurrentFeature *m_feature; // borrowed
    QString m_shown; ///< the page as set, so that an unchanged one keeps selection and position
};

} // namespace Viewer
