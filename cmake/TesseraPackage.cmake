# SPDX-FileCopyrightText: 2026 Tessera contributors
# SPDX-License-Identifier: MIT

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/README.md"
        DESTINATION "${CMAKE_INSTALL_DOCDIR}")

set(CPACK_PACKAGE_NAME tessera-viewer)
set(CPACK_PACKAGE_CONTACT "Tessera contributors <tessera@example.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt5svg5, qml-module-qtquick2, qml-module-qtquick-controls2, qml-module-qtquick-layouts, \
qml-module-qtquick-shapes, qml-module-qtquick-window2, qml-module-qtqml-models2, fonts-noto-cjk")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
include(CPack)
