# Builds the Debian package of the build tree BUILD into WORK, checks that it
# carries everything an installed Quarzel needs, unpacks it and runs SCRIPT
# with the unpacked program through its launcher; the output must equal
# EXPECTED. Nothing is installed on the system.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/run)

execute_process(COMMAND ${CPACK} --config ${BUILD}/CPackConfig.cmake -G DEB -B ${WORK}
  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
file(GLOB debs ${WORK}/quarzel_*.deb)
list(LENGTH debs n)
if(NOT rc EQUAL 0 OR NOT n EQUAL 1)
  message(FATAL_ERROR "cpack failed (${rc}):\n${out}\n${err}")
endif()

execute_process(COMMAND ${DPKG_DEB} --contents ${debs} OUTPUT_VARIABLE listing RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "dpkg-deb --contents failed")
endif()
set(share .${PREFIX}/share)
set(wanted
  .${PREFIX}/bin/quarzel
  .${PREFIX}/lib/quarzel/quarzel
  .${PREFIX}/lib/quarzel/Transist.dat
  .${PREFIX}/lib/quarzel/LP_2Weg_6dB.jpg
  .${PREFIX}/lib/quarzel/LP_2Weg_12dB.jpg
  .${PREFIX}/lib/quarzel/LP_2Weg_18dB.jpg
  .${PREFIX}/lib/quarzel/LP_3Weg_12dB.jpg
  ${share}/applications/${APP_ID}.desktop
  ${share}/metainfo/${APP_ID}.metainfo.xml
  ${share}/icons/hicolor/scalable/apps/${APP_ID}.svg
  ${share}/man/man1/quarzel.1.gz)
foreach(size 16 22 24 32 48 64 128 256)
  list(APPEND wanted ${share}/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
endforeach()
foreach(path IN LISTS wanted)
  string(FIND "${listing}" " ${path}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the package lacks ${path}:\n${listing}")
  endif()
endforeach()

execute_process(COMMAND ${DPKG_DEB} --extract ${debs} ${WORK}/root RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "dpkg-deb --extract failed")
endif()
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{QUARZEL_INSTANCE} ${INSTANCE})
set(ENV{LC_ALL} C.UTF-8)
execute_process(COMMAND ${WORK}/root${PREFIX}/bin/quarzel --script ${SCRIPT}
  WORKING_DIRECTORY ${WORK}/run
  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc
  TIMEOUT 100)
file(READ ${EXPECTED} expected)
if(NOT out STREQUAL expected OR NOT rc EQUAL 0)
  file(WRITE ${WORK}/actual.out "${out}")
  execute_process(COMMAND diff -u ${EXPECTED} ${WORK}/actual.out OUTPUT_VARIABLE d)
  message(FATAL_ERROR "status ${rc}; output differs from ${EXPECTED}:\n${d}\nstderr:\n${err}")
endif()
