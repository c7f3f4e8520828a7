# Builds the Debian package and checks what it would install: the same layout
# under /usr, a menu entry naming /usr/bin/cartomar, and the libraries it
# needs among its dependencies.
#   cmake -DBUILD_DIR=<build> -DOUT=<scratch folder> -DCARTOMAR_ID=<id> -P DebCheck.cmake
function(run out_var)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed (${rc}):\n${out}${err}")
  endif()
  set(${out_var} "${out}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${OUT}")
file(MAKE_DIRECTORY "${OUT}")
run(ignored cpack -G DEB --config "${BUILD_DIR}/CPackConfig.cmake" -B "${OUT}")
file(GLOB debs "${OUT}/cartomar_*.deb")
list(LENGTH debs count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "expected one package in ${OUT}, found: ${debs}")
endif()

run(contents dpkg-deb -c "${debs}")
foreach(path ./usr/lib/cartomar/cartomar ./usr/lib/cartomar/Cartomar.hlp ./usr/lib/cartomar/Location.loc
             ./usr/lib/cartomar/Packages/ "./usr/lib/cartomar/Packages/Cartomar Starter.pck"
             ./usr/lib/cartomar/Help/images/main-screen.png ./usr/share/applications/${CARTOMAR_ID}.desktop
             ./usr/share/metainfo/${CARTOMAR_ID}.metainfo.xml ./usr/share/mime/packages/cartomar.xml
             ./usr/share/icons/hicolor/256x256/apps/${CARTOMAR_ID}.png)
  string(FIND "${contents}" " ${path}\n" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the package lacks ${path}:\n${contents}")
  endif()
endforeach()
if(NOT contents MATCHES " \\./usr/bin/cartomar -> \\.\\./lib/cartomar/cartomar\n")
  message(FATAL_ERROR "the package has no launcher link:\n${contents}")
endif()
if(contents MATCHES "_CPack_Packages|/mime/globs|mimeinfo.cache")
  message(FATAL_ERROR "the package carries staging paths or caches of the desktop:\n${contents}")
endif()

run(depends dpkg-deb -f "${debs}" Depends)
if(NOT depends MATCHES "libqt6widgets6" OR NOT depends MATCHES "qt6-image-formats-plugins")
  message(FATAL_ERROR "the package does not depend on Qt and its picture plugins: ${depends}")
endif()

run(ignored dpkg-deb -x "${debs}" "${OUT}/root")
set(entry "${OUT}/root/usr/share/applications/${CARTOMAR_ID}.desktop")
file(STRINGS "${entry}" exec REGEX "^Exec=")
if(NOT exec STREQUAL "Exec=/usr/bin/cartomar %f")
  message(FATAL_ERROR "the menu entry runs ${exec}")
endif()
run(ignored desktop-file-validate "${entry}")
run(ignored appstreamcli validate --no-net --strict "${OUT}/root/usr/share/metainfo/${CARTOMAR_ID}.metainfo.xml")
file(REMOVE_RECURSE "${OUT}")
