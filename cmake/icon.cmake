# The program's icon, drawn as resources/tarvex.svg: turned into PNG files of the usual sizes and, for Windows,
# one ICO of them.

set(TARVEX_ICON_SIZES 16 24 32 48 64 128 256)
set(TARVEX_ICON_DIR ${CMAKE_BINARY_DIR}/icon)

function(tarvex_icon_pngs out)
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)
  file(MAKE_DIRECTORY ${TARVEX_ICON_DIR})
  set(pngs)
  foreach(size IN LISTS TARVEX_ICON_SIZES)
    set(png ${TARVEX_ICON_DIR}/tarvex-${size}.png)
    add_custom_command(OUTPUT ${png}
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} ${CMAKE_SOURCE_DIR}/resources/tarvex.svg -o ${png}
      DEPENDS ${CMAKE_SOURCE_DIR}/resources/tarvex.svg)
    list(APPEND pngs ${png})
  endforeach()
  set(${out} ${pngs} PARENT_SCOPE)
endfunction()

# Adds icon, version and manifest to a Windows executable.
function(tarvex_windows_resources target)
  find_program(ICOTOOL icotool REQUIRED)
  tarvex_icon_pngs(pngs)
  set(TARVEX_ICO ${TARVEX_ICON_DIR}/tarvex.ico)
  set(TARVEX_MANIFEST ${CMAKE_SOURCE_DIR}/resources/tarvex.manifest)
  add_custom_command(OUTPUT ${TARVEX_ICO} COMMAND ${ICOTOOL} -c -o ${TARVEX_ICO} ${pngs} DEPENDS ${pngs})
  set(rc ${CMAKE_BINARY_DIR}/tarvex.rc)
  configure_file(${CMAKE_SOURCE_DIR}/resources/tarvex.rc.in ${rc} @ONLY)
  set_source_files_properties(${rc} PROPERTIES OBJECT_DEPENDS "${TARVEX_ICO};${TARVEX_MANIFEST}")
  set_property(SOURCE ${rc} PROPERTY LANGUAGE RC)
  target_sources(${target} PRIVATE ${rc} ${TARVEX_ICO})
endfunction()

# Gives the target a header "tarvex_icon.h" with the bytes of the PNG files, for windows that take their icon at
# run time.
function(tarvex_embedded_icon target)
  tarvex_icon_pngs(pngs)
  set(header ${TARVEX_ICON_DIR}/tarvex_icon.h)
  add_custom_command(OUTPUT ${header}
    COMMAND ${CMAKE_COMMAND} "-DPNGS=${pngs}" -DHEADER=${header} -P ${CMAKE_SOURCE_DIR}/cmake/embed_icon.cmake
    DEPENDS ${pngs} ${CMAKE_SOURCE_DIR}/cmake/embed_icon.cmake
    VERBATIM)
  # The target may stem from another folder, where the command is not known.
  add_custom_target(${target}_icon DEPENDS ${header})
  add_dependencies(${target} ${target}_icon)
  target_include_directories(${target} PRIVATE ${TARVEX_ICON_DIR})
endfunction()
