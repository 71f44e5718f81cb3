// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "localizedplugin.h"

#include <QCoreApplication>
#include <QTranslator>

namespace Core::Plugin {

ALocalizedPlugin::ALocalizedPlugin() = default;
// A translator takes itself out of the application when it is deleted.
ALocalizedPlugin::~ALocalizedPlugin() = default;

bool ALocalizedPlugin::setLanguage(const QString &language)
{
    m_translator.reset();
    QScopedPointer<QTranslator> translator(new QTranslator);
    if (!translator->load(QStringLiteral(":/translation/%1_%2.qm").arg(objectName(), language))) {
        return false;
    }
    m_translator.swap(translator);
    return QCoreApplication::installTranslator(m_translator.data());
}

} // namespace Core::Plugin
