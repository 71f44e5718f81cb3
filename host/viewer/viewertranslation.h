// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

namespace Viewer {

/// Translates the viewer's own texts and those of Qt's dialogs and menus for as long as it lives. A
/// text keeps the language it was made in. A plug-in brings its own translation.
class ViewerTranslation final
{
public:
    /// `language` is a code such as "ja". One without a translation leaves the texts in English.
    explicit ViewerTranslation(const QString &language);
    ~ViewerTranslation() = default;
    Q_DISABLE_COPY_MOVE(ViewerTranslation)

private:
    QTranslator m_qt;
    QTranslator m_viewer;
};

} // namespace Viewer
