# The crossover form shows a schematic of its network. A small program of
# the project draws the four pictures at build time; they are written next to
# the executable and installed beside it.
add_executable(lpbilder ${CMAKE_SOURCE_DIR}/tools/lpbilder.cpp)
target_link_libraries(lpbilder PRIVATE Qt6::Gui)

set(QUARZEL_PICTURES
  ${CMAKE_BINARY_DIR}/LP_2Weg_6dB.jpg
  ${CMAKE_BINARY_DIR}/LP_2Weg_12dB.jpg
  ${CMAKE_BINARY_DIR}/LP_2Weg_18dB.jpg
  ${CMAKE_BINARY_DIR}/LP_3Weg_12dB.jpg)
add_custom_command(OUTPUT ${QUARZEL_PICTURES}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
          $<TARGET_FILE:lpbilder> ${CMAKE_BINARY_DIR}
  DEPENDS lpbilder
  COMMENT "Drawing the crossover network pictures"
  VERBATIM)
add_custom_target(quarzel_pictures ALL DEPENDS ${QUARZEL_PICTURES})
add_dependencies(quarzel quarzel_pictures)
install(FILES ${QUARZEL_PICTURES} DESTINATION ${QUARZEL_PROGRAM_DIR})
