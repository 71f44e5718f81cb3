// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>

namespace Viewer {

/// The menu in which the user chooses the language of the next start.
class LanguageMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget *parent = nullptr);

Q_SIGNALS:
    /// A language other than the present one was chosen; `text` tells when it will be in force.
    void hint(const QString &text);

private:
    void choose(const QString &code, const QString &nativeName);
};

} // namespace Viewer
