# The program's languages. Its texts are written in English in the code and
# go through Qt's translation system; each other language is one file under
# translations/ (cartomar_<language>.ts), compiled by lrelease at build time
# and embedded in the screens library under :/i18n, where the start-up finds
# it (screens/platform/Application.h).
#
# `cmake --build build --target update_translations` runs lupdate over every
# source of the program and refreshes the .ts files: new texts come in
# unfinished, texts no longer in the code go. The files name no source lines,
# so that moving code does not touch them.
find_package(Qt6 REQUIRED COMPONENTS LinguistTools)

set(CARTOMAR_LANGUAGES es de)
set(CARTOMAR_TS_FILES)
foreach(language ${CARTOMAR_LANGUAGES})
  list(APPEND CARTOMAR_TS_FILES ${CMAKE_SOURCE_DIR}/translations/cartomar_${language}.ts)
endforeach()
# English counts in two forms ("1 entry", "2 entries"), and Qt takes the forms
# of a counted text from a catalogue: the code writes the plural, and
# cartomar_en.ts gives the English singular of each. It is compiled and
# embedded beside the languages (:/i18n/cartomar_en.qm) and installed at
# start-up beneath any of them; lupdate leaves it alone.
set(CARTOMAR_PLURAL_FORMS_TS ${CMAKE_SOURCE_DIR}/translations/cartomar_en.ts)
set_source_files_properties(${CARTOMAR_TS_FILES} ${CARTOMAR_PLURAL_FORMS_TS}
  PROPERTIES OUTPUT_LOCATION ${CMAKE_BINARY_DIR}/translations)

qt_add_lupdate(cartomar_screens
  TS_FILES ${CARTOMAR_TS_FILES}
  SOURCES ${CARTOMAR_CORE_SOURCES} ${CARTOMAR_SCREEN_SOURCES} ${CMAKE_SOURCE_DIR}/src/main.cpp
  INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR}/src
  OPTIONS -no-obsolete -locations none -silent)
qt_add_lrelease(cartomar_screens
  TS_FILES ${CARTOMAR_TS_FILES} ${CARTOMAR_PLURAL_FORMS_TS}
  QM_FILES_OUTPUT_VARIABLE CARTOMAR_QM_FILES
  OPTIONS -silent)
qt_add_resources(cartomar_screens cartomar_translations
  PREFIX /i18n
  BASE ${CMAKE_BINARY_DIR}/translations
  FILES ${CARTOMAR_QM_FILES})
