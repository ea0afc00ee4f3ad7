# Files the program reads from its own directory are copied next to the
# executable at build time and installed beside it.
set(QUARZEL_DATA_FILES)
if(EXISTS ${CMAKE_SOURCE_DIR}/transistor/Transist.dat)
  list(APPEND QUARZEL_DATA_FILES ${CMAKE_SOURCE_DIR}/transistor/Transist.dat)
endif()
foreach(f IN LISTS QUARZEL_DATA_FILES)
  get_filename_component(n ${f} NAME)
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/${n}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${f} ${CMAKE_BINARY_DIR}/${n}
    DEPENDS ${f})
  list(APPEND QUARZEL_DATA_OUTPUTS ${CMAKE_BINARY_DIR}/${n})
endforeach()
add_custom_target(quarzel_data ALL DEPENDS ${QUARZEL_DATA_OUTPUTS})
add_dependencies(quarzel quarzel_data)
install(FILES ${QUARZEL_DATA_OUTPUTS} DESTINATION ${QUARZEL_PROGRAM_DIR})
# Further generated data (the crossover pictures) is appended by crossover/pictures.cmake.
if(EXISTS ${CMAKE_SOURCE_DIR}/crossover/pictures.cmake)
  include(${CMAKE_SOURCE_DIR}/crossover/pictures.cmake)
endif()
