# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the program is compiled with, and short ways to declare a library of
# src/ and a test of tests/.

add_library(tanglewit_options INTERFACE)
target_compile_features(tanglewit_options INTERFACE cxx_std_20)
target_compile_definitions(
  tanglewit_options
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MSVC)
  target_compile_options(tanglewit_options INTERFACE /W4 /utf-8)
else()
  target_compile_options(tanglewit_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                                                     -Wconversion -Wold-style-cast)
endif()
if(TANGLEWIT_SANITIZE)
  target_compile_options(tanglewit_options INTERFACE -fsanitize=address,undefined
                                                     -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
  target_link_options(tanglewit_options INTERFACE -fsanitize=address,undefined)
endif()
# Each folder below src/ is one library and includes are written "folder/File.h".
target_include_directories(tanglewit_options INTERFACE "${PROJECT_SOURCE_DIR}/src")

# Where the installation puts what comes with the program.
set(TANGLEWIT_INSTALL_DATA "${CMAKE_INSTALL_DATADIR}/tanglewit")
set(TANGLEWIT_INSTALL_PLUGINS "${CMAKE_INSTALL_LIBDIR}/tanglewit")

# tanglewit_library(<folder> SOURCES <files...> LINKS <targets...>)
function(tanglewit_library folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(tanglewit_${folder} STATIC ${arg_SOURCES})
  target_link_libraries(tanglewit_${folder} PUBLIC tanglewit_options ${arg_LINKS})
endfunction()

# tanglewit_test(<name> LINKS <targets...> [LABELS <labels...>] [SCREENS <screens...>]): builds
# <name>.cpp of this folder and runs it without a display, as if on a screen of 1024x768 pixels, and
# once more on each of the screens, of which there is a file in tests/support. The name begins with
# the folder's name in CTest.
function(tanglewit_test name)
  cmake_parse_arguments(arg "" "" "LINKS;LABELS;SCREENS" ${ARGN})
  add_executable(${name} ${name}.cpp)
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE Qt6::Test ${arg_LINKS})
  target_compile_definitions(${name} PRIVATE TANGLEWIT_TESTS_FOLDER="${PROJECT_SOURCE_DIR}/tests")
  # Only what is compiled in the same way can share the precompiled headers.
  if("tanglewit_test_support" IN_LIST arg_LINKS AND NOT "${arg_LINKS}" MATCHES "Qt6::")
    target_precompile_headers(${name} REUSE_FROM tanglewit_test_headers)
  endif()
  tanglewit_test_run(${name} "" 1024x768 "${arg_LABELS}")
  foreach(screen IN LISTS arg_SCREENS)
    tanglewit_test_run(${name} -${screen} ${screen} "${arg_LABELS}")
  endforeach()
endfunction()

function(tanglewit_test_run name suffix screen labels)
  get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  set(support "${PROJECT_SOURCE_DIR}/tests/support")
  set(run ${folder}/${name}${suffix})
  add_test(NAME ${run} COMMAND ${name})
  set_tests_properties(
    ${run}
    PROPERTIES LABELS "${labels}" TIMEOUT 300
               ENVIRONMENT "QT_QPA_PLATFORM=offscreen:configfile=${support}/screen-${screen}.json;LSAN_OPTIONS=suppressions=${support}/lsan.supp:print_suppressions=0")
endfunction()
