# SPDX-License-Identifier: GPL-3.0-or-later
# Makes one page of the handbook: PAGE of PAGES, with the program CMARK, in FOLDER.

function(title_of page result)
  file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/${page}.md" heading REGEX "^# " LIMIT_COUNT 1)
  string(SUBSTRING "${heading}" 2 -1 heading)
  set(${result} "${heading}" PARENT_SCOPE)
endfunction()

set(CONTENTS "")
foreach(page IN LISTS PAGES)
  title_of(${page} title)
  if(page STREQUAL PAGE)
    string(APPEND CONTENTS "<li><b aria-current=\"page\">${title}</b></li>\n")
  else()
    string(APPEND CONTENTS "<li><a href=\"${page}.html\">${title}</a></li>\n")
  endif()
endforeach()

title_of(${PAGE} TITLE)
if(NOT PAGE STREQUAL "index")
  string(APPEND TITLE " – The Tanglewit")
endif()
execute_process(
  COMMAND "${CMARK}" --extension table --smart "${CMAKE_CURRENT_LIST_DIR}/${PAGE}.md"
  OUTPUT_VARIABLE TEXT COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([a-z-]+)\\.md\"" "href=\"\\1.html\"" TEXT "${TEXT}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/page.html.in" "${FOLDER}/${PAGE}.html" @ONLY
               NEWLINE_STYLE UNIX)
file(TOUCH "${FOLDER}/${PAGE}.html")
