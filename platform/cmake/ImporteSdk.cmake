# SPDX-License-Identifier: MPL-2.0
# Vocalyne::platform from another provider's folder: DIR/include/vocalyne or DIR/include for the
# headers, DIR/lib or DIR/lib/<multiarch> for the three libraries.
set(manques "")

find_path(VOCALYNE_SDK_INCLUDE UniChaine.h
  PATHS "${VOCALYNE_SDK}" PATH_SUFFIXES include/vocalyne include NO_DEFAULT_PATH NO_CACHE)
if(NOT VOCALYNE_SDK_INCLUDE)
  list(APPEND manques "header UniChaine.h (in include/vocalyne or include)")
endif()

foreach(nom OutilsNoyau OutilsVocalyne OutilsGui)
  find_library(VOCALYNE_SDK_${nom} NAMES ${nom}
    PATHS "${VOCALYNE_SDK}" PATH_SUFFIXES lib "lib/${CMAKE_LIBRARY_ARCHITECTURE}"
    NO_DEFAULT_PATH NO_CACHE)
  if(NOT VOCALYNE_SDK_${nom})
    list(APPEND manques "library lib${nom} (in lib or lib/${CMAKE_LIBRARY_ARCHITECTURE})")
  endif()
endforeach()

if(manques)
  list(JOIN manques "\n  - " manques)
  message(FATAL_ERROR
    "VOCALYNE_SDK=${VOCALYNE_SDK} does not hold the host's libraries. Missing:\n  - ${manques}")
endif()

add_library(platform INTERFACE)
add_library(Vocalyne::platform ALIAS platform)
foreach(nom OutilsNoyau OutilsVocalyne OutilsGui)
  add_library(Vocalyne::${nom} SHARED IMPORTED GLOBAL)
  set_target_properties(Vocalyne::${nom} PROPERTIES
    IMPORTED_LOCATION "${VOCALYNE_SDK_${nom}}"
    IMPORTED_NO_SONAME OFF
    INTERFACE_COMPILE_FEATURES cxx_std_17
    INTERFACE_INCLUDE_DIRECTORIES "${VOCALYNE_SDK_INCLUDE}")
  target_link_libraries(platform INTERFACE Vocalyne::${nom})
endforeach()
target_link_libraries(Vocalyne::OutilsNoyau INTERFACE Qt5::Core)
target_link_libraries(Vocalyne::OutilsVocalyne INTERFACE Vocalyne::OutilsNoyau Qt5::Widgets)
target_link_libraries(Vocalyne::OutilsGui INTERFACE Vocalyne::OutilsVocalyne Qt5::Widgets)
message(STATUS "Host libraries: ${VOCALYNE_SDK_OutilsNoyau} and its neighbours")
