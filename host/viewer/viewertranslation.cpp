// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewertranslation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

// Q_INIT_RESOURCE declares a function, which is to be one of the global namespace.
static void initTranslations()
{
    Q_INIT_RESOURCE(viewertranslations);
}

namespace Viewer {

// A translator takes itself out of the application when it is deleted.
ViewerTranslation::ViewerTranslation(const QString &language)
{
    initTranslations();
    if (m_qt.load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_qt);
    }
    if (m_viewer.load(QStringLiteral(":/translation/viewer_%1.qm").arg(language))) {
        QCoreApplication::installTranslator(&m_viewer);
    }
}

} // namespace Viewer
