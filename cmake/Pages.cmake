# SPDX-License-Identifier: MPL-2.0
# Manuals and completions, from what each program says with --help.
include_guard(GLOBAL)

# With another provider's libraries a program of the build tree may not start.
if(VOCALYNE_SDK)
  return()
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# vocalyne_pages(PROGRAM...)
function(vocalyne_pages)
  set(dossier "${PROJECT_SOURCE_DIR}/cmake/pages")
  foreach(programme IN LISTS ARGN)
    set(base "${PROJECT_BINARY_DIR}/pages/${programme}")
    add_custom_command(OUTPUT "${base}/share/man/man1/${programme}.1"
      COMMAND Python3::Interpreter -B "${dossier}/fais.py"
        "$<TARGET_FILE:${programme}>" "${PROJECT_VERSION}" "${base}"
      DEPENDS ${programme} "${dossier}/fais.py" "${dossier}/aide.py" "${dossier}/completion.py"
        "${dossier}/manuel.py"
      COMMENT "Making the manual and completions of ${programme}"
      VERBATIM)
    add_custom_target(pages_${programme} ALL DEPENDS "${base}/share/man/man1/${programme}.1")
    install(DIRECTORY "${base}/share/" DESTINATION "${CMAKE_INSTALL_DATADIR}" COMPONENT runtime)
  endforeach()
endfunction()

vocalyne_pages(vocalyne-hote vocalyne-bureau-texte)
