# Runs inside `cmake --install` (and cpack), after the files of the install
# rules are in place. CMAKE_INSTALL_PREFIX is the prefix the program runs
# under; DESTDIR, when set, is a staging folder in front of it.
set(_root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(_folder "${_root}/${CARTOMAR_PROGRAM_FOLDER}")

# The help as the build lays it beside the executable: the manual and its
# pictures.
if(EXISTS "${CARTOMAR_SOURCE_DIR}/help/Cartomar.hlp")
  file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}/${CARTOMAR_PROGRAM_FOLDER}" TYPE FILE
       FILES "${CARTOMAR_SOURCE_DIR}/help/Cartomar.hlp")
endif()
if(EXISTS "${CARTOMAR_SOURCE_DIR}/help/images")
  file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}/${CARTOMAR_PROGRAM_FOLDER}/Help" TYPE DIRECTORY
       FILES "${CARTOMAR_SOURCE_DIR}/help/images")
endif()

# The launcher on the PATH: a relative link, so the folder may move with its
# prefix. The executable finds its folder through the link.
file(MAKE_DIRECTORY "${_root}/bin")
file(RELATIVE_PATH _target "${CMAKE_INSTALL_PREFIX}/bin" "${CMAKE_INSTALL_PREFIX}/${CARTOMAR_PROGRAM_FOLDER}/cartomar")
file(REMOVE "${_root}/bin/cartomar")
file(CREATE_LINK "${_target}" "${_root}/bin/cartomar" SYMBOLIC)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${_root}/bin/cartomar")
message(STATUS "Installing: ${_root}/bin/cartomar -> ${_target}")

# The menu entry names the launcher by its full path: a prefix under the home
# folder is often not on the PATH of the desktop session. A path the entry
# cannot carry plainly is quoted; one with characters that need escaping
# falls back to the PATH.
set(CARTOMAR_EXEC "${CMAKE_INSTALL_PREFIX}/bin/cartomar")
if(CARTOMAR_EXEC MATCHES "[\"`$\\\\%]")
  set(CARTOMAR_EXEC cartomar)
elseif(CARTOMAR_EXEC MATCHES "[ \t'<>~|&;*?#()]")
  set(CARTOMAR_EXEC "\"${CARTOMAR_EXEC}\"")
endif()
configure_file("${CARTOMAR_SOURCE_DIR}/desktop/${CARTOMAR_ID}.desktop.in"
               "${CARTOMAR_BINARY_DIR}/install/${CARTOMAR_ID}.desktop" @ONLY)
file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}/share/applications" TYPE FILE
     FILES "${CARTOMAR_BINARY_DIR}/install/${CARTOMAR_ID}.desktop")

# A user's own install tells the desktop about the new type and entry at once;
# a system package leaves that to the package manager's triggers.
if("$ENV{DESTDIR}" STREQUAL "")
  find_program(_update_mime update-mime-database)
  find_program(_update_desktop update-desktop-database)
  if(_update_mime)
    execute_process(COMMAND "${_update_mime}" "${_root}/share/mime" OUTPUT_QUIET ERROR_QUIET)
  endif()
  if(_update_desktop)
    execute_process(COMMAND "${_update_desktop}" "${_root}/share/applications" OUTPUT_QUIET ERROR_QUIET)
  endif()
endif()
