# SPDX-License-Identifier: MIT
# Part of the installation: the desktop entry and the session bus's service, which start the program by its absolute
# path, because the login's PATH knows fewer folders than a shell's. Takes LUMIVANE_PROGRAM, LUMIVANE_IDENTIFIER,
# LUMIVANE_TEMPLATES, and LUMIVANE_DATA under LUMIVANE_ROOT, the folder that the two go to.

# As one word of a command line, in a value of either file.
function(lumivane_quote variable path)
  if(NOT path MATCHES "^[A-Za-z0-9/._+,:@-]+$")
    foreach(special "\\" "\"" "`" "$")
      string(REPLACE "${special}" "\\${special}" path "${path}")
    endforeach()
    string(REPLACE "\\" "\\\\" path "\"${path}\"")
  endif()
  set(${variable} "${path}" PARENT_SCOPE)
endfunction()

macro(lumivane_write_entry template file)
  configure_file("${LUMIVANE_TEMPLATES}/${template}" "${LUMIVANE_ROOT}${LUMIVANE_DATA}/${file}" @ONLY
                 FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${LUMIVANE_DATA}/${file}")
endmacro()

string(REPLACE "\\" "\\\\" LUMIVANE_TRY_EXEC "${LUMIVANE_PROGRAM}")
lumivane_quote(LUMIVANE_EXEC "${LUMIVANE_PROGRAM}")
lumivane_write_entry(lumivane.service.in dbus-1/services/${LUMIVANE_IDENTIFIER}.service)
# In a desktop entry a percent sign starts a field code.
string(REPLACE "%" "%%" LUMIVANE_EXEC "${LUMIVANE_EXEC}")
lumivane_write_entry(lumivane.desktop.in applications/${LUMIVANE_IDENTIFIER}.desktop)
