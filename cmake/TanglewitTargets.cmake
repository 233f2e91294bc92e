# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the program is compiled with, and short ways to declare a library of
# src/ and a test of tests/.

add_library(tanglewit_options INTERFACE)
target_compile_features(tanglewit_options INTERFACE cxx_std_20)
target_compile_definitions(
  tanglewit_options
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(tanglewit_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                                                   -Wconversion -Wold-style-cast)
if(TANGLEWIT_SANITIZE)
  target_compile_options(tanglewit_options INTERFACE -fsanitize=address,undefined
                                                     -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
  target_link_options(tanglewit_options INTERFACE -fsanitize=address,undefined)
endif()
# A release is hardened as Debian's packages are (dpkg-buildflags), and names no folder of this machine.
target_compile_definitions(tanglewit_options INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
target_compile_options(
  tanglewit_options INTERFACE "$<$<CONFIG:Release>:-fstack-protector-strong;-Werror=format-security;-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>")
target_link_options(tanglewit_options INTERFACE "$<$<CONFIG:Release>:LINKER:-z,relro>")
# Each folder below src/ is one library and includes are written "folder/File.h".
target_include_directories(tanglewit_options INTERFACE "${PROJECT_SOURCE_DIR}/src")

# Where the installation puts what comes with the program.
set(TANGLEWIT_INSTALL_DATA "${CMAKE_INSTALL_DATADIR}/tanglewit")
# Two folders below lib/. For a library in a folder right below it, CPack has ldconfig called.
set(TANGLEWIT_INSTALL_PLUGINS "${CMAKE_INSTALL_LIBDIR}/tanglewit/plugins")
set(TANGLEWIT_INSTALL_HANDBOOK "${TANGLEWIT_INSTALL_DATA}/handbook")

# The generated files that sources include, for tools that read sources without building them.
add_custom_target(generated)
function(tanglewit_generated target)
  add_custom_target(${target}_generated DEPENDS ${ARGN})
  add_dependencies(generated ${target}_generated)
endfunction()

# tanglewit_library(<folder> SOURCES <files...> LINKS <targets...>)
function(tanglewit_library folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  set(target tanglewit_${folder})
  add_library(${target} STATIC ${arg_SOURCES})
  target_link_libraries(${target} PUBLIC tanglewit_options ${arg_LINKS})
  # Not with AUTOUIC, which makes the header of an edited form too late for the same build.
  list(FILTER arg_SOURCES INCLUDE REGEX "\\.ui$")
  if(arg_SOURCES)
    qt_wrap_ui(headers ${arg_SOURCES})
    target_sources(${target} PRIVATE ${headers})
    target_include_directories(${target} PRIVATE "${PROJECT_BINARY_DIR}/src")
    tanglewit_generated(${target} ${headers})
  endif()
endfunction()

# What every test is compiled with. Linked as a whole, Qt6::Test would define the folder of each
# test, and tests could not share precompiled headers.
add_library(tanglewit_test_options INTERFACE)
target_include_directories(tanglewit_test_options INTERFACE "${PROJECT_SOURCE_DIR}/tests")
target_include_directories(
  tanglewit_test_options SYSTEM
  INTERFACE $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
target_compile_definitions(
  tanglewit_test_options INTERFACE QT_TESTLIB_LIB
                                   TANGLEWIT_TESTS_FOLDER="${PROJECT_SOURCE_DIR}/tests")
target_link_libraries(tanglewit_test_options INTERFACE $<LINK_ONLY:Qt6::Test>)
if(TANGLEWIT_SANITIZE)
  # Most tests take longer to compile than to run.
  target_compile_options(tanglewit_test_options INTERFACE -O0)
endif()

# tanglewit_test(<name> LINKS <targets...> [LABELS <labels...>] [SCREENS <screens...>]): builds
# <name>.cpp of this folder and runs it without a display, as if on a screen of 1024x768 pixels, and
# once more on each of the screens, of which there is a file in tests/support. The name begins with
# the folder's name in CTest.
function(tanglewit_test name)
  cmake_parse_arguments(arg "" "" "LINKS;LABELS;SCREENS" ${ARGN})
  add_executable(${name} ${name}.cpp)
  target_link_libraries(${name} PRIVATE tanglewit_test_options ${arg_LINKS})
  target_precompile_headers(${name} REUSE_FROM ${test_headers})
  tanglewit_moc(${name} ${name})
  tanglewit_test_run(${name} "" 1024x768 "${arg_LABELS}")
  foreach(screen IN LISTS arg_SCREENS)
    tanglewit_test_run(${name} -${screen} ${screen} "${arg_LABELS}")
  endforeach()
endfunction()

# Makes the <name>.moc that <name>.cpp includes.
function(tanglewit_moc target name)
  qt_generate_moc(${name}.cpp ${name}.moc TARGET ${target})
  target_sources(${target} PRIVATE ${name}.moc)
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
  tanglewit_generated(${target} ${name}.moc)
endfunction()

# A test that lacks what it needs skips its initTestCase() and counts as skipped.
function(tanglewit_test_run name suffix screen labels)
  get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  set(support "${PROJECT_SOURCE_DIR}/tests/support")
  set(run ${folder}/${name}${suffix})
  add_test(NAME ${run} COMMAND ${name})
  set_tests_properties(
    ${run}
    PROPERTIES LABELS "${labels}" TIMEOUT 300
               SKIP_REGULAR_EXPRESSION "SKIP   : [A-Za-z0-9_]+::initTestCase"
               ENVIRONMENT "QT_QPA_PLATFORM=offscreen:configfile=${support}/screen-${screen}.json;LSAN_OPTIONS=suppressions=${support}/lsan.supp:print_suppressions=0")
  if("slow" IN_LIST labels)
    set_tests_properties(${run} PROPERTIES COST 1) # begins first
  endif()
endfunction()
