# SPDX-License-Identifier: MPL-2.0
# What an installed prefix holds besides the targets, which install themselves. Two components:
# `runtime` is what a person runs; `sdk`, on top of it, what an author of connectors builds with.
include_guard(GLOBAL)

install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT runtime)

add_custom_target(desinstalle
  COMMAND "${CMAKE_COMMAND}" "-DCONSTRUCTION=${PROJECT_BINARY_DIR}"
    -P "${PROJECT_SOURCE_DIR}/cmake/Desinstalle.cmake"
  COMMENT "Taking away what was installed"
  VERBATIM)

# With another provider's libraries there is no SDK of ours to give.
if(VOCALYNE_SDK)
  return()
endif()

include(CMakePackageConfigHelpers)
configure_package_config_file(cmake/VocalyneConnecteurConfig.cmake.in
  "${PROJECT_BINARY_DIR}/cmake/VocalyneConnecteurConfig.cmake"
  INSTALL_DESTINATION "${VOCALYNE_DOSSIER_CMAKE}"
  PATH_VARS CMAKE_INSTALL_BINDIR VOCALYNE_DOSSIER_GREFFONS)
# Before 1.0 a new minor version may break what connectors were built with.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/cmake/VocalyneConnecteurConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  cmake/VocalyneConnecteur.cmake
  "${PROJECT_BINARY_DIR}/cmake/VocalyneConnecteurConfig.cmake"
  "${PROJECT_BINARY_DIR}/cmake/VocalyneConnecteurConfigVersion.cmake"
  DESTINATION "${VOCALYNE_DOSSIER_CMAKE}" COMPONENT sdk)
install(EXPORT VocalyneConnecteurCibles NAMESPACE Vocalyne::
  DESTINATION "${VOCALYNE_DOSSIER_CMAKE}" COMPONENT sdk)

# The wire contract, for authors of companions.
install(DIRECTORY protocol/ DESTINATION "${CMAKE_INSTALL_DATADIR}/vocalyne/protocol" COMPONENT sdk
  FILES_MATCHING PATTERN "*.xml" PATTERN "*.json" PATTERN "*.md" PATTERN "*.h")

# Examples to begin with.
install(DIRECTORY exemples/connecteur-markdown exemples/compagnon-python
  DESTINATION "${CMAKE_INSTALL_DOCDIR}/exemples" COMPONENT sdk USE_SOURCE_PERMISSIONS)

# Pages for authors, in folders that their links know.
install(FILES docs/abi.md docs/connecteur.md docs/pilote.md
  DESTINATION "${CMAKE_INSTALL_DOCDIR}/docs" COMPONENT sdk)
install(FILES protocol/README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}/protocol" COMPONENT sdk)
