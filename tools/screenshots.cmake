# The program that takes the manual's pictures (help/images). It is built
# only when tools/screenshots.sh asks for it, so the normal build does not
# pay for it.
add_executable(take_screenshots EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/take_screenshots.cpp)
target_link_libraries(take_screenshots PRIVATE cartomar_screens)
