// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "qtmessages.h"

#include <plugin/contract/core/logging.h>

#include <QString>

#include <cstdio>

namespace Viewer {

namespace {

void writeToLog(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    using Core::Logging::ELogLevel;
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "tessera-viewer: %s\n", qUtf8Printable(text));
    }
    // Qt warns of much that is no fault of anything the user works with.
    const bool isFault = type == QtCriticalMsg || type == QtFatalMsg;
    const QByteArray category = QByteArrayLiteral("qt.") + context.category;
    Core::Logging::createLogEntry(isFault ? ELogLevel::Fault : ELogLevel::Information,
                                  Core::Logging::getCatId(category.constData()), text);
}

} // namespace

void sendQtMessagesToLog()
{
    qInstallMessageHandler(&writeToLog);
}

} // namespace Viewer
