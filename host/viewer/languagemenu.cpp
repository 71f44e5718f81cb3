// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "languagemenu.h"

#include <host/framework/languagechoice.h>

#include <QActionGroup>

namespace Viewer {

LanguageMenu::LanguageMenu(QWidget *parent)
    : QMenu(tr("&Language"), parent)
{
    auto *group = new QActionGroup(this);
    const auto codes = Host::LanguageChoice::codes();
    for (const QString &code : codes) {
        QAction *action = group->addAction(Host::LanguageChoice::nativeName(code));
        action->setCheckable(true);
        action->setChecked(code == Host::LanguageChoice::stored());
        connect(action, &QAction::triggered, this, [this, code] { choose(code); });
        addAction(action);
    }
    addSeparator();
    // Titles and menu entries are translated once, when they are made.
    QAction *note = addAction(tr("A change holds from the next start"));
    note->setEnabled(false);
}

void LanguageMenu::choose(const QString &code)
{
    Host::LanguageChoice::store(code);
    Q_EMIT hint(
        tr("%1 will be used from the next start on.").arg(Host::LanguageChoice::nativeName(code)));
}

} // namespace Viewer
