# SPDX-FileCopyrightText: 2026 Tessera contributors
# SPDX-License-Identifier: MIT

# The build folder is laid out like an installation, so that the viewer finds its library and its
# plug-ins by the same relative paths in both.
set(TESSERA_LIBRARY_DIR "${CMAKE_INSTALL_LIBDIR}/tessera")
set(TESSERA_PLUGIN_DIR "${TESSERA_LIBRARY_DIR}/plugins")

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${TESSERA_LIBRARY_DIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/..;$ORIGIN/../${TESSERA_LIBRARY_DIR}")
