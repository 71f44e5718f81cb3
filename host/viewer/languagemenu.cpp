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
    const QString stored = Host::LanguageChoice::stored();
    const QString chosen = stored.isEmpty() ? Host::LanguageChoice::current() : stored;
    const auto languages = Host::LanguageChoice::languages();
    for (const Host::Language &language : languages) {
        QAction *action = group->addAction(language.nativeName);
        action->setCheckable(true);
        action->setChecked(language.code == chosen);
        connect(action, &QAction::triggered, this,
                [this, language] { choose(language.code, language.nativeName); });
        addAction(action);
    }
    addSeparator();
    // Titles and menu entries are translated once, when they are made.
    QAction *note = addAction(tr("A change holds from the next start"));
    note->setEnabled(false);
}

void LanguageMenu::choose(const QString &code, const QString &nativeName)
{
    Host::LanguageChoice::store(code);
    Q_EMIT hint(tr("%1 will be used from the next start on.").arg(nativeName));
}

} // namespace Viewer
