# SPDX-License-Identifier: GPL-3.0-or-later
# A Debian package has its change log and its manual pages compressed. CPack runs this on the files
# that it is about to pack.
find_program(gzip gzip REQUIRED)
set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
file(GLOB texts "${share}/doc/tanglewit/changelog" "${share}/man/man*/*")
foreach(text IN LISTS texts)
  execute_process(COMMAND "${gzip}" -9 --no-name "${text}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
