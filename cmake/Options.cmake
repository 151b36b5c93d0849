# SPDX-License-Identifier: MPL-2.0
# Compiler options as targets: nothing here is global, a target takes what it links.
include_guard(GLOBAL)

option(VOCALYNE_AVERTISSEMENTS_EN_ERREURS "Treat warnings as errors" OFF)
option(VOCALYNE_ASSAINISSEURS "Build with the address and undefined-behaviour sanitizers" OFF)
option(VOCALYNE_LONG "Tests repeat what goes wrong once in a while: hours" OFF)
option(VOCALYNE_FUZZ "Build the probes of tests/fuzz for libFuzzer (needs clang)" OFF)

# Said in full on the command line, for tools whose default standard is another.
set(CMAKE_CXX_EXTENSIONS OFF)

# What every target of ours is compiled and linked with; not installed.
add_library(vocalyne_options INTERFACE)
target_compile_features(vocalyne_options INTERFACE cxx_std_17)
target_compile_options(vocalyne_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  -Wconversion -Wno-sign-conversion -Wimplicit-fallthrough
  $<$<BOOL:${VOCALYNE_AVERTISSEMENTS_EN_ERREURS}>:-Werror>
  -fvisibility=hidden -fvisibility-inlines-hidden)
target_link_options(vocalyne_options INTERFACE LINKER:--as-needed)
if(VOCALYNE_FUZZ)
  # What guides the search; clang's runtimes stand in the executable alone, not in our libraries.
  target_compile_options(vocalyne_options INTERFACE -fsanitize=fuzzer-no-link)
else()
  target_link_options(vocalyne_options INTERFACE LINKER:--no-undefined)
endif()
target_compile_definitions(vocalyne_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
if(VOCALYNE_ASSAINISSEURS)
  target_compile_options(vocalyne_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vocalyne_options INTERFACE -fsanitize=address,undefined)
  target_sources(vocalyne_options INTERFACE
    "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${CMAKE_CURRENT_LIST_DIR}/FuitesConnues.cpp>")
endif()

# One layout for the build tree and for an installed prefix, so that programs find the plug-in and
# the libraries by the same relative paths in both.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)
set(VOCALYNE_DOSSIER_GREFFONS "${CMAKE_INSTALL_LIBDIR}/vocalyne")
set(VOCALYNE_DOSSIER_CMAKE "${CMAKE_INSTALL_LIBDIR}/cmake/VocalyneConnecteur" CACHE STRING
  "Where find_package() finds the SDK, from the prefix")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}")
