# SPDX-License-Identifier: MPL-2.0
include_guard(GLOBAL)

# vocalyne_bibliotheque_hote(NAME SOURCES file... ENTETES header... LIBS public... [PRIVEES lib...])
# One of the host's libraries: what it exports is marked in its headers, the rest stays hidden; its
# headers are installed flat, so that an include reads the same in both trees.
function(vocalyne_bibliotheque_hote nom)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;ENTETES;LIBS;PRIVEES")
  add_library(${nom} SHARED ${ARG_SOURCES} ${ARG_ENTETES})
  add_library(Vocalyne::${nom} ALIAS ${nom})
  target_compile_features(${nom} PUBLIC cxx_std_17)
  target_link_libraries(${nom} PUBLIC ${ARG_LIBS} PRIVATE vocalyne_options ${ARG_PRIVEES})
  # What these libraries share with a connector by accident (template instances of the standard
  # library) they take from themselves: bound to the connector's, it could never be unloaded.
  target_link_options(${nom} PRIVATE LINKER:-Bsymbolic)
  target_include_directories(${nom} PUBLIC
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vocalyne>")
  set_target_properties(${nom} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${nom} EXPORT VocalyneConnecteurCibles
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(FILES ${ARG_ENTETES} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/vocalyne" COMPONENT sdk)
endfunction()
