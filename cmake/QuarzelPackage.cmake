# Everything that makes Quarzel an installed desktop program: the launcher on
# the PATH, the icon (also the main window's, from a Qt resource), the
# desktop entry, AppStream metadata, the manual page and the Debian package.

set(QUARZEL_RELEASE_DATE 2026-11-22)
set(QUARZEL_HOMEPAGE "https://quarzel.invalid" CACHE STRING
  "Web address where the repository is published; the AppStream screenshots are read from its docs/screenshots")

# --- launcher: bin/quarzel is a relative symbolic link to the program in its
# folder. The program finds its folder through the link (the kernel resolves
# it), so the catalogue and pictures beside it are found.
file(RELATIVE_PATH QUARZEL_LINK_TARGET /${CMAKE_INSTALL_BINDIR} /${QUARZEL_PROGRAM_DIR}/quarzel)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/launcher)
file(CREATE_LINK ${QUARZEL_LINK_TARGET} ${CMAKE_BINARY_DIR}/launcher/quarzel SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/launcher/quarzel DESTINATION ${CMAKE_INSTALL_BINDIR})

# --- icon: drawn at build time by a small program of the project.
add_executable(quarzelicon ${CMAKE_SOURCE_DIR}/tools/quarzelicon.cpp)
target_link_libraries(quarzelicon PRIVATE Qt6::Gui)
set(QUARZEL_ICON_SIZES 16 22 24 32 48 64 128 256)
set(QUARZEL_ICON_DIR ${CMAKE_BINARY_DIR}/icons)
set(QUARZEL_ICON_PNGS)
foreach(size IN LISTS QUARZEL_ICON_SIZES)
  list(APPEND QUARZEL_ICON_PNGS ${QUARZEL_ICON_DIR}/quarzel-${size}.png)
endforeach()
add_custom_command(OUTPUT ${QUARZEL_ICON_DIR}/quarzel.svg ${QUARZEL_ICON_PNGS}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${QUARZEL_ICON_DIR}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
          $<TARGET_FILE:quarzelicon> ${QUARZEL_ICON_DIR}
  DEPENDS quarzelicon
  COMMENT "Drawing the program icon"
  VERBATIM)
qt_add_resources(quarzel quarzel_icon PREFIX /icons BASE ${QUARZEL_ICON_DIR} FILES ${QUARZEL_ICON_PNGS})

install(FILES ${QUARZEL_ICON_DIR}/quarzel.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${QUARZEL_APP_ID}.svg)
foreach(size IN LISTS QUARZEL_ICON_SIZES)
  install(FILES ${QUARZEL_ICON_DIR}/quarzel-${size}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME ${QUARZEL_APP_ID}.png)
endforeach()

# --- desktop entry, AppStream metadata, manual page.
# The screenshots are the ones the screenshot script made; it lists them with
# their captions in docs/screenshots/screenshots.txt (name|English|German).
set(QUARZEL_METAINFO_SCREENSHOTS "")
set(shots ${CMAKE_SOURCE_DIR}/docs/screenshots/screenshots.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${shots})
if(EXISTS ${shots})
  file(STRINGS ${shots} lines ENCODING UTF-8)
  set(kind "default")
  foreach(line IN LISTS lines)
    string(REPLACE "|" ";" fields "${line}")
    list(LENGTH fields n)
    if(NOT n EQUAL 3)
      continue()
    endif()
    list(GET fields 0 name)
    list(GET fields 1 en)
    list(GET fields 2 de)
    string(APPEND QUARZEL_METAINFO_SCREENSHOTS
      "    <screenshot type=\"${kind}\">\n"
      "      <caption>${en}</caption>\n"
      "      <caption xml:lang=\"de\">${de}</caption>\n"
      "      <image>${QUARZEL_HOMEPAGE}/docs/screenshots/${name}.png</image>\n"
      "    </screenshot>\n")
    set(kind "extra")
  endforeach()
endif()

set(QUARZEL_DESKTOP_FILE ${CMAKE_BINARY_DIR}/packaging/${QUARZEL_APP_ID}.desktop)
set(QUARZEL_METAINFO_FILE ${CMAKE_BINARY_DIR}/packaging/${QUARZEL_APP_ID}.metainfo.xml)
configure_file(${CMAKE_SOURCE_DIR}/packaging/quarzel.desktop.in ${QUARZEL_DESKTOP_FILE} @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/packaging/quarzel.metainfo.xml.in ${QUARZEL_METAINFO_FILE} @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/packaging/quarzel.1.in ${CMAKE_BINARY_DIR}/packaging/quarzel.1 @ONLY)
install(FILES ${QUARZEL_DESKTOP_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${QUARZEL_METAINFO_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
# Manual pages are installed compressed, as Debian keeps them.
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/packaging/quarzel.1.gz
  COMMAND gzip -9 -n -k -f ${CMAKE_BINARY_DIR}/packaging/quarzel.1
  DEPENDS ${CMAKE_BINARY_DIR}/packaging/quarzel.1
  VERBATIM)
add_custom_target(quarzel_manual ALL DEPENDS ${CMAKE_BINARY_DIR}/packaging/quarzel.1.gz)
install(FILES ${CMAKE_BINARY_DIR}/packaging/quarzel.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# --- Debian package: cpack -G DEB in the build folder.
set(CPACK_PACKAGE_NAME quarzel)
set(CPACK_PACKAGE_VENDOR "Quarzel")
set(CPACK_PACKAGE_CONTACT "Quarzel <quarzel@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "collection of electronics calculators (German user interface)")
set(CPACK_PACKAGE_DESCRIPTION
  "Quarzel is a collection of electronics calculators for hobbyists and practitioners with a German user interface: Ohm's law, power, wire resistance, reactances, RL network, resonant circuit, voltage dividers, coil with core, loudspeaker crossovers and a heat-sink calculator over a transistor catalogue.")
# A Debian package installs below /usr.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${QUARZEL_HOMEPAGE})
set(CPACK_STRIP_FILES ON)
include(CPack)
