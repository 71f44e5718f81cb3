// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace Viewer {

/// From now on what Qt has to say goes to the log, where the user finds it, in place of standard
/// error, which belongs to the viewer's own messages. What ends the process goes to both.
void sendQtMessagesToLog();

} // namespace Viewer
