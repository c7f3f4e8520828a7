# English counts in two forms ("1 entry", "2 entries"), and Qt's translation
# system takes the forms of a counted text from a catalogue: the program's
# texts are written in the plural, and translations/cartomar_en.ts gives the
# English singular of each. The catalogue is embedded in the screens library
# as :/i18n/cartomar_en.qm and installed at start-up beneath any language.
find_package(Qt6 REQUIRED COMPONENTS LinguistTools)
qt_add_lrelease(cartomar_screens
  TS_FILES ${CMAKE_SOURCE_DIR}/translations/cartomar_en.ts
  QM_FILES_OUTPUT_VARIABLE CARTOMAR_PLURAL_FORMS
  OPTIONS -silent)
qt_add_resources(cartomar_screens cartomar_plural_forms
  PREFIX /i18n
  BASE ${CMAKE_CURRENT_BINARY_DIR}
  FILES ${CARTOMAR_PLURAL_FORMS})
