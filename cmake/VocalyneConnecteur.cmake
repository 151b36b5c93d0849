# SPDX-License-Identifier: MPL-2.0
include_guard(GLOBAL)

# vocalyne_connecteur(NAME source...)
# A connector libNAME.so from its sources: a plug-in that shows the host its five functions (see
# Exports.h) and nothing else, finds the host's libraries in the folder above its own wherever both
# are moved, and is installed where the host keeps its plug-ins. More sources, libraries and options
# may be given to the target NAME afterwards, as to any other.
function(vocalyne_connecteur nom)
  add_library(${nom} MODULE ${ARGN})
  target_link_libraries(${nom} PRIVATE Vocalyne::toolkit)
  # In the build tree too: there the host that loads it has the libraries already. A run path of
  # CMake's own would be padded with empty entries, and the loader would look for every library in
  # the current folder.
  set_target_properties(${nom} PROPERTIES
    INSTALL_RPATH "$ORIGIN/.."
    BUILD_WITH_INSTALL_RPATH ON)
  install(TARGETS ${nom} LIBRARY DESTINATION "${VOCALYNE_DOSSIER_GREFFONS}" COMPONENT runtime)
endfunction()
