// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/plugin.h"

#include <QScopedPointer>

class QTranslator;

namespace Core::Plugin {

/// A plug-in with translations. The host tells it its name by `setObjectName` before anything else.
class VANTREL_HOST_EXPORT ALocalizedPlugin : public IPlugin
{
    Q_OBJECT

public:
    ALocalizedPlugin();
    ~ALocalizedPlugin() override;

    /// Installs the translation ":/translation/<plug-in name>_<language>.qm" in place of the one
    /// of an earlier call. `language` is a code such as "ja". False when the plug-in has no
    /// translation for it: its texts then stay as they stand in the source.
    virtual bool setLanguage(const QString &language);

private:
    QScopedPointer<QTranslator> m_translator;
};

} // namespace Core::Plugin
