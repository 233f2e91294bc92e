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
  tanglewit_forms(${folder} ${arg_SOURCES})
endfunction()

# Makes headers of the Designer files among the sources, by rules of their own: after an edit of
# such a file AUTOUIC makes the header too late for the same build to compile it.
function(tanglewit_forms folder)
  list(FILTER ARGN INCLUDE REGEX "\\.ui$")
  if(NOT ARGN)
    return()
  endif()
  qt_wrap_ui(headers ${ARGN})
  set_source_files_properties(${headers} PROPERTIES SKIP_AUTOGEN ON)
  target_sources(tanglewit_${folder} PRIVATE ${headers})
  target_include_directories(tanglewit_${folder} PRIVATE "${PROJECT_BINARY_DIR}/src")
  add_custom_target(tanglewit_${folder}_forms DEPENDS ${headers})
endfunction()

# Most tests take longer to compile than to run: optimising them would cost more than it saves.
add_library(tanglewit_test_options INTERFACE)
if(TANGLEWIT_SANITIZE)
  target_compile_options(tanglewit_test_options INTERFACE -O0)
endif()
target_include_directories(tanglewit_test_options INTERFACE "${PROJECT_SOURCE_DIR}/tests")

# tanglewit_test(<name> [OPTIMISED] LINKS <targets...> [LABELS <labels...>] [SCREENS <screens...>]):
# builds <name>.cpp of this folder and runs it without a display, as if on a screen of 1024x768
# pixels, and once more on each of the screens, of which there is a file in tests/support. The name
# begins with the folder's name in CTest. OPTIMISED is for tests that reckon for seconds.
function(tanglewit_test name)
  cmake_parse_arguments(arg "OPTIMISED" "" "LINKS;LABELS;SCREENS" ${ARGN})
  # One call of moc for the one file with a class for it: looking for more takes much longer.
  add_executable(${name} ${name}.cpp ${name}.moc)
  qt_generate_moc(${name}.cpp ${name}.moc TARGET ${name})
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
  target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
  target_link_libraries(${name} PRIVATE tanglewit_test_options Qt6::Test ${arg_LINKS})
  target_compile_definitions(${name} PRIVATE TANGLEWIT_TESTS_FOLDER="${PROJECT_SOURCE_DIR}/tests")
  # Only what is compiled in the same way can share precompiled headers.
  set(links ${arg_LINKS})
  list(REMOVE_ITEM links tanglewit_runtime tanglewit_core)
  if(NOT links)
    target_precompile_headers(${name} REUSE_FROM tanglewit_core_test_headers)
  elseif(NOT "${links}" MATCHES "Qt6::")
    target_precompile_headers(${name} REUSE_FROM tanglewit_window_test_headers)
  endif()
  if(arg_OPTIMISED)
    set_source_files_properties(${name}.cpp PROPERTIES COMPILE_OPTIONS -O2
                                                       SKIP_PRECOMPILE_HEADERS ON)
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
  # What takes long begins first, so that the processors end together.
  set(cost 0)
  if("slow" IN_LIST labels)
    set(cost 1)
  endif()
  add_test(NAME ${run} COMMAND ${name})
  set_tests_properties(
    ${run}
    PROPERTIES LABELS "${labels}" COST ${cost} TIMEOUT 300
               ENVIRONMENT "QT_QPA_PLATFORM=offscreen:configfile=${support}/screen-${screen}.json;LSAN_OPTIONS=suppressions=${support}/lsan.supp:print_suppressions=0")
endfunction()
